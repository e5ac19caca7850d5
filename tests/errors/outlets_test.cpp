#include "codePages.h"
#include "errors/report.h"

#include "errors/printWrap.h"
#include "errors/support.h"

#include <doctest/doctest.h>

#include <regex>

using desktop::world;
using errors::ErrPtnr;
using report::Inside;
using runtime::ErrorNumber;
using runtime::RuntimeError;

namespace {

constexpr int no = 7;
constexpr int yes = 6;

/// A form that shows a report, without the file that it left.
struct Reported {
    desktop::Session session;
    ErrPtnr form;
    Reported() {
        report::askAbout(RuntimeError(ErrorNumber::typeMismatch), form);
        world().files.clear();
    }
    std::string protocol() const { return Inside::protocol(form); }
};

} // namespace

TEST_SUITE_BEGIN("errors/outlets");

TEST_CASE("the printer gets the protocol, wrapped, as one job") {
    Reported reported;
    reported.form.lblError[0].setCaption("5 (" + std::string(80, 'x') + ")");
    reported.form.cmdProtocol[0].click();
    REQUIRE(world().printed.size() == 1);
    const std::vector<std::string>& job = world().printed[0];
    CHECK(job == errors::printLines(reported.protocol() + "\r\n"));
    CHECK(job[0] == std::string(70, '-') + " ");
    CHECK(job[6] == "          Fehler-Nr:\t5 ");
    CHECK(job[7] == std::string(20, ' ') + "(" + std::string(80, 'x') + ") ");
    // The last rule, and the empty line that the appended line end makes.
    CHECK(job[job.size() - 2] == std::string(70, '-') + " ");
    CHECK(job.back() == " ");
    CHECK(world().printing.empty());
    CHECK(world().messageBoxes.empty());
}

