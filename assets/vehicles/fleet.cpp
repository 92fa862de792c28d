#include "fleet.h"

namespace art {

namespace {

// The two railways of the demonstration and the works line.
constexpr QColor OrmeBlue{38, 84, 152}, OrmeCream{236, 228, 206}, OrmeRed{184, 42, 44},
    OrmeGold{240, 190, 60};
constexpr QColor OrmeGreen{40, 84, 62}, Night{34, 44, 84}, RoofGrey{150, 158, 166}, RoofDark{92, 98, 106};
constexpr QColor FellGreen{36, 86, 52}, FellMaroon{124, 34, 44}, FellCream{238, 222, 184},
    FellRed{190, 40, 36};
constexpr QColor SteamBlack{46, 50, 57}, Smokebox{36, 38, 43}, BrassBand{214, 176, 84};
constexpr QColor OreRed{138, 72, 50}, WagonBrown{122, 84, 58}, Plank{156, 120, 82}, Silver{206, 212, 218};
constexpr QColor Coal{44, 46, 52}, Ore{150, 82, 58}, SafetyYellow{238, 186, 40}, TankGrey{120, 126, 134};
constexpr QColor SetTeal{26, 128, 132}, Iron{38, 41, 47}, Handrail{220, 224, 228};

Parts operator+(Parts first, Parts second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Part ends(const Part& front, const Part& rear) {
    return group({front, atRear(rear)});
}

// --- Locomotives

struct BoBo {
    double length;
    QColor body;
    std::vector<Band> bands;
    Part ends;
    Row grilles, windows;
    double bogieAt;
};

// A cab at either end, two bogies, two pantographs of which the rear one is up.
Parts boBo(const BoBo& look) {
    const double l = look.length;
    const QPainterPath shell =
        profile({{5, 70, 1}, {4, 56, 2}, {12, 38, 4}, {l - 12, 38, 4}, {l - 4, 56, 2}, {l - 5, 70, 1}});
    const Part cab = group({pane(profile({{7.5, 52, 1}, {12.5, 40.5, 1}, {16, 40.5}, {16, 52}})),
                            windows({20, 29, 1, 9}, 42, 52), doors({32, 39, 1, 7}, 42, 67, look.body),
                            lamp(8, 61.5), upright(30.5, 46, 66, withAlpha(Handrail, 200)), steps(32)});
    return {look.ends,
            solebar(8, l - 8, 68),
            crate(l / 2 - 15, l / 2 + 15, 71, 77),
            at({look.bogieAt, l - look.bogieAt}, bogie(28)),
            solid(box(30, 34, l - 30, 39, 2), RoofDark, Form::Roof),
            insulators({l / 2 - 14, l / 2 + 14, 3, 3}, 35),
            level(30.5, l / 2 - 16, l / 2 + 16, Iron),
            solid(shell, look.body, Form::Wall, look.bands),
            both(cab),
            grilles(look.grilles, 43, 51, look.body),
            windows(look.windows, 44, 50),
            at({l - 31}, pantograph(35, true)),
            at({31}, pantograph(35, false))};
}

struct CoCo {
    double length;
    QColor body;
    std::vector<Band> bands;
    Part ends;
    double bogieAt, wheelBase;
    int axles;
};

// A full-width diesel with one cab at the front.
Parts coCo(const CoCo& look) {
    const double l = look.length;
    const QPainterPath shell = profile(
        {{5, 70, 1}, {4, 57, 2}, {9, 52, 2}, {15, 35, 4}, {l - 9, 35, 3}, {l - 5, 39, 2}, {l - 5, 70, 1}});
    return {look.ends,
            solebar(8, l - 8, 68),
            tank(l / 2 - 17, l / 2 + 17, TankGrey),
            at({look.bogieAt, l - look.bogieAt}, bogie(look.wheelBase, look.axles)),
            vents({l * 0.62, l * 0.9, 2, 14}, 35),
            solid(box(l * 0.44, 31, l * 0.44 + 12, 36, 1), Iron, Form::Roof),
            solid(shell, look.body, Form::Wall, look.bands),
            pane(profile({{11, 51, 1}, {15.5, 38, 1}, {20, 38}, {20, 51}})),
            windows({24, 34, 1, 10}, 40, 51),
            doors({37, 45, 1, 8}, 40, 67, look.body),
            upright(35.5, 44, 66, withAlpha(Handrail, 200)),
            grilles({52, l * 0.6, 2, l * 0.6 / 2 - 30}, 40, 49, look.body),
            grilles({l * 0.64, l - 14, 3, (l * 0.36 - 24) / 3}, 40, 49, look.body),
            lamp(8.5, 62),
            steps(37),
            both(steps(9))};
}

// A boiler with its smokebox in front, on a running plate.
Part boiler(double smokebox, double front, double cab, double top, double bottom, const QColor& colour,
            std::initializer_list<double> bands) {
    Parts parts{solid(box(front, top, cab, bottom), colour, Form::Barrel),
                solid(box(smokebox, top - 0.5, front, bottom + 1, 1.5), Smokebox, Form::Barrel),
                solid(box(smokebox - 1.5, top + 3, smokebox + 0.5, bottom - 3, 1), Smokebox, Form::Barrel)};
    for (const double x : bands)
        parts.push_back(solid(box(x, top, x + 1.6, bottom), BrassBand, Form::Barrel));
    return group(std::move(parts));
}

Part chimney(double x, double top, double bottom) {
    return solid(profile({{x - 4, bottom},
                          {x - 2.6, bottom - 3, 2},
                          {x - 3, top + 2},
                          {x - 4.2, top + 1.5},
                          {x - 4, top, 1},
                          {x + 4, top, 1},
                          {x + 4.2, top + 1.5},
                          {x + 3, top + 2},
                          {x + 2.6, bottom - 3, 2},
                          {x + 4, bottom}}),
                 Smokebox, Form::Wall);
}

Part dome(double x, double top, double bottom, const QColor& colour) {
    return solid(profile({{x - 5.5, bottom}, {x - 4.5, top, 4}, {x + 4.5, top, 4}, {x + 5.5, bottom}}),
                 colour, Form::Wall);
}

Part cylinder(double left, double right, const QColor& colour) {
    return group({solid(box(left, 66, right, 74, 1.5), colour, Form::Barrel),
                  solid(box(left + 2, 62.5, right - 2, 67, 1.5), colour, Form::Barrel)});
}

Part cabRoof(double left, double right, double top) {
    return solid(profile({{left, top + 5}, {left + 1, top, 4}, {right - 1, top, 4}, {right, top + 5}}),
                 RoofDark, Form::Roof);
}

// A panel with a thin line inside its edge.
Part lined(double left, double top, double right, double bottom, const QColor& colour, const QColor& lining) {
    return group(
        {solid(box(left, top, right, bottom, 1), colour), level(top + 3.5, left + 3, right - 3, lining),
         level(bottom - 3.5, left + 3, right - 3, lining), upright(left + 3.5, top + 3, bottom - 3, lining),
         upright(right - 3.5, top + 3, bottom - 3, lining)});
}

Parts pacific(double length) {
    return {ends(buffers(), drawBar()),
            at({14, 26}, spokedWheel(5, FellRed)),
            at({length - 14}, spokedWheel(6.2, FellRed)),
            at({47, 70, 93}, spokedWheel(11, FellRed)),
            solid(box(20, 64, length - 4, 67), Smokebox),
            solid(profile({{4, 64}, {22, 64}, {22, 69}, {4, 70}}), FellRed),
            boiler(14, 31, length - 30, 38, 60, FellGreen, {48, 66, 84}),
            solid(profile({{length - 44, 38}, {length - 26, 36}, {length - 26, 66}, {length - 48, 66}}),
                  FellGreen, Form::Barrel),
            chimney(21, 27, 39),
            dome(58, 31, 39, FellGreen),
            dome(76, 34, 39, BrassBand),
            solid(profile({{8, 64}, {12, 46, 3}, {27, 46, 3}, {27, 64}}), FellGreen.darker(115)),
            level(63.5, 30, length - 24, FellRed),
            lined(length - 29, 37, length - 4, 66, FellGreen, BrassBand),
            windows({length - 23, length - 8, 1, 13}, 42, 52),
            cabRoof(length - 32, length, 33),
            cylinder(18, 33, FellGreen),
            rods({47, 70, 93}, 11, 33),
            lamp(8, 61.5),
            upright(length - 3.5, 48, 68, BrassBand)};
}

Parts tankEngine(double l, const QColor& colour, const QColor& lining, const QColor& wheels) {
    const double first = l < 110 ? l / 2 - 23 : l / 2 - 18; // a longer one has a leading axle
    return {both(buffers()),
            at({l < 110 ? first : 22}, spokedWheel(6, wheels)),
            at({first, first + 22, first + 44}, spokedWheel(9, wheels)),
            solid(box(5, 64, l - 5, 68), Smokebox),
            solid(box(5, 63, 8, 70), FellRed),
            solid(box(l - 8, 63, l - 5, 70), FellRed),
            boiler(13, 26, l - 34, 39, 58, colour, {31}),
            chimney(19, 28, 40),
            dome(44, 32, 40, BrassBand),
            lined(28, 47, l - 36, 65, colour, lining),
            lined(l - 36, 38, l - 14, 65, colour, lining),
            windows({l - 30, l - 20, 1, 10}, 43, 52),
            cabRoof(l - 39, l - 11, 33),
            heap(l - 15, l - 7, 50, 5, Coal),
            lined(l - 15, 49, l - 6, 65, colour, colour),
            cylinder(11, 23, colour),
            rods({first, first + 22, first + 44}, 9, 23),
            lamp(10, 60)};
}

// A low hood at either side of a cab.
struct Switcher {
    double length;
    QColor body;
    double cabLeft, cabRight;
    Parts runningGear;
    Part ends;
};
Parts switcher(const Switcher& look) {
    const double l = look.length;
    return Parts{look.ends} + look.runningGear +
           Parts{
               solebar(6, l - 6, 65),
               solid(profile({{10, 66}, {10, 49, 4}, {look.cabLeft + 1, 47, 1}, {look.cabLeft + 1, 66}}),
                     look.body),
               solid(
                   profile(
                       {{look.cabRight - 1, 66}, {look.cabRight - 1, 47, 1}, {l - 10, 49, 4}, {l - 10, 66}}),
                   look.body),
               grilles({13, look.cabLeft - 3, 2, (look.cabLeft - 20) / 2}, 52, 60, look.body),
               grilles({look.cabRight + 4, l - 13, 1, l - look.cabRight - 18}, 52, 60, look.body),
               solid(box(look.cabLeft - 10, 41, look.cabLeft - 6, 48, 1), Iron, Form::Wall),
               solid(box(look.cabLeft, 37, look.cabRight, 66, 2), look.body, Form::Wall),
               windows({look.cabLeft + 3, look.cabRight - 3, 2, (look.cabRight - look.cabLeft) / 2 - 5}, 41,
                       51),
               cabRoof(look.cabLeft - 2, look.cabRight + 2, 33),
               both(hazardStripes(box(6, 62, 10, 70))),
               both(stroke({{7.5, 62}, {7.5, 51.5}, {20, 51.5}}, withAlpha(Handrail, 220))),
               both(lamp(12, 55)),
               both(steps(10))};
}

// --- Coaches

struct Coach {
    double length;
    QColor wall, roof;
    std::vector<Band> bands;
    Parts sides;
    Part ends;
};

// What hangs between the bogies of a full-length coach.
Part equipment(double l) {
    return group({crate(l * 0.34, l * 0.34 + 26, 71, 77), tank(l * 0.47, l * 0.47 + 14, TankGrey),
                  crate(l * 0.55, l * 0.55 + 18, 71, 77)});
}

Parts coach(const Coach& look) {
    const double l = look.length;
    const bool isLong = l > 160;
    return Parts{look.ends,
                 both(gangway()),
                 solebar(10, l - 10, 68),
                 isLong ? equipment(l) : crate(l / 2 - 10, l / 2 + 10, 71, 77),
                 both(at({isLong ? 38.0 : 29.0}, bogie(isLong ? 25 : 22))),
                 vents({l * 0.2, l * 0.8, 4, 16}, 32),
                 roof(4, l - 4, 31, 40, look.roof),
                 solid(box(4, 39, l - 4, 70, 1), look.wall, Form::Wall, look.bands),
                 both(steps(8))} +
           look.sides;
}

// An old coach with a door to every compartment.
Parts compartmentCoach(double l, int compartments) {
    const double step = (l - 12) / compartments;
    Parts parts{
        both(buffers()),
        solebar(6, l - 6, 66),
        truss(42, l - 42),
        both(at({26}, plateBogie(20))),
        vents({16, l - 16, compartments, 5}, 34),
        roof(4, l - 4, 33, 40, RoofGrey),
        solid(box(5, 39, l - 5, 67), FellMaroon, Form::Wall, {{39, 54, FellCream}, {53.5, 54.5, BrassBand}})};
    for (int i = 0; i < compartments; ++i) {
        const double x = std::round(6 + i * step);
        parts.push_back(windows({x + 2, x + 4, 1, 3}, 44, 51));
        parts.push_back(windows({x + step - 5, x + step - 3, 1, 3}, 44, 51));
        parts.push_back(doors({x + step / 2 - 3.5, x + step / 2 + 3.5, 1, 7}, 41, 66, FellMaroon));
    }
    parts.push_back(level(67.5, 8, l - 8, QColor(92, 66, 44)));
    return parts;
}

Parts guardsVan(double l) {
    return {both(buffers()),
            solebar(6, l - 6, 66),
            truss(44, l - 44),
            at({28, l - 28}, axle()),
            vents({24, l - 24, 3, 5}, 34),
            roof(4, l - 4, 33, 40, RoofGrey),
            solid(box(5, 39, l - 5, 67), FellMaroon, Form::Wall, {{53.5, 54.5, BrassBand}}),
            ribs({14, l - 14, 7, 1}, 40, 66, FellMaroon),
            doors({22, 56, 2, 12}, 42, 66, FellMaroon),
            doors({l - 30, l - 20, 1, 9}, 42, 66, FellMaroon),
            solid(profile({{l - 52, 40},
                           {l - 51, 35, 2},
                           {l - 39, 35, 2},
                           {l - 38, 40},
                           {l - 38, 64, 2},
                           {l - 52, 64, 2}}),
                  FellMaroon.lighter(112), Form::Wall),
            windows({l - 49, l - 41, 1, 8}, 43, 51)};
}

Parts railbus(double l, bool cabs) {
    const QPainterPath shell =
        profile({{5, 70, 2}, {4, 54, 3}, {9, 39, 5}, {l - 9, 39, 5}, {l - 4, 54, 3}, {l - 5, 70, 2}});
    const Part front = group({pane(profile({{7, 52, 1}, {10.5, 42, 1}, {13, 42}, {13, 52}})), lamp(7.5, 62)});
    Parts parts{both(shortCoupler()),
                both(at({30}, axle())),
                crate(46, l - 46, 71, 77),
                vents({l * 0.3, l * 0.7, 2, 14}, 35),
                roof(8, l - 8, 34, 41, RoofGrey),
                solid(shell, OrmeCream, Form::Wall, {{56, 70, OrmeRed}, {39, 41, OrmeRed}}),
                both(front),
                doors({17, l - 17, 2, 11}, 43, 68, OrmeRed),
                windows({32, l - 32, int((l - 64) / 13), 10}, 44, 53)};
    if (cabs)
        parts.push_back(solid(box(l * 0.44, 31, l * 0.44 + 20, 36, 2), RoofDark, Form::Roof));
    return parts;
}

struct SetCar {
    double length;
    bool nose;
};
Parts setCar(const SetCar& car) {
    const double l = car.length;
    const QPainterPath plain = box(4, 33, l - 4, 71, 3);
    const QPainterPath nosed =
        profile({{6, 71, 3}, {3, 63, 4}, {18, 42, 14}, {42, 33, 14}, {l - 4, 33, 3}, {l - 4, 71, 2}});
    const double from = car.nose ? 48 : 30;
    const Part inner = group({drawBar(), gangway()});
    Parts parts{ends(car.nose ? knuckle() : inner, inner),
                at({34, l - 34}, bogie(25)),
                crate(62, l - 62, 71, 77),
                car.nose ? solid(box(60, 30, l - 60, 35, 2), RoofDark, Form::Roof)
                         : vents({40, l - 40, 3, 22}, 33),
                solid(car.nose ? nosed : plain, Silver, Form::Wall,
                      {{43, 57, QColor(44, 56, 72)}, {60, 65, SetTeal}, {66, 67, OrmeGold}}),
                doors({from, l - 18, 3, 11}, 43, 69, SetTeal)};
    const double gap = (l - 18 - 11 - from) / 2;
    for (const double left : {from + 15, from + gap + 15})
        parts.push_back(windows({left, left + gap - 19, 3, (gap - 19) / 3 - 2}, 45, 55));
    if (car.nose) {
        parts.push_back(pane(profile({{14, 52, 1}, {24, 42, 3}, {36, 42, 1}, {36, 52, 1}})));
        parts.push_back(lamp(9, 60.5));
        parts.push_back(at({100}, pantograph(31, true)));
    }
    return parts;
}

// --- Wagons

Parts hopper(double l, bool full) {
    const QPainterPath tub =
        profile({{7, 38, 1}, {l - 7, 38, 1}, {l - 10, 44}, {l - 32, 70, 2}, {32, 70, 2}, {10, 44}});
    Parts parts{both(knuckle()), solebar(5, l - 5, 66), both(at({24}, plateBogie(19)))};
    if (full)
        parts.push_back(heap(9, l - 9, 39, 9, Ore));
    return parts +
           Parts{
               both(stroke({{10.5, 66}, {10.5, 42}}, Iron, 2)),
               both(stroke({{8, 66}, {30, 66}, {12, 46}}, Iron, 1.4)),
               solid(tub, OreRed),
               both(ribs({16, 27, 2, 2}, 41, 49, OreRed)),
               ribs({38, l - 38, 5, 2}, 41, 69, OreRed),
               solid(box(6, 37, l - 6, 41, 1), OreRed.lighter(110)),
               solid(profile({{l / 2 - 22, 68}, {l / 2 + 22, 68}, {l / 2 + 14, 75, 1}, {l / 2 - 14, 75, 1}}),
                     Iron, Form::Wall),
               both(steps(7))};
}

Parts flatWagon(double l, const QColor& frame, bool stakes) {
    Parts parts{both(buffers()), truss(38, l - 38), both(at({24}, axle())),
                solid(box(5, 64, l - 5, 69), frame), solid(box(4, 61.5, l - 4, 64.5), Plank, Form::Wall)};
    for (double x = 12; x < l - 8; x += 8)
        parts.push_back(upright(x + 0.5, 62, 64, Plank.darker(160)));
    if (stakes)
        parts.push_back(ribs({8, l - 10, 7, 2}, 44, 68, Iron));
    return parts;
}

Parts adapterWagon(double l) {
    return {ends(buffers(), knuckle()),
            both(at({24}, axle())),
            solid(profile({{5, 70},
                           {5, 60, 1},
                           {30, 60, 1},
                           {34, 64},
                           {l - 34, 64},
                           {l - 30, 60, 1},
                           {l - 5, 60, 1},
                           {l - 5, 70}}),
                  SafetyYellow),
            both(hazardStripes(box(6, 61, 26, 66))),
            both(stroke({{7.5, 61}, {7.5, 48.5}, {16, 48.5}, {16, 61}}, SafetyYellow.darker(120), 1.4)),
            solid(box(l / 2 - 12, 53, l / 2 + 12, 65, 1), TankGrey)};
}

Parts boxVan(double l, const QColor& wall, const QColor& frame) {
    return {both(buffers()),
            solebar(6, l - 6, 65),
            l > 100 ? truss(36, l - 36) : group({}),
            both(at({l > 100 ? 25.0 : 20.0}, axle())),
            roof(4, l - 4, 37, 43, RoofGrey),
            solid(box(5, 42, l - 5, 66), wall),
            level(48.5, 6, l - 6, withAlpha(Iron, 50)),
            level(54.5, 6, l - 6, withAlpha(Iron, 50)),
            level(60.5, 6, l - 6, withAlpha(Iron, 50)),
            ribs({8, l - 10, 2, 2}, 42, 66, frame),
            stroke({{10, 65}, {l / 2 - 12, 44}}, frame, 1.4),
            stroke({{l - 10, 65}, {l / 2 + 12, 44}}, frame, 1.4),
            solid(box(l / 2 - 11, 43, l / 2 + 11, 66), wall.lighter(104)),
            upright(l / 2, 43, 66, withAlpha(Iron, 160)),
            both(stroke({{l / 2 - 9, 54}, {l / 2 - 3, 54}}, Iron, 1.6))};
}

Parts wreck(double l) {
    const QColor rust(142, 84, 48), paint(112, 120, 112);
    return {both(drawBar()),
            buffers(),
            both(at({22}, axle())),
            solebar(6, l - 4, 65),
            solid(profile({{6, 66},
                           {6, 46},
                           {20, 47},
                           {27, 51},
                           {33, 45},
                           {52, 44},
                           {58, 52},
                           {66, 48},
                           {71, 57},
                           {l - 6, 55},
                           {l - 6, 66}}),
                  paint),
            pane(profile({{40, 57}, {46, 54}, {52, 58}, {50, 63}, {43, 63}})),
            solid(profile({{12, 66}, {14, 58, 2}, {22, 56, 2}, {28, 62, 2}, {30, 66}}), rust),
            solid(profile({{56, 66}, {57, 60, 2}, {64, 58, 2}, {74, 62, 2}, {76, 66}}), rust),
            ribs({9, 62, 4, 2}, 52, 66, rust),
            stroke({{70, 60}, {78, 40}}, rust, 2),
            stroke({{26, 52}, {20, 38}}, rust, 1.6)};
}

Parts trolley(double l) {
    return {
        both(drawBar()),
        at({14, l - 14}, wheel(5)),
        solid(box(4, 66, l - 4, 71, 1), Iron),
        solid(profile({{6, 66}, {6, 56, 2}, {11, 54}, {15, 42, 3}, {l - 8, 42, 3}, {l - 6, 46}, {l - 6, 66}}),
              SafetyYellow),
        pane(profile({{12.5, 54}, {15.5, 45, 1}, {21, 45}, {21, 54}})),
        windows({24, l - 9, 2, 8}, 45, 54),
        cabRoof(12, l - 4, 38),
        hazardStripes(box(6, 62, l - 6, 65.5)),
        lamp(8.5, 59.5),
        solid(box(24, 36.5, 30, 39.5, 1), QColor(240, 130, 30))};
}

Parts tender(double l, const QColor& colour, const QColor& lining, Part ends) {
    return {std::move(ends),
            solebar(5, l - 5, 65),
            both(at({l * 0.26}, plateBogie(l * 0.2))),
            heap(10, l - 18, 46, 10, Coal),
            solid(profile({{6, 66},
                           {6, 48, 2},
                           {9, 45, 1},
                           {l - 20, 45, 1},
                           {l - 16, 50, 1},
                           {l - 6, 50, 1},
                           {l - 6, 66}}),
                  colour),
            level(53.5, 9, l - 9, lining),
            level(62.5, 9, l - 9, lining),
            upright(9.5, 53, 63, lining),
            upright(l - 9.5, 53, 63, lining),
            solid(box(l - 15, 46, l - 9, 51, 1), colour)};
}

// The outline of a vehicle that isn't there.
Parts missing(double l) {
    const QColor ghost(70, 104, 140);
    const auto outline = [=](const Canvas& c) {
        QPen dashes(ghost, 2);
        dashes.setDashPattern({3, 2});
        const QPainterPath body = profile({{6, 69, 2}, {6, 37, 5}, {l - 6, 37, 5}, {l - 6, 69, 2}});
        c.painter.fillPath(body, QColor(255, 255, 255, 80));
        c.painter.strokePath(body, dashes);
        for (const double x : {22.0, 36.0, l - 36, l - 22})
            c.painter.strokePath(disc(x, RailTop - 6, 5), QPen(ghost, 1.6));
    };
    return {outline, questionMark(l / 2, 41, 66, QColor(186, 40, 40))};
}

} // namespace

std::vector<Vehicle> builtInVehicles() {
    constexpr int TypeWidth = 121;
    constexpr double L = TypeWidth;
    return {
        {"5000", TypeWidth,
         boBo({L,
               QColor(30, 78, 140),
               {{66, 67.5, OrmeCream}},
               both(buffers()),
               {46, 75, 2, 12},
               {0, 0, 0, 0},
               28})},
        {"5001", TypeWidth,
         coCo({L, QColor(146, 43, 38), {{66, 67.5, OrmeGold}}, both(buffers()), 27, 24, 2})},
        {"5002", TypeWidth, tankEngine(L, SteamBlack, FellRed, FellRed)},
        {"5003", TypeWidth,
         coach({L,
                QColor(28, 92, 72),
                RoofGrey,
                {{58, 59, OrmeCream}},
                {both(doors({9, 17, 1, 8}, 42, 69, QColor(24, 78, 62))), windows({24, L - 24, 6, 9}, 44, 54)},
                both(buffers())})},
        {"5004", TypeWidth, boxVan(L, WagonBrown, Iron)},
        {"5005", TypeWidth, tender(L, SteamBlack, FellRed, both(buffers()))},
        {"NO_MATERIEL", TypeWidth, missing(L)},
    };
}

std::vector<Vehicle> demonstrationFleet() {
    const std::vector<Band> expressBands{{43, 57, OrmeCream}, {59, 60, OrmeCream}};
    return {
        {"ORMEBB4", 162,
         boBo({162,
               OrmeBlue,
               {{54, 60, OrmeCream}, {66, 68, OrmeGold}},
               both(knuckle()),
               {46, 116, 3, 20},
               {0, 0, 0, 0},
               38})},
        {"ormebb4_old", 162,
         boBo({162,
               OrmeGreen,
               {{60, 61, OrmeGold}, {66, 67, OrmeGold}},
               both(buffers()),
               {46, 116, 4, 9},
               {58, 104, 3, 8},
               38})},
        {"ODX12", 185,
         coCo({185, OrmeRed, {{54, 59, OrmeCream}, {66, 68, OrmeGold}}, both(knuckle()), 42, 36, 3})},
        {"odx_shunter", 94,
         switcher({94,
                   SafetyYellow,
                   54,
                   78,
                   {at({23, 47, 71}, wheel(6.5)), rods({23, 47, 71}, 6.5, 40)},
                   both(buffers())})},
        {"Works_Loco", 111,
         switcher({111, FellGreen, 60, 88, {both(at({28}, bogie(22)))}, ends(buffers(), knuckle())})},
        {"orme_set5_a", 204, setCar({204, true})},
        {"orme_set5_m", 201, setCar({201, false})},
        {"Orme Railbus 2", 136, railbus(136, true)},
        {"Orme Railbus Trailer", 121, railbus(121, false)},
        {"Fell_Pacific", 133, pacific(133)},
        {"Fell_Pacific_Tender", 81, tender(81, FellGreen, BrassBand, ends(drawBar(), buffers()))},
        {"Fell_Tank", 99, tankEngine(99, FellMaroon, BrassBand, SteamBlack)},
        {"Orme_First", 245,
         coach({245,
                OrmeBlue,
                RoofGrey,
                {{43, 57, OrmeCream}, {40, 42, OrmeGold}},
                {both(doors({9, 19, 1, 10}, 42, 69, OrmeBlue)), windows({28, 217, 9, 15}, 45, 55)},
                both(knuckle())})},
        {"Orme_Second", 245,
         coach({245,
                OrmeBlue,
                RoofGrey,
                expressBands,
                {both(doors({9, 19, 1, 10}, 42, 69, OrmeBlue)), windows({28, 217, 11, 12}, 45, 55)},
                both(knuckle())})},
        {"Orme_Buffet", 245,
         coach({245,
                OrmeBlue,
                RoofGrey,
                {{43, 57, OrmeCream}, {40, 42, OrmeRed}, {59, 60, OrmeCream}},
                {both(doors({9, 19, 1, 10}, 42, 69, OrmeBlue)), windows({28, 128, 4, 20}, 45, 55),
                 grilles({140, 184, 2, 18}, 45, 53, OrmeCream), windows({194, 217, 2, 9}, 45, 51)},
                ends(knuckle(), buffers())})},
        {"Orme_Sleeper", 251,
         coach({251,
                Night,
                RoofDark,
                {{42, 43, OrmeGold}, {58, 59, OrmeGold}},
                {both(doors({9, 19, 1, 10}, 42, 69, Night)), windows({28, 223, 12, 8}, 46, 54)},
                both(knuckle())})},
        {"Fell_Third", 158, compartmentCoach(158, 7)},
        {"Fell_Van", 122, guardsVan(122)},
        {"Fell_Fish", 79, boxVan(79, QColor(226, 228, 226), TankGrey)},
        {"Orme_Hopper", 134, hopper(134, false)},
        {"Orme_Hopper_Full", 134, hopper(134, true)},
        {"Orme_Flat", 126, flatWagon(126, Iron, true)},
        {"orme_adapter", 100, adapterWagon(100)},
        {"Orme_Wreck", 90, wreck(90)},
        {"Orme_Trolley", 52, trolley(52)},
    };
}

} // namespace art
