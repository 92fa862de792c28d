#include "app/application.h"
#include "frame/windows/theme.h"
#include "platform/system.h"

#include <QApplication>
#include <QIcon>

#include <iostream>

namespace {

QStringList wordsOf(int argc, char** argv) {
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    return words;
}

// A text alone needs no display.
int printAnswer(int argc, char** argv) {
    const QCoreApplication qt(argc, argv);
    std::cout << zandor::launchAnswer(wordsOf(argc, argv)).toStdString() << std::flush;
    return std::cout.good() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    zandor::tellSizeLimitsAsErrors();
    if (zandor::asksForText(wordsOf(argc, argv)))
        return printAnswer(argc, argv);
    QApplication qt(argc, argv);
    QApplication::setApplicationName("Zandor");
    QApplication::setWindowIcon(QIcon(":/art/zandor.png"));
    QGuiApplication::setDesktopFileName("zandor"); // under which a desktop knows its icon
    zandor::applyTheme(qt);
    zandor::Application application(zandor::parseLaunchOptions(qt.arguments().mid(1)));
    return application.run();
}
