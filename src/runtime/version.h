// The version of this build, as the project file has it.
#pragma once

namespace runtime {

/// Major number, minor number and revision with points between.
extern const char* const version;

} // namespace runtime
