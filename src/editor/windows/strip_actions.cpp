#include "editor/windows/strip_actions.h"

#include "editor/messages.h"
#include "frame/windows/art.h"
#include "frame/windows/qt_text.h"

#include <QAction>
#include <QMenu>
#include <QWidget>

namespace zandor {

namespace {

struct ActionRow {
    StripActions::Id id;
    const char* name;
    Message caption;
    QKeyCombination key;
    bool ofVehicle; // its key works in the strip alone
};
// The keys of the whole window are none that a text box needs on any desktop: Ctrl with A, B, D, E, F, H, K,
// U or W edits a line there.
constexpr ActionRow Rows[] = {
    {StripActions::InsertEnd, "actINSERT_END", message::MenuInsertEnd, Qt::CTRL | Qt::Key_Enter, false},
    {StripActions::InsertBefore, "actINSERT_BEFORE", message::MenuInsertBefore, Qt::CTRL | Qt::Key_I, false},
    {StripActions::MoveLeft, "actMOVE_LEFT", message::MenuMoveLeft, Qt::CTRL | Qt::Key_Left, true},
    {StripActions::MoveRight, "actMOVE_RIGHT", message::MenuMoveRight, Qt::CTRL | Qt::Key_Right, true},
    {StripActions::Flip, "actFLIP", message::MenuFlip, Qt::CTRL | Qt::Key_T, true},
    {StripActions::Remove, "actREMOVE", message::MenuRemove, Qt::Key_Delete, true},
    {StripActions::FindInList, "actFIND", message::MenuFindInList, Qt::CTRL | Qt::Key_L, false},
    {StripActions::Renumber, "actRENUMBER", message::MenuRenumber, Qt::CTRL | Qt::Key_R, false},
};

} // namespace

StripActions::StripActions(QWidget& window, QWidget& strip)
    : QObject(&window), stripMenu_(new QMenu(&window)), stockMenu_(new QMenu(&window)) {
    for (const ActionRow& row : Rows) {
        auto* action = new QAction(this);
        action->setObjectName(row.name);
        action->setShortcut(row.key);
        action->setShortcutContext(row.ofVehicle ? Qt::WidgetShortcut : Qt::WindowShortcut);
        (row.ofVehicle ? strip : window).addAction(action);
        connect(action, &QAction::triggered, this, [this, id = row.id] { emit triggered(id); });
        actions_[row.id] = action;
        stripMenu_->addAction(action);
        if (row.id == InsertBefore || row.id == FindInList)
            stripMenu_->addSeparator();
    }
    // Keyboards have two such keys; the menu shows the first.
    actions_[InsertEnd]->setShortcuts({actions_[InsertEnd]->shortcut(), Qt::CTRL | Qt::Key_Return});
    stripMenu_->setObjectName("mnuSTRIP");
    stockMenu_->setObjectName("mnuSTOCK");
    stockMenu_->addActions({actions_[InsertEnd], actions_[InsertBefore]});
}

void StripActions::caption(const Frame& frame) {
    for (const ActionRow& row : Rows)
        actions_[row.id]->setText(toQt(frame.text(row.caption)));
}

void StripActions::enable(bool stockSelected, bool vehicleSelected, bool vehicleMissing, bool hasVehicles) {
    actions_[InsertEnd]->setEnabled(stockSelected);
    actions_[InsertBefore]->setEnabled(stockSelected && vehicleSelected);
    for (const Id id : {MoveLeft, MoveRight, Remove})
        actions_[id]->setEnabled(vehicleSelected);
    for (const Id id : {Flip, FindInList})
        actions_[id]->setEnabled(vehicleSelected && !vehicleMissing);
    actions_[Renumber]->setEnabled(hasVehicles);
}

} // namespace zandor
