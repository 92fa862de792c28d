// The language file that ships, held against the constants and against the places that use them.
#include "frame/language.h"

#include "editor/messages.h"
#include "frame/messages.h"
#include "support/fakes.h"
#include "text/lines.h"
#include "text/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <vector>

namespace zandor {
namespace {

constexpr const char* French = "Français";
constexpr std::size_t TextLimit = 1024;

struct LanguageFile : ::testing::Test, TestFrame {
    std::string textIn(const std::string& language, Message id) {
        state.Language = language;
        return frame.text(id);
    }
};

// The rows "inline constexpr Message Name{number};" of every room.
std::multimap<std::string, int> constants() {
    const std::regex row("constexpr Message\\s+(\\w+)\\{\\s*(\\d+)\\}");
    std::multimap<std::string, int> rows;
    for (const auto& room : std::filesystem::directory_iterator(ZANDOR_SOURCE_DIR "/src")) {
        const std::string source = readSourceFile("src/" + room.path().filename().string() + "/messages.h");
        for (std::sregex_iterator at(source.begin(), source.end(), row), end; at != end; ++at)
            rows.emplace((*at)[1], numericInt16((*at)[2].str()));
    }
    return rows;
}

struct Entry {
    std::string language, text;
    int number = 0;
};

// The file's entries in their order, as raw as they stand.
std::vector<Entry> entries() {
    std::vector<Entry> found;
    std::string section;
    const std::string file = readSourceFile("src/frame/Langues.lng");
    forEachLine(file, [&](std::string_view line) {
        const std::size_t sign = line.find('=');
        if (line.starts_with('['))
            section = line.substr(1, line.find(']') - 1);
        else if (!section.empty() && section != "Langues" && sign != std::string_view::npos)
            found.push_back(
                {section, std::string(line.substr(sign + 1)), numericInt16(line.substr(0, sign))});
    });
    return found;
}

std::set<int> placeholdersOf(const std::string& text) {
    std::set<int> numbers;
    for (std::size_t at = text.find('|'); at != std::string::npos; at = text.find('|', at + 1))
        numbers.insert(numericInt16(text.substr(at + 1)));
    return numbers;
}

TEST_F(LanguageFile, NoTwoConstantsHaveTheSameNameOrNumber) {
    std::set<std::string> names;
    std::set<int> numbers;
    for (const auto& [name, number] : constants()) {
        EXPECT_TRUE(names.insert(name).second) << name;
        EXPECT_TRUE(numbers.insert(number).second) << name << " = " << number;
        EXPECT_GT(number, 0) << name;
    }
    EXPECT_GT(numbers.size(), 400u) << "the constants were not found";
}

TEST_F(LanguageFile, EveryMessageHasATextWithTheSamePlaceholdersInEveryLanguage) {
    const auto languages = frame.language.ListLanguages();
    ASSERT_EQ(languages.size(), 6u);
    for (const auto& [name, number] : constants()) {
        const auto expected = placeholdersOf(textIn(French, Message{number}));
        EXPECT_LT(expected.size(), 10u) << name << ": |10 would be taken for |1";
        if (!expected.empty()) {
            EXPECT_EQ(*expected.begin(), 1) << name;
            EXPECT_EQ(*expected.rbegin(), static_cast<int>(expected.size())) << name << " leaves one out";
        }
        for (const LanguageChoice& language : languages) {
            const std::string text = textIn(language.name, Message{number});
            EXPECT_FALSE(text.empty()) << language.name << ' ' << name << " = " << number;
            EXPECT_EQ(placeholdersOf(text), expected) << language.name << ' ' << name;
        }
    }
}

TEST_F(LanguageFile, EveryTextStandsOnceAndUnderAConstant) {
    std::set<int> known;
    for (const auto& [name, number] : constants())
        known.insert(number);
    std::set<std::pair<std::string, int>> seen;
    for (const Entry& entry : entries()) {
        EXPECT_TRUE(known.contains(entry.number)) << entry.language << ' ' << entry.number;
        EXPECT_TRUE(seen.emplace(entry.language, entry.number).second)
            << entry.language << ' ' << entry.number << " stands twice";
    }
    EXPECT_GT(seen.size(), 6 * 400u) << "the texts were not found";
}

// What the profile reader would cut from a text, and what a button would swallow.
TEST_F(LanguageFile, EveryTextIsReadAsItStands) {
    for (const Entry& entry : entries()) {
        EXPECT_EQ(textIn(entry.language, Message{entry.number}), entry.text) << entry.language;
        EXPECT_EQ(firstCharacters(entry.text, TextLimit), entry.text) << entry.language;
        const std::size_t mark = entry.text.find('&');
        EXPECT_EQ(mark, entry.text.rfind('&')) << entry.text;
        EXPECT_TRUE(mark == std::string::npos ||
                    std::isalpha(static_cast<unsigned char>(entry.text[mark + 1])))
            << entry.text;
    }
}

TEST_F(LanguageFile, TheWordBetweenEnginesAndWagonsKeepsItsBlanks) {
    const std::string blank = "\u00A0";
    for (const LanguageChoice& language : frame.language.ListLanguages()) {
        const std::string joint = textIn(language.name, message::CompositionJoint);
        EXPECT_TRUE(joint.starts_with(blank) && joint.ends_with(blank)) << language.name;
    }
}

// ---- the letters that reach a button

constexpr Message MarkedByTheWindow = message::Cancel;

// Empty when the text has no letter that reaches it.
std::string letterOf(const std::string& text, Message id) {
    const std::size_t mark = text.find('&');
    if (mark != std::string::npos)
        return lowerCase(text.substr(mark + 1, 1));
    return id == MarkedByTheWindow ? lowerCase(text.substr(0, 1)) : std::string();
}

struct Window {
    const char* name;
    std::vector<Message> buttons;
};

const Window Windows[] = {
    {"main window",
     {message::CaptionNew, message::CaptionOpen, message::CaptionSave, message::CaptionDelete,
      message::CaptionOptions, message::CaptionHelp, message::CaptionAbout, message::CaptionQuit,
      message::CaptionNumber, message::CaptionShortName, message::CaptionFullName, message::CaptionDurability,
      message::CaptionStockClass, message::CaptionVehicle}},
    {"open a consist", {message::OpenVerb, message::Cancel}},
    {"menu of the strip",
     {message::MenuInsertEnd, message::MenuInsertBefore, message::MenuMoveLeft, message::MenuMoveRight,
      message::MenuFlip, message::MenuRemove, message::MenuFindInList, message::MenuRenumber}},
};

TEST_F(LanguageFile, NoLetterReachesTwoThingsOfAWindow) {
    for (const LanguageChoice& language : frame.language.ListLanguages())
        for (const Window& window : Windows) {
            std::set<std::string> letters;
            for (const Message id : window.buttons) {
                const std::string text = textIn(language.name, id);
                const std::string letter = letterOf(text, id);
                EXPECT_FALSE(letter.empty()) << language.name << ", " << window.name << ": " << text;
                EXPECT_TRUE(letters.insert(letter).second)
                    << language.name << ", " << window.name << ": " << text;
            }
        }
}

} // namespace
} // namespace zandor
