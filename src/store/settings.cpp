#include "store/settings.h"

#include "platform/executable.h"
#include "platform/files.h"
#include "platform/kernel32.h"
#include "runtime/characters.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "store/state.h"

#include <array>
#include <utility>

namespace store {

namespace {

/// The file, given the folder in the spelling that a routine uses for it. Nothing is normalised: at a drive
/// root there are two separators in a row, which the platform copes with.
std::string settingsFile(const std::string& folder, const char* extension = "ini") {
    return folder + "\\kestrel." + extension;
}

/// The same under another extension, where the program's folder has its own spelling.
std::string besideSettings(const char* extension) {
    return settingsFile(platform::programFolder(), extension);
}

/// Kept: readers and the removal take the folder in lower case, the writer as it stands. Case does not count
/// there.
std::string settingsFileLower() {
    return settingsFile(runtime::lowerCase(platform::programFolder()));
}

} // namespace

std::int16_t setini(const std::string& section, const std::string& key, const std::string& value) {
    currentRoutine = "setini";
    return static_cast<std::int16_t>(platform::WritePrivateProfileStringA(
        section.c_str(), key.c_str(), value.c_str(), settingsFile(platform::programFolder()).c_str()));
}

void keepSettings() {
    const bool older = std::exchange(wholeByThisRun, false);
    platform::copyFile(besideSettings("ini"), besideSettings("sav"),
                       older ? platform::Existing::replaced : platform::Existing::kept);
}

void settingsWritten() {
    wholeByThisRun = true;
    platform::renameFile(besideSettings("sav"), besideSettings("bak"));
}

std::string getini(const std::string& section, const std::string& key) {
    currentRoutine = "getini";
    std::array<char, longestValue + 1> buffer;
    buffer.fill(' ');
    const auto count = static_cast<std::int16_t>(platform::GetPrivateProfileStringA(
        section.c_str(), key.c_str(), "", buffer.data(), static_cast<std::uint32_t>(buffer.size()),
        settingsFileLower().c_str()));
    if (count <= 0)
        return {};
    // The platform cuts a value that is too long by bytes.
    return std::string(runtime::withoutTornEnd({buffer.data(), static_cast<std::size_t>(count)}));
}

std::int16_t delini(const std::string& section) {
    return static_cast<std::int16_t>(
        platform::WritePrivateProfileStringA(section.c_str(), nullptr, nullptr, settingsFileLower().c_str()));
}

bool getFlag(const std::string& section, const std::string& key) {
    return runtime::readNumber(getini(section, key)) != 0;
}

std::int32_t getNumber(const std::string& section, const std::string& key) {
    return runtime::roundToInt32(runtime::readNumber(getini(section, key)));
}

std::string getText(const std::string& section, const std::string& key, const std::string& otherwise) {
    std::string value = getini(section, key);
    return value.empty() ? otherwise : value;
}

} // namespace store
