#include "editor/strip_drawing.h"

#include "editor/coupling.h"
#include "editor/editor_parts.h"
#include "editor/messages.h"
#include "editor/strip_scroll.h"

#include <algorithm>

namespace zandor {

namespace {

constexpr StripColour Black{0, 0, 0}, Red{255, 0, 0}, Green{0, 255, 0}, Blue{0, 0, 255}, Yellow{255, 255, 0};
constexpr int OutlineWidth = 3;
constexpr int CouplingMarkTop = 51;
constexpr int NameMargin = 20;
constexpr int NameAboveBottom = 30;

struct Bar {
    int fromBottom; // its top, counted from the bottom of the strip
    int thickness;  // 0: no bar
};
struct BrakeMark {
    std::string_view brakeSystem;
    StripColour colour;
    Bar bars[2];
};
constexpr BrakeMark BrakeMarks[] = {
    {"air_single_pipe", Blue, {{27, 2}, {0, 0}}},   {"air_twin_pipe", Blue, {{23, 5}, {0, 0}}},
    {"air_piped", Blue, {{27, 2}, {23, 5}}},        {"ep", Blue, {{27, 2}, {23, 5}}},
    {"vacuum_single_pipe", Red, {{16, 2}, {0, 0}}}, {"vacuum_twin_pipe", Red, {{12, 5}, {0, 0}}},
    {"vacuum_piped", Red, {{16, 2}, {12, 5}}},      {"ecp", Yellow, {{5, 2}, {0, 0}}},
};

struct MarkRow {
    std::string_view begin; // of the coupling's image name
    CouplingMark mark;
};
constexpr MarkRow Marks[] = {{"AUTO", CouplingMark::Auto},
                             {"BAR", CouplingMark::Bar},
                             {"CHAIN", CouplingMark::Chain},
                             {"HYDRO", CouplingMark::Hydro}};

std::string_view uniqueOf(const Materiel* materiel) {
    return materiel ? std::string_view(materiel->CouplingUnique) : std::string_view();
}

std::optional<CouplingMark> markBetween(const Editor& editor, const Vehicule& left, const Vehicule& right) {
    if (!CouplingCompatible(left.Coupling, right.Coupling, uniqueOf(materielOf(editor, left)),
                            uniqueOf(materielOf(editor, right))))
        return CouplingMark::NotCompatible;
    const std::string_view name = CouplingImageName(right.Coupling);
    for (const MarkRow& row : Marks)
        if (name.starts_with(row.begin))
            return row.mark;
    return std::nullopt;
}

// Writes down the steps, one vehicle after the other.
class StripDrawing {
  public:
    StripDrawing(const Editor& editor, PictureMeasure& pictures, const TextMeasure& texts)
        : editor_(editor), pictures_(pictures), texts_(texts) {}

    void begin(int width, bool onlyLast) {
        steps_.emplace_back(SizeStrip{width});
        if (!onlyLast)
            steps_.emplace_back(ClearStrip{StripSky});
    }

    // Returns the width that the vehicle takes up.
    int draw(int position, int x) {
        const Vehicule& vehicule = at(position);
        const Place place = placeOf(vehicule, x);
        if (position == 0 && place.hasPicture)
            steps_.emplace_back(TakeBackColour{place.picture});
        if (place.hasPicture)
            steps_.emplace_back(CopyPicture{place.picture, place.area, isTurned(vehicule)});
        if (editor_.document.DragActive && editor_.document.DragTarget == position)
            steps_.emplace_back(DrawOutline{place.area, OutlineWidth, Yellow});
        if (isTurned(vehicule))
            drawArrow(place.area);
        printTexts(vehicule, place.area);
        if (!vehicule.Missing)
            drawBrakes(vehicule, place.area);
        if (position > 0)
            drawJoint(at(position - 1), vehicule, x);
        return place.area.width;
    }

    std::vector<StripStep> steps() && { return std::move(steps_); }

  private:
    struct Place {
        PictureName picture;
        bool hasPicture;
        StripRect area;
    };

    const Vehicule& at(int position) const {
        return editor_.document.Vehicules[static_cast<std::size_t>(position)];
    }
    static bool isTurned(const Vehicule& vehicule) { return vehicule.Flipped && !vehicule.Missing; }

    // A vehicle whose picture is gone keeps the room that it was given.
    Place placeOf(const Vehicule& vehicule, int x) {
        PictureName picture = pictureOf(vehicule);
        const auto size = pictures_.size(picture);
        const PictureSize shown = size.value_or(PictureSize{vehicule.Width, PlainPictureHeight});
        return {std::move(picture), size.has_value(), {x, 0, shown.width, shown.height}};
    }

