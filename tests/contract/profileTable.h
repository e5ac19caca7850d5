// The cases of tests/data/profile.tsv: settings-file operations, what the platform makes of them, and what
// Wine 10 does where that differs. Read by the test of the simulated desktop and by the one that runs on a
// real system.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace contract {

/// What an operation gives: its result, the text in the buffer (for a read) and the file behind it, if there
/// is one.
struct ProfileOutcome {
    std::uint32_t result = 0;
    std::string text;
    std::optional<std::string> file;
};

struct ProfileCase {
    std::string id;
    std::optional<std::string> fileBefore; ///< none: no such file
    bool write = false;
    std::optional<std::string> section; ///< none: null
    std::optional<std::string> key;
    std::optional<std::string> value; ///< to be written, or the default of a read
    std::uint32_t size = 0;           ///< of the buffer of a read
    ProfileOutcome expected;
    bool differsUnderWine = false;
    ProfileOutcome wine; ///< the same as `expected` unless it differs
};

/// Throws std::runtime_error if the file cannot be read or a row is not understood.
std::vector<ProfileCase> readProfileTable(const std::string& path);

} // namespace contract
