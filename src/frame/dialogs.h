// Questions and messages to the user. Windows, the command line and tests each answer in their own way.
#pragma once

#include <optional>
#include <string>

namespace zandor {

// Numbers of the standard message box: a style is the sum of a set of buttons, an icon and flags.
namespace style {
inline constexpr int Ok = 0, OkCancel = 1, AbortRetryIgnore = 2, YesNoCancel = 3, YesNo = 4, RetryCancel = 5;
inline constexpr int SecondButton = 256; // is the default one
inline constexpr int Stop = 16, Question = 32, Exclamation = 48, Information = 64;
} // namespace style

namespace answer {
inline constexpr int Ok = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7;
} // namespace answer

class Dialogs {
  public:
    virtual ~Dialogs() = default;
    // Returns one of the answer numbers when the user has closed the message.
    virtual int ShowMessage(const std::string& text, int style, const std::string& title,
                            const std::string& helpFile = {}, int helpContext = 0) = 0;
    // A message that may be the first of many like it. False: the user wants to see no more of them.
    virtual bool showRepeated(const std::string& text, int style, const std::string& title) {
        ShowMessage(text, style, title);
        return true;
    }
    // Asks for an existing file; nothing when cancelled. `filter` is "text (*.x)|*.x".
    virtual std::optional<std::string> askOpenFile(const std::string& title, const std::string& filter,
                                                   const std::string& folder,
                                                   const std::string& proposedName) = 0;
    // Asks for a file to write, and whether one that exists is to be replaced; nothing when cancelled. A name
    // without an extension gets `defaultExtension`, such as ".rtf".
    virtual std::optional<std::string> askSaveFile(const std::string& title, const std::string& filter,
                                                   const std::string& folder, const std::string& proposedName,
                                                   const std::string& defaultExtension) = 0;
};

} // namespace zandor
