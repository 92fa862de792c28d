#include "frame/language.h"

#include "frame/messages.h"
#include "text/text.h"

namespace zandor {

namespace {

// Puts the value in for every occurrence; what was put in isn't searched again.
void substitute(std::string& text, const TextParam& param) {
    if (param.placeholder.empty())
        return;
    for (std::size_t at = text.find(param.placeholder); at != std::string::npos;
         at = text.find(param.placeholder, at + param.value.size()))
        text.replace(at, param.placeholder.size(), param.value);
}

} // namespace

std::string Language::GetLangText(Message id, std::span<const TextParam> params) const {
    if (state_.Language.empty() || state_.LanguagePath.empty())
        return {};
    std::string text =
        profiles_.ReadIniValue(state_.Language, std::to_string(id.number), state_.LanguagePath);
    for (const TextParam& param : params)
        substitute(text, param);
    return text;
}

std::vector<LanguageChoice> Language::ListLanguages() const {
    std::vector<LanguageChoice> choices;
    if (state_.LanguagePath.empty())
        return choices;
    for (int number = 0;; ++number) {
        const std::string key = std::to_string(number);
        const std::string value = profiles_.ReadIniValue("Langues", key, state_.LanguagePath);
        if (value.empty())
            return choices;
        const std::size_t sign = value.find('$');
        choices.push_back({"KEY_" + key, value.substr(sign + 1), numericInt16(value.substr(0, sign))});
    }
}

std::string decimalMark(const Language& language) {
    const std::string mark = language.GetLangText(message::DecimalMark);
    return mark.empty() ? "." : mark;
}

std::string withDecimalMark(std::string figure, std::string_view mark) {
    const std::size_t point = figure.find('.');
    return point == std::string::npos ? figure : figure.replace(point, 1, mark);
}

} // namespace zandor
