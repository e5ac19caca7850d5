// The protocol of a report: its text and the file beside the executable. The text changes with the controls
// that it is taken from.
#include "errors/ErrPtnr.h"

#include "errors/lineEnd.h"
#include "errors/protocolFile.h"
#include "platform/clock.h"
#include "platform/kernel32.h"
#include "platform/textFile.h"
#include "runtime/text.h"

#include <iterator>

namespace errors {

namespace {

constexpr std::size_t ruleLength = 70;
constexpr std::size_t padLength = 10;

std::string line(const std::string& text) {
    return text + lineEnd;
}

std::string rule() {
    return line(std::string(ruleLength, '-'));
}

std::string padded(const std::string& text) {
    return std::string(padLength, ' ') + text;
}

std::string field(const std::string& title, const std::string& value) {
    return line(padded(title + "\t" + value));
}

/// Kept: a platform that has no name has no line end either, so that the version follows on its line.
std::string platformLine(std::uint32_t platform) {
    constexpr const char* names[] = {"Win32s", "Windows 95", "Windows NT"};
    constexpr const char* title = "Plattform:";
    return platform < std::size(names) ? field(title, names[platform]) : padded(title) + "\t";
}

std::string systemInfo() {
    platform::OSVERSIONINFOA record;
    record.dwOSVersionInfoSize = platform::versionRecordSize;
    platform::GetVersionExA(record);
    const std::string_view servicePack(record.szCSDVersion, sizeof record.szCSDVersion);
    return line("SYSTEMINFO:") + platformLine(record.dwPlatformId) +
           field("Version:",
                 std::to_string(record.dwMajorVersion) + "." + std::to_string(record.dwMinorVersion)) +
           field("Build:",
                 std::to_string(record.dwBuildNumber) + "   " + ErrPtnr::LPSTRToVBString(servicePack));
}

} // namespace

std::string ErrPtnr::buildProtocol() const {
    std::string text = rule() + line("F E H L E R P R O T O K O L L vom ErrorPartner");
    text += rule() + line(caption());
    text += rule() + line(runtime::upperCase(framFehler.caption()));
    for (std::size_t index = 0; index < lblError.size(); ++index)
        text += field(lblErrTitel[index].caption(), lblError[index].caption());
    const double now = platform::now();
    text += field("Datum/Uhrzeit:", platform::dateText(now) + " / " + platform::timeText(now));
    text += rule() + line(runtime::upperCase(framCallStack.caption()));
    for (const std::string& item : lstCallStack.items())
        text += line(padded(item));
    return text + rule() + systemInfo() + rule();
}

void ErrPtnr::appendProtocolFile() const {
    platform::appendToFile(protocolFile(".EPT"), line(buildProtocol()));
}

} // namespace errors
