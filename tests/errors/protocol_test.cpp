#include "codePages.h"
#include "errors/report.h"

#include <doctest/doctest.h>

#include <cstring>

using desktop::world;
using errors::ErrPtnr;
using report::Inside;
using runtime::ErrorNumber;
using runtime::RuntimeError;

namespace {

const std::string rule = std::string(70, '-') + "\r\n";

void setVersion(std::uint32_t platform, std::uint32_t major, std::uint32_t minor, std::uint32_t build,
                const char* servicePack) {
    world().version = {0, major, minor, build, platform, {}};
    std::strncpy(world().version.szCSDVersion, servicePack, sizeof world().version.szCSDVersion);
}

/// The protocol's end, from the line "SYSTEMINFO:" on, without the last rule.
std::string systemInfo() {
    const ErrPtnr form;
    const std::string protocol = Inside::protocol(form);
    const std::size_t begin = protocol.find("SYSTEMINFO:\r\n");
    REQUIRE(begin != std::string::npos);
    REQUIRE(protocol.ends_with(rule));
    return protocol.substr(begin, protocol.size() - rule.size() - begin);
}

} // namespace

TEST_SUITE_BEGIN("errors/protocol");

TEST_CASE("the whole protocol of a report with a trace") {
    const desktop::Session session;
    world().startDate = report::afternoon;
    setVersion(2, 5, 1, 2600, "Service Pack 3");
    ErrPtnr form;
    std::string outer = "loadLists";
    form.CallStack(outer);
    form.CallStackParam("file", "C:\\kestrel\\kestrel.ini");
    world().run(1000);
    report::askAbout(RuntimeError(ErrorNumber::subscriptOutOfRange), form);
    const std::string expected = "----------------------------------------------------------------------\r\n"
                                 "F E H L E R P R O T O K O L L vom ErrorPartner\r\n"
                                 "----------------------------------------------------------------------\r\n"
                                 "kestrel  V" KESTREL_VERSION " - Fehlermeldung\r\n"
                                 "----------------------------------------------------------------------\r\n"
                                 "FEHLERBESCHREIBUNG:\r\n"
                                 "          Fehler-Nr:\t9 (Subscript out of range)\r\n"
                                 "          Modul:\tModul1\r\n"
                                 "          Prozedur:\tloadLists\r\n"
                                 "          Zeilen-Nr.:\t0\r\n"
                                 "          Datum/Uhrzeit:\t08.05.2006 / 14:25:37\r\n"
                                 "----------------------------------------------------------------------\r\n"
                                 "CALLSTACK:\r\n"
                                 "          \tfile:\tC:\\kestrel\\kestrel.ini\r\n"
                                 "          14:25:36 loadLists\r\n"
                                 "----------------------------------------------------------------------\r\n"
                                 "SYSTEMINFO:\r\n"
                                 "          Plattform:\tWindows NT\r\n"
                                 "          Version:\t5.1\r\n"
                                 "          Build:\t2600   Service Pack 3\r\n"
                                 "----------------------------------------------------------------------\r\n"
                                 "\r\n";
    CHECK(world().fileText(report::protocolFile) == expected);
}

TEST_CASE("two whole protocols: no error, no trace, a system without a name, and what comes after them") {
    const desktop::Session session;
    world().startDate = 38845;
    setVersion(3, 1, 0, 4294967295U, "");
    ErrPtnr form;
    form.SetProgInfo("Bench  V1");
    report::ask(form, 8, {}, 3, "", "");
    const std::string one = "----------------------------------------------------------------------\r\n"
                            "F E H L E R P R O T O K O L L vom ErrorPartner\r\n"
                            "----------------------------------------------------------------------\r\n"
                            "Bench  V1 - Fehlermeldung\r\n"
                            "----------------------------------------------------------------------\r\n"
                            "FEHLERBESCHREIBUNG:\r\n"
                            "          Fehler-Nr:\t0 ()\r\n"
                            "          Modul:\t\r\n"
                            "          Prozedur:\t\r\n"
                            "          Zeilen-Nr.:\t0\r\n"
                            "          Datum/Uhrzeit:\t08.05.2006 / 00:00:00\r\n"
                            "----------------------------------------------------------------------\r\n"
                            "CALLSTACK:\r\n"
                            "----------------------------------------------------------------------\r\n"
                            "SYSTEMINFO:\r\n"
                            "          Plattform:\t          Version:\t1.0\r\n"
                            "          Build:\t4294967295   \r\n"
                            "----------------------------------------------------------------------\r\n"
                            "\r\n";
    CHECK(world().fileText(report::protocolFile) == one);
    report::ask(form, 8, {}, 3, "", "");
    CHECK(world().fileText(report::protocolFile) == one + one);
    form.cmdProtocol_Click(1);
    CHECK(world().fileText(report::savedFile) == one);
    form.cmdProtocol_Click(3);
    CHECK(*world().clipboard + "\r\n" == one);
}

