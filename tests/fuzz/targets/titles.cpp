// Windows with any titles: opened, renamed, closed, raised, with ticks between.
#include "fuzz/targets/program.h"

#include "core/windoInf.h"

namespace fuzz {

void titles(std::string_view input) {
    // Error 5: a library whose name begins with a bracket.
    static const std::set<int> mayEnd = {5};
    Reader reader(input);
    desktop::Program program;
    desktop::World& desk = program.desk();
    desk.writeSettings("[Unit]\r\nVisible=1\r\n[board]\r\n1name=a\r\n1path=b\r\n1type=1\r\n1dialog=0\r\n");
    desk.startProcess("eagle.exe");
    if (!goesOn(program, {}, program.start()))
        return;
    std::vector<desktop::HWND> windows;
    for (std::size_t steps = 0; !reader.done() && steps < 40; ++steps) {
        const std::size_t what = reader.below(8);
        if (windows.empty() || what < 3) {
            windows.push_back(desk.openWindow(reader.text()));
        } else {
            const desktop::HWND window = windows[reader.below(windows.size())];
            if (desk.find(window) == nullptr)
                continue;
            if (what == 3)
                desk.closeWindow(window);
            else if (what == 4)
                desk.raise(window);
            else
                desk.setTitle(window, reader.text());
        }
        program.ticks(1);
        if (!goesOn(program, mayEnd, true))
            return;
        checkProgram(program);
        const std::string text = desk.order.empty() ? "" : desk.window(desk.order.front()).title;
        const std::string file = core::fileOfTitle(text);
        expect(text.find(file) != std::string::npos, "a file's name stands in its title", text);
    }
}

} // namespace fuzz
