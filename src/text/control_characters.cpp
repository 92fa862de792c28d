#include "text/control_characters.h"

#include "platform/utf8.h"

namespace zandor {

namespace {

bool isControl(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0) || character >= kStrayByte;
}

void appendEscape(std::string& text, char32_t control) {
    constexpr char Digits[] = "0123456789abcdef";
    switch (control) {
    case '\n':
        text += "\\n";
        return;
    case '\r':
        text += "\\r";
        return;
    case '\t':
        text += "\\t";
        return;
    default:
        text.append("\\x").append(1, Digits[control >> 4 & 15]).append(1, Digits[control & 15]);
    }
}

} // namespace

std::string escapeControls(std::string_view text) {
    std::string escaped;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t from = at;
        const char32_t character = nextCharacter(text, at);
        if (isControl(character))
            appendEscape(escaped, character);
        else
            escaped.append(text.substr(from, at - from));
    }
    return escaped;
}

std::string oneLine(std::string_view text) {
    constexpr std::string_view LineBreak = "\r\n";
    std::string line;
    while (!text.empty()) {
        const std::size_t end = text.find(LineBreak);
        line += escapeControls(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end);
        if (text.empty())
            break;
        line += ' ';
        while (text.starts_with(LineBreak))
            text.remove_prefix(LineBreak.size());
    }
    return line;
}

} // namespace zandor
