// The number of a message's style, its buttons and their letters.
#include "frame/alert.h"
#include "support/fakes.h"

#include <gtest/gtest.h>

#include <set>

namespace zandor {
namespace {

using Answers = std::vector<int>;

TEST(Alert, AStyleIsTakenApartFromItsLargestValueDown) {
    struct Case {
        int style;
        Answers answers;
        std::size_t defaultButton;
        AlertIcon icon;
        bool help;
        int escape;
    };
    const Case cases[] = {
        {0, {1}, 0, AlertIcon::None, false, answer::Ok},
        {64, {1}, 0, AlertIcon::Information, false, answer::Ok},
        {48 + 1, {1, 2}, 0, AlertIcon::Exclamation, false, answer::Cancel},
        {16 + 2 + 512, {3, 4, 5}, 2, AlertIcon::Stop, false, answer::Abort},
        {3 + 256, {6, 7, 2}, 1, AlertIcon::None, false, answer::Cancel},
        {36, {6, 7}, 0, AlertIcon::Question, false, 0},
        {36 + 256, {6, 7}, 1, AlertIcon::Question, false, answer::No},
        {5, {4, 2}, 0, AlertIcon::None, false, answer::Cancel},
        {16384 + 4, {6, 7}, 0, AlertIcon::None, true, 0},
        {0x190000 + 16384 + 4096 + 512 + 48 + 3, {6, 7, 2}, 2, AlertIcon::Exclamation, true, answer::Cancel},
        {768 + 4, {6, 7}, 1, AlertIcon::None, false, answer::No}, // a fourth button that isn't there
    };
    for (const Case& c : cases) {
        const Alert alert = decodeAlertStyle(c.style);
        EXPECT_EQ(alert.answers, c.answers) << c.style;
        EXPECT_EQ(alert.defaultButton, c.defaultButton) << c.style;
        EXPECT_EQ(alert.icon, c.icon) << c.style;
        EXPECT_EQ(alert.help, c.help) << c.style;
        EXPECT_EQ(alert.escape, c.escape) << c.style;
    }
}

TEST(Alert, CaptionsComeFromTheLanguageOrFromTheProgram) {
    TestFrame test;
    AlertCaptions captions = alertCaptions(test.frame.language, decodeAlertStyle(16384 + 4));
    EXPECT_EQ(captions.buttons, (std::vector<std::string>{"&Oui", "&Non"}));
    EXPECT_EQ(captions.help, "&Aide");
    test.state.Language = "none";
    captions = alertCaptions(test.frame.language, decodeAlertStyle(style::AbortRetryIgnore));
    EXPECT_EQ(captions.buttons, (std::vector<std::string>{"&Abandonner", "&Répéter", "&Ignorer"}));
    EXPECT_TRUE(captions.help.empty());
}

TEST(Alert, EveryButtonOfAMessageHasALetterOfItsOwnInEveryLanguage) {
    TestFrame test;
    for (const LanguageChoice& language : test.frame.language.ListLanguages())
        for (int buttons = 0; buttons <= 5; ++buttons) {
            test.state.Language = language.name;
            AlertCaptions captions = alertCaptions(test.frame.language, decodeAlertStyle(16384 + buttons));
            captions.buttons.push_back(captions.help);
            std::set<char> letters;
            for (const std::string& caption : captions.buttons) {
                const std::size_t mark = caption.find('&');
                ASSERT_LT(mark + 1, caption.size()) << language.name << ": " << caption;
                EXPECT_TRUE(letters.insert(lowerCase(caption.substr(mark + 1, 1))[0]).second)
                    << language.name << ": " << caption;
            }
        }
}

TEST(Mnemonics, StayWhereTheyAreFreeAndMoveWhereTheyAreNot) {
    std::vector<std::string> captions{"Annuler", "&Aide", "Année", "nn", "", "&"};
    makeMnemonicsUnique({&captions[0], &captions[1], &captions[2], &captions[3], &captions[4], &captions[5]});
    EXPECT_EQ(captions, (std::vector<std::string>{"&Annuler", "A&ide", "A&nnée", "nn", "", ""}));
}

} // namespace
} // namespace zandor
