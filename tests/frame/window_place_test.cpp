#include "frame/window_place.h"

#include <gtest/gtest.h>

namespace zandor {
namespace {

const ScreenArea Laptop{0, 30, 1280, 770}; // a panel at its top
const ScreenArea Beside{1280, 0, 1920, 1080};
constexpr FrameMargins NoFrame, Frame30{4, 30, 4, 4};

TEST(WindowPlace, IsWholeOnAScreenThatThereIs) {
    struct Case {
        const char* what;
        WindowPlace kept;
        std::vector<ScreenArea> screens;
        FrameMargins frame;
        WindowPlace shown;
    };
    const Case cases[] = {
        {"as it was", {100, 100, 800, 600}, {Laptop}, Frame30, {100, 100, 800, 600}},
        {"on the other screen", {1500, 50, 1000, 700}, {Laptop, Beside}, Frame30, {1500, 50, 1000, 700}},
        {"that is gone", {1500, 50, 1000, 700}, {Laptop}, Frame30, {136, 48, 1000, 700}},
        {"that is gone, and was larger", {1500, 0, 1800, 1000}, {Laptop}, Frame30, {0, 30, 1272, 736}},
        {"over the right and the lower edge", {900, 700, 600, 400}, {Laptop}, Frame30, {672, 366, 600, 400}},
        {"under the panel", {-50, 0, 600, 400}, {Laptop}, Frame30, {0, 30, 600, 400}},
        {"filling it, with the frame beyond", {0, 30, 1280, 770}, {Laptop}, Frame30, {0, 30, 1272, 736}},
        {"the frame isn't known", {0, 30, 1280, 770}, {Laptop}, NoFrame, {0, 30, 1280, 770}},
        {"more of it on the second", {1100, 100, 800, 600}, {Laptop, Beside}, Frame30, {1280, 100, 800, 600}},
        {"left of the first",
         {-1900, 50, 800, 600},
         {Laptop, {-1920, 0, 1920, 1080}},
         Frame30,
         {-1900, 50, 800, 600}},
        {"no screen", {5, 6, 7, 8}, {}, Frame30, {5, 6, 7, 8}},
    };
    for (const Case& c : cases) {
        const WindowPlace shown = placeOnScreen(c.kept, c.screens, c.frame);
        EXPECT_EQ(shown.left, c.shown.left) << c.what;
        EXPECT_EQ(shown.top, c.shown.top) << c.what;
        EXPECT_EQ(shown.width, c.shown.width) << c.what;
        EXPECT_EQ(shown.height, c.shown.height) << c.what;
    }
    EXPECT_TRUE(placeOnScreen({1500, 50, 1000, 700, true}, {Laptop}, NoFrame).maximised);
}

} // namespace
} // namespace zandor
