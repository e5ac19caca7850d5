#include "desktop/iniFile.h"

#include "platform/codePage.h"
#include "runtime/characters.h"
#include "runtime/text.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace desktop {

namespace {

enum class LineKind {
    section,
    key,
    comment,
    blank,
    other, ///< a line that is none of these, such as a name without a value
};

struct Line {
    LineKind kind = LineKind::blank;
    std::string_view name;  ///< of a section or key
    std::string_view value; ///< of a key, quotes included
    std::size_t begin = 0;
    std::size_t valueBegin = 0; ///< behind the equals sign of a key
    std::size_t textEnd = 0;    ///< ahead of the line end
    std::size_t end = 0;        ///< behind the line end
};

constexpr std::string_view lineEnd = "\r\n";

bool counts(char character) {
    return static_cast<unsigned char>(character) > ' ';
}

/// Blanks and control characters off both ends.
std::string_view stripped(std::string_view text) {
    std::size_t first = 0;
    std::size_t last = text.size();
    while (first < last && !counts(text[first]))
        ++first;
    while (last > first && !counts(text[last - 1]))
        --last;
    return text.substr(first, last - first);
}

/// Where the line ends that a position stands in.
std::size_t endOfText(std::string_view text, std::size_t at) {
    const std::string_view rest = text.substr(at);
    const std::string_view upToFeed = rest.substr(0, rest.find('\n'));
    return at + std::min(upToFeed.find('\r'), upToFeed.size());
}

Line readLine(std::string_view text, std::size_t begin) {
    Line line;
    line.begin = begin;
    line.textEnd = endOfText(text, begin);
    line.end = line.textEnd;
    if (line.end < text.size())
        line.end += text.substr(line.end).starts_with(lineEnd) ? 2 : 1;

    const std::string_view body = stripped(text.substr(begin, line.textEnd - begin));
    if (body.empty())
        return line;
    if (body.front() == ';') {
        line.kind = LineKind::comment;
    } else if (body.front() == '[') {
        line.kind = LineKind::section;
        line.name = stripped(body.substr(1, runtime::findText(body, "]") - 1));
    } else if (const std::size_t mark = body.find('='); mark != std::string_view::npos) {
        line.kind = LineKind::key;
        line.name = stripped(body.substr(0, mark));
        line.value = stripped(runtime::untilNul(body.substr(mark + 1)));
        line.valueBegin = text.find('=', begin) + 1;
    } else {
        line.kind = LineKind::other;
    }
    return line;
}

/// Whether it is the name that is wanted, which is in lower case. Folding its case leaves a name as long as
/// it is.
bool sameName(std::string_view name, std::string_view wanted) {
    return name.size() == wanted.size() && runtime::holdsIgnoringCase(name, wanted);
}

/// The position behind the header of a section; npos if there is none.
std::size_t findSection(std::string_view text, std::string_view section) {
    const std::string wanted = runtime::lowerCase(section);
    for (std::size_t at = 0; at < text.size();) {
        const Line line = readLine(text, at);
        at = line.end;
        if (line.kind == LineKind::section && sameName(line.name, wanted))
            return at;
    }
    return std::string_view::npos;
}

/// Calls `visit` for the lines of a section until it gives false or the section ends.
template <typename Visit>
void visitSection(std::string_view text, std::size_t at, Visit visit) {
    while (at < text.size()) {
        const Line line = readLine(text, at);
        if (line.kind == LineKind::section || !visit(line))
            return;
        at = line.end;
    }
}

std::optional<Line> findKey(std::string_view text, std::size_t section, std::string_view key) {
    const std::string wanted = runtime::lowerCase(key);
    std::optional<Line> found;
    visitSection(text, section, [&](const Line& line) {
        if (line.kind == LineKind::key && sameName(line.name, wanted))
            found = line;
        return !found;
    });
    return found;
}

std::string_view unquoted(std::string_view value) {
    const bool quoted =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

/// Names, each ended by NUL; nothing if the list is that of a section that is not there.
std::optional<std::string> nameList(std::string_view text, const char* section) {
    std::string names;
    const auto add = [&names](std::string_view name) { names.append(name).append(1, '\0'); };
    if (section == nullptr) {
        for (std::size_t at = 0; at < text.size();) {
            const Line line = readLine(text, at);
            at = line.end;
            if (line.kind == LineKind::section)
                add(line.name);
        }
        return names;
    }
    const std::size_t found = findSection(text, runtime::trim(section));
    if (found == std::string_view::npos)
        return std::nullopt;
    visitSection(text, found, [&](const Line& line) {
        if (line.kind == LineKind::key)
            add(line.name);
        return true;
    });
    return names;
}

std::optional<std::string_view> findValue(std::string_view text, const char* section, const char* key) {
    const std::size_t found = findSection(text, runtime::trim(section));
    if (found == std::string_view::npos)
        return std::nullopt;
    const std::optional<Line> line = findKey(text, found, runtime::trim(key));
    return line ? std::optional(unquoted(line->value)) : std::nullopt;
}

/// Copies what fits ahead of `terminators` NULs and gives the number of characters copied.
std::uint32_t copyOut(std::string_view text, char* buffer, std::uint32_t size, std::uint32_t terminators) {
    const std::uint32_t room = size - std::min(size, terminators);
    const auto count = static_cast<std::uint32_t>(std::min<std::size_t>(text.size(), room));
    std::copy_n(text.begin(), count, buffer);
    std::fill_n(buffer + count, std::min(size - count, terminators), '\0');
    return count;
}

/// Makes the text up to `at` end in a line end and gives the position behind it.
std::size_t endLine(std::string& text, std::size_t at) {
    if (at == 0 || text[at - 1] == '\r' || text[at - 1] == '\n')
        return at;
    text.insert(at, lineEnd);
    return at + lineEnd.size();
}

void insertKey(std::string& text, std::size_t section, std::string_view key, std::string_view value) {
    std::size_t at = section;
    visitSection(text, section, [&](const Line& line) {
        if (line.kind == LineKind::key || line.kind == LineKind::other)
            at = line.end;
        return true;
    });
    at = endLine(text, at);
    text.insert(at, std::string(key).append("=").append(value).append(lineEnd));
}

void replaceValue(std::string& text, const Line& line, std::string_view value) {
    if (line.end == line.textEnd)
        text.insert(line.end, lineEnd);
    text.replace(line.valueBegin, line.textEnd - line.valueBegin, value);
}

void removeSection(std::string& text, std::string_view name) {
    const std::size_t section = findSection(text, name);
    if (section == std::string::npos)
        return;
    std::string kept;
    std::size_t end = section;
    visitSection(text, section, [&](const Line& line) {
        if (line.kind == LineKind::comment || line.kind == LineKind::blank)
            kept.append(text, line.begin, line.end - line.begin);
        end = line.end;
        return true;
    });
    std::size_t header = 0;
    for (std::size_t at = 0; at < section; at = readLine(text, at).end)
        header = at;
    text.replace(header, end - header, kept);
}

/// In front of a file in UTF-16LE.
constexpr std::string_view mark = "\xFF\xFE";

std::u16string decoded(std::string_view bytes) {
    std::u16string text;
    for (std::size_t at = mark.size(); at + 1 < bytes.size(); at += 2) {
        const auto low = static_cast<unsigned char>(bytes[at]);
        const auto high = static_cast<unsigned char>(bytes[at + 1]);
        text += static_cast<char16_t>(low | high << 8U);
    }
    return text;
}

std::string encoded(std::u16string_view text) {
    std::string bytes(mark);
    for (const char16_t unit : text) {
        bytes += static_cast<char>(unit & 0xFFU);
        bytes += static_cast<char>(unit >> 8U);
    }
    return bytes;
}

/// Each with its end.
template <typename Character>
std::vector<std::basic_string_view<Character>> linesOf(std::basic_string_view<Character> text) {
    std::vector<std::basic_string_view<Character>> lines;
    while (!text.empty()) {
        const std::size_t feed = text.find(Character{'\n'});
        lines.push_back(text.substr(0, feed == text.npos ? feed : feed + 1));
        text.remove_prefix(lines.back().size());
    }
    return lines;
}

/// What a change of a text in the ANSI code page makes of the same text in UTF-16: the lines before and
/// behind it keep what the code page has no letters for.
std::u16string changed(std::u16string_view wide, std::string_view before, std::string_view after) {
    const auto wideLines = linesOf(wide);
    const auto beforeLines = linesOf(before);
    const auto afterLines = linesOf(after);
    const std::size_t most = std::min(beforeLines.size(), afterLines.size());
    std::size_t first = 0;
    while (first < most && beforeLines[first] == afterLines[first])
        ++first;
    std::size_t last = 0;
    while (last < most - first &&
           beforeLines[beforeLines.size() - 1 - last] == afterLines[afterLines.size() - 1 - last])
        ++last;
    std::u16string result;
    for (std::size_t line = 0; line < first; ++line)
        result += wideLines[line];
    for (std::size_t line = first; line + last < afterLines.size(); ++line)
        result += platform::toUtf16(afterLines[line]);
    for (std::size_t line = wideLines.size() - last; line < wideLines.size(); ++line)
        result += wideLines[line];
    return result;
}

std::uint32_t getFrom(std::string_view text, const char* section, const char* key, const char* defaultValue,
                      char* buffer, std::uint32_t size) {
    if (section == nullptr || key == nullptr) {
        if (const std::optional<std::string> names = nameList(text, section))
            return copyOut(*names, buffer, size, 2);
    } else if (const std::optional<std::string_view> value = findValue(text, section, key)) {
        return copyOut(*value, buffer, size, 1);
    }
    std::string_view otherwise = defaultValue == nullptr ? "" : defaultValue;
    otherwise = otherwise.substr(0, otherwise.find_last_not_of(' ') + 1);
    return copyOut(otherwise, buffer, size, 1);
}

/// The text as the change leaves it.
std::string writeInto(std::string text, const char* section, const char* key, const char* value) {
    const std::string_view sectionName = runtime::trim(section);
    if (key == nullptr) {
        removeSection(text, sectionName);
        return text;
    }
    const std::string_view keyName = runtime::trim(key);
    const std::size_t found = findSection(text, sectionName);
    if (found == std::string::npos) {
        if (value != nullptr) {
            endLine(text, text.size());
            text.append("[").append(sectionName).append("]").append(lineEnd);
            text.append(keyName).append("=").append(value).append(lineEnd);
        }
    } else if (const std::optional<Line> line = findKey(text, found, keyName)) {
        if (value == nullptr)
            text.erase(line->begin, line->end - line->begin);
        else
            replaceValue(text, *line, value);
    } else if (value != nullptr) {
        insertKey(text, found, keyName, value);
    }
    return text;
}

} // namespace

std::uint32_t profileGet(const std::string* fileText, const char* section, const char* key,
                         const char* defaultValue, char* buffer, std::uint32_t size) {
    const std::string_view bytes = fileText == nullptr ? std::string_view() : std::string_view(*fileText);
    if (!bytes.starts_with(mark))
        return getFrom(bytes, section, key, defaultValue, buffer, size);
    return getFrom(platform::toAnsi(decoded(bytes)), section, key, defaultValue, buffer, size);
}

int profileWrite(std::optional<std::string>& fileText, const char* section, const char* key,
                 const char* value) {
    if (section == nullptr)
        return 0;
    const std::string bytes = fileText.value_or("");
    if (!bytes.starts_with(mark)) {
        fileText = writeInto(bytes, section, key, value);
        return 1;
    }
    const std::u16string wide = decoded(bytes);
    const std::string text = platform::toAnsi(wide);
    fileText = encoded(changed(wide, text, writeInto(text, section, key, value)));
    return 1;
}

} // namespace desktop
