// What a message window shows: the number of its style taken apart, its buttons with their captions and
// answers.
#pragma once

#include "frame/language.h"

#include <string>
#include <vector>

namespace zandor {

// The values of the style number; each is the number of the icon's sound as well.
enum class AlertIcon { None = 0, Stop = 16, Question = 32, Exclamation = 48, Information = 64 };

struct Alert {
    std::vector<int> answers; // one a button, in the order shown: one to three
    std::size_t defaultButton = 0;
    AlertIcon icon = AlertIcon::None;
    bool help = false;
    // What Escape and closing the window answer; 0: none of the answers is harmless, so one must be chosen.
    int escape = 0;
};

Alert decodeAlertStyle(int style);

struct AlertCaptions {
    std::vector<std::string> buttons; // as Alert::answers
    std::string help;                 // empty without a help button
};

// In the program's language, each with a letter of its own.
AlertCaptions alertCaptions(const Language& language, const Alert& alert);

// Gives every caption an "&" before a letter that no caption before it has. The one that a caption brings
// along stays when it is free; otherwise the first free letter takes it, and a caption that has none goes
// without.
void makeMnemonicsUnique(const std::vector<std::string*>& captions);

} // namespace zandor
