#include "store/pathTokens.h"

#include "platform/executable.h"
#include "runtime/characters.h"
#include "runtime/text.h"

#include <algorithm>
#include <string_view>

namespace store {

namespace {

constexpr std::string_view kestrelToken = "{kestrelpath}";
constexpr std::string_view eagleToken = "{eaglepath}";

/// Kept: whether a token is there is tested without regard to case, but only its lower-case form is replaced.
std::string expanded(const std::string& text, std::string_view token, const std::string& folder) {
    if (runtime::findText(runtime::lowerCase(text), token) == std::string::npos)
        return text;
    return runtime::replaceAll(text, token, folder);
}

} // namespace

std::string expandTokens(const std::string& text) {
    return expanded(expanded(text, kestrelToken, platform::programFolder()), eagleToken, eagleFolder);
}

std::vector<PathPiece> expandedPieces(const std::string& text) {
    std::vector<PathPiece> pieces;
    for (std::size_t begin = 0;;) {
        const std::size_t kestrel = runtime::findText(text, kestrelToken, begin);
        const std::size_t eagle = runtime::findText(text, eagleToken, begin);
        const std::size_t token = std::min(kestrel, eagle);
        pieces.push_back({text.substr(begin, token - begin)});
        if (token == std::string::npos)
            return pieces;
        const bool own = token == kestrel;
        pieces.push_back({own ? platform::programFolder() : eagleFolder, true});
        begin = token + (own ? kestrelToken : eagleToken).size();
    }
}

} // namespace store
