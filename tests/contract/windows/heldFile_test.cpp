// A settings file that another program holds, as virus scanners and backups do for a moment.
#include "contract/world.h"
#include "platform/files.h"
#include "platform/kernel32.h"
#include "win32/platform/heldFiles.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <array>
#include <string>

namespace {

/// Nobody else opens the file until it is let go.
class Held {
  public:
    explicit Held(const std::string& file)
        : handle_(CreateFileA(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr)) {
        REQUIRE(handle_ != INVALID_HANDLE_VALUE);
    }
    ~Held() {
        if (thread_ == nullptr) {
            CloseHandle(handle_);
            return;
        }
        WaitForSingleObject(thread_, INFINITE);
        CloseHandle(thread_);
    }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;

    /// Not now: a moment later.
    void letGoSoon() {
        thread_ = CreateThread(nullptr, 0, letGo, handle_, 0, nullptr);
        REQUIRE(thread_ != nullptr);
    }

  private:
    static DWORD WINAPI letGo(void* handle) {
        constexpr DWORD moment = 100;
        Sleep(moment);
        CloseHandle(handle);
        return 0;
    }

    HANDLE handle_;
    HANDLE thread_ = nullptr;
};

std::string valueIn(const std::string& file) {
    std::array<char, 64> buffer{};
    const auto count = platform::GetPrivateProfileStringA(
        "s", "key", "", buffer.data(), static_cast<std::uint32_t>(buffer.size()), file.c_str());
    return {buffer.data(), count};
}

struct Settings {
    contract::World world;
    std::string file = world.path("held.ini");

    Settings() { world.writeFile(file, "[s]\r\nkey=old\r\n"); }
};

} // namespace

TEST_SUITE_BEGIN("contract/windows/heldFile");

TEST_CASE("a value is read from a file that is held for a moment") {
    const Settings settings;
    Held held(settings.file);
    held.letGoSoon();
    CHECK(valueIn(settings.file) == "old");
}

TEST_CASE("a value is written to a file that is held for a moment") {
    const Settings settings;
    {
        Held held(settings.file);
        held.letGoSoon();
        CHECK(platform::WritePrivateProfileStringA("s", "key", "new", settings.file.c_str()) != 0);
    }
    CHECK(valueIn(settings.file) == "new");
}

TEST_CASE("a file is copied while it, or the one in the copy's place, is held for a moment") {
    Settings settings;
    const std::string copy = settings.world.path("held.sav");
    settings.world.writeFile(copy, "older");
    std::string heldOne;
    SUBCASE("the file") {
        heldOne = settings.file;
    }
    SUBCASE("the one in the copy's place") {
        heldOne = copy;
    }
    Held held(heldOne);
    held.letGoSoon();
    CHECK(platform::copyFile(settings.file, copy));
    CHECK(valueIn(copy) == "old");
}

TEST_CASE("a file gets another name while it, or the one in its place, is held for a moment") {
    Settings settings;
    const std::string kept = settings.world.path("held.bak");
    settings.world.writeFile(kept, "older");
    std::string heldOne;
    SUBCASE("the file") {
        heldOne = settings.file;
    }
    SUBCASE("the one in its place") {
        heldOne = kept;
    }
    {
        Held held(heldOne);
        held.letGoSoon();
        CHECK(platform::renameFile(settings.file, kept));
    }
    CHECK(valueIn(kept) == "old");
    CHECK(platform::dir(settings.file).empty());
}

TEST_CASE("a file that stays held is waited for once, and is free again when it is let go") {
    const Settings settings;
    {
        const Held held(settings.file);
        ULONGLONG begin = GetTickCount64();
        CHECK(valueIn(settings.file).empty());
        CHECK(GetTickCount64() - begin >= win32::heldPatience);
        begin = GetTickCount64();
        for (int read = 0; read < 10; ++read)
            CHECK(valueIn(settings.file).empty());
        CHECK(GetTickCount64() - begin < 10 * win32::heldPatience);
    }
    CHECK(valueIn(settings.file) == "old");
}

TEST_SUITE_END();
