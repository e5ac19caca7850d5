// What is fuzzed: routines that take any bytes, and stop the program at the first thing that must not be.
//
// One program, kestrel-fuzz, plays them with new input (run.sh); the native tests play what is kept in
// corpus.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace fuzz {

using Play = void (*)(std::string_view input);

struct Target {
    const char* name;
    Play play;
    bool wholeProgram; ///< on the simulated desktop, from its start
};

void keyText(std::string_view input);
void numbers(std::string_view input);
void runRequest(std::string_view input);
void icons(std::string_view input);
void errorReport(std::string_view input);
void settings(std::string_view input);
void titles(std::string_view input);
void fileDialogs(std::string_view input);

inline constexpr std::array<Target, 8> targets = {{
    {"keyText", keyText, false},
    {"numbers", numbers, false},
    {"runRequest", runRequest, false},
    {"icons", icons, false},
    {"errorReport", errorReport, false},
    {"settings", settings, true},
    {"titles", titles, true},
    {"fileDialogs", fileDialogs, true},
}};

/// Says what is wrong and stops the program, which keeps the input that has done it.
[[noreturn]] void wrong(const char* what, std::string_view about);
inline void expect(bool right, const char* what, std::string_view about = {}) {
    if (!right)
        wrong(what, about);
}

/// Takes an input apart: numbers and texts from its beginning on. Of what is used up there are only zeros and
/// empty texts.
class Reader {
  public:
    explicit Reader(std::string_view input) : rest_(input) {}

    bool done() const { return rest_.empty(); }
    std::size_t below(std::size_t bound);
    /// Up to the next line feed, which does not belong to it.
    std::string text();
    std::string_view rest() const { return rest_; }

  private:
    std::string_view rest_;
};

} // namespace fuzz
