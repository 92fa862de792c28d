#include "simfiles/sim_lines.h"

#include "text/text.h"

#include <bit>
#include <cstddef>
#include <cstdint>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace zandor {

namespace {

constexpr std::size_t Stride = 64; // characters looked at together

// The characters of a stride that matter here, a bit each from the lowest.
struct Marks {
    std::uint64_t opens = 0, closes = 0, quotes = 0;
    std::uint64_t returns = 0, feeds = 0; // CR and LF
    std::uint64_t blanks = 0;             // and tabs
};

#ifdef __SSE2__
// Sixteen characters, whose tabs become blanks; their marks go to the bits from `shift` on.
void markSixteen(char* at, unsigned shift, Marks& marks) {
    const auto place = reinterpret_cast<__m128i*>(at);
    const __m128i text = _mm_loadu_si128(place);
    const auto is = [&text](char c) { return _mm_cmpeq_epi8(text, _mm_set1_epi8(c)); };
    const auto bits = [shift](__m128i found) {
        return static_cast<std::uint64_t>(static_cast<unsigned>(_mm_movemask_epi8(found))) << shift;
    };
    const __m128i tabs = is('\t');
    // A blank differs from a tab in the bits of 0x29.
    _mm_storeu_si128(place, _mm_xor_si128(text, _mm_and_si128(tabs, _mm_set1_epi8('\t' ^ ' '))));
    marks.opens |= bits(is('('));
    marks.closes |= bits(is(')'));
    marks.quotes |= bits(is('"'));
    marks.returns |= bits(is('\r'));
    marks.feeds |= bits(is('\n'));
    marks.blanks |= bits(_mm_or_si128(tabs, is(' ')));
}

Marks markStride(char* at) {
    Marks marks;
    for (unsigned shift = 0; shift < Stride; shift += 16)
        markSixteen(at + shift, shift, marks);
    return marks;
}
#else
Marks markStride(char* at) {
    Marks marks;
    for (unsigned i = 0; i < Stride; ++i) {
        if (at[i] == '\t')
            at[i] = ' ';
        const auto bit = [&](char c) { return static_cast<std::uint64_t>(at[i] == c) << i; };
        marks.opens |= bit('(');
        marks.closes |= bit(')');
        marks.quotes |= bit('"');
        marks.returns |= bit('\r');
        marks.feeds |= bit('\n');
        marks.blanks |= bit(' ');
    }
    return marks;
}
#endif

// A line that stands in one stride. `part`: its characters.
SimLine lineWithin(const char* stride, const Marks& marks, std::uint64_t part) {
    SimLine line;
    const std::uint64_t text = part & ~marks.blanks;
    if (text == 0)
        return line;
    const int first = std::countr_zero(text);
    line.text = {stride + first, static_cast<std::size_t>(std::bit_width(text) - first)};
    const std::uint64_t opens = marks.opens & part, closes = marks.closes & part;
    line.firstOpen = opens == 0 ? -1 : std::countr_zero(opens) - first;
    line.firstClose = closes == 0 ? -1 : std::countr_zero(closes) - first;
    line.severalOpen = (opens & (opens - 1)) != 0;
    line.severalClose = (closes & (closes - 1)) != 0;
    line.hasQuote = (marks.quotes & part) != 0;
    return line;
}

// The first character of a kind in a line, and whether there are more.
struct FirstOfLine {
    const char* first = nullptr;
    bool several = false;

    void take(const char* stride, std::uint64_t marks) {
        if (marks == 0)
            return;
        several = several || first || (marks & (marks - 1));
        first = first ? first : stride + std::countr_zero(marks);
    }
};

// Records a line that reaches over the end of a stride.
struct LineScan {
    const char* begin = nullptr;
    FirstOfLine open, close;
    bool quote = false;

    // What a stride has of this line: the marks within `part`.
    void take(const char* stride, const Marks& marks, std::uint64_t part) {
        open.take(stride, marks.opens & part);
        close.take(stride, marks.closes & part);
        quote = quote || (marks.quotes & part);
    }

    SimLine finish(const char* end) const {
        const char* first = begin;
        while (first != end && *first == ' ')
            ++first;
        while (end != first && end[-1] == ' ')
            --end;
        SimLine line;
        line.text = {first, static_cast<std::size_t>(end - first)};
        line.firstOpen = open.first ? static_cast<int>(open.first - first) : -1;
        line.firstClose = close.first ? static_cast<int>(close.first - first) : -1;
        line.severalOpen = open.several;
        line.severalClose = close.several;
        line.hasQuote = quote;
        return line;
    }
};

} // namespace

std::size_t closingOf(std::string_view line, std::size_t open) {
    std::size_t depth = 0;
    return findUnquoted(line, open, [&](std::size_t at) {
        if (line[at] == '(')
            ++depth;
        return line[at] == ')' && --depth == 0;
    });
}

std::string_view cutLines(std::string& text, std::string_view keepOnly, std::vector<SimLine>& lines) {
    lines.clear();
    lines.emplace_back();
    const std::size_t size = text.size();
    text.append(Stride, ' '); // so that the last stride is whole
    char* const end = text.data() + size;
    LineScan scan;
    scan.begin = text.data();
    const auto add = [&](const SimLine& line) {
        lines.push_back(line);
        if (!keepOnly.empty() && lines.size() > 2 && !containsIgnoringCase(line.text, keepOnly))
            lines.back() = SimLine();
    };
    std::uint64_t afterReturn = 0; // 1: the stride before ended in a CR
    for (char* stride = text.data(); stride < end; stride += Stride) {
        const Marks marks = markStride(stride);
        const std::uint64_t secondOfTwo = marks.feeds & (marks.returns << 1 | afterReturn);
        afterReturn = marks.returns >> (Stride - 1);
        scan.begin += secondOfTwo & 1;
        std::uint64_t rest = ~(secondOfTwo & 1); // the stride behind the line ends met so far
        for (std::uint64_t ends = (marks.returns | marks.feeds) & ~secondOfTwo; ends != 0; ends &= ends - 1) {
            const std::uint64_t upToEnd = ends ^ (ends - 1);
            const std::uint64_t part = rest & (upToEnd >> 1);
            const char* const lineEnd = stride + std::countr_zero(ends);
            if (scan.begin >= stride) {
                add(lineWithin(stride, marks, part));
            } else {
                scan.take(stride, marks, part);
                add(scan.finish(lineEnd));
                scan = LineScan();
            }
            const std::uint64_t second = secondOfTwo & (upToEnd + 1);
            rest = ~(upToEnd | second);
            scan.begin = lineEnd + 1 + (second != 0);
        }
        scan.take(stride, marks, rest);
    }
    text.resize(size);
    if (scan.begin != end)
        add(scan.finish(end));
    if (lines.size() < 2)
        return {};
    const std::string_view signature = lines[1].text;
    lines[1] = SimLine();
    return signature;
}

} // namespace zandor
