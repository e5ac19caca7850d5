#include "store/pathTokens.h"

#include "platform/executable.h"
#include "runtime/characters.h"
#include "runtime/text.h"

namespace store {

namespace {

/// Kept: whether a token is there is tested without regard to case, but only its lower-case form is replaced.
std::string expanded(const std::string& text, const char* token, const std::string& folder) {
    if (runtime::findText(runtime::lowerCase(text), token) == std::string::npos)
        return text;
    return runtime::replaceAll(text, token, folder);
}

} // namespace

std::string expandTokens(const std::string& text) {
    return expanded(expanded(text, "{kestrelpath}", platform::programFolder()), "{eaglepath}", eagleFolder);
}

} // namespace store
