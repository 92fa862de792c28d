#include "platform/letter_case.h"

#include "platform/utf8.h"

#include <algorithm>
#include <array>

namespace zandor {

namespace {

// Capitals from `first` to `last`, every `step`-th of them; the small letter stands `offset` behind its
// capital.
struct CaseRow {
    char32_t first;
    char32_t last;
    unsigned step;
    int offset;
};

constexpr CaseRow one(char32_t capital, int offset) {
    return {capital, capital, 1, offset};
}
constexpr CaseRow run(char32_t first, char32_t last, int offset) {
    return {first, last, 1, offset};
}
constexpr CaseRow pairs(char32_t first, char32_t last) {
    return {first, last, 2, 1};
}

// In order of `first`. The dotted and dotless i of Turkish stay as they are, as in the names of files.
constexpr CaseRow kCaseRows[] = {
    run(0xC0, 0xD6, 32),    run(0xD8, 0xDE, 32),     pairs(0x100, 0x12E),   pairs(0x132, 0x136),
    pairs(0x139, 0x147),    pairs(0x14A, 0x176),     one(0x178, -121),      pairs(0x179, 0x17D),
    one(0x181, 210),        pairs(0x182, 0x184),     one(0x186, 206),       one(0x187, 1),
    run(0x189, 0x18A, 205), one(0x18B, 1),           one(0x18E, 79),        one(0x18F, 202),
    one(0x190, 203),        one(0x191, 1),           one(0x193, 205),       one(0x194, 207),
    one(0x196, 211),        one(0x197, 209),         one(0x198, 1),         one(0x19C, 211),
    one(0x19D, 213),        one(0x19F, 214),         pairs(0x1A0, 0x1A4),   one(0x1A6, 218),
    one(0x1A7, 1),          one(0x1A9, 218),         one(0x1AC, 1),         one(0x1AE, 218),
    one(0x1AF, 1),          run(0x1B1, 0x1B2, 217),  pairs(0x1B3, 0x1B5),   one(0x1B7, 219),
    one(0x1B8, 1),          one(0x1BC, 1),           one(0x1C4, 2),         one(0x1C7, 2),
    one(0x1CA, 2),          pairs(0x1CD, 0x1DB),     pairs(0x1DE, 0x1EE),   one(0x1F1, 2),
    one(0x1F4, 1),          one(0x1F6, -97),         one(0x1F7, -56),       pairs(0x1F8, 0x21E),
    one(0x220, -130),       pairs(0x222, 0x232),     one(0x23A, 10795),     one(0x23B, 1),
    one(0x23D, -163),       one(0x23E, 10792),       one(0x241, 1),         one(0x243, -195),
    one(0x244, 69),         one(0x245, 71),          pairs(0x246, 0x24E),   pairs(0x370, 0x372),
    one(0x376, 1),          one(0x37F, 116),         one(0x386, 38),        run(0x388, 0x38A, 37),
    one(0x38C, 64),         run(0x38E, 0x38F, 63),   run(0x391, 0x3A1, 32), run(0x3A3, 0x3AB, 32),
    one(0x3CF, 8),          pairs(0x3D8, 0x3EE),     one(0x3F7, 1),         one(0x3F9, -7),
    one(0x3FA, 1),          run(0x3FD, 0x3FF, -130), run(0x400, 0x40F, 80), run(0x410, 0x42F, 32),
    pairs(0x460, 0x480),    pairs(0x48A, 0x4BE),     one(0x4C0, 15),        pairs(0x4C1, 0x4CD),
    pairs(0x4D0, 0x52E),    pairs(0x1E00, 0x1E94),   pairs(0x1EA0, 0x1EFE),
};

constexpr bool isCapitalOf(const CaseRow& row, char32_t capital) {
    return capital >= row.first && capital <= row.last && (capital - row.first) % row.step == 0;
}

constexpr auto kAsciiLower = [] {
    std::array<unsigned char, 128> table{};
    for (unsigned c = 0; c < table.size(); ++c)
        table[c] = static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c + 32 : c);
    return table;
}();

bool isAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}
bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return isAscii(c); });
}

