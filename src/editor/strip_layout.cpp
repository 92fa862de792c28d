#include "editor/editor_parts.h"
#include "editor/messages.h"

#include <algorithm>

namespace zandor {

namespace {

constexpr int DropMarkWidth = 3;

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

StripHit HitTestStrip(const ConsistDocument& document, StripPoint point) {
    StripHit result;
    if (!point || !hasVehicles(document))
        return result;
    int left = 0;
    for (int i = 0; i < vehicleCount(document); ++i) {
        const int right = left + document.Vehicules[static_cast<std::size_t>(i)].Width;
        if (left <= *point && *point < right) {
            result.hit = true;
            result.index = i;
            result.atFront = i == 0;
            return result;
        }
        left = right;
    }
    result.atEnd = *point >= left;
    return result;
}

std::string stripToolTip(const ConsistDocument& document, StripPoint point) {
    const StripHit hit = HitTestStrip(document, point);
    return hit.hit ? document.Vehicules[static_cast<std::size_t>(hit.index)].Name : std::string();
}

StripPoint dropMarkPosition(const ConsistDocument& document) {
    if (!document.DragActive || !hasVehicles(document))
        return std::nullopt;
    const bool staysPut = document.DragSource == document.DragTarget ||
                          (document.DragTarget == document.DragSource + 1 && !document.DragAtEnd);
    if (document.StripPressed && staysPut)
        return std::nullopt;
    if (document.DragAtEnd)
        return document.StripWidth - DropMarkWidth;
    const int target = std::clamp(document.DragTarget, 0, lastPosition(document));
    return leftOf(document, target);
}

void updateStrip(Editor& editor) {
    ConsistDocument& document = editor.document;
    RenumberVehicles(editor);
    ShowTotals(editor);
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
        text = editor.frame.text(message::TotalLength, {{"|1", figure(length)}});
    if (mass > 0)
        text = editor.frame.text(message::TotalMass, {{"|1", text}, {"|2", figure(mass)}});
    return text;
}

void ShowTotals(Editor& editor) {
    editor.document.controls.totals = totalsText(editor, decimalMark(editor.frame.language));
}

void updateResistance(Editor& editor) {
    EditorControls& controls = editor.document.controls;
    const double value = controls.durability / 1000.0 * 29.4;
    const std::string figure = withDecimalMark(figureText(value), decimalMark(editor.frame.language));
    controls.resistance = editor.frame.text(message::Resistance, {{"|1", figure}});
}

} // namespace zandor
