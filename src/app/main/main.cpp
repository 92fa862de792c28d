#include "app/application.h"
#include "frame/windows/theme.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char** argv) {
    QApplication qt(argc, argv);
    QApplication::setApplicationName("Zandor");
    QApplication::setWindowIcon(QIcon(":/art/zandor.png"));
    QGuiApplication::setDesktopFileName("zandor"); // under which a desktop knows its icon
    zandor::applyTheme(qt);
    zandor::Application application(zandor::parseLaunchOptions(qt.arguments().mid(1)));
    return application.run();
}
