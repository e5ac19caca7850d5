#include "errors/printWrap.h"

#include "errors/lineEnd.h"
#include "runtime/characters.h"

namespace errors {

namespace {

constexpr std::size_t columns = 73;
constexpr std::size_t indent = 20;

/// Prints one line of the text, which ends in a blank.
void wrap(std::string_view line, std::vector<std::string>& printed) {
    std::size_t count = 0;
    std::string buffer;
    while (!line.empty()) {
        const std::string_view word = line.substr(0, line.find(' ') + 1);
        line.remove_prefix(word.size());
        const std::size_t length = runtime::characterCount(word);
        count += length;
        if (count > columns) {
            if (!buffer.empty()) {
                printed.push_back(buffer);
                buffer.assign(indent, ' ');
            }
            count = length;
        }
        buffer += word;
    }
    printed.push_back(buffer);
}

} // namespace

std::vector<std::string> printLines(std::string_view text) {
    constexpr std::string_view separator = lineEnd;
    std::vector<std::string> printed;
    for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
        wrap(std::string(text.substr(0, end)).append(1, ' '), printed);
        text.remove_prefix(end + separator.size());
    }
    return printed;
}

} // namespace errors
