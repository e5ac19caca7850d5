// What a walk expects of the program: made apart from it, by the rules as one would tell them to a user. It
// knows which windows there are, hears when the program looks at them, and says which toolbars and
// calculators stand from then on, where, and what the settings file holds.
#pragma once

#include "desktop/desktop.h"
#include "store/buttonLists.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace programWalk {

using desktop::HWND;

inline constexpr std::size_t kinds = 3;

/// A window of another program.
struct Host {
    HWND handle = HWND::none;
    std::string title;
    std::uint32_t process = 0;
    bool refuses = false; ///< has more rights, or dies as soon as something is to go into it
};

/// An entry of the program's lists behind the first, which stands for none.
struct Bar {
    HWND host = HWND::none;
    bool refused = false;
    bool dead = false; ///< with its host
    int left = 0;      ///< pixels in the host
    std::size_t calculator = 0;
    bool heightKnown = true; ///< it has found its height since its buttons were made
};

struct Calculator {
    HWND host = HWND::none;
    bool refused = false;
    bool dead = false;
    int left = 0;
};

struct Row {
    std::string name;
    bool separator = false;
};

/// Of the settings file: "section.key" in lower case.
using Settings = std::map<std::string, std::string>;
Settings parsed(const std::string& file);

class Expected {
  public:
    std::vector<Host> hosts;
    std::array<std::vector<Bar>, kinds> bars;
    /// By the program's numbers; the first is none.
    std::vector<Calculator> calculators = {{}};
    Settings settings;
    std::array<std::vector<Row>, kinds> rows;
    bool mended = false;
    /// As the program has it, which tells whether the next toolbar gets a calculator.
    bool calculatorsOn = false;

    Host* host(HWND handle);

    /// The program begins a tick, or looks at the windows in the order in which they are.
    void tickBegins();
    void looks();
    /// What has been begun is over.
    void tickEnds();
    /// Windows that have gone take with them what stood in them.
    void sweep();

    /// What the walk has found wrong by itself; empty if nothing.
    std::string wrong;

  private:
    struct Tick {
        std::int64_t at = 0;
        bool calculators = false;
        std::optional<std::int64_t> refusal;
        std::set<HWND> hung;
        std::size_t firstCall = 0;
        std::vector<std::vector<HWND>> looks;
    };

    const Host* front(std::size_t kind, const std::vector<HWND>& order) const;
    bool track(std::size_t kind, const Host& host);
    bool scanFinds(std::size_t kind, HWND host, std::size_t& index) const;
    void add(std::size_t kind, const Host& host, std::size_t scanned);
    void rememberFile(std::size_t kind, const std::string& title);
    void place(std::size_t calculator, HWND host);
    bool libraryMayWait() const;

    std::optional<Tick> tick_;
    std::array<std::string, kinds> lastFile_;
};

} // namespace programWalk
