#include "text/lines.h"
#include "text/text.h"

#include <gtest/gtest.h>

namespace zandor {
namespace {

TEST(Numbers, TheBeginningOfATextIsRead) {
    const struct {
        std::string_view text;
        double value;
    } cases[] = {
        {"18.5m", 18.5}, {"  -3.25 4", -3.25},
        {"+7", 7},       {"\t80t", 80},
        {".5", 0.5},     {"5.", 5},
        {"5.e1", 50},    {"1e3", 1000},
        {"1e", 1},       {"1e+", 1},
        {"2E-1x", 0.2},  {"1.2.3", 1.2},
        {"1,5", 1},      {"", 0},
        {"   ", 0},      {".", 0},
        {"-", 0},        {"--1", 0},
        {"e5", 0},       {"m3", 0},
        {"inf", 0},      {"nan", 0},
        {"0x1F", 0},     {"1e999", 0},
        {"1e-999", 0},   {"- 5", 0},
        {"007", 7},      {"12\xC2\xA0t", 12},
        {"-0.0", 0},     {"1 000", 1},
    };
    for (const auto& c : cases)
        EXPECT_DOUBLE_EQ(numericValue(c.text), c.value) << '"' << c.text << '"';
}

TEST(Numbers, SixteenBitsAreRoundedHalfToEvenAndNeverWrap) {
    const struct {
        std::string_view text;
        int value;
    } cases[] = {
        {"0.5", 0},   {"1.5", 2},         {"2.5", 2},    {"-1.5", -2},       {"32767.4", 32767},
        {"32768", 0}, {"-32768", -32768}, {"-32769", 0}, {"99999999999", 0}, {"3 véhicules", 3},
    };
    for (const auto& c : cases)
        EXPECT_EQ(numericInt16(c.text), c.value) << c.text;
}

TEST(Numbers, DurabilityHasFiveDecimals) {
    const struct {
        double value;
        std::string_view text;
    } cases[] = {{1, "1.00000"},          {0, "0.00000"},         {0.05, "0.05000"}, {0.123456, "0.12346"},
                 {-0.0000001, "0.00000"}, {1234.5, "1234.50000"}, {-2.5, "-2.50000"}};
    for (const auto& c : cases)
        EXPECT_EQ(formatDurability(c.value), c.text);
}

TEST(Quotes, EachEndIsStrippedForItself) {
    const struct {
        std::string_view text, stripped;
        bool balanced;
    } cases[] = {
        {R"("a b")", "a b", true},  {R"(  "a" )", "a", true},  {R"("a)", "a", false},
        {R"(a")", "a", false},      {"a", "a", true},          {"", "", true},
        {R"(")", "", true},         {R"("")", "", true},       {R"(""a"")", R"("a")", true},
        {R"(a"b)", R"(a"b)", true}, {R"(" a ")", " a ", true},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(StripQuotes(c.text), c.stripped) << c.text;
        EXPECT_EQ(QuotesBalanced(c.text), c.balanced) << c.text;
    }
}

TEST(Quotes, CleanValueTakesTabsOneBracketAndBalancedQuotesAway) {
    const struct {
        std::string_view text, cleaned;
    } cases[] = {
        {"\t\t a \t ", "a"},
        {" \t( 30t )\t", "30t"},
        {"( \"a b\" )", "a b"},
        {"((a))", "(a)"},
        {"(\"a\"", "a"},
        {"\"a", "\"a"},
        {"a\"", "a\""},
        {"", ""},
        {"()", ""},
        {"(", ""},
        {"a\tb", "a\tb"},
        {"\t \t", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(CleanValue(c.text), c.cleaned) << '"' << c.text << '"';
}

TEST(Lines, NormalizeLineLeavesOneBlankBeforeTheBracket) {
    const struct {
        std::string_view line, normal;
    } cases[] = {
        {"Type      (  Carriage )", "Type (  Carriage )"},
        {"\tType\t\t(\tCarriage )\t", "Type ( Carriage )"},
        {"Type ( Carriage )", "Type ( Carriage )"},
        {"Type( Carriage )", "Type( Carriage )"},
        {"Type  Carriage (x)", "Type  Carriage (x)"}, // a word between: nothing to do
        {"a(b   (c", "a(b   (c"},                     // the first bracket stands before the blanks
        {"A  ( x    y   z )", "A ( x  y  z )"},       // every stretch as long as the first
        {"A   ( x    y  z )", "A ( x  y  z )"},
        {"A  (", "A ("},
        {"  (  )", "(  )"},
        {"", ""},
        {" \t ", ""},
        {"word", "word"},
    };
    for (const auto& c : cases) {
        std::string line(c.line);
        NormalizeLine(line);
        EXPECT_EQ(line, c.normal) << '"' << c.line << '"';
    }
}

TEST(Lines, EveryKindOfLineEndCounts) {
    const auto linesOf = [](std::string_view text) {
        std::vector<std::string> lines;
        forEachLine(text, [&](std::string_view line) { lines.emplace_back(line); });
        return lines;
    };
    using Lines = std::vector<std::string>;
    EXPECT_EQ(linesOf("a\r\nb\nc\rd"), (Lines{"a", "b", "c", "d"}));
    EXPECT_EQ(linesOf("a\r\n"), (Lines{"a"}));
    EXPECT_EQ(linesOf("a\r\n\r\nb"), (Lines{"a", "", "b"}));
    EXPECT_EQ(linesOf("a\n\rb\r"), (Lines{"a", "", "b"}));
    EXPECT_EQ(linesOf("\r\r\n"), (Lines{"", ""}));
    EXPECT_EQ(linesOf(""), Lines{});
}

TEST(Lines, ACursorCountsTheLinesThatItPasses) {
    for (const std::string_view text : {"a\r\nb\nc\rd", "a\r\n\r\nb", "a\n\rb\r", "\r\r\n", "abc"})
        for (std::size_t first = 0; first < text.size(); ++first) {
            std::vector<std::string> lines;
            forEachLine(text, [&](std::string_view line) { lines.emplace_back(line); });
            LineCursor cursor(text);
            const bool inPair = first > 0 && text.substr(first - 1).starts_with("\r\n");
            for (std::size_t at = first; !inPair && at < text.size();) {
                const LineCursor::Line line = cursor.lineOf(at);
                EXPECT_EQ(line.text, lines.at(static_cast<std::size_t>(line.number) - 1)) << text << first;
                at = line.next;
            }
        }
}

TEST(Tokens, TheLastOneIsTheLength) {
    EXPECT_EQ(lastToken("3m 4m 18.5m"), "18.5m");
    EXPECT_EQ(lastToken(" 18.5m  "), "18.5m");
    EXPECT_EQ(lastToken(""), "");
}

TEST(Characters, AreNeverCutInTwo) {
    EXPECT_EQ(firstCharacters("abc", 2), "ab");
    EXPECT_EQ(firstCharacters("éèà", 2), "éè");
    EXPECT_EQ(firstCharacters("a€😀b", 3), "a€😀");
    EXPECT_EQ(firstCharacters("éè", 9), "éè");
    EXPECT_EQ(firstCharacters("é", 0), "");
}

} // namespace
} // namespace zandor
