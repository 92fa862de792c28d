#include "editor/windows/strip_painter.h"

#include "catalogue/stock_list.h"
#include "editor/coupling.h"
#include "editor/windows/vehicle_art.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/theme.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace zandor {

namespace {

constexpr QColor Red{255, 0, 0}, Green{0, 255, 0}, Blue{0, 0, 255}, Yellow{255, 255, 0};
constexpr int CouplingMarkTop = 51;
constexpr int NameMargin = 20;

struct Bar {
    int fromBottom; // its top, counted from the bottom of the strip
    int thickness;  // 0: no bar
};
struct BrakeMark {
    std::string_view brakeSystem;
    QColor colour;
    Bar bars[2];
};
constexpr BrakeMark BrakeMarks[] = {
    {"air_single_pipe", Blue, {{27, 2}, {0, 0}}},   {"air_twin_pipe", Blue, {{23, 5}, {0, 0}}},
    {"air_piped", Blue, {{27, 2}, {23, 5}}},        {"ep", Blue, {{27, 2}, {23, 5}}},
    {"vacuum_single_pipe", Red, {{16, 2}, {0, 0}}}, {"vacuum_twin_pipe", Red, {{12, 5}, {0, 0}}},
    {"vacuum_piped", Red, {{16, 2}, {12, 5}}},      {"ecp", Yellow, {{5, 2}, {0, 0}}},
};

// One vehicle in its place on the visible strip.
struct Place {
    const Vehicule& vehicule;
    const Materiel* materiel; // nullptr for a missing one
    QRect area;
};

void paintPicture(QPainter& painter, const Place& place) {
    if (place.vehicule.Missing || !place.materiel)
        return paintMissingArt(painter, place.area);
    paintVehicleArt(painter, place.area, stockClassOf(*place.materiel), place.vehicule.Flipped);
}

void paintFlipArrow(QPainter& painter, const QRect& area) {
    const QPoint tip(area.left() + area.width() - 20, area.top() + 8);
    painter.setPen(QPen(Green, 1));
    painter.drawLine(tip, tip + QPoint(5, 4));
    painter.drawLine(tip + QPoint(0, 6), tip + QPoint(5, 2));
    painter.drawLine(tip, tip + QPoint(0, 7));
    painter.fillRect(QRect(tip + QPoint(-22, 2), QSize(25, 2)), Green);
}

void paintOutline(QPainter& painter, const QRect& area) {
    painter.setPen(QPen(Yellow, 3, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area.adjusted(1, 1, -2, -2));
}

void paintTexts(QPainter& painter, const Editor& editor, const Place& place) {
    const QFontMetrics metrics = painter.fontMetrics();
    const QRect& area = place.area;
    painter.setPen(Red);
    painter.drawText(QRect(area.left(), area.top(), area.width(), metrics.height()), Qt::AlignCenter,
                     QString::number(place.vehicule.Number));
    if (place.vehicule.Missing) {
        const QRect line(area.left(), area.height() / 4 - metrics.height() / 2, area.width(),
                         metrics.height());
        painter.drawText(line, Qt::AlignCenter, toQt(editor.frame.text(Message::VehicleMissing)));
    }
    if (!editor.frame.state.PrintName)
        return;
    painter.setPen(Yellow);
    painter.drawText(area, Qt::AlignCenter, fittingName(toQt(place.vehicule.Name), metrics, area.width()));
}

void paintBrakes(QPainter& painter, const Place& place) {
    if (!place.materiel)
        return;
    const std::string system = lowerCase(place.materiel->BrakeSystem);
    const auto mark = std::ranges::find(BrakeMarks, system, &BrakeMark::brakeSystem);
    if (mark == std::end(BrakeMarks))
        return;
    for (const Bar& bar : mark->bars)
        if (bar.thickness > 0)
            painter.fillRect(place.area.left(), place.area.height() - bar.fromBottom, place.area.width() - 1,
                             bar.thickness, mark->colour);
}

std::string_view uniqueOf(const Materiel* materiel) {
    return materiel ? std::string_view(materiel->CouplingUnique) : std::string_view();
}

void paintJoint(QPainter& painter, const Editor& editor, const Vehicule& left, const Place& right) {
    const double x = right.area.left() - MarkSize / 2.0;
    if (!CouplingCompatible(left.Coupling, right.vehicule.Coupling, uniqueOf(materielOf(editor, left)),
                            uniqueOf(right.materiel)))
        return paintBadCouplingMark(painter, {x, 0});
    const std::string_view name = CouplingImageName(right.vehicule.Coupling);
    paintCouplingMark(painter, {x, CouplingMarkTop}, name.substr(0, name.find('_')));
}

void paintVehicle(QPainter& painter, const Editor& editor, const Place& place, bool held) {
    paintPicture(painter, place);
    if (held)
        paintOutline(painter, place.area);
    if (place.vehicule.Flipped && !place.vehicule.Missing)
        paintFlipArrow(painter, place.area);
    paintTexts(painter, editor, place);
    if (!place.vehicule.Missing)
        paintBrakes(painter, place);
}

void paintHint(QPainter& painter, const QSize& size, const QString& hint) {
    painter.setPen(theme::Ink);
    painter.drawText(QRect(QPoint(), size).adjusted(16, 0, -16, 0), Qt::AlignCenter | Qt::TextWordWrap, hint);
}

} // namespace

QString fittingName(const QString& name, const QFontMetrics& metrics, int width) {
    const int room = width - NameMargin;
    if (metrics.horizontalAdvance(name) <= room)
        return name;
    qsizetype fits = 0, tooLong = name.size(); // widths grow with the letters: halve instead of walking
    while (tooLong - fits > 1) {
        const qsizetype middle = (fits + tooLong) / 2;
        (metrics.horizontalAdvance(name, int(middle)) <= room ? fits : tooLong) = middle;
    }
    if (fits > 0 && name[fits - 1].isHighSurrogate())
        --fits;
    return name.left(fits);
}

void paintStrip(QPainter& painter, const Editor& editor, const QSize& size, const QString& emptyHint) {
    const ConsistDocument& document = editor.document;
    painter.fillRect(QRect(QPoint(), size), theme::Sky);
    if (!hasVehicles(document))
        return paintHint(painter, size, emptyHint);

    const Vehicule* previous = nullptr;
    int x = -document.controls.scrollValue;
    for (std::size_t i = 0; i < document.Vehicules.size() && x < size.width() + MarkSize; ++i) {
        const Vehicule& vehicule = document.Vehicules[i];
        if (vehicule.Name.empty())
            continue;
        if (x + vehicule.Width > -MarkSize) {
            const Place place{vehicule, materielOf(editor, vehicule),
                              QRect(x, 0, vehicule.Width, size.height())};
            const bool held =
                document.StripPressed && document.DragActive && document.DragSource == static_cast<int>(i);
            paintVehicle(painter, editor, place, held);
            if (previous)
                paintJoint(painter, editor, *previous, place);
        }
        previous = &vehicule;
        x += vehicule.Width;
    }
}

void paintDropMark(QPainter& painter, const ConsistDocument& document, int height) {
    if (const auto x = dropMarkPosition(document))
        painter.fillRect(*x, 0, 3, height, Red);
}

} // namespace zandor
