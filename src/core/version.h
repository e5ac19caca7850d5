// The version of this build, as the project file has it.
#pragma once

namespace core {

inline constexpr int versionMajor = KESTREL_VERSION_MAJOR;
inline constexpr int versionMinor = KESTREL_VERSION_MINOR;
inline constexpr int versionRevision = KESTREL_VERSION_REVISION;

} // namespace core
