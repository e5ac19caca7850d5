// A walk through the program's days: windows opened, closed, renamed, hung, moved, buttons clicked, the setup
// edited, requests, the tray's menu, time, all in random order; after each event all that must hold is looked
// at. What a seed does is always the same.
#pragma once

#include "fuzz/random.h"
#include "walk/expected.h"

#include "desktop/program.h"
#include "setup/frmSetup.h"

#include <deque>
#include <string>

namespace programWalk {

inline constexpr int eventsOfWorld = 10'000;

class Walk {
  public:
    /// The world of a seed: its settings, and a program that has been started in it.
    explicit Walk(std::uint32_t seed);
    ~Walk();
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;

    /// Plays so many events and gives how many there were: fewer, if something was wrong.
    int play(int events);
    /// What was wrong, with the seed and the latest events; empty if nothing.
    std::string report() const;

  private:
    struct Event {
        const char* name;
        void (Walk::*does)();
        std::size_t weight;
    };
    static const std::vector<Event>& events();
    void step();

    // walk.cpp: what happens
    void timePasses();
    void open();
    void close();
    void rename();
    void move();
    void raise();
    void minimise();
    void hang();
    void eagleCrashes();
    void ghosts();
    void click();
    void mouseOver();
    void calculate();
    void request();
    void tray();
    void shellRestarts();
    std::string title();
    desktop::RECT place();
    Host* anyHost();
    /// A toolbar that the user can see; null if there is none.
    toolbars::frmToolbar* anyToolbar(std::size_t& kind, std::size_t& index);

    // setupEdits.cpp: the setup, from its opening to its closing
    void expectSetup(std::size_t opener);
    void useSetup(setup::frmSetup& form);
    void edit(setup::frmSetup& form);
    void editList(setup::frmSetup& form, std::size_t page);
    void checkSetup(setup::frmSetup& form);
    void expectSaved(setup::frmSetup& form);

    // rules.cpp: what must hold
    void check();
    void checkProgram();
    void checkCounts();
    void checkHosts();
    void checkBars(std::size_t kind);
    void checkBar(std::size_t kind, toolbars::frmToolbar& toolbar, const Bar& bar);
    void checkCalculators();
    void checkWindows();
    void checkSettings();
    void rule(bool holds, const char* what, const std::string& about = {});

    void note(const std::string& text);
    void act(const std::function<void()>& code);
    bool one(std::size_t of) { return random_.below(of) == 0; }

    std::uint32_t seed_;
    fuzz::Random random_;
    desktop::Program program_;
    desktop::World& desk_;
    Expected expected_;
    int played_ = 0;
    std::size_t pages_ = 0;       ///< of the setup that is up: the toolbar's kind, or none
    int waited_ = 0;              ///< ticks since the latest request
    std::map<HWND, HWND> ghosts_; ///< by the windows that they stand for
    bool killed_ = false;
    std::size_t icons_ = 0;
    std::string settingsText_;
    Settings settingsSeen_;
    std::string wrong_;
    std::deque<std::string> latest_;
};

} // namespace programWalk
