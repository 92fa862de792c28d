#include "editor/windows/command_bar.h"

#include "editor/messages.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/window_parts.h"

#include <QPushButton>
#include <QShortcut>

namespace zandor {

namespace {

constexpr int ButtonGap = 6;              // pixels
constexpr Message NoTip{0}, NoCaption{0}; // a flag says it

struct ButtonRow {
    CommandBar::Command command;
    const char* name;
    Message caption;
    const char* french;
    Message tip;
    const char* icon; // as desktops name it
    QKeySequence::StandardKey key = QKeySequence::UnknownKey;
};
constexpr ButtonRow Rows[] = {
    {CommandBar::New, "cmdNEW", message::CaptionNew, "&Nouveau", message::TipNew, "document-new",
     QKeySequence::New},
    {CommandBar::Open, "cmdOPEN", message::CaptionOpen, "&Ouvrir", message::TipOpen, "document-open",
     QKeySequence::Open},
    {CommandBar::Save, "cmdSAVE", message::CaptionSave, "&Enregistrer", message::TipSave, "document-save",
     QKeySequence::Save},
    {CommandBar::Delete, "cmdDELETE", message::CaptionDelete, "&Supprimer", message::TipDelete,
     "edit-delete"},
    {CommandBar::Number, "cmdNUMEROTATION", message::CaptionNumber, "N&uméroter", message::TipNumber,
     "view-sort-ascending"},
    {CommandBar::Language, "cmdLANGUAGE", NoCaption, "", message::TipLanguage, ""},
    {CommandBar::Options, "cmdOptions", message::CaptionOptions, "Opt&ions", message::TipOptions,
     "preferences-system"},
    {CommandBar::Help, "cmdHELP", message::CaptionHelp, "&Aide", NoTip, "help-contents"},
    {CommandBar::About, "cmdPROPOS", message::CaptionAbout, "A &propos", NoTip, "help-about"},
    {CommandBar::Quit, "cmdCANCEL", message::CaptionQuit, "&Quitter", NoTip, "application-exit",
     QKeySequence::Quit},
};

} // namespace

CommandBar::CommandBar(QWidget& window) : ButtonBar(ButtonGap) {
    for (const ButtonRow& row : Rows) {
        auto* button = named(new QPushButton(&window), row.name);
        button->setAutoDefault(false);
        button->setIcon(QIcon::fromTheme(row.icon));
        connect(button, &QPushButton::clicked, this,
                [this, command = row.command] { emit triggered(command); });
        if (row.key != QKeySequence::UnknownKey)
            connect(new QShortcut(row.key, &window), &QShortcut::activated, button, &QPushButton::click);
        if (row.command == Language)
            beginRightEnd();
        addWidget(button);
        buttons_[row.command] = button;
    }
    // A consist that a service uses must not go, and the services aren't known yet.
    buttons_[Delete]->setEnabled(false);
    buttons_[Delete]->hide();
}

std::vector<QWidget*> CommandBar::tabOrder() const {
    return {buttons_.begin(), buttons_.end()};
}

void CommandBar::caption(const Frame& frame) {
    for (const ButtonRow& row : Rows) {
        QPushButton& button = *buttons_[row.command];
        if (row.caption != NoCaption)
            button.setText(textOr(frame, row.caption, row.french));
        if (row.tip != NoTip)
            button.setToolTip(toQt(frame.text(row.tip)));
        if (row.caption == NoCaption)
            button.setAccessibleName(button.toolTip());
    }
}

void CommandBar::enable(Command command, bool on) {
    buttons_[command]->setEnabled(on);
}

void CommandBar::setMenu(Command command, QMenu* menu) {
    buttons_[command]->setMenu(menu);
}

void CommandBar::setIcon(Command command, const QIcon& icon) {
    buttons_[command]->setIcon(icon);
}

} // namespace zandor
