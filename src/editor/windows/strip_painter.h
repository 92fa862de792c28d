// The strip of vehicles as it is seen: only what lies in view is drawn, so that its cost doesn't grow with
// the consist.
#pragma once

#include "editor/consist_document.h"

#include <QString>

class QFontMetrics;
class QPainter;
class QSize;

namespace zandor {

// Vehicles, marks and the outline of the vehicle that the pointer holds. `emptyHint` stands on a strip
// without any.
void paintStrip(QPainter& painter, const Editor& editor, const QSize& size, const QString& emptyHint);
// The red line where a dragged vehicle would go, when it would go anywhere.
void paintDropMark(QPainter& painter, const ConsistDocument& document, int height);

// `name` cut from the right until it is at least 20 pixels narrower than `width`; may become empty.
QString fittingName(const QString& name, const QFontMetrics& metrics, int width);

} // namespace zandor