unsigned char asciiLower(char c) {
    return kAsciiLower[static_cast<unsigned char>(c)];
}

char32_t lowerOf(char32_t c) {
    const CaseRow* row =
        std::upper_bound(std::begin(kCaseRows), std::end(kCaseRows), c,
                         [](char32_t wanted, const CaseRow& candidate) { return wanted < candidate.first; });
    return row != std::begin(kCaseRows) && isCapitalOf(row[-1], c) ? c + row[-1].offset : c;
}

char32_t upperOf(char32_t c) {
    for (const CaseRow& row : kCaseRows)
        if (isCapitalOf(row, c - row.offset))
            return c - row.offset;
    return c;
}

char32_t nextLower(std::string_view text, std::size_t& at) {
    return isAscii(text[at]) ? asciiLower(text[at++]) : lowerOf(nextCharacter(text, at));
}

// Capitals order before "_", as in the simulator's folder listings.
char32_t orderOf(char32_t lower) {
    return lower >= 'a' && lower <= 'z' ? lower - 32 : lower;
}

// Walks both texts as long as their characters are the same but for case.
struct CommonBeginning {
    CommonBeginning(std::string_view a, std::string_view b) {
        while (inA < a.size() && inB < b.size()) {
            std::size_t behindA = inA, behindB = inB;
            lowerA = nextLower(a, behindA);
            lowerB = nextLower(b, behindB);
            if (lowerA != lowerB)
                return;
            inA = behindA;
            inB = behindB;
        }
        endsA = inA == a.size();
        endsB = inB == b.size();
    }
    std::size_t inA = 0, inB = 0; // the first characters that differ
    char32_t lowerA = 0, lowerB = 0;
    bool endsA = false, endsB = false;
};

bool containsAscii(std::string_view text, std::string_view part) {
    return std::search(text.begin(), text.end(), part.begin(), part.end(), [](char a, char b) {
               return isAscii(a) && asciiLower(a) == asciiLower(b);
           }) != text.end();
}

} // namespace

std::string lowerCase(std::string_view text) {
    std::string lower(text);
    std::size_t at = 0;
    for (; at < lower.size() && isAscii(lower[at]); ++at) // most texts are ASCII to their end
        lower[at] = static_cast<char>(asciiLower(lower[at]));
    lower.resize(at);
    while (at < text.size()) {
        if (isAscii(text[at]))
            lower += static_cast<char>(asciiLower(text[at++]));
        else
            appendCharacter(lower, lowerOf(nextCharacter(text, at)));
    }
    return lower;
}

std::string upperCase(std::string_view text) {
    std::string upper;
    upper.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        if (isAscii(text[at]))
            upper += static_cast<char>(orderOf(static_cast<unsigned char>(text[at++])));
        else
            appendCharacter(upper, upperOf(nextCharacter(text, at)));
    }
    return upper;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    const CommonBeginning common(a, b);
    return common.endsA && common.endsB;
}

bool lessIgnoringCase(std::string_view a, std::string_view b) {
    const CommonBeginning common(a, b);
    if (common.endsA && common.endsB)
        return a < b;
    if (common.endsA || common.endsB)
        return common.endsA;
    return orderOf(common.lowerA) < orderOf(common.lowerB);
}

bool beginsWithIgnoringCase(std::string_view text, std::string_view beginning) {
    return CommonBeginning(text, beginning).endsB;
}

bool endsWithIgnoringCase(std::string_view text, std::string_view ending) {
    if (!isAscii(ending))
        return lowerCase(text).ends_with(lowerCase(ending));
    return text.size() >= ending.size() &&
           equalIgnoringCase(text.substr(text.size() - ending.size()), ending);
}

bool containsIgnoringCase(std::string_view text, std::string_view part) {
    if (part.empty() || isAscii(part))
        return part.empty() || containsAscii(text, part);
    return lowerCase(text).find(lowerCase(part)) != std::string::npos;
}

} // namespace zandor
