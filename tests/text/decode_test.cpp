#include "text/decode.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zandor {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

std::string units(const std::vector<unsigned>& values) {
    std::string bytes;
    for (const unsigned unit : values) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

std::string decoded(std::string_view bytes) {
    std::string text;
    decodeSimulatorText(bytes, text);
    return text;
}

std::string decodedUtf16(const std::string& body) {
    return decoded("\xFF\xFE" + body);
}

std::string decodedSettings(std::string_view bytes) {
    std::string text;
    decodeSettingsText(bytes, text);
    return text;
}

TEST(Decode, Utf16TextsBecomeUtf8) {
    const struct {
        std::vector<unsigned> units;
        std::string_view text;
    } cases[] = {
        {{}, ""},
        {{'a', 'b'}, "ab"},
        {{'a', 0, 'b'}, "a\0b"sv},
        {{0x7F, 0x80, 0x7FF, 0x800, 0xFFFF}, "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF"},
        {{0xE9, 0x20AC}, "é€"},
        {{0xD83D, 0xDE00}, "😀"},
        {{0xDBFF, 0xDFFF}, "\xF4\x8F\xBF\xBF"},
        {{0xD83D}, "\xED\xA0\xBD"},                                 // half a pair at the end
        {{0xDE00, 0xD83D}, "\xED\xB8\x80\xED\xA0\xBD"},             // the wrong way round
        {{0xD83D, 0xD83D, 0xDE00}, "\xED\xA0\xBD\xF0\x9F\x98\x80"}, // a half before a pair
        {{0xFEFF, 'a'},
         "\xEF\xBB\xBF"
         "a"}, // a second mark is text
    };
    for (const auto& c : cases) {
        EXPECT_EQ(decodedUtf16(units(c.units)), c.text);
        EXPECT_EQ(encodeUtf16(c.text), units(c.units)) << c.text;
    }
}

TEST(Decode, EveryCodeUnitComesBack) {
    std::string alone, all;
    for (unsigned unit = 0; unit < 0x10000; ++unit) {
        const std::string one = units({unit});
        alone = encodeUtf16(decodedUtf16(one));
        ASSERT_EQ(alone, one) << unit;
        all += one;
    }
    EXPECT_TRUE(encodeUtf16(decodedUtf16(all)) == all);
}

// The fast paths take 16 characters at a time: a character beyond ASCII is tried at each place around their
// borders.
TEST(Decode, ACharacterAtAnyPlaceOfARunIsFound) {
    for (std::size_t length = 0; length < 70; ++length)
        for (std::size_t place = 0; place <= length; ++place) {
            std::string expected(length, 'x'), narrow(length, 'x');
            std::vector<unsigned> wide(length, 'x');
            expected.insert(place, "é€");
            narrow.insert(place, "\xE9\x80");
            wide.insert(wide.begin() + static_cast<std::ptrdiff_t>(place), {0xE9, 0x20AC});
            ASSERT_EQ(decodedUtf16(units(wide)), expected) << length << ' ' << place;
            ASSERT_EQ(decoded(narrow), expected) << length << ' ' << place;
            ASSERT_EQ(decodedSettings("\xEF\xBB\xBF" + expected), expected) << length << ' ' << place;
            ASSERT_EQ(encodeUtf16(expected), units(wide)) << length << ' ' << place;
        }
}

TEST(Decode, AnOddLastByteIsDropped) {
    EXPECT_EQ(decoded("\xFF\xFE"
                      "a\0b"sv),
              "a");
    EXPECT_EQ(decoded("\xFF\xFE"
                      "a"sv),
              "");
    EXPECT_EQ(decoded("\xFF\xFE"), "");
    EXPECT_EQ(decoded("\xFF"), "ÿ");
}

TEST(Decode, EveryByteOfWindows1252ComesBack) {
    const std::string expected = "€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ";
    std::string high;
    for (int byte = 0x80; byte < 0xA0; ++byte)
        high += static_cast<char>(byte);
    EXPECT_EQ(decoded(high), expected);

    std::string all;
    for (int byte = 0; byte < 0x100; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(encodeWindows1252(decoded(all)), all);
}

TEST(Decode, Windows1252LacksMostCharacters) {
    EXPECT_EQ(encodeWindows1252("aŁb😀c\u0080d\xED\xA0\xBD"), "a?b?c?d?");
}

TEST(Decode, TheMarkTellsTheEncodingOfASettingsFile) {
    const struct {
        std::string bytes;
        std::string_view text;
        TextEncoding encoding;
    } cases[] = {
        {"\xFF\xFE\xE9\0"s, "é", TextEncoding::Utf16}, {"\xEF\xBB\xBFé€", "é€", TextEncoding::Utf8},
        {"\xE9\x80", "é€", TextEncoding::Windows1252}, {"\xEF\xBB", "ï»", TextEncoding::Windows1252},
        {"", "", TextEncoding::Windows1252},
    };
    for (const auto& c : cases) {
        std::string text = "what was there before";
        EXPECT_EQ(decodeSettingsText(c.bytes, text), c.encoding);
        EXPECT_EQ(text, c.text);
        EXPECT_EQ(encodeText(c.text, c.encoding), c.bytes);
    }
}

TEST(Decode, WhatIsNotUtf8IsReadAsWindows1252) {
    const struct {
        std::string bytes;
        std::string_view text;
    } cases[] = {
        {"caf\xE9 noir", "café noir"}, // the rest follows as it stands
        {"\xE9", "é"},                 // cut at the end
        {"\xE2\x82", "â‚"},
        {"\xC0\x80", "À€"}, // longer than it need be
        {"\xE0\x80\x80", "à€€"},
        {"\xF5\x80\x80\x80", "õ€€€"}, // beyond the last character
        {"\xF4\x90\x80\x80", "ô\u0090€€"},
        {"\x80", "€"},                    // a continuation without a beginning
        {"\xED\xA0\xBD", "\xED\xA0\xBD"}, // half a pair is kept
    };
    for (const auto& c : cases)
        EXPECT_EQ(decodedSettings("\xEF\xBB\xBF" + c.bytes), c.text);
}

} // namespace
} // namespace zandor
