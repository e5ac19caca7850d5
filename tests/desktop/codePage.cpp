// Conversions by tables, which the C library's own conversion fills once. Where the platform differs from it
// the comments say so.
#include "desktop/codePage.h"

#include "platform/codePage.h"
#include "runtime/characters.h"

#include <iconv.h>
#include <locale.h>
#include <wctype.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

constexpr unsigned western = 1252;
constexpr unsigned japanese = 932;
constexpr char32_t beyondBmp = 0x10000;

unsigned chosenPage() {
    const char* const name = std::getenv("KESTREL_CODE_PAGE");
    if (name == nullptr)
        return western;
    for (const unsigned page : {1250U, 1251U, western, japanese, platform::utf8CodePage})
        if (name == std::to_string(page))
            return page;
    throw std::invalid_argument(std::string("not a code page of the simulated desktop: ") + name);
}

/// The C library's conversion of one character.
class Conversion {
  public:
    Conversion(const std::string& to, const std::string& from)
        : handle_(iconv_open(to.c_str(), from.c_str())) {
        // It tells of failure by the number -1, as a pointer.
        if (reinterpret_cast<std::intptr_t>(handle_) == -1)
            throw std::runtime_error("the C library does not know the code page " + to + " or " + from);
    }
    ~Conversion() { iconv_close(handle_); }
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    /// None if it is no character there or none here.
    std::optional<std::string> operator()(std::string character) const {
        std::array<char, 8> result{};
        char* in = character.data();
        char* out = result.data();
        std::size_t inLeft = character.size();
        std::size_t outLeft = result.size();
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        if (iconv(handle_, &in, &inLeft, &out, &outLeft) != 0 || inLeft != 0)
            return std::nullopt;
        return std::string(result.data(), result.size() - outLeft);
    }

  private:
    iconv_t handle_;
};

constexpr unsigned byteOf(char character) {
    return static_cast<unsigned char>(character);
}

std::string bytesOf(char16_t unit) {
    return {static_cast<char>(unit & 0xFFU), static_cast<char>(unit >> 8U)};
}

/// The code page's own table; not for UTF-8.
struct Table {
    std::array<char16_t, 256> one{}; ///< of bytes that are a character alone
    std::array<bool, 256> leads{};   ///< the first of two
    std::vector<char16_t> two;       ///< by both bytes
    std::unordered_map<char16_t, std::string> back;

    Table() : two(platform::GetACP() == japanese ? 0x10000 : 0) {
        const std::string page = "CP" + std::to_string(platform::GetACP());
        const Conversion there("UTF-16LE", page);
        const Conversion from(page, "UTF-16LE");
        const auto unit = [&there](const std::string& bytes) {
            const auto wide = there(bytes);
            return wide && wide->size() == 2
                       ? static_cast<char16_t>(byteOf((*wide)[0]) | byteOf((*wide)[1]) << 8U)
                       : u'\0';
        };
        for (unsigned code = 0x80; code < 0xFFFE; ++code)
            if (const auto bytes = from(bytesOf(static_cast<char16_t>(code))))
                back[static_cast<char16_t>(code)] = *bytes;
        for (unsigned byte = 0; byte < 256; ++byte) {
            const char character = static_cast<char>(byte);
            leads[byte] = !two.empty() && ((byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC));
            if (leads[byte]) {
                for (unsigned second = 0x40; second < 256; ++second)
                    two[byte << 8U | second] = unit({character, static_cast<char>(second)});
                continue;
            }
            one[byte] = unit({character});
            // What the code page leaves free the platform takes for the control characters of that number, in
            // 932 the last three for some of private use.
            if (byte >= 0x80 && one[byte] == 0) {
                constexpr unsigned privateUse = 0xF8F1;
                one[byte] =
                    static_cast<char16_t>(byte >= 0xFD && !two.empty() ? privateUse + byte - 0xFD : byte);
                back.try_emplace(one[byte], 1, character);
            }
        }
    }
};

const Table& table() {
    static const Table made;
    return made;
}

/// The platform's nearest letter for those of Western Europe; a question mark for others that are missing.
char nearest(char16_t unit) {
    constexpr std::string_view letters = "AAAAAA?CEEEEIIII?NOOOOO?OUUUUY??aaaaaa?ceeeeiiii?nooooo?ouuuuy?y";
    constexpr char16_t first = 0xC0;
    return unit >= first && unit < first + letters.size() ? letters[unit - first] : '?';
}

