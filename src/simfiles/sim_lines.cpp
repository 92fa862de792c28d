#include "simfiles/sim_lines.h"

#include "text/text.h"

#include <bit>
#include <cstddef>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace zandor {

namespace {

constexpr std::size_t Stride = 16; // characters looked at together

// Turns the tabs of the next `count` (at most Stride) characters into blanks and tells by a bit each which of
// them end a line or are a bracket or a quote.
unsigned markSpecials(char* at, std::size_t count) {
    unsigned mask = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const char c = at[i];
        if (c == '\t')
            at[i] = ' ';
        else if (c == '\n' || c == '\r' || c == '(' || c == ')' || c == '"')
            mask |= 1u << i;
    }
    return mask;
}

#ifdef __SSE2__
unsigned markStride(char* at) {
    const auto place = reinterpret_cast<__m128i*>(at);
    const __m128i text = _mm_loadu_si128(place);
    const auto is = [&text](char c) { return _mm_cmpeq_epi8(text, _mm_set1_epi8(c)); };
    const __m128i tabs = is('\t');
    // A blank differs from a tab in the bits of 0x29.
    _mm_storeu_si128(place, _mm_xor_si128(text, _mm_and_si128(tabs, _mm_set1_epi8('\t' ^ ' '))));
    // The two brackets differ in the lowest bit alone.
    const __m128i brackets = _mm_cmpeq_epi8(_mm_and_si128(text, _mm_set1_epi8('\xFE')), _mm_set1_epi8('('));
    const __m128i ends = _mm_or_si128(is('\n'), is('\r'));
    return static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(_mm_or_si128(brackets, ends), is('"'))));
}
#else
unsigned markStride(char* at) {
    return markSpecials(at, Stride);
}
#endif

// Records one line while the cutter walks over it.
struct LineScan {
    const char* begin = nullptr;
    const char* open = nullptr;
    const char* close = nullptr;
    bool severalOpen = false, severalClose = false, quote = false;

    void take(const char* at) {
        if (*at == '(') {
            severalOpen = open != nullptr;
            open = open ? open : at;
        } else if (*at == ')') {
            severalClose = close != nullptr;
            close = close ? close : at;
        } else {
            quote = true;
        }
    }

    SimLine finish(const char* end) const {
        const char* first = begin;
        while (first != end && *first == ' ')
            ++first;
        while (end != first && end[-1] == ' ')
            --end;
        SimLine line;
        line.text = {first, static_cast<std::size_t>(end - first)};
        line.firstOpen = open ? static_cast<int>(open - first) : -1;
        line.firstClose = close ? static_cast<int>(close - first) : -1;
        line.severalOpen = severalOpen;
        line.severalClose = severalClose;
        line.hasQuote = quote;
        return line;
    }
};

} // namespace

std::string_view cutLines(std::string& text, std::string_view keepOnly, std::vector<SimLine>& lines) {
    lines.clear();
    lines.emplace_back();
    char* const end = text.data() + text.size();
    LineScan scan;
    scan.begin = text.data();
    const auto finishLine = [&](const char* lineEnd) {
        lines.push_back(scan.finish(lineEnd));
        if (!keepOnly.empty() && lines.size() > 2 && !containsIgnoringCase(lines.back().text, keepOnly))
            lines.back() = SimLine();
    };
    const char* skipped = nullptr; // the LF of a CR LF
    for (char* stride = text.data(); stride < end; stride += Stride) {
        const auto left = static_cast<std::size_t>(end - stride);
        unsigned specials = left >= Stride ? markStride(stride) : markSpecials(stride, left);
        for (; specials != 0; specials &= specials - 1) {
            char* const at = stride + std::countr_zero(specials);
            if (*at != '\r' && *at != '\n') {
                scan.take(at);
            } else if (at != skipped) {
                finishLine(at);
                const bool two = *at == '\r' && at + 1 != end && at[1] == '\n';
                skipped = two ? at + 1 : nullptr;
                scan = LineScan();
                scan.begin = at + (two ? 2 : 1);
            }
        }
    }
    if (scan.begin != end)
        finishLine(end);
    if (lines.size() < 2)
        return {};
    const std::string_view signature = lines[1].text;
    lines[1] = SimLine();
    return signature;
}

} // namespace zandor
