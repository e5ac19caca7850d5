// Clipboard, printer, clock, screen, version and the executable's name.
#include "codePages.h"
#include "contract/world.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/executable.h"
#include "platform/kernel32.h"
#include "platform/printer.h"
#include "platform/screen.h"
#include "runtime/errorOf.h"

#include <doctest/doctest.h>

#include <cmath>

namespace {

using contract::World;
using runtime::errorOf;

bool holds(const std::string& text, const char* what) {
    return text.find(what) != std::string::npos;
}

} // namespace

TEST_SUITE_BEGIN("contract/devices");

TEST_CASE("text goes into the clipboard and a cleared one holds none") {
    World world;
    platform::clearClipboard();
    CHECK_FALSE(world.clipboardText().has_value());
    platform::setClipboardText(western("Zeile 1\r\n\t\xDC\x80 Zeile 2\r\n"));
    CHECK(world.clipboardText() == western("Zeile 1\r\n\t\xDC\x80 Zeile 2\r\n"));
    platform::setClipboardText("next");
    CHECK(world.clipboardText() == "next");
    platform::clearClipboard();
    CHECK_FALSE(world.clipboardText().has_value());
}

TEST_CASE("an empty and a long text are held by the clipboard") {
    World world;
    platform::clearClipboard();
    platform::setClipboardText("");
    CHECK(world.clipboardText() == "");
    const std::string longText(5000, 'x');
    platform::clearClipboard();
    platform::setClipboardText(longText);
    CHECK(world.clipboardText() == longText);
}

TEST_CASE("plain text in the clipboard ends at its first NUL") {
    World world;
    platform::clearClipboard();
    platform::setClipboardText(std::string_view("before\0after", 12));
    CHECK(world.clipboardText() == "before");
}

TEST_CASE("a clipboard that another program holds for a moment is waited for") {
    World world;
    world.holdClipboard(platform::clipboardPatience / 4);
    platform::clearClipboard();
    world.holdClipboard(platform::clipboardPatience / 4);
    platform::setClipboardText("came through");
    CHECK(world.clipboardText() == "came through");
}

TEST_CASE("a clipboard that another program keeps fails with the runtime's error") {
    World world;
    platform::clearClipboard();
    platform::setClipboardText("stays");
    world.holdClipboard(20 * platform::clipboardPatience);
    CHECK(errorOf([] { platform::clearClipboard(); }) == 521);
    CHECK(errorOf([] { platform::setClipboardText("new"); }) == 521);
    world.killOtherProgram();
}

TEST_CASE("the clipboard's text comes as it was put there, and none is empty") {
    const World world;
    platform::clearClipboard();
    CHECK(platform::clipboardText().empty());
    platform::setClipboardText(western("1name=\xDC\r\n"));
    CHECK(platform::clipboardText() == western("1name=\xDC\r\n"));
}

TEST_CASE("text of another program: as far as its first NUL, with no NUL at all, of a megabyte") {
    const World world;
    constexpr std::u16string_view withNul(u"before\0after\0", 13);
    World::putIntoClipboard(withNul);
    CHECK(platform::clipboardText() == "before");
    World::putIntoClipboard(std::u16string_view(u"\0after", 6));
    CHECK(platform::clipboardText().empty());
    // Where the system sees to the NUL itself it takes the last character's place.
    World::putIntoClipboard(u"endless");
    CHECK(platform::clipboardText().starts_with("endles"));
    CHECK(platform::clipboardText().size() <= std::string_view("endless").size());
    const std::string megabyte(1U << 20U, 'x');
    World::putIntoClipboard(std::u16string(megabyte.begin(), megabyte.end()) + u'\0');
    CHECK((platform::clipboardText() == megabyte));
}

TEST_CASE("the text of a clipboard that another program keeps fails with the runtime's error") {
    World world;
    world.holdClipboard(20 * platform::clipboardPatience);
    CHECK(errorOf([] { (void)platform::clipboardText(); }) == 521);
    world.killOtherProgram();
}

