#include "frame/language.h"

#include "support/fakes.h"
#include "text/lines.h"
#include "text/text.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

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

// ---- the file that ships

struct Constant {
    std::string name;
    Message id;
};

// The rows "Name = number," of the header.
std::vector<Constant> allMessages() {
    std::vector<Constant> constants;
    const std::string source = readSourceFile("src/frame/messages.h");
    forEachLine(source, [&](std::string_view line) {
        line = trim(line.substr(0, line.find("//")));
        const std::size_t sign = line.find(" = ");
        if (sign != std::string_view::npos && line.ends_with(','))
            constants.push_back(
                {std::string(line.substr(0, sign)), Message{numericInt16(line.substr(sign + 3))}});
    });
    return constants;
}

std::set<int> placeholdersOf(const std::string& text) {
    std::set<int> numbers;
    for (std::size_t at = text.find('|'); at != std::string::npos; at = text.find('|', at + 1))
        numbers.insert(numericInt16(text.substr(at + 1)));
    return numbers;
}

TEST_F(Texts, EveryMessageHasATextWithTheSamePlaceholdersInEveryLanguage) {
    const auto languages = frame.language.ListLanguages();
    ASSERT_EQ(languages.size(), 3u);
    ASSERT_GT(allMessages().size(), 60u) << "the constants were not found";
    for (const Constant& message : allMessages()) {
        state.Language = "Français";
        const auto expected = placeholdersOf(frame.text(message.id));
        for (const LanguageChoice& language : languages) {
            state.Language = language.name;
            const std::string text = frame.text(message.id);
            EXPECT_FALSE(text.empty()) << language.name << ' ' << message.name;
            EXPECT_EQ(placeholdersOf(text), expected) << language.name << ' ' << message.name;
            EXPECT_TRUE(expected.empty() || *expected.rbegin() < 10) << "|10 would be taken for |1";
        }
    }
}

TEST_F(Texts, NoTextStandsUnderANumberThatNothingShows) {
    std::set<std::string> known;
    for (const Constant& message : allMessages())
        known.insert(std::to_string(static_cast<int>(message.id)));
    bool texts = false;
    const std::string file = readSourceFile("src/frame/Langues.lng");
    forEachLine(file, [&](std::string_view line) {
        EXPECT_LT(line.size(), 1024u) << line;
        const std::size_t sign = line.find('=');
        if (line.starts_with('['))
            texts = line != "[Langues]";
        else if (texts && sign != std::string_view::npos &&
                 !known.contains(std::string(line.substr(0, sign))))
            ADD_FAILURE() << line;
    });
}

// The buttons and labels that stand in the main window together.
TEST_F(Texts, NoLetterReachesTwoThingsOfTheMainWindow) {
    for (const LanguageChoice& language : frame.language.ListLanguages()) {
        state.Language = language.name;
        std::set<std::string> letters;
        for (int id = static_cast<int>(Message::CaptionNew);
             id <= static_cast<int>(Message::CaptionStockClass); ++id) {
            const std::string text = frame.text(Message{id});
            const std::size_t mark = text.find('&');
            ASSERT_NE(mark, std::string::npos) << text;
            EXPECT_TRUE(letters.insert(lowerCase(text.substr(mark + 1, 1))).second)
                << language.name << ": " << text;
        }
    }
}

} // namespace
} // namespace zandor
