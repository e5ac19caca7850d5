// What OK keeps of the old settings: a program that is killed at any of its writes loses none.
#include "desktop/faults.h"
#include "setup/dialog.h"

#include <doctest/doctest.h>

using desktop::faults;
using desktop::world;
using setup::Dialog;

namespace {

const std::string byHand =
    "; by hand\r\n[Toolbar]\r\nEAGLEpath=C:\\EAGLE\\eagle.exe\r\n[board]\r\n1name=old\r\n1dialog=0\r\n"
    "1type=0\r\n2name=older\r\n2dialog=0\r\n2type=1\r\n";

std::string beside(const char* extension) {
    return std::string("C:\\kestrel\\kestrel.") + extension;
}

/// The setup, opened and edited, up to its OK.
struct Edited : Dialog {
    Edited() : Dialog(byHand) {
        open(1);
        select(0, 0);
        enter(form().txtTitle[0], "new");
        click(form().btnAddSep[1]);
        before = world().settings();
    }

    std::string before; ///< what is in the settings file
};

bool writes(const std::string& call) {
    return call == "WritePrivateProfileStringA" || call == "copyFile" || call == "renameFile";
}

/// The system kills the program in its write with the number `last`, from 1, which leaves half of the
/// settings file. Gives false if there are not so many.
bool killedAt(Edited& program, int last) {
    int number = 0;
    faults().onCall = [&](const std::string& call) {
        if (!writes(call) || ++number < last)
            return;
        if (call == "WritePrivateProfileStringA")
            world().writeSettings(world().settings().substr(0, world().settings().size() / 2));
        throw desktop::ProgramEnded();
    };
    program.desk().event([&] { program.form().btnOk.click(); });
    faults().onCall = nullptr;
    return program.desk().ended;
}

std::string written() {
    Edited program;
    program.ok();
    return world().settings();
}

} // namespace

TEST_SUITE_BEGIN("setup/killed");

TEST_CASE("after OK the old settings stand beside the new ones") {
    Edited program;
    program.ok();
    CHECK(program.closed());
    CHECK(world().settings() != program.before);
    CHECK(world().fileText(beside("bak")) == program.before);
    CHECK_FALSE(world().fileText(beside("sav")).has_value());
    const std::string second = world().settings();
    program.open(0);
    program.ok();
    CHECK(world().fileText(beside("bak")) == second);
}

TEST_CASE(
    "a program killed at any write of OK leaves the old or the new settings whole in one of three files") {
    const std::string after = written();
    int last = 1;
    for (;; ++last) {
        CAPTURE(last);
        Edited program;
        if (!killedAt(program, last))
            break;
        bool whole = false;
        for (const char* extension : {"ini", "sav", "bak"}) {
            const auto text = world().fileText(beside(extension));
            whole = whole || text == program.before || text == after;
        }
        CHECK(whole);
    }
    CHECK(last > 30);
}

TEST_CASE("what could not get its last name is older than the settings, which the next OK keeps") {
    std::string ofKilledRun;
    SUBCASE("made by this run") {}
    SUBCASE("of a run that was killed") {
        ofKilledRun = "[board]\r\n";
    }
    for (const bool stillHeld : {false, true})
        for (int last = 1;; ++last) {
            CAPTURE(stillHeld);
            CAPTURE(last);
            Edited program;
            if (!ofKilledRun.empty())
                world().writeFile(beside("sav"), ofKilledRun);
            world().writeFile(beside("bak"), "older");
            desktop::File& held = world().files[desktop::pathKey(beside("bak"))];
            held.locked = true;
            program.ok();
            REQUIRE(world().fileText(beside("sav")) == (ofKilledRun.empty() ? program.before : ofKilledRun));
            held.locked = stillHeld;
            program.open(1);
            program.select(0, 0);
            program.enter(program.form().txtTitle[0], "newest");
            program.before = world().settings();
            if (!killedAt(program, last)) {
                CHECK(last > 30);
                break;
            }
            bool whole = false;
            for (const char* extension : {"ini", "sav", "bak"})
                whole = whole || world().fileText(beside(extension)) == program.before;
            CHECK(whole);
        }
}

TEST_CASE("what a killed run has kept outlives the next OK, which writes over torn settings") {
    Edited program;
    world().writeFile(beside("sav"), program.before);
    world().writeSettings("[Too");
    program.ok();
    CHECK(world().fileText(beside("bak")) == program.before);
    CHECK_FALSE(world().fileText(beside("sav")).has_value());
}

TEST_CASE("an OK that ends with a wrong path has made its last write, too") {
    Edited program;
    program.act([&] { program.form().chkEAGLE.setValue(1); });
    program.enter(program.form().txtEAGLE, "C:\\no.exe");
    std::string atMessage;
    world().onMessage = [&] { atMessage = world().fileText(beside("bak")).value_or("none"); };
    program.ok();
    CHECK(world().messageBoxes.size() == 1);
    CHECK(atMessage == program.before);
    CHECK_FALSE(world().fileText(beside("sav")).has_value());
}

TEST_CASE("a folder that takes no files is no reason to tell anything") {
    Edited program;
    world().files[desktop::pathKey("C:\\kestrel")].directory = true;
    world().files[desktop::pathKey("C:\\kestrel")].readOnly = true;
    program.ok();
    CHECK(program.closed());
    CHECK(world().messageBoxes.empty());
    CHECK_FALSE(world().fileText(beside("sav")).has_value());
    CHECK_FALSE(world().fileText(beside("bak")).has_value());
}

TEST_CASE("without a settings file there is nothing to keep") {
    Edited program;
    world().removeFile(beside("ini"));
    program.ok();
    CHECK_FALSE(world().settings().empty());
    CHECK_FALSE(world().fileText(beside("bak")).has_value());
}

TEST_SUITE_END();
