// What the strip looks like, point by point.
#include "editor/windows/strip_painter.h"
#include "windows/window_fixture.h"

#include <QBuffer>

namespace zandor {
namespace {

constexpr QColor Red{255, 0, 0}, Yellow{255, 255, 0};

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

TEST_F(WindowTest, ScrollingAndTheTimerOnlyCopy) {
    build({"BB 9288", "CC 6500", "BB 67400", "Voiture Corail", "Wagon plat", "BB 9288", "CC 6500", "BB 67400",
           "BB 9288", "CC 6500"});
    get<QScrollBar>("HScrollRAME").setValue(0);
    const QImage before = strip().grab().toImage();
    const qint64 drawn = strip().imgRAME().cacheKey();
    get<QScrollBar>("HScrollRAME").setValue(57);
    const QImage after = strip().grab().toImage();
    EXPECT_NE(after, before);
    EXPECT_EQ(after.copy(0, 0, before.width() - 57, before.height()),
              before.copy(57, 0, before.width() - 57, before.height()));
    QTest::qWait(1);
    strip().grab();
    EXPECT_EQ(strip().imgRAME().cacheKey(), drawn);
    EXPECT_TRUE(appendStock(editor, stockIndex("CC 6500")).done);
    window->refresh();
    strip().grab();
    EXPECT_NE(strip().imgRAME().cacheKey(), drawn);
}

struct PictureTest : ::testing::Test {
    MemoryFileSystem files;
    PictureStore pictures{files};

    static std::string bitmap(const QImage& image) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        image.convertToFormat(QImage::Format_Indexed8).save(&buffer, "BMP");
        return bytes.toStdString();
    }
    static QImage plain(int width, QRgb colour) {
        QImage image(width, PlainPictureHeight, QImage::Format_RGB32);
        image.fill(colour);
        return image;
    }
    // Red on the left, blue on the right.
    static QImage halves() {
        QImage image = plain(40, qRgb(255, 0, 0));
        for (int y = 0; y < image.height(); ++y)
            for (int x = 20; x < 40; ++x)
                image.setPixel(x, y, qRgb(0, 0, 255));
        return image;
    }
};

TEST_F(PictureTest, AFileIsReadAgainOnlyWhenItHasChanged) {
    const PictureName name{false, "C:\\p.bmp"};
    EXPECT_EQ(pictures.size(name), std::nullopt);
    files.put(name.name, bitmap(plain(40, qRgb(255, 0, 0))));
    EXPECT_EQ(pictures.size(name), std::nullopt) << "asked once in a redraw";
    pictures.beginRedraw();
    EXPECT_EQ(pictures.size(name), (PictureSize{40, 96}));
    const qint64 kept = pictures.scaled(name, {40, 96}, true).cacheKey();
    pictures.beginRedraw();
    EXPECT_EQ(pictures.scaled(name, {40, 96}, true).cacheKey(), kept);
    files.put(name.name, bitmap(plain(50, qRgb(0, 255, 0))));
    pictures.beginRedraw();
    EXPECT_EQ(pictures.image(name).pixelColor(3, 3), QColor(0, 255, 0));
    EXPECT_EQ(pictures.scaled(name, {50, 96}, false).toImage().pixelColor(49, 3), QColor(0, 255, 0));
    files.deleteFile(name.name);
    pictures.beginRedraw();
    EXPECT_EQ(pictures.size(name), std::nullopt);
}

TEST_F(PictureTest, TheStripIsSharpAtEveryScale) {
    files.put("C:\\p.bmp", bitmap(halves()));
    const PictureName name{false, "C:\\p.bmp"};
    const QColor red(255, 0, 0), blue(0, 0, 255), green(0, 255, 0);
    const std::vector<StripStep> steps = {SizeStrip{100},
                                          TakeBackColour{name},
                                          CopyPicture{name, {0, 0, 40, 96}, false},
                                          CopyPicture{name, {40, 0, 40, 96}, true},
                                          FillBar{{10, 10, 5, 2}, {0, 255, 0}},
                                          DrawLine{20, 30, 20, 35, {0, 255, 0}},
                                          PlaceMark{CouplingMark::NotCompatible, 81, 60}};
    for (const double ratio : {1.0, 1.5, 2.0, 3.0}) {
        StripPicture strip;
        strip.carryOut(steps, pictures, QFont(), ratio);
        const QImage picture = strip.pixmap().toImage().convertToFormat(QImage::Format_RGB32);
        const auto at = [&](double x, double y) {
            return picture.pixelColor(int(x * ratio), int(y * ratio));
        };
        EXPECT_EQ(picture.size(), QSize(qRound(100 * ratio), qRound(StripHeight * ratio)));
        EXPECT_EQ(at(90, 3), red) << "the background is that of the picture's corner";
        EXPECT_EQ(at(3, 50), red);
        EXPECT_EQ(at(36, 50), blue);
        EXPECT_EQ(at(43, 50), blue);
        EXPECT_EQ(at(76, 50), red);
        EXPECT_EQ(at(39.8, 50), blue) << "no seam between neighbours at " << ratio;
        EXPECT_EQ(at(40.2, 50), blue);
        EXPECT_EQ(at(12, 11), green);
        EXPECT_EQ(at(12, 9), red);
        EXPECT_EQ(at(20.5, 32), green);
        EXPECT_EQ(at(22.5, 32), blue);
        const QImage mark = pictures.mark(CouplingMark::NotCompatible, ratio).toImage();
        EXPECT_EQ(at(90, 69), mark.pixelColor(mark.width() / 2, mark.height() / 2));
        EXPECT_NE(at(90, 69), red);
    }
}

} // namespace
} // namespace zandor
