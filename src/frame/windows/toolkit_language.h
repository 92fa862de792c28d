// The toolkit's own texts, such as the names of keys and the buttons of its file dialog, in the program's
// language.
#pragma once

#include <QTranslator>

class QLocale;
class QString;

namespace zandor {

// Of a language as it calls itself, in any case; English for one that isn't known.
QLocale localeOf(const QString& language);

class ToolkitLanguage {
  public:
    ToolkitLanguage() = default;
    ToolkitLanguage(const ToolkitLanguage&) = delete;
    ToolkitLanguage& operator=(const ToolkitLanguage&) = delete;

    // `name`: a language as it calls itself, in any case. English for one that the toolkit has no texts in.
    void follow(const QString& name);

  private:
    QTranslator texts_;
};

} // namespace zandor
