// The run-request file.
#include "codePages.h"
#include "core/runRequest.h"

#include "core/frmMenu.h"
#include "desktop/program.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

using core::splitRunRequest;
using desktop::Program;

namespace {

const std::string file = "C:\\kestrel\\execute.txt";

constexpr int tick = 200;
constexpr int delay = 500;

struct Requests {
    Requests() {
        desk().writeSettings("");
        REQUIRE(program.start());
        program.desk().startProcess("eagle.exe");
    }
    desktop::World& desk() { return program.desk(); }
    /// Leaves a file and lets the time pass in which it is handled.
    void request(const std::string& content) {
        desk().writeFile(file, content);
        desk().run(tick + delay);
    }
    bool watching() { return program.form().Timer2.enabled() && !program.form().Timer1.enabled(); }
    bool waiting() { return !program.form().Timer2.enabled() && program.form().Timer1.enabled(); }

    Program program;
};

} // namespace

TEST_SUITE_BEGIN("core/runRequest");

TEST_CASE("no quote: the whole line, untrimmed, is the program") {
    const core::RunRequest request = splitRunRequest("  C:\\my tools\\a.exe  ");
    CHECK(request.program == "  C:\\my tools\\a.exe  ");
    CHECK(request.parameters.empty());
}

TEST_CASE("one quote: the text before it, trimmed, is the program") {
    const core::RunRequest request = splitRunRequest("  a.exe \"b c");
    CHECK(request.program == "a.exe");
    CHECK(request.parameters.empty());
}

TEST_CASE("two quotes: the parameters come without them, as they stand") {
    const core::RunRequest request = splitRunRequest(" a.exe  \" b c \"");
    CHECK(request.program == "a.exe");
    CHECK(request.parameters == " b c ");
}

TEST_CASE("two quotes side by side give empty parameters") {
    const core::RunRequest request = splitRunRequest("a.exe \"\" b");
    CHECK(request.program == "a.exe");
    CHECK(request.parameters.empty());
}

TEST_CASE("a quoted program at the start lands in the parameters") {
    const core::RunRequest request = splitRunRequest("\"C:\\my tools\\a.exe\" b");
    CHECK(request.program.empty());
    CHECK(request.parameters == "C:\\my tools\\a.exe");
}

TEST_CASE("what follows the second quote has no effect") {
    const core::RunRequest request = splitRunRequest("a.exe \"b\" c \"d\"");
    CHECK(request.program == "a.exe");
    CHECK(request.parameters == "b");
}

TEST_CASE("only blanks are trimmed from the program") {
    CHECK(splitRunRequest("\t a.exe \t\"b\"").program == "\t a.exe \t");
}

TEST_CASE("positions are 16-bit numbers, a quote beyond counts as none") {
    const std::string reach(32766, 'x');
    CHECK(splitRunRequest(reach + "\"b\"").program == reach);
    CHECK(splitRunRequest(reach + "\"b\"").parameters.empty());
    const std::string beyond(32767, 'x');
    CHECK(splitRunRequest(beyond + "\"b\"").program == beyond + "\"b\"");
    const std::string parameters(32700, 'p');
    CHECK(splitRunRequest("a \"" + parameters + "\"").parameters == parameters);
    CHECK(splitRunRequest("a \"" + parameters + parameters + "\"").program == "a");
    CHECK(splitRunRequest("a \"" + parameters + parameters + "\"").parameters.empty());
}

TEST_CASE("the shell opens the first line's program with its parameters") {
    Requests requests;
    requests.request("notepad.exe \"C:\\my file.txt\"\r\nsecond.exe\r\n");
    REQUIRE(requests.desk().executed.size() == 1);
    const desktop::ShellExecution& call = requests.desk().executed[0];
    CHECK(call.owner == requests.program.form().hWnd());
    CHECK(call.verb == "Open");
    CHECK(call.file == "notepad.exe");
    CHECK(call.parameters == "C:\\my file.txt");
    CHECK(call.folder.empty());
    CHECK(call.command == 1);
    CHECK_FALSE(requests.desk().fileText(file).has_value());
    CHECK(requests.desk().messagePumps == 1);
    CHECK(requests.watching());
}

