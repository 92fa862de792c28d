#include "platform/letter_case.h"

#include <gtest/gtest.h>

namespace zandor {
namespace {

TEST(LetterCase, LettersOfEveryScriptChangeCaseAndAllElseStays) {
    struct Case {
        const char* upper;
        const char* lower;
    };
    const Case cases[] = {
        {"ABC-[Z]_09", "abc-[z]_09"},
        {"VOITURE ÉTÉ À Ÿ×", "voiture été à ÿ×"},
        {"ŁÓDŹ ŞĦŽ", "łódź şħž"},
        {"ƁǞȺ", "ɓǟⱥ"},
        {"ΆΈΏ ΣΪ", "άέώ σϊ"},
        {"ЁЖЯ ҐӁӐ", "ёжя ґӂӑ"},
        {"ḀẤỸ", "ḁấỹ"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(lowerCase(c.upper), c.lower);
        EXPECT_EQ(upperCase(c.lower), c.upper);
        EXPECT_TRUE(equalIgnoringCase(c.upper, c.lower)) << c.upper;
        EXPECT_TRUE(beginsWithIgnoringCase(std::string(c.upper) + "x", c.lower)) << c.upper;
        EXPECT_TRUE(endsWithIgnoringCase(std::string("x") + c.lower, c.upper)) << c.upper;
        EXPECT_TRUE(containsIgnoringCase(std::string("é") + c.lower + "x", c.upper)) << c.upper;
    }
}

TEST(LetterCase, BytesThatAreNotUtf8PassThrough) {
    for (const std::string text : {"a\xe9z", "\xc3", "\xed\xa0\x80", "\xf4\x90\x80\x80", "\xc0\x80"})
        EXPECT_EQ(lowerCase(text), text);
    EXPECT_FALSE(equalIgnoringCase("\xe9", "é"));
    EXPECT_TRUE(equalIgnoringCase("A\xe9", "a\xe9"));
}

TEST(LetterCase, SimilarTextsAreNotEqual) {
    EXPECT_FALSE(equalIgnoringCase("train", "trains"));
    EXPECT_FALSE(equalIgnoringCase("@", "`"));
    EXPECT_FALSE(equalIgnoringCase("é", "e"));
    EXPECT_FALSE(beginsWithIgnoringCase("tra", "train"));
    EXPECT_FALSE(endsWithIgnoringCase(".eng", "x.eng"));
    EXPECT_FALSE(containsIgnoringCase("abab", "aba "));
    EXPECT_TRUE(containsIgnoringCase("abc", ""));
}

TEST(LetterCase, ListingOrderIsByCharacterThenByBytes) {
    const char* ordered[] = {"", "1", "A", "a", "AB", "aC", "b", "BA", "_", "É", "é", "ж"};
    for (std::size_t i = 0; i < std::size(ordered); ++i)
        for (std::size_t j = 0; j < std::size(ordered); ++j)
            EXPECT_EQ(lessIgnoringCase(ordered[i], ordered[j]), i < j) << ordered[i] << " " << ordered[j];
}

} // namespace
} // namespace zandor
