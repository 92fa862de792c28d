#include "frame/windows/name_order.h"

#include "frame/windows/toolkit_language.h"

namespace zandor {

QCollator nameOrder(const QString& language) {
    QCollator order(localeOf(language));
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    return order;
}

} // namespace zandor
