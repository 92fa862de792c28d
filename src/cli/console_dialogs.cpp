#include "cli/console_dialogs.h"

#include "text/control_characters.h"

namespace zandor {

namespace {

constexpr int ButtonBits = 0x0F, IconBits = 0xF0;

int harmlessAnswer(int buttons) {
    switch (buttons) {
    case style::AbortRetryIgnore:
        return answer::Abort;
    case style::YesNo:
        return answer::No;
    case style::OkCancel:
    case style::YesNoCancel:
    case style::RetryCancel:
        return answer::Cancel;
    default:
        return answer::Ok;
    }
}

} // namespace

void ConsoleDialogs::print(const std::string& text, int messageStyle) {
    if ((messageStyle & IconBits) != style::Information)
        ++alerts;
    err_ << oneLine(subject.empty() ? text : subject + ": " + text) << '\n';
}

int ConsoleDialogs::ShowMessage(const std::string& text, int messageStyle, const std::string&,
                                const std::string&, int) {
    print(text, messageStyle);
    return harmlessAnswer(messageStyle & ButtonBits);
}

std::optional<std::string> ConsoleDialogs::askOpenFile(const std::string&, const std::string&,
                                                       const std::string&, const std::string&) {
    return std::nullopt;
}

std::optional<std::string> ConsoleDialogs::askSaveFile(const std::string&, const std::string&,
                                                       const std::string&, const std::string&,
                                                       const std::string&) {
    return std::nullopt;
}

} // namespace zandor
