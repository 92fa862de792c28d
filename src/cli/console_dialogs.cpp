#include "cli/console_dialogs.h"

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

// Each stretch of CR and LF becomes one `separator`.
std::string withLineBreaks(std::string_view text, char separator) {
    std::string result;
    bool broken = false;
    for (char c : text) {
        const bool isBreak = c == '\r' || c == '\n';
        if (!isBreak)
            result += c;
        else if (!broken)
            result += separator;
        broken = isBreak;
    }
    return result;
}

} // namespace

std::string oneLine(std::string_view text) {
    return withLineBreaks(text, ' ');
}

int ConsoleDialogs::ShowMessage(const std::string& text, int messageStyle, const std::string&,
                                const std::string&, int) {
    if ((messageStyle & IconBits) == style::Information) {
        out_ << withLineBreaks(text, '\n') << '\n';
    } else {
        ++alerts;
        err_ << oneLine(subject.empty() ? text : subject + ": " + text) << '\n';
    }
    return harmlessAnswer(messageStyle & ButtonBits);
}

std::optional<std::string> ConsoleDialogs::askOpenFile(const std::string&, const std::string&,
                                                       const std::string&, const std::string&) {
    return std::nullopt;
}

} // namespace zandor
