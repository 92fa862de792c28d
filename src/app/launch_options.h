// What the program was started with.
#pragma once

#include <QString>
#include <QStringList>

namespace zandor {

struct LaunchOptions {
    QString consist; // a path of a consist to open; anything that isn't one is ignored
    QString root;    // --root: the simulator's folder for this run only
    QString picture; // --picture: the main window is saved to this file after the start, and the run ends
};

// `arguments` without the program's name. Unknown options are ignored.
LaunchOptions parseLaunchOptions(const QStringList& arguments);

// True: the program isn't to start, but to print the answer to `--help` or `--version`.
bool asksForText(const QStringList& arguments);
QString launchAnswer(const QStringList& arguments);

} // namespace zandor
