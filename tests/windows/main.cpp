// The window tests run without a screen unless a platform is asked for.
#include "frame/windows/theme.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_SCALE_FACTOR"); // the tests look at single points
    ::testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    zandor::applyTheme(application);
    return RUN_ALL_TESTS();
}
