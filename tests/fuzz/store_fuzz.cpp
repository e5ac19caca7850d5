#include "fuzz/random.h"

#include "desktop/desktop.h"
#include "desktop/iniFile.h"
#include "runtime/runtimeError.h"
#include "store/buttonLists.h"
#include "store/frmIconChooser.h"
#include "store/iconExtract.h"
#include "store/pathTokens.h"
#include "store/settings.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <map>
#include <vector>

using desktop::world;
using fuzz::Random;
using runtime::ErrorNumber;
using runtime::RuntimeError;

namespace {

/// A settings file of broken lines and binary bytes between sound ones.
std::string brokenFile(Random& random) {
    const char* const pieces[] = {"[board]", "[schem",    "libr]",   "[]",      "\r\n", "\n", "\r", "=", ";",
                                  "1name=a", "1dialog=0", "1type=1", "2name",   "k=v",  "\"", "'",  " ", "\t",
                                  "\x1A",    "[[s]",      "k=\"v\"", "\xFF\xFE"};
    std::string text;
    for (std::size_t count = random.below(40); count > 0; --count)
        text += random.below(4) == 0 ? random.bytes(5) : random.oneOf(pieces);
    return text;
}

std::string readBack(const std::string& file, const char* section, const char* key) {
    std::vector<char> buffer(300);
    const std::uint32_t count = desktop::profileGet(&file, section, key, "", buffer.data(), 300);
    return {buffer.data(), count};
}

} // namespace

TEST_SUITE_BEGIN("fuzz/store");

TEST_CASE("random icon references give the chooser or one of three errors") {
    const desktop::Session session;
    Random random(11);
    int chosen = 0;
    for (int round = 0; round < 5000; ++round) {
        const std::string reference =
            round % 2 == 0 ? random.text("aC:\\.,0123456789- ", 20) : random.bytes(400);
        world().modalScripts = {[&random](forms::Form& form) {
            auto& chooser = dynamic_cast<store::frmIconChooser&>(form);
            chooser.txtFile.edited(random.bytes(400));
            chooser.btnOk.click();
            chooser.btnCancel.click();
        }};
        try {
            const std::string given = store::chooseIconFile(reference, platform::HWND::none);
            ++chosen;
            CHECK(given.empty());
        } catch (const RuntimeError& error) {
            const bool known = error.number == ErrorNumber::subscriptOutOfRange ||
                               error.number == ErrorNumber::typeMismatch ||
                               error.number == ErrorNumber::overflow;
            CHECK_MESSAGE(known, reference);
        }
    }
    CHECK(world().chooserCalls.size() == static_cast<std::size_t>(chosen));
    CHECK(chosen > 100);
}

TEST_CASE("random files and indices never disturb the icon surface") {
    const desktop::Session session;
    Random random(12);
    forms::PictureBox box;
    box.setPosition({0, 0, 270, 270});
    const forms::Picture before = box.image();
    for (int round = 0; round < 2000; ++round)
        store::extractIconToPicture(random.bytes(50), static_cast<std::int32_t>(random.bits()), box);
    CHECK(box.image() == before);
}

TEST_CASE("the expansion of a random text holds no lower-case token and keeps everything else") {
    const desktop::Session session;
    Random random(13);
    const char* const pieces[] = {"{kestrelpath}", "{eaglepath}", "{KESTRELPATH}", "{", "}",
                                  "path",          "\\x",         "kestrel"};
    for (int round = 0; round < 5000; ++round) {
        std::string text;
        std::string expected;
        for (std::size_t count = random.below(8); count > 0; --count) {
            const std::string piece = random.oneOf(pieces);
            text += piece + "|";
            expected += (piece == pieces[0] ? "C:\\kestrel" : piece == pieces[1] ? "" : piece) + "|";
        }
        CHECK(store::expandTokens(text) == expected);
    }
}

