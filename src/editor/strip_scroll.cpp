#include "editor/strip_scroll.h"

#include "editor/editor_parts.h"
#include "editor/messages.h"

#include <algorithm>

namespace zandor {

namespace {

constexpr int RoomBehindStrip = 150;  // right of the last vehicle, for a drop at the end
constexpr int WidestPicture = 0x4000; // the picture of the strip stays narrower than this
constexpr int LargestScroll = 32767;  // the bar counts in 16 bits

bool isInside(const StripScroll& scroll, int x, int y) {
    return x >= 0 && y >= 0 && x <= scroll.viewWidth && y <= StripHeight;
}

} // namespace

StripPoint pointOf(const StripScroll& scroll, int x, int y) {
    return isInside(scroll, x, y) ? StripPoint(x + scroll.value) : std::nullopt;
}

// The picture grows with the strip for as long as it may; what stands behind its end is out of sight.
int stripPictureWidth(const ConsistDocument& document, int viewWidth) {
    int vehicles = 0;
    for (const Vehicule& vehicule : document.Vehicules) {
        if (vehicles + vehicule.Width + RoomBehindStrip >= WidestPicture)
            break;
        vehicles += vehicule.Width;
    }
    return std::max(viewWidth, vehicles + RoomBehindStrip);
}

bool endIsHidden(const ConsistDocument& document, const StripScroll& scroll) {
    return document.StripWidth + RoomBehindStrip > stripPictureWidth(document, scroll.viewWidth);
}

Finding endHidden(const ConsistDocument& document, const StripScroll& scroll) {
    const int seen = stripPictureWidth(document, scroll.viewWidth);
    return {.message = message::StripTooLong,
            .style = style::Information,
            .params = {{"|1", std::to_string(seen)}}};
}

void updateScroll(StripScroll& scroll, const ConsistDocument& document) {
    scroll.largeStep = std::max(1, scroll.viewWidth); // the handle is as large as what is seen
    scroll.enabled = document.StripWidth > scroll.viewWidth;
    if (!scroll.enabled) {
        scroll.value = scroll.maximum = 0;
        return;
    }
    const int range = stripPictureWidth(document, scroll.viewWidth) - scroll.viewWidth;
    if (range < LargestScroll)
        scroll.maximum = range;
    scroll.smallStep = std::max(1, scroll.maximum / 20);
    scrollBy(scroll, 0);
}

void scrollBy(StripScroll& scroll, int step) {
    scroll.value = std::clamp(scroll.value + step, 0, scroll.maximum);
}

void scrollToEnd(StripScroll& scroll) {
    scroll.value = scroll.maximum;
}

void scrollToVehicule(StripScroll& scroll, const ConsistDocument& document, int position) {
    if (!isPosition(document, position))
        return;
    const int left = leftOf(document, position), right = leftOf(document, position + 1);
    const int value = std::min(std::max(scroll.value, right - scroll.viewWidth), left);
    scroll.value = std::clamp(value, 0, scroll.maximum);
}

void AutoScrollStrip(StripScroll& scroll, int x, int y) {
    if (!isInside(scroll, x, y))
        return;
    const int zone = scroll.viewWidth / 8;
    if (x > scroll.viewWidth - zone)
        scrollBy(scroll, x - (scroll.viewWidth - zone));
    else if (x < zone)
        scrollBy(scroll, x - zone);
}

} // namespace zandor
