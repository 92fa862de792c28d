#include "text/decode.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace zandor {

namespace {

constexpr std::string_view Utf16Mark = "\xFF\xFE";
constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

// Windows-1252 from 0x80 to 0x9F; all other bytes are their own code. Five bytes have no character and stay
// too.
constexpr std::array<char16_t, 32> Windows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char32_t fromWindows1252(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? Windows1252[byte - 0x80] : byte;
}

// The byte of a character, or -1 when Windows-1252 lacks it.
int toWindows1252(char32_t code) {
    if (code < 0x80 || (code >= 0xA0 && code < 0x100))
        return static_cast<int>(code);
    for (std::size_t i = 0; i < Windows1252.size(); ++i)
        if (Windows1252[i] == code)
            return static_cast<int>(0x80 + i);
    return -1;
}

bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}
bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

char32_t unitAt(const unsigned char* bytes) {
    return static_cast<char32_t>(bytes[0]) | static_cast<char32_t>(bytes[1]) << 8;
}

std::size_t utf8Length(char32_t code) {
    return code < 0x80 ? 1 : code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
}

// Writes a character beyond ASCII; returns the place behind it.
char* putUtf8(char32_t code, char* to) {
    if (code < 0x800) {
        *to++ = static_cast<char>(0xC0 | code >> 6);
    } else {
        if (code < 0x10000) {
            *to++ = static_cast<char>(0xE0 | code >> 12);
        } else {
            *to++ = static_cast<char>(0xF0 | code >> 18);
            *to++ = static_cast<char>(0x80 | (code >> 12 & 0x3F));
        }
        *to++ = static_cast<char>(0x80 | (code >> 6 & 0x3F));
    }
    *to++ = static_cast<char>(0x80 | (code & 0x3F));
    return to;
}

// A text that is written over from its start. Room for one byte for each piece of input left is always there,
// so that runs of ASCII need no test; a longer character grows the room to the worst case of all the rest,
// once.
class Output {
  public:
    Output(std::string& text, std::size_t pieces) : text_(text) {
        if (text_.capacity() < pieces)
            text_.clear(); // nothing to carry over to the new storage
        if (text_.size() < pieces)
            text_.resize(pieces);
    }
    char* at() { return text_.data() + used_; }
    void advance(std::size_t bytes) { used_ += bytes; }
    void put(char32_t code, std::size_t piecesLeft) {
        if (used_ + utf8Length(code) + piecesLeft > text_.size())
            text_.resize(used_ + 4 + 3 * piecesLeft);
        used_ = static_cast<std::size_t>(putUtf8(code, at()) - text_.data());
    }
    void finish() { text_.resize(used_); }

  private:
    std::string& text_;
    std::size_t used_ = 0;
};

// ---- runs of ASCII. Each returns how many pieces of the input were taken, and may write to the room of all
// `count`.

std::size_t copyAsciiUnitsOneByOne(const unsigned char* from, std::size_t count, char* to) {
    std::size_t done = 0;
    for (; done < count && unitAt(from + 2 * done) < 0x80; ++done)
        to[done] = static_cast<char>(from[2 * done]);
    return done;
}

std::size_t copyAsciiOneByOne(const unsigned char* from, std::size_t count, char* to) {
    std::size_t done = 0;
    for (; done < count && from[done] < 0x80; ++done)
        to[done] = static_cast<char>(from[done]);
    return done;
}

#ifdef __SSE2__

std::size_t copyAsciiUnits(const unsigned char* from, std::size_t count, char* to) {
    const __m128i beyondAscii = _mm_set1_epi16(static_cast<short>(0xFF80));
    const __m128i zero = _mm_setzero_si128();
    std::size_t done = 0;
    for (; done + 16 <= count; done += 16) {
        const auto* source = reinterpret_cast<const __m128i*>(from + 2 * done);
        const __m128i first = _mm_loadu_si128(source), second = _mm_loadu_si128(source + 1);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to + done), _mm_packus_epi16(first, second));
        const __m128i ascii = _mm_packs_epi16(_mm_cmpeq_epi16(_mm_and_si128(first, beyondAscii), zero),
                                              _mm_cmpeq_epi16(_mm_and_si128(second, beyondAscii), zero));
        const auto mask = static_cast<unsigned>(_mm_movemask_epi8(ascii));
        if (mask != 0xFFFF)
            return done + static_cast<std::size_t>(std::countr_one(mask));
    }
    return done + copyAsciiUnitsOneByOne(from + 2 * done, count - done, to + done);
}

