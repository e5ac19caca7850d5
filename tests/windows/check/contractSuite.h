// The contract tests: what the program expects of Windows, call by call.
#pragma once
#include "check/notice.h"
#include "check/privacy.h"
#include "check/report.h"
#include "check/workplace.h"

#include <string>

namespace contractSuite {

// Runs the tests of a bitness, win32 or win64, and adds what they tell to the report. `options` go to the
// test program. Other programs' titles that are seen meanwhile are added to what is nobody's business.
void run(const workplace::Workplace& place, const std::wstring& bits, const std::wstring& options,
         Notice& notice, Privacy& privacy, Report& report);

} // namespace contractSuite
