// The order of names in a list, as a reader of the program's language expects it: numbers by their value,
// upper and lower case alike, accented letters beside the plain ones.
#pragma once

#include <QCollator>

namespace zandor {

// `language`: a language as it calls itself, in any case.
QCollator nameOrder(const QString& language);

} // namespace zandor
