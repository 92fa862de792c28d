#include "editor/editor_parts.h"

#include <algorithm>

namespace zandor {

namespace {

constexpr int RoomBehindStrip = 150;  // pixels right of the last vehicle, for a drop at the end
constexpr int WidestPicture = 0x4000; // the picture of the strip stays narrower than this
constexpr int LargestScroll = 32767;  // the bar counts in 16 bits
constexpr int DropMarkWidth = 3;

bool isInside(const EditorControls& controls, int x, int y) {
    return x >= 0 && y >= 0 && x <= controls.viewWidth && y <= controls.viewHeight;
}

void updateScrollRange(ConsistDocument& document) {
    EditorControls& controls = document.controls;
    controls.scrollLargeStep = std::max(1, controls.viewWidth); // the handle is as large as what is seen
    controls.scrollEnabled = document.StripWidth > controls.viewWidth;
    if (!controls.scrollEnabled) {
        controls.scrollValue = controls.scrollMaximum = 0;
        return;
    }
    const int range = stripPictureWidth(document) - controls.viewWidth;
    if (range < LargestScroll)
        controls.scrollMaximum = range;
    controls.scrollValue = std::clamp(controls.scrollValue, 0, controls.scrollMaximum);
    controls.scrollSmallStep = std::max(1, controls.scrollMaximum / 20);
}

// Cut behind the third decimal, not rounded.
std::string cutFigure(double value) {
    std::string text = figureText(value);
    const std::size_t comma = text.find(',');
    const std::size_t point = comma != std::string::npos ? comma : text.find('.');
    if (point != std::string::npos)
        text.resize(std::min(text.size(), point + 4));
    return text;
}

} // namespace

// The picture grows with the strip for as long as it may; what stands behind its end is out of sight.
int stripPictureWidth(const ConsistDocument& document) {
    int vehicles = 0;
    for (const Vehicule& vehicule : document.Vehicules) {
        if (vehicles + vehicule.Width + RoomBehindStrip >= WidestPicture)
            break;
        vehicles += vehicule.Width;
    }
    return std::max(document.controls.viewWidth, vehicles + RoomBehindStrip);
}

bool endIsHidden(const ConsistDocument& document) {
    const bool shown = document.controls.viewWidth > 0;
    return shown && document.StripWidth + RoomBehindStrip > stripPictureWidth(document);
}

StripHit HitTestStrip(const ConsistDocument& document, int x, int y) {
    StripHit result;
    if (!isInside(document.controls, x, y) || !hasVehicles(document))
        return result;
    const int sought = x + document.controls.scrollValue;
    int left = 0;
    for (int i = 0; i < vehicleCount(document); ++i) {
        const int right = left + document.Vehicules[static_cast<std::size_t>(i)].Width;
        if (left <= sought && sought < right) {
            result.hit = true;
            result.index = i;
            result.atFront = i == 0;
            return result;
        }
        left = right;
    }
    result.atEnd = sought >= left;
    return result;
}

std::string stripToolTip(const ConsistDocument& document, int x, int y) {
    const StripHit hit = HitTestStrip(document, x, y);
    return hit.hit ? document.Vehicules[static_cast<std::size_t>(hit.index)].Name : std::string();
}

std::optional<int> dropMarkPosition(const ConsistDocument& document) {
    if (!document.DragActive || !hasVehicles(document))
        return std::nullopt;
    const bool staysPut = document.DragSource == document.DragTarget ||
                          (document.DragTarget == document.DragSource + 1 && !document.DragAtEnd);
    if (document.StripPressed && staysPut)
        return std::nullopt;
    if (document.DragAtEnd)
        return document.StripWidth - DropMarkWidth - document.controls.scrollValue;
    const int target = std::clamp(document.DragTarget, 0, lastPosition(document));
    int left = 0;
    for (int i = 0; i < target; ++i)
        left += document.Vehicules[static_cast<std::size_t>(i)].Width;
    return left - document.controls.scrollValue;
}

void AutoScrollStrip(ConsistDocument& document, int x, int y) {
    EditorControls& controls = document.controls;
    if (!isInside(controls, x, y))
        return;
    const int zone = controls.viewWidth / 8;
    int step = 0;
    if (x > controls.viewWidth - zone)
        step = x - (controls.viewWidth - zone);
    else if (x < zone)
        step = x - zone;
    controls.scrollValue = std::clamp(controls.scrollValue + step, 0, controls.scrollMaximum);
}

void updateStrip(Editor& editor) {
    ConsistDocument& document = editor.document;
    RenumberVehicles(editor);
    ShowTotals(editor);
    updateScrollRange(document);
    document.controls.numberEnabled = hasVehicles(document);
    ++document.stripChanges;
}

std::string totalsText(const Editor& editor, std::string_view mark) {
    double length = 0, mass = 0;
    for (const Vehicule& vehicule : editor.document.Vehicules) {
        if (!vehicule.Size.empty())
            length += numericValue(lastToken(vehicule.Size));
        if (!vehicule.Mass.empty())
            mass += numericValue(vehicule.Mass);
    }
    const auto figure = [mark](double value) { return withDecimalMark(cutFigure(value), mark); };
    std::string text;
    if (length > 0)
        text = editor.frame.text(Message::TotalLength, {{"|1", figure(length)}});
    if (mass > 0)
        text = editor.frame.text(Message::TotalMass, {{"|1", text}, {"|2", figure(mass)}});
    return text;
}

void ShowTotals(Editor& editor) {
    editor.document.controls.totals = totalsText(editor, decimalMark(editor.frame.language));
}

void updateResistance(Editor& editor) {
    EditorControls& controls = editor.document.controls;
    const double value = controls.durability / 1000.0 * 29.4;
    const std::string figure = withDecimalMark(figureText(value), decimalMark(editor.frame.language));
    controls.resistance = editor.frame.text(Message::Resistance, {{"|1", figure}});
}

} // namespace zandor
