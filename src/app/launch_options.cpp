#include "app/launch_options.h"

#include "frame/startup.h"

#include <QCommandLineParser>

namespace zandor {

namespace {

constexpr const char *RootOption = "root", *Picture = "picture", *Help = "help", *Version = "version";

void describe(QCommandLineParser& parser) {
    parser.setApplicationDescription("Puts trains together for Microsoft Train Simulator.");
    parser.addPositionalArgument("FILE.con", "The consist to open; anything else is ignored.", "[FILE.con]");
    parser.addOptions({{RootOption, "Use the simulator in this folder, for this run only.", "DIR"},
                       {Picture, "Save a picture of the main window (PNG) after the start, and end.", "FILE"},
                       {{"h", Help}, "Print this text and end."},
                       {{"v", Version}, "Print the version and end."}});
}

// The parser wants the program's name in front; what it doesn't know it passes over.
void parse(QCommandLineParser& parser, const QStringList& arguments) {
    describe(parser);
    parser.parse(QStringList{"zandor"} + arguments);
}

} // namespace

LaunchOptions parseLaunchOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    parse(parser, arguments);
    return {parser.positionalArguments().value(0), parser.value(RootOption), parser.value(Picture)};
}

bool asksForText(const QStringList& arguments) {
    QCommandLineParser parser;
    parse(parser, arguments);
    return parser.isSet(Help) || parser.isSet(Version);
}

QString launchAnswer(const QStringList& arguments) {
    QCommandLineParser parser;
    parse(parser, arguments);
    return parser.isSet(Version) ? QString::fromStdString(makeTitle()) + u'\n' : parser.helpText();
}

} // namespace zandor
