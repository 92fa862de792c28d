#include "editor/windows/principal.h"

#include "editor/consist_io.h"
#include "editor/messages.h"
#include "editor/strip_selection.h"
#include "editor/windows/command_bar.h"
#include "editor/windows/consist_drop.h"
#include "editor/windows/consist_pane.h"
#include "editor/windows/open_window.h"
#include "editor/windows/pane_parts.h"
#include "editor/windows/preview_view.h"
#include "editor/windows/stock_info.h"
#include "editor/windows/stock_pane.h"
#include "editor/windows/strip_actions.h"
#include "editor/windows/strip_pane.h"
#include "editor/windows/strip_view.h"
#include "frame/startup.h"
#include "frame/windows/about.h"
#include "frame/windows/art.h"
#include "frame/windows/cursors.h"
#include "frame/windows/help.h"
#include "frame/windows/loading.h"
#include "frame/windows/place_keeper.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/window_parts.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QMenu>
#include <QShortcut>

namespace zandor {

namespace {

constexpr QSize DefaultSize{1024, 700};
constexpr int Gap = 10;                                               // pixels between panes
constexpr const char *PlaceSection = "Window", *PlacePrefix = "Main"; // in the settings

} // namespace

// ---- how it is put together

frmPrincipal::frmPrincipal(Editor& editor)
    : edits_(editor), strip_(new StripPane(edits_, this)),
      stock_(new StockPane(edits_, strip_->pictures(), this)), consist_(new ConsistPane(edits_, this)),
      commands_(new CommandBar(*this)), actions_(new StripActions(*this, *strip_->strip())),
      languages_(named(new QMenu(this), "mnuLANGUAGE")) {
    setObjectName("frmPrincipal");
    setWindowTitle(toQt(editor.frame.state.Title));
    setHelpContext(*this, helpContext::Main);
    arrange();
    setTabOrders();
    connectPanes();
    connectMenus();
    applyLanguage();
    fillStockList();
    place_ = new PlaceKeeper(*this, editor.frame, PlaceSection, PlacePrefix, DefaultSize);
    stock_->tabOrder().back()->setFocus();
    refresh();
}

void frmPrincipal::arrange() {
    auto* details = new QWidget;
    auto* right = new QVBoxLayout(details);
    right->setContentsMargins(0, 0, 0, 0);
    right->setSpacing(Gap);
    right->addWidget(stock_->info(), 1);
    right->addWidget(consist_);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(Gap);
    middle->addWidget(new LowPane(stock_, this), 6);
    middle->addWidget(new LowPane(details, this), 5);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    column->setSpacing(Gap);
    column->addLayout(commands_);
    column->addLayout(middle, 1);
    column->addWidget(strip_);
}

void frmPrincipal::setTabOrders() {
    std::vector<QWidget*> order = stock_->tabOrder();
    for (const auto& next : {strip_->tabOrder(), consist_->tabOrder(), commands_->tabOrder()})
        order.insert(order.end(), next.begin(), next.end());
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void frmPrincipal::connectPanes() {
    connect(&edits_, &DocumentEdits::documentChanged, this, &frmPrincipal::refreshCommands);
    connect(stock_, &StockPane::filled, this, &frmPrincipal::refreshCommands);
    connect(stock_, &StockPane::chosen, strip_, &StripPane::append);
    connect(stock_, &StockPane::dragEnded, strip_, &StripPane::finishStockDrag);
    connect(strip_, &StripPane::lookedUp, this, &frmPrincipal::lookUp);
    connect(new ConsistDrop(*this), &ConsistDrop::dropped, this, &frmPrincipal::offerFile);
    strip_->strip()->setPreview(stock_->info()->preview());
}

void frmPrincipal::connectMenus() {
    connect(commands_, &CommandBar::triggered, this, &frmPrincipal::commandTriggered);
    connect(actions_, &StripActions::triggered, this, &frmPrincipal::actionTriggered);
    strip_->setMenu(actions_->stripMenu());
    stock_->setMenu(actions_->stockMenu());
    commands_->setMenu(CommandBar::Language, languages_);
    connect(languages_, &QMenu::triggered, this,
            [this](const QAction* chosen) { chooseLanguage(fromQt(chosen->text())); });
    connect(new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F10), this), &QShortcut::activated, this,
            &frmPrincipal::openContextMenu);
}

// For keyboards without a Menu key.
void frmPrincipal::openContextMenu() {
    QWidget* const focused = focusWidget();
    if (!focused)
        return;
    const QPoint middle = focused->rect().center();
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, middle, focused->mapToGlobal(middle));
    QCoreApplication::sendEvent(focused, &asked);
}

// ---- the language and the colours