TEST_CASE("seen by the tick, handled 500 ms later, and only then the tick goes on") {
    Requests requests;
    requests.desk().writeFile(file, "a.exe");
    CHECK(requests.watching());
    requests.desk().run(tick);
    CHECK(requests.waiting());
    requests.desk().run(delay - 1);
    CHECK(requests.waiting());
    CHECK(requests.desk().executed.empty());
    CHECK(requests.desk().fileText(file).has_value());
    requests.desk().run(1);
    CHECK(requests.desk().executed.size() == 1);
    CHECK(requests.watching());
}

TEST_CASE("a new editor window gets its toolbar only after the request has been handled") {
    Requests requests;
    requests.desk().writeFile(file, "a.exe");
    requests.desk().run(tick);
    requests.desk().openWindow("Board - a.brd - EAGLE");
    requests.desk().run(delay + tick - 1);
    CHECK(requests.program.hosted(store::EditorKind::board) == 0);
    requests.desk().run(1);
    CHECK(requests.program.hosted(store::EditorKind::board) == 1);
}

TEST_CASE("the tick tracks first and then looks for the file") {
    Requests requests;
    requests.desk().openWindow("Board - a.brd - EAGLE");
    requests.desk().writeFile(file, "a.exe");
    requests.desk().run(tick);
    CHECK(requests.program.hosted(store::EditorKind::board) == 1);
    CHECK(requests.waiting());
}

TEST_CASE("a second file over a waiting one replaces it, one behind is handled next") {
    Requests requests;
    requests.desk().writeFile(file, "first.exe");
    requests.desk().run(tick + 100);
    requests.desk().writeFile(file, "second.exe");
    requests.desk().run(delay - 100);
    requests.request("third.exe");
    REQUIRE(requests.desk().executed.size() == 2);
    CHECK(requests.desk().executed[0].file == "second.exe");
    CHECK(requests.desk().executed[1].file == "third.exe");
}

TEST_CASE(
    "an empty file, and a line that begins with a quote, ask for nothing; the file goes, the tick returns") {
    for (const char* content : {"", "\r\n", "\"", "\"\"", "\nsecond"}) {
        CAPTURE(content);
        Requests requests;
        requests.request(content);
        REQUIRE(requests.desk().executed.size() == 1);
        CHECK(requests.desk().executed[0].file.empty());
        CHECK(requests.desk().executed[0].parameters.empty());
        CHECK(requests.desk().started.empty());
        CHECK_FALSE(requests.desk().fileText(file).has_value());
        CHECK(requests.watching());
        CHECK(requests.desk().messageBoxes.empty());
    }
}

TEST_CASE("what the shell cannot open fails silently") {
    Requests requests;
    requests.request("nowhere.exe");
    CHECK(requests.desk().started.empty());
    CHECK(requests.desk().messageBoxes.empty());
    CHECK(requests.watching());
}

TEST_CASE("a file being written is read as far as it has come") {
    Requests requests;
    requests.request("C:\\to");
    REQUIRE(requests.desk().executed.size() == 1);
    CHECK(requests.desk().executed[0].file == "C:\\to");
}

TEST_CASE("a locked, a read-only and a vanished file are the runtime's error and the end") {
    const auto fails = [](const char* text, auto change) {
        Requests requests;
        requests.desk().writeFile(file, "a.exe");
        requests.desk().run(tick);
        change(requests.desk());
        requests.desk().run(delay);
        CHECK(requests.desk().ended);
        CHECK(requests.desk().executed.empty());
        REQUIRE(requests.desk().messageBoxes.size() == 1);
        CHECK(requests.desk().messageBoxes[0].text == text);
        CHECK_FALSE(requests.desk().trayIcon.has_value());
    };
    fails("Run-time error '70':\r\n\r\nPermission denied",
          [](desktop::World& desk) { desk.file(file)->locked = true; });
    fails("Run-time error '75':\r\n\r\nPath/File access error",
          [](desktop::World& desk) { desk.file(file)->readOnly = true; });
    fails("Run-time error '53':\r\n\r\nFile not found", [](desktop::World& desk) { desk.removeFile(file); });
}

