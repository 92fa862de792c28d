#include "editor/strip_scroll.h"
#include "editor_fixture.h"

namespace zandor {
namespace {

struct StripScrollTest : EditorTest {
    StripScroll scroll;

    void show(int viewWidth, int vehicles) {
        initialiseDocument(editor);
        compose(std::string(static_cast<std::size_t>(vehicles), 'A'));
        scroll.viewWidth = viewWidth;
        updateScroll(scroll, document);
    }
};

TEST_F(StripScrollTest, TheRangeFollowsTheStripAsFarAsItsPictureReaches) {
    const int most = 134 * PlainPictureWidth + 150; // that stays under 16384
    struct Case {
        int vehicles, maximum;
        bool enabled, hidden;
    };
    for (const Case& c : {Case{2, 0, false, false}, Case{3, 3 * PlainPictureWidth + 150 - 300, true, false},
                          Case{134, most - 300, true, false}, Case{140, most - 300, true, true}}) {
        show(300, c.vehicles);
        EXPECT_EQ(scroll.maximum, c.maximum) << c.vehicles;
        EXPECT_EQ(scroll.enabled, c.enabled) << c.vehicles;
        EXPECT_EQ(scroll.largeStep, 300) << "what is seen";
        EXPECT_EQ(scroll.smallStep, std::max(1, c.maximum / 20));
        EXPECT_EQ(endIsHidden(document, scroll), c.hidden) << c.vehicles;
    }
    EXPECT_EQ(wordFinding(frame, endHidden(document, scroll)), "shown up to " + std::to_string(most));
    scrollToEnd(scroll);
    EXPECT_EQ(scroll.value, most - 300);
    show(300, 3);
    EXPECT_EQ(scroll.value, scroll.maximum) << "never beyond the strip";
    show(300, 2);
    EXPECT_EQ(scroll.value, 0);
}

TEST_F(StripScrollTest, APointOfTheViewIsOneOfTheStrip) {
    show(400, 8);
    scroll.value = 100;
    struct Case {
        int x, y;
        StripPoint point;
    };
    for (const Case& c :
         {Case{0, 0, 100}, Case{400, StripHeight, 500}, Case{401, 50, std::nullopt},
          Case{-1, 50, std::nullopt}, Case{50, StripHeight + 1, std::nullopt}, Case{50, -1, std::nullopt}})
        EXPECT_EQ(pointOf(scroll, c.x, c.y), c.point) << c.x << ' ' << c.y;
}

TEST_F(StripScrollTest, AVehicleComesIntoSightByTheShortestWay) {
    show(200, 4);
    for (const auto& [position, value] :
         {std::pair{3, 4 * PlainPictureWidth - 200}, {2, 2 * PlainPictureWidth}, {0, 0}, {7, 0}, {-1, 0}}) {
        scrollToVehicule(scroll, document, position);
        EXPECT_EQ(scroll.value, value) << position;
    }
}

TEST_F(StripScrollTest, ThePointerNearAnEdgeScrolls) {
    show(400, 8);
    struct Case {
        int x, y, before, after;
    };
    for (const Case& c : {Case{390, 10, 100, 140}, Case{350, 10, 100, 100}, Case{10, 10, 100, 60},
                          Case{10, 10, 20, 0}, Case{400, 10, 700, 718}, Case{401, 10, 100, 100}}) {
        scroll.value = c.before;
        AutoScrollStrip(scroll, c.x, c.y);
        EXPECT_EQ(scroll.value, c.after) << c.x << " from " << c.before;
    }
}

} // namespace
} // namespace zandor
