#include "frame/alert.h"

#include "frame/dialogs.h"
#include "frame/messages.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace zandor {

namespace {

constexpr int Ignored[] = {0x100000, 0x80000, 0x10000};
constexpr int HelpButton[] = {16384};
constexpr int SystemModal[] = {4096};
constexpr int DefaultButtons[] = {768, 512, 256};
constexpr int Icons[] = {64, 48, 32, 16};
constexpr int Buttons[] = {5, 4, 3, 2, 1};

// The answers of each set of buttons; 0: no such button.
struct ButtonSet {
    int answers[3];
    int escape;
};
constexpr ButtonSet Sets[] = {
    {{answer::Ok, 0, 0}, answer::Ok},
    {{answer::Ok, answer::Cancel, 0}, answer::Cancel},
    {{answer::Abort, answer::Retry, answer::Ignore}, answer::Abort},
    {{answer::Yes, answer::No, answer::Cancel}, answer::Cancel},
    {{answer::Yes, answer::No, 0}, 0},
    {{answer::Retry, answer::Cancel, 0}, answer::Cancel},
};

// A caption is the message's text, or the fixed one while no language has been found.
struct CaptionRow {
    int answer;
    Message message;
    const char* fixed;
};
constexpr CaptionRow Captions[] = {
    {answer::Ok, message::ButtonOk, "&OK"},
    {answer::Cancel, message::Cancel, "Annuler"},
    {answer::Abort, message::ButtonAbort, "&Abandonner"},
    {answer::Retry, message::ButtonRetry, "&Répéter"},
    {answer::Ignore, message::ButtonIgnore, "&Ignorer"},
    {answer::Yes, message::Yes, "Oui"},
    {answer::No, message::No, "Non"},
};

// Takes the first of the values that the rest holds off it; 0 when it holds none.
int takeOff(int& rest, std::span<const int> values) {
    for (const int value : values)
        if (rest >= value) {
            rest -= value;
            return value;
        }
    return 0;
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

char capital(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// The letters that a window has given away already.
class TakenLetters {
  public:
    bool isFree(char c) const { return isLetter(c) && letters_.find(capital(c)) == std::string::npos; }
    void take(char c) { letters_ += capital(c); }

  private:
    std::string letters_;
};

// The letter behind the caption's "&", or 0.
char mnemonicOf(const std::string& caption) {
    const std::size_t mark = caption.find('&');
    return mark == std::string::npos || mark + 1 == caption.size() ? '\0' : caption[mark + 1];
}

void giveMnemonic(std::string& caption, TakenLetters& taken) {
    if (!taken.isFree(mnemonicOf(caption))) {
        std::erase(caption, '&');
        const auto place = std::ranges::find_if(caption, [&taken](char c) { return taken.isFree(c); });
        if (place == caption.end())
            return;
        caption.insert(place, '&');
    }
    taken.take(mnemonicOf(caption));
}

} // namespace

Alert decodeAlertStyle(int style) {
    Alert alert;
    int rest = style;
    for (const int value : Ignored)
        takeOff(rest, {&value, 1});
    alert.help = takeOff(rest, HelpButton) != 0;
    takeOff(rest, SystemModal);
    const std::size_t defaultButton = static_cast<std::size_t>(takeOff(rest, DefaultButtons)) / 256;
    alert.icon = static_cast<AlertIcon>(takeOff(rest, Icons));
    const ButtonSet& set = Sets[takeOff(rest, Buttons)];
    std::ranges::copy_if(set.answers, std::back_inserter(alert.answers), [](int a) { return a != 0; });
    alert.defaultButton = std::min(defaultButton, alert.answers.size() - 1);
    alert.escape = set.escape;
    // A question that proposes "no" says itself that this is harmless.
    if (alert.escape == 0 && alert.answers[alert.defaultButton] == answer::No)
        alert.escape = answer::No;
    return alert;
}

AlertCaptions alertCaptions(const Language& language, const Alert& alert) {
    AlertCaptions captions;
    for (const int wanted : alert.answers) {
        const auto row = std::ranges::find(Captions, wanted, &CaptionRow::answer);
        captions.buttons.push_back(textOr(language, row->message, row->fixed));
    }
    std::vector<std::string*> all;
    for (std::string& text : captions.buttons)
        all.push_back(&text);
    if (alert.help) {
        captions.help = textOr(language, message::HelpButton, "Aide");
        all.push_back(&captions.help);
    }
    makeMnemonicsUnique(all);
    return captions;
}

void makeMnemonicsUnique(const std::vector<std::string*>& captions) {
    TakenLetters taken;
    for (std::string* caption : captions)
        giveMnemonic(*caption, taken);
}

} // namespace zandor
