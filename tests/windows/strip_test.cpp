// What the strip looks like, point by point.
#include "editor/windows/strip_painter.h"
#include "windows/window_fixture.h"

#include <QFontMetrics>

namespace zandor {
namespace {

constexpr QColor Red{255, 0, 0}, Blue{0, 0, 255}, Yellow{255, 255, 0}, Sky{148, 198, 239};

// Red letters, whose edges blend with what lies behind them.
bool holdsRedText(const QImage& picture, const QRect& area) {
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (const QColor colour = picture.pixelColor(x, y); colour.red() > 170 && colour.blue() < 110)
                return true;
    return false;
}

TEST_F(WindowTest, TheEmptyStripIsPlain) {
    EXPECT_EQ(pixel({2, 2}), Sky);
    build({"BB 9288"});
    EXPECT_EQ(pixel({strip().width() - 3, 2}), Sky);
}

TEST_F(WindowTest, BrakeBarsLieUnderTheVehicle) {
    build({"BB 9288", "CC 6500", "BB 67400", "Wagon plat"}); // air twin, air single, vacuum single, ep
    const int height = strip().height();
    struct Case {
        int vehicle, fromBottom;
        QColor colour;
    };
    const Case cases[] = {{0, 27, Sky},  {0, 23, Blue}, {0, 19, Blue}, {1, 27, Blue},
                          {1, 26, Blue}, {1, 25, Sky},  {1, 22, Sky},  {2, 16, Red},
                          {2, 12, Sky},  {3, 27, Blue}, {3, 23, Blue}, {3, 16, Sky}};
    for (const Case& c : cases)
        EXPECT_EQ(pixel({onVehicle(c.vehicle).x(), height - c.fromBottom}), c.colour)
            << c.vehicle << " " << c.fromBottom;
}

TEST_F(WindowTest, AHeldVehicleIsOutlinedAndItsPlaceMarked) {
    build({"BB 9288", "CC 6500", "BB 67400"});
    QTest::mousePress(&strip(), Qt::LeftButton, {}, onVehicle(0));
    EXPECT_EQ(pixel({1, 40}), Yellow);
    EXPECT_NE(pixel({PlainPictureWidth + 1, 40}), Yellow);
    const QPoint mark(2 * PlainPictureWidth + 1, 5);
    EXPECT_NE(pixel(mark), Red);
    moveHeld(onVehicle(2));
    EXPECT_EQ(pixel(mark), Red);
    moveHeld(onVehicle(1)); // it would stay where it is
    EXPECT_NE(pixel({PlainPictureWidth + 1, 2}), Red);
    moveHeld(behind(3));
    EXPECT_EQ(pixel({3 * PlainPictureWidth - 2, 5}), Red);
    moveHeld({60, 300}); // off the strip
    EXPECT_NE(pixel({3 * PlainPictureWidth - 2, 5}), Red);
    QTest::keyClick(&strip(), Qt::Key_Escape);
    EXPECT_NE(pixel({1, 40}), Yellow);
}

TEST_F(WindowTest, MissingStockAndBadCouplingsShowInRed) {
    build({"BB 9288"});
    const RameItem gone{false, 5, false, "gone", "Cars", {}};
    document.PictureWidth = PlainPictureWidth;
    InsertVehicule(editor, 0, false, false, &gone);
    build({"Wagon plat", "CC 6500"}); // bar behind nothing known, chain behind bar
    window->refresh();
    const QImage picture = strip().grab().toImage();
    EXPECT_TRUE(holdsRedText(picture, {PlainPictureWidth, 20, PlainPictureWidth, 18}));
    EXPECT_FALSE(holdsRedText(picture, {0, 20, PlainPictureWidth, 18}));
    const auto markAt = [&](int joint) { return picture.pixelColor(joint * PlainPictureWidth - 5, 9); };
    EXPECT_EQ(markAt(2), Sky); // an unknown coupling fits everything
    EXPECT_EQ(markAt(3), QColor(208, 24, 24));
}

TEST_F(WindowTest, NamesAreCutToTheirVehicle) {
    const QFontMetrics metrics(strip().font());
    EXPECT_EQ(fittingName("BB", metrics, PlainPictureWidth), "BB");
    const QString longName(400, u'W');
    const QString cut = fittingName(longName, metrics, PlainPictureWidth);
    EXPECT_LE(metrics.horizontalAdvance(cut), PlainPictureWidth - 20);
    EXPECT_GT(metrics.horizontalAdvance(cut + u'W'), PlainPictureWidth - 20);
    EXPECT_EQ(fittingName(longName, metrics, 21), "");
    EXPECT_EQ(fittingName(longName, metrics, 5), "");
}

TEST_F(WindowTest, TheLongestStripShowsItsNumbersFromEndToEnd) {
    build({"BB 9288"});
    document.Vehicules.assign(MaxEntries, document.Vehicules[0]);
    document.StripWidth = MaxEntries * PlainPictureWidth;
    document.controls.scrollMaximum = document.StripWidth;
    for (const int at : {0, document.StripWidth / 2, document.StripWidth - 900}) {
        document.controls.scrollValue = at;
        EXPECT_TRUE(holdsRedText(strip().grab().toImage(), {0, 0, 300, 20})) << "the numbers are there";
    }
}

TEST_F(WindowTest, TenThousandRowsAreListed) {
    const Materiel sample = catalogue.Materiels[stockIndex("BB 9288")];
    for (int i = 0; i < 10000; ++i) {
        Materiel copy = sample;
        copy.FileName = "copy" + std::to_string(i) + ".eng";
        copy.EngineName = "Copie " + std::to_string((i * 7919) % 10000);
        catalogue.Materiels.push_back(std::move(copy));
    }
    window->fillStockList();
    EXPECT_EQ(list().model()->rowCount(), 10002);
}

} // namespace
} // namespace zandor
