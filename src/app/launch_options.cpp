#include "app/launch_options.h"

namespace zandor {

namespace {

struct OptionRow {
    const char* name;
    QString LaunchOptions::*place;
};
constexpr OptionRow Options[] = {{"--root", &LaunchOptions::root}, {"--picture", &LaunchOptions::picture}};

const OptionRow* optionNamed(const QString& name) {
    for (const OptionRow& row : Options)
        if (name == QLatin1String(row.name))
            return &row;
    return nullptr;
}

} // namespace

LaunchOptions parseLaunchOptions(const QStringList& arguments) {
    LaunchOptions options;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (const OptionRow* row = optionNamed(argument.section(u'=', 0, 0)))
            options.*row->place = argument.contains(u'=') ? argument.section(u'=', 1) : arguments.value(++i);
        else if (!argument.startsWith(u"--") && options.consist.isEmpty())
            options.consist = argument;
    }
    return options;
}

} // namespace zandor