TEST_CASE("without a printer a line fails with the runtime's error, and an end of no job is none") {
    const World world;
    if (!World::withoutPrinter()) {
        MESSAGE("there is a printer: not tried");
        return;
    }
    CHECK(errorOf([] { platform::printLine("text"); }) == 482);
    CHECK(errorOf([] { platform::printLine("text"); }) == 482);
    CHECK(errorOf([] { platform::endPrintJob(); }) == 0);
}

TEST_CASE("the system tells its version for a record of the stated size") {
    const World world;
    platform::OSVERSIONINFOA record;
    record.dwOSVersionInfoSize = platform::versionRecordSize;
    REQUIRE(platform::GetVersionExA(record) != 0);
    CHECK(record.dwOSVersionInfoSize == 148);
    CHECK(record.dwPlatformId == 2);
    CHECK(record.dwMajorVersion >= 5);
    CHECK(record.dwMajorVersion < 20);
    CHECK(record.dwBuildNumber > 0);
}

TEST_CASE("a version record of another size is left as it is") {
    const World world;
    platform::OSVERSIONINFOA record;
    for (const std::uint32_t size : {0U, 147U, 149U}) {
        record.dwOSVersionInfoSize = size;
        CHECK(platform::GetVersionExA(record) == 0);
        CHECK(record.dwOSVersionInfoSize == size);
        CHECK(record.dwMajorVersion == 0);
    }
}

TEST_CASE("a date's text has its day, a time's text its hours, minutes and seconds") {
    const World world;
    constexpr double date = 38845 + 14 / 24.0 + 25 / 1440.0 + 36 / 86400.0; // 8 May 2006
    CHECK(holds(platform::dateText(date), "06"));
    CHECK(holds(platform::dateText(date), "5"));
    CHECK(holds(platform::dateText(date), "8"));
    CHECK(holds(platform::timeText(date), "25"));
    CHECK(holds(platform::timeText(date), "36"));
    CHECK(platform::dateText(date) == platform::dateText(38845));
    CHECK(platform::timeText(date) == platform::timeText(date - 38845));
    CHECK(platform::timeText(0.25) == platform::timeText(-1.25));
    CHECK(platform::dateText(-1.25) == platform::dateText(-1));
    CHECK(holds(platform::dateText(-657434), "1"));
    CHECK(holds(platform::dateText(2958465), "31"));
    CHECK(errorOf([] { platform::dateText(-657435); }) == 5);
    CHECK(errorOf([] { platform::dateText(2958466); }) == 5);
    CHECK(errorOf([] { platform::timeText(1e300); }) == 5);
}

TEST_CASE("the clock goes on from this year") {
    const World world;
    const double begin = platform::now();
    CHECK(begin > 38000);
    CHECK(begin < 100'000);
    CHECK(World::until([begin] { return platform::now() > begin; }));
    // Whole seconds, as close as a fraction of a day can have them.
    const double seconds = platform::now() * 86400;
    CHECK(seconds == doctest::Approx(std::round(seconds)).epsilon(1e-12));
}

TEST_CASE("the executable's name has neither folder nor extension") {
    const World world;
    const bool simulated = contract::worldKind() == contract::WorldKind::simulated;
    CHECK(platform::executableName() == (simulated ? "kestrel" : "contract-tests"));
}

TEST_CASE("the screen has a size and a work area inside it, and the pointer can be set back") {
    const World world;
    CHECK(platform::screenWidth() >= 640);
    CHECK(platform::screenHeight() >= 480);
    const platform::RECT area = platform::workArea();
    CHECK(area.left >= 0);
    CHECK(area.top >= 0);
    CHECK(area.right <= platform::screenWidth());
    CHECK(area.bottom <= platform::screenHeight());
    CHECK(area.right - area.left >= 320);
    CHECK(area.bottom - area.top >= 240);
    platform::resetMousePointer();
}

TEST_SUITE_END();
