// The pictures that are built into the program.
#pragma once

#include <QIcon>
#include <QString>

namespace zandor {

// By its name; an empty icon when there is none.
inline QIcon artIcon(const char* name) {
    return QIcon(QString(":/art/%1.png").arg(name));
}
// Of a list, by its number.
inline QIcon listIcon(int number) {
    return QIcon(QString(":/art/list-%1.png").arg(number));
}

// Of a language, by its number in the list of languages.
inline QIcon flagIcon(int number) {
    return QIcon(QString(":/art/flag-%1.png").arg(number));
}

} // namespace zandor