std::size_t copyAscii(const unsigned char* from, std::size_t count, char* to) {
    std::size_t done = 0;
    for (; done + 16 <= count; done += 16) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from + done));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to + done), block);
        const auto mask = static_cast<unsigned>(_mm_movemask_epi8(block));
        if (mask != 0)
            return done + static_cast<std::size_t>(std::countr_zero(mask));
    }
    return done + copyAsciiOneByOne(from + done, count - done, to + done);
}

std::size_t widenAscii(const unsigned char* from, std::size_t count, char* to) {
    const __m128i zero = _mm_setzero_si128();
    std::size_t done = 0;
    for (; done + 16 <= count; done += 16) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from + done));
        if (_mm_movemask_epi8(block) != 0)
            break;
        auto* target = reinterpret_cast<__m128i*>(to + 2 * done);
        _mm_storeu_si128(target, _mm_unpacklo_epi8(block, zero));
        _mm_storeu_si128(target + 1, _mm_unpackhi_epi8(block, zero));
    }
    for (; done < count && from[done] < 0x80; ++done) {
        to[2 * done] = static_cast<char>(from[done]);
        to[2 * done + 1] = 0;
    }
    return done;
}

#else

std::uint64_t eightBytes(const unsigned char* from) {
    std::uint64_t bytes;
    std::memcpy(&bytes, from, sizeof bytes);
    return bytes;
}

std::size_t copyAsciiUnits(const unsigned char* from, std::size_t count, char* to) {
    constexpr std::uint64_t beyondAscii =
        std::endian::native == std::endian::little ? 0xFF80FF80FF80FF80 : 0x80FF80FF80FF80FF;
    std::size_t done = 0;
    for (; done + 4 <= count && (eightBytes(from + 2 * done) & beyondAscii) == 0; done += 4)
        for (std::size_t i = done; i < done + 4; ++i)
            to[i] = static_cast<char>(from[2 * i]);
    return done + copyAsciiUnitsOneByOne(from + 2 * done, count - done, to + done);
}

std::size_t copyAscii(const unsigned char* from, std::size_t count, char* to) {
    std::size_t done = 0;
    for (; done + 8 <= count && (eightBytes(from + done) & 0x8080808080808080) == 0; done += 8)
        std::memcpy(to + done, from + done, 8);
    return done + copyAsciiOneByOne(from + done, count - done, to + done);
}

std::size_t widenAscii(const unsigned char* from, std::size_t count, char* to) {
    std::size_t done = 0;
    for (; done < count && from[done] < 0x80; ++done) {
        to[2 * done] = static_cast<char>(from[done]);
        to[2 * done + 1] = 0;
    }
    return done;
}

#endif

// ---- whole texts

void decodeUtf16(std::string_view bytes, std::string& text) {
    const auto* from = reinterpret_cast<const unsigned char*>(bytes.data());
    const std::size_t count = bytes.size() / 2;
    Output out(text, count);
    for (std::size_t i = 0; i < count;) {
        const std::size_t ascii = copyAsciiUnits(from + 2 * i, count - i, out.at());
        out.advance(ascii);
        i += ascii;
        for (char32_t unit; i < count && (unit = unitAt(from + 2 * i)) >= 0x80;) {
            ++i;
            if (isHighSurrogate(unit) && i < count && isLowSurrogate(unitAt(from + 2 * i)))
                unit = 0x10000 + ((unit - 0xD800) << 10) + (unitAt(from + 2 * i++) - 0xDC00);
            out.put(unit, count - i);
        }
    }
    out.finish();
}

void decodeWindows1252(std::string_view bytes, std::string& text) {
    const auto* from = reinterpret_cast<const unsigned char*>(bytes.data());
    const std::size_t count = bytes.size();
    Output out(text, count);
    for (std::size_t i = 0; i < count;) {
        const std::size_t ascii = copyAscii(from + i, count - i, out.at());
        out.advance(ascii);
        for (i += ascii; i < count && from[i] >= 0x80; ++i)
            out.put(fromWindows1252(from[i]), count - i - 1);
    }
    out.finish();
}

