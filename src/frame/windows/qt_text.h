// Texts between the logic, which holds UTF-8, and the windows.
#pragma once

#include <QString>
#include <QTextDocument>

#include <string>
#include <string_view>

namespace zandor {

inline QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string fromQt(const QString& text) {
    return text.toStdString();
}

// A tool tip that shows the text as it stands, also one with angle brackets, such as a name may hold.
inline QString plainTip(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

// A path that a file dialog gave, as the program holds paths: "\" between the components.
inline std::string pathFromQt(QString path) {
    return fromQt(path.replace(u'/', u'\\'));
}

} // namespace zandor
