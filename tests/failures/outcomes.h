// What comes of a call of the platform that fails: a line for each call, and for each story in which it is
// another thing. The test is made from this table.
#pragma once

#include <array>

namespace failures {

struct Outcome {
    const char* call;
    const char* story;   ///< none: in any
    int error;           ///< the program tells of this runtime error and ends; 0: it goes on
    const char* differs; ///< what may be otherwise than without the failure, by names of facts
    const char* because;
};

// clang-format off
inline constexpr Outcome outcomes[] = {
    // --- settings: a value that cannot be read counts as absent, one that cannot be written stays as it was
    {"GetPrivateProfileStringA", "start", 0, "language units lists started activated windows messages", "the value's default, here of a wrong EAGLE path, too"},
    {"GetPrivateProfileStringA", nullptr, 0, "buttons pictures lists", "an empty field, or a list that ends there"},
    {"GetPrivateProfileStringA", "setup", 0, "settings lists messages", "the option shows as off, and OK writes what is shown"},
    {"GetPrivateProfileStringA", nullptr, 13, "", "a row's dialog or type that is no number"},
    {"GetPrivateProfileStringA", "start", 53, "", "EAGLE's path is none when it is to be started"},
    {"WritePrivateProfileStringA", nullptr, 0, "settings", "the key keeps its value, a section its rows"},
    {"copyFile", nullptr, 0, "kept", "OK keeps no old settings"},
    {"renameFile", nullptr, 0, "kept", "the old settings stay kestrel.sav, which the next OK writes anew"},

    // --- windows: what fails is missing for this tick, or until the toolbar is built again
    {"EnumWindows", nullptr, 0, "", "the next tick finds the window"},
    {"EnumWindows", "start", 0, "started activated windows", "EAGLE counts as not running"},
    {"GetWindowTextA", nullptr, 0, "settings toolbars calculators windows", "a tick later, or no file to remember"},
    {"GetWindowTextA", "start", 0, "started activated windows", "EAGLE counts as not running"},
    {"GetWindowTextLengthA", nullptr, 0, "settings", "no file to remember"},
    {"IsWindow", nullptr, 0, "settings", "no file to remember"},
    {"GetWindowRect", nullptr, 0, "places calculators", "placed as in a host without a width"},
    {"GetClientRect", nullptr, 0, "", "nothing of it is drawn anew at once"},
    {"dpiOf", nullptr, 0, "", "a toolbar stays as it is, a new one as the design has it, until it is asked again"},
    {"SetParent", nullptr, 0, "places calculators toolbars buttons pictures settings windows", "the window stands nowhere and is not seen"},
    {"MoveWindow", nullptr, 0, "places", "the toolbar stands where it was made"},
    {"SetWindowPos", nullptr, 0, "windows", "the order stays"},
    {"BringWindowToTop", nullptr, 0, "windows typed", "the order stays, keys go to who has them"},
    {"ShowWindow", nullptr, 0, "", "an icon stays an icon"},
    {"SendMessageA", nullptr, 0, "windows places", "the drawing stays as it was switched"},
    {"RedrawWindow", nullptr, 0, "", "drawn when the system comes to it"},

    // --- processes
    {"CreateToolhelp32Snapshot", nullptr, 0, "", "one tick without EAGLE"},
    {"Process32First", nullptr, 0, "", "one tick without EAGLE"},
    {"Process32Next", nullptr, 0, "", "one tick without EAGLE"},

    // --- pictures: a row whose icon cannot be had gets the last good one
    {"ExtractIconExA", nullptr, 0, "pictures", "the last good icon"},
    {"DrawIconEx", nullptr, 0, "pictures", "an empty picture"},
    {"DestroyIcon", nullptr, 0, "", "one icon more is open"},
    {"loadPicture", nullptr, 0, "", "the splash without it"},
    {"programIcon", nullptr, 0, "tray", "a place in the tray without a picture"},

    // --- tray
    {"Shell_NotifyIconA", "start", 0, "tray", "asked again a second later"},
    {"Shell_NotifyIconA", "exit", 0, "tray", "the shell clears it away with the program"},

    // --- the user
    {"inputBox", nullptr, 0, "dialogs started", "as after Cancel"},
    {"GetOpenFileNameA", nullptr, 0, "dialogs typed settings lists", "as after Cancel"},
    {"PickIconDlg", nullptr, 0, "dialogs settings lists clipboard", "as after Cancel, and the row is copied so"},
    {"HtmlHelpA", nullptr, 0, "messages beeps", "told, and tried again"},
    {"currentDirectory", nullptr, 0, "messages", "told, and tried again"},
    {"sendKeys", nullptr, 0, "typed", "nothing is typed"},
    {"clearClipboard", nullptr, 0, "beeps clipboard lists settings", "told by a beep, nothing is copied"},
    {"setClipboardText", nullptr, 0, "beeps clipboard lists settings", "told by a beep, nothing is copied"},
    {"clipboardText", nullptr, 0, "beeps lists settings", "told by a beep, nothing is pasted"},

    // --- files and programs
    {"dir", nullptr, 0, "request started", "the file counts as missing"},
    {"dir", "start", 0, "request started activated windows messages", "EAGLE's file, too"},
    {"dir", "setup", 0, "settings lists messages", "EAGLE's file, too: the path is told as wrong, the dialog stays open"},
    {"dir", "setup", 0, "beeps settings lists", "of dropped files that are not all there none is taken"},
    {"readShortcut", nullptr, 0, "beeps lists settings", "as a file that is no shortcut: told by a beep, nothing is taken"},
    {"kill", nullptr, 70, "", "a request that cannot be deleted would be run for ever"},
    {"readFirstLine", nullptr, 70, "", "a request that cannot be read"},
    {"ShellExecuteA", nullptr, 0, "started", "nothing is opened, nothing told"},
    {"shell", "start", 53, "", "EAGLE cannot be started"},
    {"shell", "clicks", 0, "started", "nothing is started, nothing told"},
    {"appActivate", nullptr, 5, "", "no window has the title any more"},

    // --- screen
    {"previousInstance", nullptr, 0, "", "counts as the first one"},
    {"screenWidth", nullptr, 0, "", "the dialog stands at the corner"},
    {"screenHeight", nullptr, 0, "", "the dialog stands at the corner"},
    {"workArea", nullptr, 0, "", "the whole screen"},
    {"screenDpi", nullptr, 0, "", "the dialog is as large as the design has it"},
};
// clang-format on

} // namespace failures
