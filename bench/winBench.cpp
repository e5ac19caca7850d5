// The work that is measured under Wine, each beside a bare counterpart that makes the same platform calls.
// The measuring itself, CPU time of this process and of the server, is done from outside (bench/run.py).
//
//   win-bench windows N             opens N top-level windows and waits to be ended
//   win-bench load N [BUTTONS]      N times loadVarBar with buttons that have icons
//   win-bench load-bare N [BUTTONS] N times the icon extraction and the toolbar calls for them
//   win-bench editor N              N times the tick that finds a new board, with toolbar and calculator
//   win-bench editor-bare N         N times a pass over the titles before and after making the same windows
//   win-bench setup-open N [ROWS]   opens and cancels the setup N times, with three lists of so many rows
//   win-bench setup-open-bare N [ROWS]
//                                   opens and closes a dialog with the same controls and rows N times
//   win-bench setup-ok N [ROWS]     opens the setup and presses OK N times
//   win-bench setup-ok-bare N [ROWS]
//                                   makes the settings calls of such an OK N times
#include "otherWindows.h"
#include "setupBench.h"
#include "toolbarBench.h"

#include <cstdlib>
#include <string_view>

int main(int count, char** arguments) {
    const std::string_view what = count > 1 ? arguments[1] : "";
    const int number = count > 2 ? std::atoi(arguments[2]) : 0; // a number of rounds
    const int size = count > 3 ? std::atoi(arguments[3]) : 0;
    const int rows = size > 0 ? size : 200;
    if (what == "windows")
        return bench::openWindows(number);
    if (what == "load")
        bench::load(number, size > 0 ? size : 100);
    else if (what == "load-bare")
        bench::loadBare(number, size > 0 ? size : 100);
    else if (what == "editor")
        bench::newEditors(number);
    else if (what == "editor-bare")
        bench::newEditorsBare(number);
    else if (what == "setup-open")
        bench::openSetup(number, rows);
    else if (what == "setup-open-bare")
        bench::openBare(number, rows);
    else if (what == "setup-ok")
        bench::okSetup(number, rows);
    else if (what == "setup-ok-bare")
        bench::okBare(number, rows);
    else
        return 1;
    return 0;
}
