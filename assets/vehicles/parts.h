// What vehicles are made of. A part draws itself on a picture whose rail top, buffers and scale are the same
// for all vehicles, so that any two of them fit together.
#pragma once

#include "shapes.h"

#include <functional>
#include <vector>

namespace art {

// In pixels from the top: 12.5 to the metre upwards; along the rail vehicles are a little shortened, 10 to
// the metre.
inline constexpr double PictureHeight = 96;
inline constexpr double RailTop = 80;
inline constexpr double BufferLine = 67;

struct Canvas {
    QPainter& painter;
    double length; // of the vehicle over its buffers: the width of the picture
};
using Part = std::function<void(const Canvas&)>;
using Parts = std::vector<Part>;

// --- Putting parts in their place
Part group(Parts parts);
Part at(std::initializer_list<double> places, Part part); // drawn around each of these x
Part atRear(Part part);                                   // in the mirror: x counts from the rear end
Part both(Part part);                                     // at the front and at the rear

// --- Ends, drawn at the front
Part buffers();      // with the screw coupling between them
Part knuckle();      // of an automatic coupling
Part drawBar();      // of a coupling inside a unit
Part shortCoupler(); // of light stock
Part gangway(double top = 42);

// --- Running gear, around x = 0
Part wheel(double radius = 5.75);
Part spokedWheel(double radius, const QColor& colour);
Part bogie(double wheelBase, int axles = 2);
Part plateBogie(double wheelBase); // of old coaches and tenders
Part axle(double radius = 5.75);   // with its box and leaf spring
Part rods(std::vector<double> wheels, double radius, double cylinder);

// --- Underframe
Part solebar(double left, double right, double top = 65);
Part crate(double left, double right, double top = 69, double bottom = 76);
Part tank(double left, double right, const QColor& colour);
Part truss(double left, double right);
Part steps(double x);

// --- Bodies
struct Band {
    double top, bottom;
    QColor colour;
};
Part solid(QPainterPath shape, const QColor& colour, Form form = Form::Wall, std::vector<Band> bands = {});
Part roof(double left, double right, double top, double bottom, const QColor& colour);
Part upright(double x, double top, double bottom, const QColor& colour, double width = 1);
Part level(double y, double left, double right, const QColor& colour, double width = 1);
Part stroke(std::initializer_list<QPointF> points, const QColor& colour, double width = 1);

// --- Fittings
struct Row {
    double from, to; // the room that `count` equal pieces share
    int count;
    double width;
};
Part windows(Row row, double top, double bottom);
Part pane(QPainterPath shape); // one window of any outline
Part doors(Row row, double top, double bottom, const QColor& colour);
Part grilles(Row row, double top, double bottom, const QColor& colour);
Part ribs(Row row, double top, double bottom, const QColor& colour);
Part lamp(double x, double y, const QColor& colour = QColor(255, 236, 170));
Part pantograph(double base, bool raised); // around x = 0, standing on `base`
Part insulators(Row row, double base);
Part vents(Row row, double base);
Part heap(double left, double right, double base, double height, const QColor& colour); // coal, ore
Part hazardStripes(QPainterPath shape);
Part questionMark(double x, double top, double bottom, const QColor& colour);

} // namespace art
