#include "app/quiet_dialogs.h"

#include "text/control_characters.h"
#include "text/lines.h"

#include <iostream>

namespace zandor {

int QuietDialogs::ShowMessage(const std::string& text, int messageStyle, const std::string& title,
                              const std::string&, int) {
    constexpr int Harmless[] = {answer::Ok,     answer::Cancel, answer::Abort,
                                answer::Cancel, answer::No,     answer::Cancel};
    std::cerr << title << ": ";
    forEachLine(text, [](std::string_view line) { std::cerr << escapeControls(line) << '\n'; });
    const int buttons = messageStyle & 15;
    return buttons < static_cast<int>(std::size(Harmless)) ? Harmless[buttons] : answer::Cancel;
}

std::optional<std::string> QuietDialogs::askOpenFile(const std::string& title, const std::string&,
                                                     const std::string&, const std::string&) {
    std::cerr << title << '\n';
    return std::nullopt;
}

std::optional<std::string> QuietDialogs::askSaveFile(const std::string& title, const std::string&,
                                                     const std::string&, const std::string&,
                                                     const std::string&) {
    std::cerr << title << '\n';
    return std::nullopt;
}

} // namespace zandor