TEST_CASE("without a trace the heading of the call stack and the next rule stand next to each other") {
    const desktop::Session session;
    ErrPtnr form;
    report::ask(form);
    CHECK(world().fileText(report::protocolFile)->find("CALLSTACK:\r\n" + rule + "SYSTEMINFO:") !=
          std::string::npos);
}

TEST_CASE("two reports give two complete protocols in one file, the older one first") {
    const desktop::Session session;
    ErrPtnr form;
    report::askAbout(RuntimeError(ErrorNumber::overflow), form);
    const std::string first = *world().fileText(report::protocolFile);
    CHECK(first.find("6 (Overflow)") != std::string::npos);
    world().run(60'000);
    report::askAbout(RuntimeError(ErrorNumber::typeMismatch), form);
    const std::string both = *world().fileText(report::protocolFile);
    CHECK(both.starts_with(first + rule));
    CHECK(both.substr(first.size()) == Inside::protocol(form) + "\r\n");
    CHECK(both.substr(first.size()).find("13 (Type mismatch)") != std::string::npos);
}

TEST_CASE("what the protocol file holds already is never cut") {
    const desktop::Session session;
    world().writeFile(report::protocolFile, "older reports");
    ErrPtnr form;
    report::ask(form);
    CHECK(world().fileText(report::protocolFile)->starts_with("older reports" + rule));
}

TEST_CASE("the protocol is built afresh for each use, with the date and time of that moment") {
    const desktop::Session session;
    world().startDate = 38845 + 86399 / 86400.0;
    ErrPtnr form;
    report::ask(form, 8, [](ErrPtnr& shown) {
        CHECK(Inside::protocol(shown).find("\t08.05.2006 / 23:59:59\r\n") != std::string::npos);
        world().now += 1000;
        CHECK(Inside::protocol(shown).find("\t09.05.2006 / 00:00:00\r\n") != std::string::npos);
        CHECK(world().versionReads == 3);
    });
}

TEST_CASE("the protocol changes with the controls that it is taken from") {
    const desktop::Session session;
    ErrPtnr form;
    form.setCaption("Titel");
    form.framFehler.setCaption(western("\xDC"
                                       "ber den Fehler"));
    form.framCallStack.setCaption("Aufrufe");
    form.lblErrTitel[0].setCaption("Nummer");
    form.lblErrTitel[3].setCaption("Zeile");
    form.lblError[0].setCaption("a");
    form.lblError[1].setCaption("b");
    form.lblError[2].setCaption("c");
    form.lblError[3].setCaption("d");
    form.lstCallStack.addItem("item");
    const std::string protocol = Inside::protocol(form);
    CHECK(protocol.find(rule + "Titel\r\n" + rule +
                        western("\xDC"
                                "BER DEN FEHLER\r\n"
                                "          Nummer\ta\r\n"
                                "          Modul:\tb\r\n"
                                "          Prozedur:\tc\r\n"
                                "          Zeile\td\r\n")) != std::string::npos);
    CHECK(protocol.find(rule + "AUFRUFE\r\n          item\r\n" + rule) != std::string::npos);
}

TEST_CASE("each platform has its name") {
    const desktop::Session session;
    setVersion(0, 3, 11, 1, "");
    CHECK(systemInfo() == "SYSTEMINFO:\r\n          Plattform:\tWin32s\r\n          Version:\t3.11\r\n"
                          "          Build:\t1   \r\n");
    setVersion(1, 4, 10, 67766446, " A ");
    CHECK(systemInfo() == "SYSTEMINFO:\r\n          Plattform:\tWindows 95\r\n          Version:\t4.10\r\n"
                          "          Build:\t67766446    A \r\n");
    setVersion(2, 10, 0, 19045, "");
    CHECK(systemInfo() == "SYSTEMINFO:\r\n          Plattform:\tWindows NT\r\n          Version:\t10.0\r\n"
                          "          Build:\t19045   \r\n");
}

TEST_CASE("a platform without a name has no line end: its version follows on the same line") {
    const desktop::Session session;
    for (const std::uint32_t platform : {3U, 4U, 0xFFFFFFFFU}) {
        setVersion(platform, 7, 0, 42, "");
        CHECK(systemInfo() == "SYSTEMINFO:\r\n          Plattform:\t          Version:\t7.0\r\n"
                              "          Build:\t42   \r\n");
    }
}

TEST_CASE("version numbers are printed as full 32-bit numbers") {
    const desktop::Session session;
    setVersion(2, 4294967295U, 4294967294U, 4294967293U, "");
    CHECK(systemInfo() ==
          "SYSTEMINFO:\r\n          Plattform:\tWindows NT\r\n          Version:\t4294967295.4294967294\r\n"
          "          Build:\t4294967293   \r\n");
}

TEST_CASE("the service pack's text ends at its first NUL, and one without NUL is left out") {
    const desktop::Session session;
    setVersion(2, 6, 1, 7601, "SP 1");
    std::memcpy(world().version.szCSDVersion, "SP 1\0old", 8);
    CHECK(systemInfo().ends_with("\t7601   SP 1\r\n"));
    std::memset(world().version.szCSDVersion, 'x', sizeof world().version.szCSDVersion);
    CHECK(systemInfo().ends_with("\t7601   \r\n"));
    world().version.szCSDVersion[127] = '\0';
    CHECK(systemInfo().ends_with("\t7601   " + std::string(127, 'x') + "\r\n"));
}

TEST_CASE("a system that does not tell its version gives a protocol all the same") {
    const desktop::Session session;
    world().versionFails = true;
    CHECK(systemInfo() == "SYSTEMINFO:\r\n          Plattform:\tWin32s\r\n          Version:\t0.0\r\n"
                          "          Build:\t0   \r\n");
}

TEST_CASE("in the root of a drive no second backslash is added") {
    const desktop::Session session;
    world().programFolder = "C:\\";
    ErrPtnr form;
    report::ask(form);
    form.cmdProtocol_Click(1);
    CHECK(world().fileText("C:\\kestrel.EPT").has_value());
    CHECK(world().messageBoxes.back().text ==
          "Das Fehlerprotokoll wurde in die Datei 'C:\\kestrel.ERR' geschrieben !");
}

TEST_CASE("the protocol file takes the executable's name with its own extension") {
    const desktop::Session session;
    world().executableName = "my.Bench";
    ErrPtnr form;
    report::ask(form);
    REQUIRE(world().file("C:\\kestrel\\my.Bench.EPT") != nullptr);
    CHECK(world().file("C:\\kestrel\\my.Bench.EPT")->storedName == "my.Bench.EPT");
    CHECK(world().fileText("C:\\kestrel\\kestrel.EPT") == std::nullopt);
}

TEST_CASE("an error's description is logged whole, with its NULs") {
    const desktop::Session session;
    ErrPtnr form;
    const std::string description("before\0after\r\nnext\0", 19);
    report::askAbout(RuntimeError(ErrorNumber::invalidCall, description), form);
    CHECK(form.lblError[0].caption() == "5 (" + description + ")");
    CHECK(world().fileText(report::protocolFile)->find("\t5 (" + description + ")\r\n") != std::string::npos);
    CHECK(Inside::protocol(form).find("\t5 (" + description + ")\r\n") != std::string::npos);
}

TEST_CASE("a description of ten thousand characters goes into the protocol whole") {
    const desktop::Session session;
    ErrPtnr form;
    const std::string description(10'000, '\xE4');
    report::askAbout(RuntimeError(ErrorNumber::invalidCall, description), form);
    CHECK(world().fileText(report::protocolFile)->find("\t5 (" + description + ")\r\n") != std::string::npos);
}

TEST_CASE("a module and a routine are logged unchanged") {
    const desktop::Session session;
    ErrPtnr form;
    report::ask(form, 8, {}, 3, " Modul\t& \r\n", std::string("a\0b", 3));
    CHECK(Inside::protocol(form).find("          Modul:\t Modul\t& \r\n\r\n          Prozedur:\t" +
                                      std::string("a\0b", 3) + "\r\n") != std::string::npos);
}

TEST_SUITE_END();