TEST_CASE("a description of ten thousand characters is printed, saved and copied whole") {
    Reported reported;
    const std::string word(10'000, 'x');
    report::askAbout(RuntimeError(ErrorNumber::invalidCall, word), reported.form);
    reported.form.cmdProtocol[0].click();
    REQUIRE(world().printed.size() == 1);
    CHECK(world().printed[0][6] == "          Fehler-Nr:\t5 ");
    CHECK(world().printed[0][7] == std::string(20, ' ') + "(" + word + ") ");
    reported.form.cmdProtocol[1].click();
    reported.form.cmdProtocol[3].click();
    CHECK(world().clipboard->find("\t5 (" + word + ")\r\n") != std::string::npos);
    CHECK(world().fileText(report::savedFile) == *world().clipboard + "\r\n");
}

TEST_CASE("each print is a job of its own") {
    Reported reported;
    reported.form.cmdProtocol[0].click();
    reported.form.cmdProtocol[0].click();
    CHECK(world().printed.size() == 2);
}

TEST_CASE("without a printer the print fails with the runtime's error") {
    Reported reported;
    world().noPrinter = true;
    CHECK(report::errorOf([&] { reported.form.cmdProtocol_Click(0); }) == 482);
    CHECK(world().printed.empty());
}

TEST_CASE("a protocol is saved without a question where there is no file yet") {
    Reported reported;
    const std::string protocol = reported.protocol();
    reported.form.cmdProtocol[1].click();
    CHECK(world().fileText(report::savedFile) == protocol + "\r\n");
    REQUIRE(world().messageBoxes.size() == 1);
    CHECK(world().messageBoxes[0].text ==
          "Das Fehlerprotokoll wurde in die Datei 'C:\\kestrel\\kestrel.ERR' geschrieben !");
    CHECK(world().messageBoxes[0].style == 0);
    CHECK(world().messageBoxes[0].title == "Kestrel");
    CHECK(world().file("C:\\kestrel\\kestrel.EPT") == nullptr);
}

TEST_CASE("Yes replaces a saved protocol") {
    Reported reported;
    world().writeFile(report::savedFile, std::string(5000, 'x'));
    world().messageAnswers = {yes};
    reported.form.cmdProtocol[1].click();
    CHECK(world().fileText(report::savedFile) == reported.protocol() + "\r\n");
    REQUIRE(world().messageBoxes.size() == 2);
    CHECK(world().messageBoxes[0].text == western("Vorhandene Datei 'C:\\kestrel\\kestrel.ERR' \xFC"
                                                  "berschreiben ?"));
    CHECK(world().messageBoxes[0].style == 4);
}

TEST_CASE("No leaves the old file as it is") {
    Reported reported;
    world().writeFile(report::savedFile, "as it was");
    world().messageAnswers = {no};
    reported.form.cmdProtocol[1].click();
    CHECK(world().fileText(report::savedFile) == "as it was");
    CHECK(world().messageBoxes.size() == 1);
}

TEST_CASE("a protocol that cannot be saved fails with the runtime's error and without a message") {
    Reported reported;
    world().writeFile(report::savedFile, "as it was");
    world().file(report::savedFile)->readOnly = true;
    world().messageAnswers = {yes};
    CHECK(report::errorOf([&] { reported.form.cmdProtocol_Click(1); }) == 75);
    CHECK(world().fileText(report::savedFile) == "as it was");
    CHECK(world().messageBoxes.size() == 1);
    world().programFolder = "C:\\nowhere";
    CHECK(report::errorOf([&] { reported.form.cmdProtocol_Click(1); }) == 76);
}

TEST_CASE("mail tells the user first, then fills the clipboard and opens the mail program") {
    Reported reported;
    world().clipboard = "old";
    world().onMessage = [] {
        CHECK(world().clipboard == "old");
        CHECK(world().executed.empty());
    };
    reported.form.cmdProtocol[2].click();
    REQUIRE(world().messageBoxes.size() == 1);
    CHECK(world().messageBoxes[0].style == 0);
    CHECK(world().messageBoxes[0].text ==
          western(
              "Es wird jetzt Ihr Standard-Email-Programm aufgerufen. "
              "Die Fehlerbeschreibung sowie das Fehlerprotokoll\r\n"
              "wurden zu Ihrer Bequemlichkeit in die Zwischenablage kopiert.\r\n"
              "\r\n"
              "Bitte f\xFCgen Sie den Inhalt der Zwischenablage in Ihre Email ein, "
              "indem Sie in Ihrem Email-Programm\r\n"
              "die Tasten [Strg] und [Einfg] gleichzeitig bet\xE4tigen. "
              "Alternativ k\xF6nnen Sie den Inhalt in die EMail\r\n"
              "einf\xFCgen, indem Sie den Befehl 'Einf\xFCgen' aus dem Men\xFC 'Bearbeiten' ausf\xFChren."));
    CHECK(world().clipboard == reported.protocol());
    REQUIRE(world().executed.size() == 1);
    const desktop::ShellExecution& call = world().executed[0];
    CHECK(call.owner == reported.form.hWnd());
    CHECK(call.owner != platform::HWND::none);
    CHECK(call.verb == "Open");
    CHECK(call.file == errors::mailTarget(errors::supportMail));
    CHECK(call.parameters.empty());
    CHECK(call.folder.empty());
    CHECK(call.command == 1);
}

TEST_CASE("blanks around the mail address are trimmed") {
    CHECK(errors::mailTarget("  a@b.example ") == "mailto:a@b.example");
    CHECK(errors::mailTarget("a@b.example") == "mailto:a@b.example");
}

TEST_CASE("the addresses are such that the shell opens them") {
    const std::string target = errors::mailTarget(errors::supportMail);
    CHECK(std::regex_match(target, std::regex("mailto:[^@:/ ]+@[^@:/ ]+")));
    CHECK(std::regex_match(errors::supportWeb, std::regex("https?://[^/ ]+(/[^ ]*)?")));
}

TEST_CASE("web fills the clipboard and opens the support page, without a message") {
    Reported reported;
    reported.form.cmdProtocol[3].click();
    CHECK(world().messageBoxes.empty());
    CHECK(world().clipboard == reported.protocol());
    REQUIRE(world().executed.size() == 1);
    const desktop::ShellExecution& call = world().executed[0];
    CHECK(call.owner == reported.form.hWnd());
    CHECK(call.verb == "Open");
    CHECK(call.file == errors::supportWeb);
    CHECK(call.parameters.empty());
    CHECK(call.folder.empty());
    CHECK(call.command == 1);
}

TEST_CASE("the clipboard is cleared of all that it holds before the protocol goes there") {
    Reported reported;
    for (const int index : {2, 3}) {
        world().calls.clear();
        reported.form.cmdProtocol_Click(static_cast<std::int16_t>(index));
        CHECK(world().calls == std::vector<std::string>{"clearClipboard", "setClipboardText"});
    }
}

TEST_CASE("a missing mail program or browser goes unnoticed") {
    Reported reported;
    // The simulated shell has none.
    reported.form.cmdProtocol[2].click();
    reported.form.cmdProtocol[3].click();
    CHECK(world().executed.size() == 2);
    CHECK(world().messageBoxes.size() == 1);
}

TEST_CASE("a clipboard that another program keeps fails, and nothing is opened") {
    Reported reported;
    world().clipboard = "old";
    world().clipboardHeldUntil = world().now + 100'000;
    CHECK(report::errorOf([&] { reported.form.cmdProtocol_Click(2); }) == 521);
    CHECK(report::errorOf([&] { reported.form.cmdProtocol_Click(3); }) == 521);
    CHECK(world().clipboard == "old");
    CHECK(world().executed.empty());
}

TEST_CASE("a clipboard that is held for a moment only is waited for") {
    Reported reported;
    world().clipboardHeldUntil = world().now + 100;
    reported.form.cmdProtocol[3].click();
    CHECK(world().clipboard.has_value());
    CHECK(world().executed.size() == 1);
}

TEST_CASE("the protocol is that of the action's moment") {
    Reported reported;
    world().startDate = report::afternoon;
    world().now = 0;
    reported.form.cmdProtocol[3].click();
    CHECK(world().clipboard->find("08.05.2006 / 14:25:36") != std::string::npos);
    world().now = 4000;
    reported.form.cmdProtocol[3].click();
    CHECK(world().clipboard->find("08.05.2006 / 14:25:40") != std::string::npos);
}

TEST_CASE("any other index builds the protocol and does nothing with it") {
    Reported reported;
    const int reads = world().versionReads;
    for (const auto index : std::initializer_list<std::int16_t>{-1, 4, 32767})
        reported.form.cmdProtocol_Click(index);
    CHECK(world().versionReads == reads + 3);
    CHECK(world().printed.empty());
    CHECK(world().files.empty());
    CHECK(world().messageBoxes.empty());
    CHECK_FALSE(world().clipboard.has_value());
    CHECK(world().executed.empty());
}

TEST_CASE("a form that no report has used yet has a window for the shell") {
    const desktop::Session session;
    ErrPtnr form;
    form.cmdProtocol_Click(3);
    REQUIRE(world().executed.size() == 1);
    CHECK(world().executed[0].owner != platform::HWND::none);
}

TEST_SUITE_END();
