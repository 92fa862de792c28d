// What of the strip is in sight. The view that shows the strip owns it; the consist knows nothing of it. All
// in pixels.
#pragma once

#include "editor/consist_document.h"

namespace zandor {

struct StripScroll {
    int viewWidth = 800; // inner width of PicRAME, which is StripHeight high
    int value = 0;       // of HScrollRAME: what is left of the view
    int maximum = 0;
    int smallStep = 1, largeStep = 1;
    bool enabled = false;
};

// The point of the strip under a point of the view.
StripPoint pointOf(const StripScroll& scroll, int x, int y);

// The width of the strip's picture: that of the view at least.
int stripPictureWidth(const ConsistDocument& document, int viewWidth);
// True when the strip is longer than its picture may be, so that its end is never in sight.
bool endIsHidden(const ConsistDocument& document, const StripScroll& scroll);
// What is told then.
Finding endHidden(const ConsistDocument& document, const StripScroll& scroll);

// The range, after a change of the strip or of the view.
void updateScroll(StripScroll& scroll, const ConsistDocument& document);
void scrollBy(StripScroll& scroll, int step);
void scrollToEnd(StripScroll& scroll);
// As little as brings a vehicle into sight.
void scrollToVehicule(StripScroll& scroll, const ConsistDocument& document, int position);
// A drag whose pointer is near an edge of the view.
void AutoScrollStrip(StripScroll& scroll, int x, int y);

} // namespace zandor
