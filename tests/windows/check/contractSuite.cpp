#include "check/contractSuite.h"
#include "check/waiting.h"
#include "common/text.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <vector>

namespace contractSuite {

static constexpr int longest = 600;         // seconds
static constexpr ULONGLONG patience = 1000; // milliseconds that another program may be in front

// Windows lets only a program come to the front that was there, or that one which was lets.
class FrontKeeper {
  public:
    FrontKeeper(Notice& notice, DWORD process) : notice_(notice), process_(process) {
        AllowSetForegroundWindow(process_);
    }

    void look() {
        const HWND front = GetForegroundWindow();
        if (!front || workplace::isOurs(front)) {
            since_ = GetTickCount64();
        } else if (GetTickCount64() - since_ >= patience) {
            notice_.comeToFront();
            AllowSetForegroundWindow(process_);
            since_ = GetTickCount64();
        }
    }

  private:
    Notice& notice_;
    DWORD process_;
    ULONGLONG since_ = GetTickCount64();
};

// A text in the system's ANSI code page, as the test program prints its own and those of the system.
static std::wstring wide(const std::string& ansi) {
    std::wstring result(ansi.size(), L'\0');
    result.resize(
        static_cast<size_t>(MultiByteToWideChar(CP_ACP, 0, ansi.data(), static_cast<int>(ansi.size()),
                                                result.data(), static_cast<int>(result.size()))));
    return result;
}

// What is told of a test: its name alone, if it has nothing to say.
static void tellTest(const std::vector<std::string>& lines, const Privacy& privacy, Report& report) {
    const auto says = [](const std::string& line) {
        return line.find("ERROR:") != std::string::npos || line.find("WARNING:") != std::string::npos ||
               line.find("MESSAGE:") != std::string::npos;
    };
    const bool all =
        lines.size() < 2 || !lines[1].starts_with("TEST SUITE:") || std::ranges::any_of(lines, says);
    for (size_t i = all ? 0 : lines.size() - 1; i < lines.size(); ++i)
        report.line(L"   " + privacy.hidden(wide(lines[i])));
}

// Passes on what the tests have printed. False if they have not counted themselves at the end.
static bool tell(const std::wstring& output, const Privacy& privacy, Report& report) {
    std::ifstream printed(output.c_str());
    std::vector<std::string> test;
    bool told = false;
    for (std::string line; std::getline(printed, line);) {
        if (line.ends_with('\r'))
            line.pop_back();
        int passed = 0;
        int failed = 0;
        if (const size_t at = line.find("test cases:");
            at != std::string::npos &&
            std::sscanf(line.c_str() + at, "test cases: %*d | %d passed | %d failed", &passed, &failed) ==
                2) {
            report.add(passed, failed);
            told = true;
        }
        if (line.starts_with("====")) {
            tellTest(test, privacy, report);
            test.clear();
        } else if (!line.empty()) {
            test.push_back(line);
        }
    }
    tellTest(test, privacy, report);
    return told;
}

void run(const workplace::Workplace& place, const std::wstring& bits, const std::wstring& options,
         Notice& notice, Privacy& privacy, Report& report) {
    const std::wstring output = L"contract-" + bits + L".txt";
    notice.comeToFront();
    const workplace::Process tests = place.start(
        bits + L"\\contract-tests.exe", L"--no-colors --no-path-filenames --duration " + options, output);
    FrontKeeper front(notice, tests.id());
    const bool ended = waiting::until(
        [&] {
            front.look();
            privacy.addTitles();
            return !tests.runs();
        },
        longest);
    if (!ended)
        tests.terminate();

    const bool told = tell(place.path(output), privacy, report);
    report.check(ended && told, L"the contract tests come to their end",
                 ended ? L"exit code " + std::to_wstring(tests.exitCode()) : L"they go on and on");
}

} // namespace contractSuite