TEST_CASE("in a file of any bytes a key that is written is read back") {
    Random random(14);
    const char* const sections[] = {"board", "schem", "s", "[s", "new"};
    const char* const keys[] = {"k", "1name", "2name", "x"};
    const char* const values[] = {"v", "a b", "", "0", "C:\\x.exe,0"};
    for (int round = 0; round < 10000; ++round) {
        std::optional<std::string> file = brokenFile(random);
        const std::string before = *file;
        const std::string section = random.oneOf(sections);
        const std::string key = random.oneOf(keys);
        const std::string value = random.oneOf(values);
        REQUIRE(desktop::profileWrite(file, section.c_str(), key.c_str(), value.c_str()) == 1);
        CHECK_MESSAGE(readBack(*file, section.c_str(), key.c_str()) == value, before);
        REQUIRE(desktop::profileWrite(file, section.c_str(), nullptr, nullptr) == 1);
    }
}

TEST_CASE("every read of a file of any bytes stays within its buffer") {
    Random random(15);
    const char* const names[] = {"board", "k", "", "s", "1name"};
    for (int round = 0; round < 10000; ++round) {
        const std::string file = brokenFile(random);
        const auto size = static_cast<std::uint32_t>(random.below(40));
        std::vector<char> buffer(size);
        const std::string section = random.oneOf(names);
        const std::string key = random.oneOf(names);
        const std::uint32_t count = desktop::profileGet(
            &file, random.below(4) == 0 ? nullptr : section.c_str(),
            random.below(4) == 0 ? nullptr : key.c_str(), "otherwise", buffer.data(), size);
        CHECK(count <= (size == 0 ? 0 : size - 1));
        CHECK((size == 0 || buffer[count] == '\0'));
    }
}

TEST_CASE("random writes leave a file that agrees with a plain map") {
    Random random(16);
    const char* const sections[] = {"board", "Board", "schem", "libr"};
    const char* const keys[] = {"1name", "2name", "1NAME", "1type"};
    const auto folded = [](std::string name) {
        for (char& character : name)
            character = static_cast<char>(character | 0x20);
        return name;
    };
    for (int round = 0; round < 60; ++round) {
        std::optional<std::string> file;
        std::map<std::string, std::map<std::string, std::string>> model;
        for (int step = 0; step < 60; ++step) {
            const std::string section = random.oneOf(sections);
            const std::string key = random.oneOf(keys);
            const std::string value = random.text("abc =[];,\\{}", 10);
            const std::size_t what = random.below(8);
            if (what == 0) {
                desktop::profileWrite(file, section.c_str(), nullptr, nullptr);
                model.erase(folded(section));
            } else if (what == 1) {
                desktop::profileWrite(file, section.c_str(), key.c_str(), nullptr);
                model[folded(section)].erase(folded(key));
            } else {
                desktop::profileWrite(file, section.c_str(), key.c_str(), value.c_str());
                model[folded(section)][folded(key)] = value;
            }
            for (const char* seen : sections)
                for (const char* name : keys) {
                    std::string expected = model[folded(seen)][folded(name)];
                    expected.erase(0, std::min(expected.find_first_not_of(' '), expected.size()));
                    expected.resize(expected.find_last_not_of(' ') + 1);
                    REQUIRE(readBack(*file, seen, name) == expected);
                }
        }
    }
}

TEST_CASE(
    "button lists load from any bytes, with one of two errors at the worst, and save what they loaded") {
    const desktop::Session session;
    Random random(17);
    for (int round = 0; round < 2000; ++round) {
        store::boardButtons = store::schemButtons = store::librButtons = {};
        world().writeSettings(brokenFile(random));
        try {
            store::loadButtonLists(0);
        } catch (const RuntimeError& error) {
            CHECK((error.number == ErrorNumber::typeMismatch || error.number == ErrorNumber::overflow));
            continue;
        }
        const store::ButtonList loaded = store::boardButtons;
        store::saveButtonLists(0);
        store::loadButtonLists(0);
        CHECK(store::boardButtons.upperBound() == loaded.upperBound());
    }
    store::boardButtons = store::schemButtons = store::librButtons = {};
}

TEST_SUITE_END();