    // Nothing of it reaches over the picture's left edge.
    void drawArrow(const StripRect& area) {
        const int x = area.left + area.width - 20, y = area.top + 8;
        if (x >= area.left) {
            steps_.emplace_back(DrawLine{x, y, x + 5, y + 4, Green});
            steps_.emplace_back(DrawLine{x, y + 6, x + 5, y + 2, Green});
            steps_.emplace_back(DrawLine{x, y, x, y + 7, Green});
        }
        const int left = std::max(area.left, x - 22), right = x + 3;
        if (left < right)
            steps_.emplace_back(FillBar{{left, y + 2, right - left, 2}, Green});
    }

    void print(std::string text, const Vehicule& vehicule, int x, int top, StripColour colour) {
        if (!text.empty())
            steps_.emplace_back(
                PrintText{std::move(text), {x, top, vehicule.Width, texts_.height()}, colour});
    }

    void printTexts(const Vehicule& vehicule, const StripRect& area) {
        const int half = texts_.height() / 2;
        if (vehicule.Missing)
            print(editor_.frame.text(message::VehicleMissing), vehicule, area.left, area.height / 4 - half,
                  Red);
        print(std::to_string(vehicule.Number), vehicule, area.left, 0, Red);
        if (!editor_.frame.state.PrintName)
            return;
        std::string name(fittingName(vehicule.Name, texts_, vehicule.Width));
        if (vehicule.ImageIsGeneric)
            print(std::move(name), vehicule, area.left, area.height / 2 - half, Yellow);
        else
            print(std::move(name), vehicule, area.left, StripHeight - NameAboveBottom - texts_.height(),
                  Black);
    }

    void drawBrakes(const Vehicule& vehicule, const StripRect& area) {
        const Materiel* materiel = materielOf(editor_, vehicule);
        if (!materiel || area.width < 2)
            return;
        const auto* mark =
            std::ranges::find(BrakeMarks, lowerCase(materiel->BrakeSystem), &BrakeMark::brakeSystem);
        if (mark == std::end(BrakeMarks))
            return;
        for (const Bar& bar : mark->bars)
            if (bar.thickness > 0)
                steps_.emplace_back(FillBar{
                    {area.left, StripHeight - bar.fromBottom, area.width - 1, bar.thickness}, mark->colour});
    }

    void drawJoint(const Vehicule& left, const Vehicule& right, int x) {
        const auto mark = markBetween(editor_, left, right);
        if (!mark)
            return;
        const int top = *mark == CouplingMark::NotCompatible ? 0 : CouplingMarkTop;
        steps_.emplace_back(PlaceMark{*mark, x - pictures_.markWidth(*mark) / 2, top});
    }

    const Editor& editor_;
    PictureMeasure& pictures_;
    const TextMeasure& texts_;
    std::vector<StripStep> steps_;
};

int drawnBefore(const ConsistDocument& document, int position) {
    int width = 0;
    for (int i = 0; i < position; ++i)
        width += document.Vehicules[static_cast<std::size_t>(i)].DrawnWidth;
    return width;
}

// Start of the character that ends before `end`.
std::size_t characterStart(std::string_view text, std::size_t end) {
    while (end > 0 && end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;
    return end;
}

} // namespace

PictureName pictureOf(const Vehicule& vehicule) {
    if (vehicule.ImageIsGeneric)
        return {true, std::to_string(numericInt16(vehicule.Picture))};
    return {vehicule.ImageIsResource, vehicule.Picture};
}

std::string_view fittingName(std::string_view name, const TextMeasure& texts, int width) {
    const int room = width - NameMargin;
    if (texts.width(name) <= room)
        return name;
    std::size_t fits = 0, tooLong = name.size(); // widths grow with the letters: halve instead of walking
    while (tooLong - fits > 1) {
        const std::size_t middle = (fits + tooLong) / 2;
        (texts.width(name.substr(0, characterStart(name, middle))) <= room ? fits : tooLong) = middle;
    }
    return name.substr(0, characterStart(name, fits));
}

std::vector<StripStep> DrawStrip(Editor& editor, PictureMeasure& pictures, const TextMeasure& texts,
                                 int viewWidth, bool onlyLast) {
    ConsistDocument& document = editor.document;
    StripDrawing drawing(editor, pictures, texts);
    const int count = vehicleCount(document), end = stripPictureWidth(document, viewWidth);
    drawing.begin(end, onlyLast);
    int position = onlyLast ? std::max(0, count - 1) : 0;
    int x = drawnBefore(document, position);
    for (; position < count; ++position) {
        Vehicule& vehicule = document.Vehicules[static_cast<std::size_t>(position)];
        // What stands behind the picture's end isn't seen.
        vehicule.DrawnWidth = x < end ? drawing.draw(position, x) : vehicule.Width;
        x += vehicule.DrawnWidth;
    }
    return std::move(drawing).steps();
}

} // namespace zandor
