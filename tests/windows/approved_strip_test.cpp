// Two consists of the demonstration, pixel by pixel as they were looked at and approved.
#include "windows/strip_picture.h"

#include <QDir>

namespace zandor {
namespace {

TEST(ApprovedStrip, LooksAsApproved) {
    DemoStrip demo;
    demo.test.state.PrintName = true;
    demo.putThumbnails(ZANDOR_THUMBNAILS);
    for (const char* consist : {"orme_ore_down", "lost_wagons"}) {
        const QImage drawn = demo.picture(std::string(consist) + ".con");
        const QImage approved(QString(ZANDOR_SOURCE_DIR "/tests/windows/approved/%1.png").arg(consist));
        const bool same = drawn == approved.convertToFormat(drawn.format());
        const QString kept = QDir::temp().filePath(QString("%1-drawn.png").arg(consist));
        EXPECT_TRUE(same || !drawn.save(kept)) << "what was drawn is in " << kept.toStdString();
    }
}

} // namespace
} // namespace zandor
