#include "frame/windows/toolkit_language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

#include <algorithm>

namespace zandor {

namespace {

// Some languages are named with their country, as in "español de España".
bool callsItself(const QLocale& locale, const QString& name) {
    const QString own = locale.nativeLanguageName().toLower();
    return !name.isEmpty() && (own == name || own.startsWith(name + u' '));
}

} // namespace

QLocale localeOf(const QString& language) {
    const QList<QLocale> all =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    const auto found = std::find_if(all.begin(), all.end(), [name = language.toLower()](const QLocale& l) {
        return callsItself(l, name);
    });
    return found == all.end() ? QLocale(QLocale::English) : *found;
}

void ToolkitLanguage::follow(const QString& name) {
    QCoreApplication::removeTranslator(&texts_);
    const QString code = QLocale::languageToCode(localeOf(name).language());
    if (texts_.load("qtbase_" + code, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&texts_);
}

} // namespace zandor