struct Character {
    char32_t code;
    std::size_t length; // bytes
};

// The character that a non-empty UTF-8 text begins with. A byte that begins no proper sequence is taken as
// Windows-1252; the three-byte form of a surrogate is proper here.
Character firstCharacter(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(0);
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    const Character single = {fromWindows1252(lead), 1};
    if (length <= 1 || length > text.size())
        return single;
    char32_t code = lead & (0x7F >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return single;
        code = code << 6 | (byte(i) & 0x3F);
    }
    return utf8Length(code) == length && code < 0x110000 ? Character{code, length} : single;
}

void decodeUtf8(std::string_view bytes, std::string& text) {
    Output out(text, bytes.size());
    while (!bytes.empty()) {
        const auto* from = reinterpret_cast<const unsigned char*>(bytes.data());
        const std::size_t ascii = copyAscii(from, bytes.size(), out.at());
        out.advance(ascii);
        bytes.remove_prefix(ascii);
        while (!bytes.empty() && static_cast<unsigned char>(bytes.front()) >= 0x80) {
            const Character character = firstCharacter(bytes);
            bytes.remove_prefix(character.length);
            out.put(character.code, bytes.size());
        }
    }
    out.finish();
}

char* putUnit(char32_t unit, char* to) {
    *to++ = static_cast<char>(unit & 0xFF);
    *to++ = static_cast<char>(unit >> 8);
    return to;
}

char* putUtf16(char32_t code, char* to) {
    if (code < 0x10000)
        return putUnit(code, to);
    return putUnit(0xDC00 + (code & 0x3FF), putUnit(0xD7C0 + (code >> 10), to));
}

} // namespace

bool hasUtf16Mark(std::string_view bytes) {
    return bytes.starts_with(Utf16Mark);
}
bool hasUtf8Mark(std::string_view bytes) {
    return bytes.starts_with(Utf8Mark);
}

void decodeSimulatorText(std::string_view bytes, std::string& text) {
    if (hasUtf16Mark(bytes))
        decodeUtf16(bytes.substr(Utf16Mark.size()), text);
    else
        decodeWindows1252(bytes, text);
}

TextEncoding decodeSettingsText(std::string_view bytes, std::string& text) {
    if (hasUtf8Mark(bytes)) {
        decodeUtf8(bytes.substr(Utf8Mark.size()), text);
        return TextEncoding::Utf8;
    }
    decodeSimulatorText(bytes, text);
    return hasUtf16Mark(bytes) ? TextEncoding::Utf16 : TextEncoding::Windows1252;
}

std::string encodeUtf16(std::string_view text) {
    std::string bytes(2 * text.size(), '\0'); // no character has more units than bytes
    char* to = bytes.data();
    while (!text.empty()) {
        const std::size_t ascii =
            widenAscii(reinterpret_cast<const unsigned char*>(text.data()), text.size(), to);
        to += 2 * ascii;
        text.remove_prefix(ascii);
        while (!text.empty() && static_cast<unsigned char>(text.front()) >= 0x80) {
            const Character character = firstCharacter(text);
            to = putUtf16(character.code, to);
            text.remove_prefix(character.length);
        }
    }
    bytes.resize(static_cast<std::size_t>(to - bytes.data()));
    return bytes;
}

std::string encodeWindows1252(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const Character character = firstCharacter(text);
        const int byte = toWindows1252(character.code);
        bytes += byte < 0 ? '?' : static_cast<char>(byte);
        text.remove_prefix(character.length);
    }
    return bytes;
}

std::string encodeText(std::string_view text, TextEncoding encoding) {
    switch (encoding) {
    case TextEncoding::Utf16:
        return std::string(Utf16Mark) + encodeUtf16(text);
    case TextEncoding::Utf8:
        return std::string(Utf8Mark) + std::string(text);
    case TextEncoding::Windows1252:
        break;
    }
    return encodeWindows1252(text);
}

} // namespace zandor
