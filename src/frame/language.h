// Every text that the user sees comes by number from Langues.lng. See message.h for the numbers.
#pragma once

#include "frame/app_state.h"
#include "frame/message.h"
#include "frame/settings.h"

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zandor {

struct TextParam {
    std::string_view placeholder; // such as "|1"
    std::string_view value;
};

// One entry of the list of languages.
struct LanguageChoice {
    std::string key; // "KEY_" and the number, from 0
    std::string name;
    int image = 0;
};

class Language {
  public:
    Language(ProfileFiles& profiles, const AppState& state) : profiles_(profiles), state_(state) {}

    // The text of a message in AppState's language, its placeholders replaced in the order given, every
    // occurrence of each. A number that the file lacks gives an empty text. A value that holds its own
    // placeholder is put in once per occurrence of the text.
    std::string GetLangText(Message id, std::span<const TextParam> params) const;
    std::string GetLangText(Message id, std::initializer_list<TextParam> params = {}) const {
        return GetLangText(id, std::span(params.begin(), params.size()));
    }
    std::vector<LanguageChoice> ListLanguages() const;

  private:
    ProfileFiles& profiles_;
    const AppState& state_;
};

// The text of a message, or the French one that serves when the language lacks it.
inline std::string textOr(const Language& language, Message message, const char* french) {
    const std::string text = language.GetLangText(message);
    return text.empty() ? french : text;
}

// The decimal mark that figures have in the language; "." when it doesn't say.
std::string decimalMark(const Language& language);
// A figure whose decimal point has become that mark.
std::string withDecimalMark(std::string figure, std::string_view mark);

} // namespace zandor