std::u16string fromUtf8(std::string_view text) {
    std::u16string wide;
    while (!text.empty()) {
        const std::size_t size = runtime::characterSize(text);
        char32_t code = byteOf(text[0]);
        if (size == 1 && code >= 0x80)
            code = 0xFFFD;
        else if (size > 1)
            code &= 0x7FU >> size;
        for (std::size_t at = 1; at < size; ++at)
            code = code << 6U | (byteOf(text[at]) & 0x3FU);
        if (code >= beyondBmp) {
            wide += static_cast<char16_t>(0xD7C0 + (code >> 10U));
            wide += static_cast<char16_t>(0xDC00 + (code & 0x3FFU));
        } else {
            wide += static_cast<char16_t>(code);
        }
        text.remove_prefix(size);
    }
    return wide;
}

std::string toUtf8(std::u16string_view text) {
    std::string utf8;
    for (std::size_t at = 0; at < text.size(); ++at) {
        char32_t code = text[at];
        const bool pair = code >= 0xD800 && code < 0xDC00 && at + 1 < text.size() && text[at + 1] >= 0xDC00 &&
                          text[at + 1] < 0xE000;
        if (pair)
            code = beyondBmp + ((code - 0xD800) << 10U) + (text[++at] - 0xDC00U);
        else if (code >= 0xD800 && code < 0xE000)
            code = 0xFFFD;
        const auto tail = [code](unsigned shift) {
            return static_cast<char>(0x80U | (code >> shift & 0x3FU));
        };
        if (code < 0x80)
            utf8 += static_cast<char>(code);
        else if (code < 0x800)
            utf8.append({static_cast<char>(0xC0U | code >> 6U), tail(0)});
        else if (code < beyondBmp)
            utf8.append({static_cast<char>(0xE0U | code >> 12U), tail(6), tail(0)});
        else
            utf8.append({static_cast<char>(0xF0U | code >> 18U), tail(12), tail(6), tail(0)});
    }
    return utf8;
}

/// A locale that knows the case of all letters.
locale_t lettersOfAll() {
    static const locale_t made = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (made == nullptr)
        throw std::runtime_error("the C library has no locale C.UTF-8");
    return made;
}

void foldCharacter(std::span<char> character) {
    std::u16string wide = platform::toUtf16({character.data(), character.size()});
    if (wide.size() != 1)
        return;
    wide[0] = static_cast<char16_t>(towlower_l(wide[0], lettersOfAll()));
    const std::string small = platform::toAnsi(wide);
    if (small.size() == character.size() && platform::toUtf16(small) == wide)
        std::ranges::copy(small, character.begin());
}

} // namespace

namespace desktop {

void foldCase(std::span<char> text) {
    static const std::array<char, 256> single = [] {
        std::array<char, 256> all{};
        for (unsigned byte = 0; byte < all.size(); ++byte) {
            all[byte] = static_cast<char>(byte);
            foldCharacter({&all[byte], 1});
        }
        return all;
    }();
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t size = runtime::characterSize({text.data() + at, text.size() - at});
        if (size == 1)
            text[at] = single[byteOf(text[at])];
        else
            foldCharacter(text.subspan(at, size));
        at += size;
    }
}

} // namespace desktop

namespace platform {

unsigned GetACP() {
    static const unsigned page = chosenPage();
    return page;
}

bool IsDBCSLeadByte(char byte) {
    return GetACP() != utf8CodePage && table().leads[byteOf(byte)];
}

std::u16string toUtf16(std::string_view text) {
    if (GetACP() == utf8CodePage)
        return fromUtf8(text);
    constexpr char16_t noCharacter = 0x30FB; // what the platform makes of two bytes that are none
    std::u16string wide;
    while (!text.empty()) {
        const std::size_t size = runtime::characterSize(text);
        const unsigned first = byteOf(text[0]);
        const char16_t unit = size == 2 ? table().two[first << 8U | byteOf(text[1])] : table().one[first];
        wide += unit == 0 && first != 0 ? noCharacter : unit;
        text.remove_prefix(size);
    }
    return wide;
}

std::string toAnsi(std::u16string_view text) {
    if (GetACP() == utf8CodePage)
        return toUtf8(text);
    std::string ansi;
    for (const char16_t unit : text) {
        const auto found = table().back.find(unit);
        if (unit < 0x80)
            ansi += static_cast<char>(unit);
        else if (found != table().back.end())
            ansi += found->second;
        else
            ansi += nearest(unit);
    }
    return ansi;
}

} // namespace platform