void frmPrincipal::applyLanguage() {
    commands_->caption(edits_.editor().frame);
    captionLanguages();
    actions_->caption(edits_.editor().frame);
    stock_->applyLanguage();
    consist_->applyLanguage();
    strip_->applyLanguage();
    edits_.change([](Editor& editor) {
        updateResistance(editor);
        ShowTotals(editor);
    });
}

void frmPrincipal::captionLanguages() {
    const Frame& frame = edits_.editor().frame;
    languages_->clear();
    for (const LanguageChoice& choice : frame.language.ListLanguages()) {
        QAction* entry = languages_->addAction(flagIcon(choice.image), toQt(choice.name));
        entry->setCheckable(true);
        entry->setChecked(choice.name == frame.state.Language);
        if (entry->isChecked())
            commands_->setIcon(CommandBar::Language, entry->icon());
    }
}

void frmPrincipal::chooseLanguage(const std::string& name) {
    edits_.editor().frame.state.Language = name;
    applyLanguage();
    emit languageChosen();
}

void frmPrincipal::applyListColours() {
    stock_->applyColours();
}

// ---- what the panes show and ask for

void frmPrincipal::refresh() {
    emit edits_.documentChanged();
}

void frmPrincipal::fillStockList() {
    stock_->fill();
}

void frmPrincipal::refreshCommands() {
    const ConsistDocument& document = edits_.document();
    const bool selected = hasSelection(document);
    actions_->enable(stock_->currentStock() >= 0, selected,
                     selected && document.Vehicules[static_cast<std::size_t>(document.selected)].Missing,
                     hasVehicles(document));
    commands_->enable(CommandBar::Save, document.Modified);
    commands_->enable(CommandBar::Number, document.controls.numberEnabled);
}

void frmPrincipal::lookUp(int materielIndex) {
    if (!stock_->lookUp(materielIndex))
        strip_->sayNotInList();
}

void frmPrincipal::actionTriggered(int id) {
    switch (id) {
    case StripActions::InsertEnd:
        return strip_->append(stock_->currentStock());
    case StripActions::InsertBefore:
        return strip_->insertBefore(stock_->currentStock());
    case StripActions::MoveLeft:
        return strip_->moveSelectedBy(-1);
    case StripActions::MoveRight:
        return strip_->moveSelectedBy(1);
    case StripActions::Flip:
        return edits_.change(flipSelected);
    case StripActions::Remove:
        return strip_->remove();
    case StripActions::FindInList:
        if (const auto found = lookUpSelected(edits_.document()))
            lookUp(*found);
        return;
    case StripActions::Renumber:
        return edits_.change(numberButtonPressed);
    }
}

void frmPrincipal::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && !isActiveWindow())
        strip_->strip()->cancelPress();
    QWidget::changeEvent(event);
}

// ---- the commands for the whole consist

void frmPrincipal::commandTriggered(int command) {
    switch (command) {
    case CommandBar::New:
        edits_.carryOutWithFiles(newConsist);
        return;
    case CommandBar::Open:
        return openPressed();
    case CommandBar::Save:
        return savePressed();
    case CommandBar::Number:
        return edits_.change(numberButtonPressed);
    case CommandBar::Options:
        emit optionsAsked();
        return;
    case CommandBar::Help:
        emit helpAsked();
        return;
    case CommandBar::About:
        frmAbout(edits_.editor().frame, this).exec();
        return;
    case CommandBar::Quit:
        close();
        return;
    }
}

void frmPrincipal::openPressed() {
    if (!edits_.carryOutWithFiles(offerToSave))
        return;
    const Editor& editor = edits_.editor();
    frmOpen(
        editor.frame, editor.catalogue, [this](const std::string& path) { return openFile(path); }, this)
        .exec();
}

bool frmPrincipal::openFile(const std::string& path) {
    const Frame& frame = edits_.editor().frame;
    const BusyPointer busy;
    const frmLoading loading(toQt(frame.text(message::OpeningConsist, {{"|1", GetFileName(path)}})),
                             parentOfDialogs());
    return edits_.carryOutWithFiles([&](Editor& editor) {
        Outcome outcome = openConsist(editor, path);
        if (outcome.done)
            addFindings(outcome.told, strip_->showOpened());
        return outcome;
    });
}

void frmPrincipal::offerFile(const std::string& path) {
    if (edits_.carryOutWithFiles(offerToSave))
        openFile(path);
}

void frmPrincipal::savePressed() {
    const BusyPointer busy;
    edits_.carryOutWithFiles(SaveFileRame);
}

void frmPrincipal::catalogueChanged() {
    stock_->takeChanges();
    emit edits_.catalogueChanged();
    emit edits_.documentChanged();
}

void frmPrincipal::closeEvent(QCloseEvent* event) {
    emit closeAsked();
    event->setAccepted(
        edits_.carryOut([&](Editor& editor) { return closeEditor(editor, place_->values()); }));
    if (event->isAccepted())
        emit closed();
}

} // namespace zandor
