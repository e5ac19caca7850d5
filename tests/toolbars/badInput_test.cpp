// Settings broken by hand, and what the whole program makes of them.
#include "desktop/program.h"

#include <doctest/doctest.h>

#include <random>
#include <string>

using desktop::Program;
using store::EditorKind;

namespace {

/// Starts beside a board window and lets a tick pass; false if the program ended with a message.
bool runWith(Program& program, const std::string& settings) {
    program.desk().startProcess("eagle.exe");
    program.desk().writeSettings(settings);
    program.desk().openWindow("Board - x.brd - EAGLE");
    if (!program.start())
        return false;
    program.ticks(1);
    return !program.desk().ended;
}

} // namespace

TEST_SUITE_BEGIN("toolbars/badInput");

TEST_CASE("a dialog or type out of range, missing, empty or no number ends with the runtime's message") {
    for (const auto& [fields, message] :
         {std::pair{"1dialog=70000\r\n1type=1\r\n", "Run-time error '6':\r\n\r\nOverflow"},
          std::pair{"1dialog=0\r\n1type=-32769\r\n", "Run-time error '6':\r\n\r\nOverflow"},
          std::pair{"1dialog=0\r\n", "Run-time error '13':\r\n\r\nType mismatch"},
          std::pair{"1dialog=\r\n1type=1\r\n", "Run-time error '13':\r\n\r\nType mismatch"},
          std::pair{"1dialog=0\r\n1type=one\r\n", "Run-time error '13':\r\n\r\nType mismatch"}}) {
        Program program;
        CHECK_FALSE(runWith(program, std::string("[board]\r\n1name=x\r\n") + fields));
        REQUIRE(program.desk().messageBoxes.size() == 1);
        CHECK(program.desk().messageBoxes[0].text == message);
        CHECK_FALSE(program.desk().trayIcon.has_value());
    }
}

TEST_CASE("an icon reference without a comma ends the tick with the runtime's message") {
    Program program;
    CHECK_FALSE(runWith(program, "[board]\r\n1name=x\r\n1icon=C:\\x.exe\r\n1dialog=0\r\n1type=1\r\n"));
    CHECK(program.desk().messageBoxes.at(0).text == "Run-time error '9':\r\n\r\nSubscript out of range");
}

TEST_CASE("a gap in the numbering ends a list") {
    Program program;
    REQUIRE(runWith(program,
                    "[board]\r\n1name=a\r\n1dialog=0\r\n1type=1\r\n3name=c\r\n3dialog=0\r\n3type=1\r\n"));
    CHECK(program.toolbar(EditorKind::board, 1).toolbar.buttons().size() == 2);
}

TEST_CASE("500 buttons give a toolbar of 501") {
    std::string settings = "[board]\r\n";
    for (int row = 1; row <= 500; ++row) {
        const std::string number = std::to_string(row);
        settings += number + "name=b\r\n" + number + "dialog=0\r\n" + number + "type=1\r\n";
    }
    Program program;
    REQUIRE(runWith(program, settings));
    CHECK(program.toolbar(EditorKind::board, 1).toolbar.buttons().size() == 501);
}

TEST_CASE("names and tips of thousands of characters and of any byte are held to what a value can be") {
    const std::string longest(5000, 'n');
    std::string bytes;
    for (int code = 1; code < 256; ++code)
        if (code != '\r' && code != '\n')
            bytes += static_cast<char>(code);
    Program program;
    REQUIRE(runWith(program, "[board]\r\n1name=" + longest + "\r\n1tooltip=" + bytes +
                                 "\r\n1dialog= 0 \r\n1type=1\r\n"));
    CHECK(store::boardButtons[1].name == std::string(254, 'n'));
    CHECK(store::boardButtons[1].tooltip.size() <= 254);
}

TEST_CASE("random bytes as settings file never do worse than the runtime's message") {
    std::mt19937 random(20061); // the same every time
    for (int round = 0; round < 200; ++round) {
        std::string settings =
            "[board]\r\n1name=x\r\n1dialog=0\r\n1type=1\r\n2name=y\r\n2dialog=0\r\n2type=0\r\n";
        for (int change = 0; change < 12; ++change)
            settings[random() % settings.size()] = static_cast<char>(random() & 0xFFU);
        Program program;
        if (!runWith(program, settings)) {
            REQUIRE(program.desk().messageBoxes.size() == 1);
            CHECK(program.desk().messageBoxes[0].text.starts_with("Run-time error '"));
        }
    }
}

TEST_SUITE_END();
