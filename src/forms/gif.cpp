#include "forms/gif.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace forms {

namespace {

/// Bytes of a file one after the other; 0 behind its end.
class Bytes {
  public:
    explicit Bytes(std::span<const std::uint8_t> file) : rest_(file) {}

    bool ended() const { return ended_; }

    unsigned byte() {
        if (rest_.empty()) {
            ended_ = true;
            return 0;
        }
        const unsigned value = rest_.front();
        rest_ = rest_.subspan(1);
        return value;
    }

    unsigned word() {
        const unsigned low = byte();
        return low | byte() << 8U;
    }

  private:
    std::span<const std::uint8_t> rest_;
    bool ended_ = false;
};

/// Codes out of the blocks that a picture's data stand in, each block after its length; lowest bits first.
class Codes {
  public:
    explicit Codes(Bytes& bytes) : bytes_(bytes) {}

    bool ended() const { return ended_ || bytes_.ended(); }

    /// Any once it has ended.
    unsigned next(unsigned bits) {
        while (count_ < bits) {
            if (left_ == 0)
                left_ = bytes_.byte();
            if (left_ == 0) { // the block that ends them
                ended_ = true;
                return 0;
            }
            held_ |= bytes_.byte() << count_;
            count_ += 8;
            --left_;
        }
        const unsigned code = held_ & ((1U << bits) - 1);
        held_ >>= bits;
        count_ -= bits;
        return code;
    }

  private:
    Bytes& bytes_;
    unsigned left_ = 0; ///< bytes of the block
    unsigned held_ = 0;
    unsigned count_ = 0; ///< bits that are held
    bool ended_ = false;
};

/// Each entry of the dictionary is a former one with one more number of a colour behind it.
struct Entry {
    unsigned before;
    std::uint8_t last;
};

constexpr unsigned longestCode = 12;

/// The numbers of `count` pixels' colours; nothing if the data are damaged.
std::optional<std::vector<std::uint8_t>> unpacked(Bytes& bytes, std::size_t count) {
    const unsigned size = bytes.byte();
    if (size < 2 || size > 8)
        return {};
    const unsigned anew = 1U << size;
    const unsigned end = anew + 1;
    std::vector<Entry> entries(std::size_t{1} << longestCode);
    for (unsigned number = 0; number < anew; ++number)
        entries[number] = {end, static_cast<std::uint8_t>(number)};
    Codes codes(bytes);
    unsigned bits = size + 1;
    unsigned known = end + 1;
    unsigned former = end; // none
    std::uint8_t first = 0;
    std::vector<std::uint8_t> numbers; // no room for `count` before there are so many: it may be damaged
    while (numbers.size() < count) {
        const unsigned code = codes.next(bits);
        if (codes.ended() || code == end)
            return {};
        if (code == anew) {
            bits = size + 1;
            known = end + 1;
            former = end;
            continue;
        }
        // The entry that is just about to be made may be used at once.
        if (code > known || (code == known && former == end))
            return {};
        const std::size_t start = numbers.size();
        if (code == known)
            numbers.push_back(first);
        for (unsigned part = code == known ? former : code; part != end; part = entries[part].before)
            numbers.push_back(entries[part].last);
        first = numbers.back();
        std::reverse(numbers.begin() + static_cast<std::ptrdiff_t>(start), numbers.end());
        if (former != end && known < entries.size()) {
            entries[known] = {former, first};
            ++known;
            if (known == 1U << bits && bits < longestCode)
                ++bits;
        }
        former = code;
    }
    numbers.resize(count);
    return numbers;
}

} // namespace

Picture readGif(std::span<const std::uint8_t> file) {
    constexpr std::array<char, 6> kind{'G', 'I', 'F', '8', '7', 'a'};
    constexpr unsigned hasTable = 0x80;
    constexpr unsigned separator = 0x2C;
    Bytes bytes(file);
    for (const char letter : kind)
        if (bytes.byte() != static_cast<unsigned>(letter))
            return {};
    const unsigned width = bytes.word();
    const unsigned height = bytes.word();
    const unsigned flags = bytes.byte();
    bytes.word(); // the colour behind it and the shape of a pixel
    if ((flags & hasTable) == 0)
        return {};
    std::array<std::uint32_t, 256> colours{};
    for (unsigned number = 0; number < 2U << (flags & 7U); ++number) {
        const unsigned red = bytes.byte();
        const unsigned green = bytes.byte();
        colours[number] = opaque | red << 16U | green << 8U | bytes.byte();
    }
    const bool one = bytes.byte() == separator && bytes.word() == 0 && bytes.word() == 0;
    if (!one || bytes.word() != width || bytes.word() != height || bytes.byte() != 0)
        return {};
    const auto numbers = unpacked(bytes, std::size_t{width} * height);
    if (!numbers)
        return {};
    std::vector<std::uint32_t> pixels(numbers->size());
    std::ranges::transform(*numbers, pixels.begin(),
                           [&colours](std::uint8_t number) { return colours[number]; });
    return {static_cast<int>(width), static_cast<int>(height), std::move(pixels)};
}

} // namespace forms
