#include "frame/language.h"

#include "support/fakes.h"

#include <gtest/gtest.h>

namespace zandor {
namespace {

struct Texts : ::testing::Test, TestFrame {
    void put(std::string_view texts) { files.put(state.LanguagePath, "\xEF\xBB\xBF" + std::string(texts)); }
};

constexpr Message Number5{5};

TEST_F(Texts, PlaceholdersAreReplacedInTheirOrder) {
    const struct {
        std::string_view text;
        std::initializer_list<TextParam> params;
        std::string_view result;
    } cases[] = {
        {"|1 and |2", {}, "|1 and |2"},
        {"|1 and |1", {{"|1", "x"}}, "x and x"},
        {"|2|1|2", {{"|1", "a"}, {"|2", "\n"}}, "\na\n"},
        {"|1", {{"|1", "|2"}, {"|2", "x"}}, "x"}, // later pairs see what earlier ones put in
        {"|2", {{"|1", "x"}, {"|2", "|1"}}, "|1"},
        {"<|1>|1", {{"|1", "a|1b"}}, "<a|1b>a|1b"}, // a value that holds its placeholder
        {"|1|1", {{"|1", "|1"}}, "|1|1"},
        {"a |1 b", {{"|1", ""}}, "a  b"},
        {"|1 |2", {{"|1", "x"}, {"|2", {}}}, "x "}, // no value is an empty one
        {"|1", {{"", "x"}}, "|1"},
        {"|1", {{"|9", "x"}}, "|1"},
    };
    for (const auto& c : cases) {
        put("[Français]\r\n5=" + std::string(c.text) + "\r\n");
        EXPECT_EQ(frame.language.GetLangText(Number5, c.params), c.result) << c.text;
    }
}

TEST_F(Texts, WhatIsMissingIsEmpty) {
    put("[Français]\r\n5=cinq\r\n[English]\r\n5=five\r\n");
    EXPECT_EQ(frame.text(Number5), "cinq");
    EXPECT_EQ(frame.text(Message{6}), "");
    state.Language = "English";
    EXPECT_EQ(frame.text(Number5), "five");
    state.Language = "Gone";
    EXPECT_EQ(frame.text(Number5), "");
    state.Language.clear();
    EXPECT_EQ(frame.text(Number5), "");
    state.Language = "English";
    state.LanguagePath.clear();
    EXPECT_EQ(frame.text(Number5), "");
    EXPECT_TRUE(frame.language.ListLanguages().empty());
}

TEST_F(Texts, TheListOfLanguagesEndsAtTheFirstGap) {
    put("[Langues]\r\n0=1$Français\r\n1= 12 $English\r\n2=Deutsch\r\n4=5$Italiano\r\n");
    const auto choices = frame.language.ListLanguages();
    ASSERT_EQ(choices.size(), 3u);
    EXPECT_EQ(choices[0].key, "KEY_0");
    EXPECT_EQ(choices[0].name, "Français");
    EXPECT_EQ(choices[0].image, 1);
    EXPECT_EQ(choices[1].key, "KEY_1");
    EXPECT_EQ(choices[1].name, "English");
    EXPECT_EQ(choices[1].image, 12);
    EXPECT_EQ(choices[2].name, "Deutsch"); // a value without a number is all name
    EXPECT_EQ(choices[2].image, 0);
}

} // namespace
} // namespace zandor