TEST_CASE("hidden and system files and a folder of that name are not seen") {
    Requests requests;
    requests.desk().writeFile(file, "a.exe");
    requests.desk().file(file)->hidden = true;
    requests.desk().run(tick);
    CHECK(requests.watching());
    requests.desk().file(file)->hidden = false;
    requests.desk().file(file)->system = true;
    requests.desk().run(tick);
    CHECK(requests.watching());
    requests.desk().file(file)->system = false;
    requests.desk().file(file)->directory = true;
    requests.desk().run(tick);
    CHECK(requests.watching());
    requests.desk().file(file)->directory = false;
    requests.desk().run(tick);
    CHECK(requests.waiting());
}

TEST_CASE("100,000 characters, NULs and other encodings reach the shell as they stand") {
    Requests requests;
    const std::string longLine(100000, 'x');
    requests.request(longLine);
    CHECK(requests.desk().executed.back().file == longLine);
    requests.request(std::string("a.exe\0b \"c\"", 11));
    CHECK(requests.desk().executed.back().file == "a.exe"); // a call of the platform ends a text there
    CHECK(requests.desk().executed.back().parameters == "c");
    requests.request("\xEF\xBB\xBF\xC3\xA4.exe \"" + western("\xA7") + "\"");
    CHECK(requests.desk().executed.back().file == "\xEF\xBB\xBF\xC3\xA4.exe");
    CHECK(requests.desk().executed.back().parameters == western("\xA7"));
    requests.request(std::string("\xFF\xFE"
                                 "a\0.\0",
                                 6));
    CHECK(requests.desk().executed.back().file == "\xFF\xFE"
                                                  "a");
    CHECK(requests.watching());
}

TEST_CASE("Exit in the tray's menu while one is being handled drops it") {
    Requests requests;
    requests.desk().onPump = [&] {
        requests.desk().onPump = nullptr;
        core::menuForm().mnuTaskbar_Click(6);
    };
    requests.desk().writeFile(file, "a.exe");
    requests.desk().run(tick + delay);
    CHECK(requests.desk().ended);
    CHECK_FALSE(requests.desk().trayIcon.has_value());
    CHECK(requests.desk().messageBoxes.empty());
}

TEST_CASE("Exit while one is waiting: it is neither read nor run") {
    Requests requests;
    requests.desk().writeFile(file, "a.exe");
    requests.desk().run(tick);
    requests.desk().event([] { core::menuForm().mnuTaskbar_Click(6); });
    CHECK(requests.desk().ended);
    requests.desk().run(delay);
    CHECK(requests.desk().executed.empty());
    CHECK(requests.desk().fileText(file) == "a.exe");
}

TEST_CASE("the main form is raised once, to the top of the order and where it stands") {
    Requests requests;
    const std::string form = std::to_string(static_cast<std::uintptr_t>(requests.program.form().hWnd()));
    requests.desk().calls.clear();
    requests.request("a.exe");
    std::vector<std::string> raised;
    std::copy_if(requests.desk().calls.begin(), requests.desk().calls.end(), std::back_inserter(raised),
                 [](const std::string& call) { return call.starts_with("SetWindowPos"); });
    CHECK(raised == std::vector<std::string>{"SetWindowPos " + form + " 0 0 0 0 0 3"});
}

TEST_CASE("while one is being handled both timers are off, and the file has gone") {
    Requests requests;
    bool seen = false;
    requests.desk().onPump = [&] {
        seen = true;
        CHECK_FALSE(requests.program.form().Timer1.enabled());
        CHECK_FALSE(requests.program.form().Timer2.enabled());
        CHECK(requests.desk().executed.size() == 1);
        CHECK_FALSE(requests.desk().fileText(file).has_value());
    };
    requests.request("a.exe");
    CHECK(seen);
}

TEST_CASE("of a huge file only the first line counts") {
    Requests requests;
    std::string content = "a.exe \"b\"\r\n";
    for (int line = 0; line < 100'000; ++line)
        content += "c.exe \"d\"\r\n";
    requests.request(content);
    REQUIRE(requests.desk().executed.size() == 1);
    CHECK(requests.desk().executed[0].file == "a.exe");
    CHECK(requests.desk().executed[0].parameters == "b");
    CHECK(requests.watching());
}

TEST_SUITE_END();
