// Hauptform: the hidden main form. It lives as long as the program and owns the timers, the lists of forms
// that were put into EAGLE's windows, and the tray icon. Its load routine is the start of the program.
//
// The tracker, the tray icon and the run requests are routines of the form, each in a source of its own.
#pragma once

#include "calculator/frmMil.h"
#include "forms/form.h"
#include "forms/textBox.h"
#include "forms/timer.h"
#include "platform/shell32.h"
#include "platform/types.h"
#include "store/buttonLists.h"
#include "toolbars/frmToolbar.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace core {

/// A list of hosted forms: index 0 is made at the start, entries are added behind. Kept: they are never
/// removed, also when their host has gone.
using Toolbars = std::vector<std::unique_ptr<toolbars::frmToolbar>>;
using Calculators = std::vector<std::unique_ptr<calculator::frmMil>>;

struct PositionRecord {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
};

class EditorSearch;

class Hauptform : public forms::Form {
  public:
    Hauptform();
    ~Hauptform() override;

    /// One tick of the tracker.
    void setWindow();
    /// Adds the tray icon. If the shell refuses it, it is asked again for two minutes.
    void addSystray();
    /// Removes the tray icon; removing it twice does no harm.
    void delSystray();

    void Form_Load() override;
    void Form_QueryUnload(bool& cancel) override;
    void Form_Unload() override;
    /// The shell has started anew and knows nothing of the icon.
    void Form_TaskbarCreated() override;
    /// Receives the tray's messages: `x` is the mouse message times 15.
    void txtTooltip_MouseMove(float x);

    forms::Timer Timer1{500};      ///< handles a run request
    forms::Timer Timer2{200};      ///< the tick
    forms::Timer tmrSystray{1000}; ///< asks the shell again that has refused the tray icon
    forms::TextBox txtTooltip;

    Calculators calculators;
    Toolbars toolbarsBRD;
    Toolbars toolbarsSCH;
    Toolbars toolbarsLBR;
    /// Ticks without an EAGLE process.
    std::int16_t idleCount = 0;
    /// Last file name written to the settings, by editor kind.
    std::array<std::string, 3> lastOpened;
    /// Slots 1 to 8; 1 holds the host of the latest calculator. Written only, as are the records 1 to 3.
    std::array<std::int32_t, 9> windowTable = {};
    std::array<PositionRecord, 4> positions;

    Toolbars& toolbarsOf(store::EditorKind kind);

  private:
    platform::NOTIFYICONDATA trayRecord_;
    /// By editor kind, the host in front whose toolbar has been found in this tick.
    std::array<platform::HWND, 3> front_ = {};
    std::size_t turn_ = 0; ///< whose host is asked for its resolution next, among all toolbars
    int trayTries_ = 0;    ///< how often the icon was added since addSystray; 0 before

    // hauptform.cpp
    void loadSettings();
    void resetWindowRecords();
    void Timer2_Timer();
    // tracker.cpp
    void idleTest();
    bool trackKind(store::EditorKind kind, EditorSearch& search);
    std::size_t scan(store::EditorKind kind, platform::HWND host, bool& found);
    void rememberFile(store::EditorKind kind, platform::HWND host);
    std::size_t addToolbar(store::EditorKind kind, platform::HWND host, std::size_t scanned);
    std::size_t addCalculator(toolbars::frmToolbar& toolbar, platform::HWND host);
    bool followResolution(toolbars::frmToolbar& toolbar);
    bool followNext();
    void followAll();
    void placeCalculator(std::size_t index, platform::HWND host);
    // afterSave.cpp
    /// Builds all toolbars anew whose windows live, with their heights, and gives all calculators the units
    /// and formats in force.
    void followSave();
    // systray.cpp
    void tryAddSystray();
    // runRequest.cpp
    /// At the start: a request left over from an earlier run is deleted unread. Errors of platform::kill.
    static void dropRunRequest();
    /// On each tick: if the file is there, Timer2 goes off and Timer1 on.
    void lookForRunRequest();
    /// Errors of reading and deleting the file, with both timers left off; a request that cannot be opened
    /// fails silently.
    void Timer1_Timer();
};

/// The one instance, null before the start.
Hauptform* hauptform();

} // namespace core
