#include "store/rowText.h"

#include "platform/codePage.h"
#include "runtime/numbers.h"
#include "runtime/runtimeError.h"
#include "runtime/text.h"
#include "store/iconReference.h"
#include "store/mends.h"
#include "store/rowKeys.h"
#include "store/settings.h"

#include <algorithm>
#include <array>

namespace store {

namespace {

constexpr std::array words = {word::name, word::path,   word::tooltip, word::param,
                              word::icon, word::dialog, word::type};
constexpr std::string_view lineEnd = "\r\n";
constexpr std::string_view blanks = " \t";
constexpr std::string_view inFront = " \t>"; // blanks, and the marks of a mail that answers another
constexpr std::string_view digits = "0123456789";

std::string_view withoutFront(std::string_view text, std::string_view what) {
    text.remove_prefix(std::min(text.find_first_not_of(what), text.size()));
    return text;
}

/// As the settings file gives a value: without blanks around it and without quotes around all of it.
std::string_view fileValue(std::string_view text) {
    text = withoutFront(text, blanks);
    text = text.substr(0, text.find_last_not_of(blanks) + 1);
    const bool quoted =
        text.size() > 1 && text.front() == text.back() && (text.front() == '"' || text.front() == '\'');
    return quoted ? text.substr(1, text.size() - 2) : text;
}

/// A line "12name=value" taken apart.
struct KeyLine {
    std::string_view number;
    std::size_t word;
    std::string_view value;
};

std::optional<KeyLine> keyLine(std::string_view line) {
    const std::size_t numberSize = std::min(line.find_first_not_of(digits), line.size());
    const std::size_t equals = line.find('=');
    if (numberSize == 0 || equals == std::string_view::npos)
        return {};
    const std::string key = runtime::lowerCase(fileValue(line.substr(numberSize, equals - numberSize)));
    const auto found = std::find(words.begin(), words.end(), key);
    if (found == words.end())
        return {};
    return KeyLine{line.substr(0, numberSize), static_cast<std::size_t>(found - words.begin()),
                   fileValue(line.substr(equals + 1))};
}

bool isWhole(std::string_view text) {
    return text.size() <= longestValue;
}

/// The number that a field of three choices has; nothing for any other text.
std::optional<std::int16_t> choice(std::string_view text) {
    try {
        const std::int16_t number = runtime::toInt16(text);
        constexpr std::int16_t last = 2;
        if (number >= 0 && number <= last)
            return number;
    } catch (const runtime::RuntimeError&) { // no number, or one beyond 16 bits
    }
    return {};
}

/// Puts rows together from their lines.
class Reader {
  public:
    /// False once a row is none.
    bool take(std::string_view line) {
        line = withoutFront(line, inFront);
        if (line.find_first_not_of(blanks) == std::string_view::npos)
            return true;
        if (const auto key = keyLine(line))
            return takeKey(*key);
        const bool between =
            line.front() == '[' || std::find(given_.begin(), given_.end(), false) == given_.end();
        return between || !open_ ? close() : false;
    }

    bool close() {
        if (!open_)
            return true;
        open_ = false;
        return add();
    }

    std::vector<ToolButton> rows;

  private:
    bool takeKey(const KeyLine& key) {
        if (open_ && (key.number != number_ || given_[key.word]) && !close())
            return false;
        if (!open_) {
            open_ = true;
            number_ = key.number;
            given_.fill(false);
            values_.fill({});
        }
        given_[key.word] = true;
        values_[key.word] = key.value;
        return isWhole(key.value);
    }

    bool add() {
        const auto [name, path, tooltip, param, icon, dialogText, typeText] = values_;
        const auto dialog = choice(dialogText);
        const auto type = choice(typeText);
        if (name.empty() || !dialog || !type)
            return false;
        ToolButton& row = rows.emplace_back();
        row.name = name;
        row.path = path;
        row.tooltip = tooltip;
        row.param = param;
        row.icon = icon;
        row.dialog = *dialog;
        row.type = *type;
        row.live = 1;
        return fitsButton(row.path) && fitsButton(row.param) && (row.icon.empty() || fitsIcon(row.icon));
    }

    bool open_ = false;
    std::string_view number_;
    std::array<bool, words.size()> given_{};
    std::array<std::string_view, words.size()> values_{};
};

} // namespace

bool fitsButton(const std::string& text) {
    // Kept: the sign splits a button's tag, so that a click on a row that had one would end the program.
    return isWhole(text) &&
           (mended(Mend::noEnd) || platform::toUtf16(text).find(u'\u00A7') == std::u16string::npos);
}

bool fitsIcon(const std::string& reference) {
    try {
        const auto icon = IconReference::parse(reference);
        // Where it is cut at the first comma, a second one makes the rest no number.
        return isWhole(reference) &&
               runtime::toInt32(std::string_view(reference).substr(icon.file.size() + 1)) == icon.index;
    } catch (const runtime::RuntimeError&) {
        return false;
    }
}

std::string rowText(const ToolButton& row, std::int32_t number) {
    const RowNumbers numbers =
        row.asRead.value_or(RowNumbers{std::to_string(row.dialog), std::to_string(row.type)});
    const std::array<std::string, words.size()> values = {row.name, row.path,       row.tooltip, row.param,
                                                          row.icon, numbers.dialog, numbers.type};
    std::string text;
    for (std::size_t field = 0; field < words.size(); ++field) {
        text += std::to_string(number) + words[field] + "=" + values[field];
        text += lineEnd;
    }
    return text;
}

std::optional<std::vector<ToolButton>> rowsOf(std::string_view text) {
    Reader reader;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of(lineEnd);
        if (!reader.take(text.substr(0, end)))
            return {};
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    if (!reader.close() || reader.rows.empty())
        return {};
    return std::move(reader.rows);
}

} // namespace store
