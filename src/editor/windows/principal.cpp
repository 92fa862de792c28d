#include "editor/windows/principal.h"

#include "catalogue/stock_list.h"
#include "editor/consist_io.h"
#include "editor/coupling.h"
#include "editor/messages.h"
#include "editor/strip_selection.h"
#include "editor/windows/open_window.h"
#include "editor/windows/picture_store.h"
#include "editor/windows/preview_view.h"
#include "editor/windows/stock_view.h"
#include "editor/windows/strip_actions.h"
#include "editor/windows/strip_view.h"
#include "frame/startup.h"
#include "frame/windows/about.h"
#include "frame/windows/art.h"
#include "frame/windows/cursors.h"
#include "frame/windows/elided_label.h"
#include "frame/windows/help.h"
#include "frame/windows/loading.h"
#include "frame/windows/name_order.h"
#include "frame/windows/place_keeper.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/settings_colour.h"
#include "frame/windows/window_parts.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSlider>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace zandor {

namespace {

constexpr QSize DefaultSize{1024, 700};
constexpr int RepaintEvery = 1000; // ms: Timer1

const Materiel* materielAt(const Catalogue& catalogue, int index) {
    const bool known = index >= 0 && index < static_cast<int>(catalogue.here().Materiels.size());
    return known ? &catalogue.here().Materiels[index] : nullptr;
}

constexpr const char *PlaceSection = "Window", *PlacePrefix = "Main"; // in the settings

// The first consist file among what is dragged; empty when there is none.
QString draggedConsist(const QMimeData* data) {
    for (const QUrl& url : data->urls())
        if (const QString path = url.toLocalFile(); path.endsWith(".con", Qt::CaseInsensitive))
            return path;
    return {};
}

// A file is read where it lies: its owner must not take it for moved, and delete it.
void takeAsCopy(QDropEvent* event) {
    if (!event->possibleActions().testFlag(Qt::CopyAction) || draggedConsist(event->mimeData()).isEmpty())
        return event->ignore();
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void setIfDifferent(QLineEdit& edit, const std::string& text) {
    const QString shown = toQt(text);
    if (edit.text() == shown)
        return;
    const QSignalBlocker quiet(edit);
    edit.setText(shown); // the caret goes to the end
}

} // namespace

frmPrincipal::frmPrincipal(Editor& editor) : editor_(editor) {
    setObjectName("frmPrincipal");
    setWindowTitle(toQt(editor.frame.state.Title));
    setHelpContext(*this, helpContext::Main);
    controls_ = buildPrincipal(*this, editor);
    actions_ = new StripActions(*this, *controls_.PicRAME);
    languages_ = new QMenu(this);
    languages_->setObjectName("mnuLANGUAGE");
    setAcceptDrops(true);
    applyLanguage();
    connectButtons();
    connectInputs();
    connectStock();
    connectStrip();
    connectActions();
    fillStockList();
    addShortcuts();
    place_ = new PlaceKeeper(*this, editor.frame, PlaceSection, PlacePrefix, DefaultSize);
    controls_.lstViewMATERIEL->setFocus();
    refresh();
}

void frmPrincipal::connectButtons() {
    const auto& c = controls_;
    connect(c.cmdNEW, &QPushButton::clicked, this, &frmPrincipal::newPressed);
    connect(c.cmdOPEN, &QPushButton::clicked, this, &frmPrincipal::openPressed);
    connect(c.cmdSAVE, &QPushButton::clicked, this, &frmPrincipal::savePressed);
    connect(c.cmdHELP, &QPushButton::clicked, this, &frmPrincipal::helpAsked);
    connect(c.cmdPROPOS, &QPushButton::clicked, this, &frmPrincipal::aboutPressed);
    connect(c.cmdCANCEL, &QPushButton::clicked, this, &QWidget::close);
    connect(c.cmdNUMEROTATION, &QPushButton::clicked, this, [this] {
        numberButtonPressed(editor_);
        refresh();
    });
}

void frmPrincipal::connectInputs() {
    const auto& c = controls_;
    connect(c.tbNAME, &QLineEdit::textEdited, this, [this](const QString& text) {
        changeShortName(editor_, fromQt(text));
        refresh();
    });
    connect(c.tbFULL_NAME, &QLineEdit::textEdited, this, [this](const QString& text) {
        changeFullName(editor_, fromQt(text));
        refresh();
    });
    connect(c.Slider1, &QSlider::valueChanged, this, [this](int value) {
        changeDurability(editor_, value);
        refresh();
    });
    c.tbNAME->installEventFilter(this);
    c.tbFULL_NAME->installEventFilter(this);
}

void frmPrincipal::connectStock() {
    const auto& c = controls_;
    connect(c.cmbMATERIEL, &QComboBox::currentIndexChanged, this, &frmPrincipal::fillStockList);
    connect(c.lstViewMATERIEL, &StockView::currentStockChanged, this, &frmPrincipal::showStockInfo);
    connect(c.lstViewMATERIEL, &StockView::chosen, this, &frmPrincipal::appendFromList);
    connect(c.lstViewMATERIEL, &StockView::dragEnded, this, &frmPrincipal::finishStockDrag);
    c.lstViewMATERIEL->stock()->setDescriber(
        [this](int stock, StockModel::Column column) { return describeStock(stock, column); });
    c.lstViewMATERIEL->setDragPicture([this] { return carriedPicture(); });
}

// What goes with the pointer: half the size, so that the strip is seen beside it.
QPixmap frmPrincipal::carriedPicture() {
    const PictureRef picture = ShowMaterielInfo(editor_, controls_.lstViewMATERIEL->currentStock()).picture;
    if (!picture.found())
        return {};
    const double ratio = devicePixelRatioF();
    QPixmap carried = QPixmap::fromImage(
        controls_.PicRAME->pictures()
            .image({picture.kind == PictureRef::Resource, picture.name})
            .scaledToHeight(static_cast<int>(PlainPictureHeight * ratio / 2), Qt::SmoothTransformation));
    carried.setDevicePixelRatio(ratio);
    return carried;
}

void frmPrincipal::connectStrip() {
    const auto& c = controls_;
    connect(c.PicRAME, &StripView::changed, this, &frmPrincipal::refresh);
    connect(c.PicRAME, &StripView::scrolled, this, &frmPrincipal::refreshScrollBar);
    connect(c.PicRAME, &StripView::lookedUp, this, &frmPrincipal::lookUp);
    connect(c.PicRAME, &StripView::stockDropped, this, [this](int index) {
        // A message of the drop must not stand in the middle of the system's drag: it waits for the drag's
        // end.
        droppedStock_ = index;
        QTimer::singleShot(0, this, [this] {
            if (droppedStock_) // otherwise the drag's end has taken it, and may still be asking
                finishStockDrag();
        });
    });
    connect(c.HScrollRAME, &QScrollBar::valueChanged, c.PicRAME, &StripView::scrollTo);
    connect(c.Timer1, &QTimer::timeout, this, [this] {
        if (!controls_.PicRAME->dragging())
            controls_.PicRAME->update();
    });
    c.Timer1->start(RepaintEvery);
}

void frmPrincipal::connectActions() {
    const auto& c = controls_;
    connect(actions_, &StripActions::triggered, this, &frmPrincipal::actionTriggered);
    c.cmdVEHICLE->setMenu(actions_->stripMenu());
    c.PicRAME->installEventFilter(this);
    c.lstViewMATERIEL->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(c.lstViewMATERIEL, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        if (controls_.lstViewMATERIEL->currentStock() >= 0)
            actions_->stockMenu()->popup(controls_.lstViewMATERIEL->viewport()->mapToGlobal(at));
    });
    c.cmdOptions->setMenu(languages_);
    connect(languages_, &QMenu::triggered, this,
            [this](const QAction* chosen) { chooseLanguage(fromQt(chosen->text())); });
}

void frmPrincipal::addShortcuts() {
    struct Row {
        QKeySequence::StandardKey key;
        QPushButton* button;
    };
    for (const Row& row :
         {Row{QKeySequence::New, controls_.cmdNEW}, Row{QKeySequence::Open, controls_.cmdOPEN},
          Row{QKeySequence::Save, controls_.cmdSAVE}, Row{QKeySequence::Quit, controls_.cmdCANCEL}})
        connect(new QShortcut(row.key, this), &QShortcut::activated, row.button, &QPushButton::click);
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

void frmPrincipal::applyLanguage() {
    captionPrincipal(controls_, editor_.frame);
    actions_->caption(editor_.frame);
    captionLanguages();
    updateResistance(editor_);
    ShowTotals(editor_);
    controls_.PicRAME->DrawStrip(); // a Missing vehicle bears a word
    orderStockList();
    showStockInfo(controls_.lstViewMATERIEL->currentStock());
    refresh();
}

void frmPrincipal::orderStockList() {
    StockView& list = *controls_.lstViewMATERIEL;
    list.setNameOrder(nameOrder(toQt(editor_.frame.state.Language)));
    list.selectStock(list.currentStock());
}

void frmPrincipal::captionLanguages() {
    languages_->clear();
    for (const LanguageChoice& choice : editor_.frame.language.ListLanguages()) {
        QAction* entry = languages_->addAction(flagIcon(choice.image), toQt(choice.name));
        entry->setCheckable(true);
        entry->setChecked(choice.name == editor_.frame.state.Language);
    }
}

void frmPrincipal::chooseLanguage(const std::string& name) {
    editor_.frame.state.Language = name;
    applyLanguage();
    emit languageChosen();
}

void frmPrincipal::applyListColours() {
    controls_.lstViewMATERIEL->setColours(readColour(editor_.frame, "Color7"),
                                          readColour(editor_.frame, "Color8"));
}

// ---- commands

void frmPrincipal::newPressed() {
    tell(newConsist(editor_));
    updateUnusedStock(); // the question may have led to a save
    refresh();
}

void frmPrincipal::openPressed() {
    Frame& frame = editor_.frame;
    const bool goOn = tell(offerToSave(editor_));
    updateUnusedStock();
    refresh();
    if (!goOn)
        return;
    frmOpen(
        frame, editor_.catalogue, [this](const std::string& path) { return openFile(path); }, this)
        .exec();
}

bool frmPrincipal::openFile(const std::string& path) {
    const BusyPointer busy;
    const frmLoading loading(toQt(editor_.frame.text(message::OpeningConsist, {{"|1", GetFileName(path)}})),
                             parentOfDialogs());
    const std::size_t known = editor_.catalogue.here().Materiels.size();
    const Outcome outcome = openConsist(editor_, path);
    tell(outcome);
    if (outcome.done) {
        selectVehicule(editor_.document, 0);
        controls_.PicRAME->showSelected();
        if (endIsHidden(editor_.document, controls_.PicRAME->scroll()))
            showFindings(editor_.frame, {endHidden(editor_.document, controls_.PicRAME->scroll())});
    }
    if (editor_.catalogue.here().Materiels.size() != known) { // stock that came since the load
        const int stock = controls_.lstViewMATERIEL->currentStock();
        fillStockList();
        controls_.lstViewMATERIEL->selectStock(stock);
    }
    refresh();
    return outcome.done;
}

void frmPrincipal::savePressed() {
    const BusyPointer busy;
    tell(SaveFileRame(editor_));
    updateUnusedStock();
    refresh();
}

void frmPrincipal::aboutPressed() {
    frmAbout(editor_.frame, this).exec();
}

void frmPrincipal::closeEvent(QCloseEvent* event) {
    emit closeAsked();
    if (showOutcome(editor_.frame, closeEditor(editor_, place_->values()))) {
        event->accept();
        return;
    }
    event->ignore();
    refresh();
}

void frmPrincipal::dragEnterEvent(QDragEnterEvent* event) {
    takeAsCopy(event);
}

void frmPrincipal::dragMoveEvent(QDragMoveEvent* event) {
    takeAsCopy(event);
}

// The system's drag ends first: a question must not stand in the middle of it.
void frmPrincipal::dropEvent(QDropEvent* event) {
    takeAsCopy(event);
    if (event->isAccepted())
        QTimer::singleShot(0, this,
                           [this, path = pathFromQt(draggedConsist(event->mimeData()))] { offerFile(path); });
}

void frmPrincipal::offerFile(const std::string& path) {
    if (tell(offerToSave(editor_)))
        openFile(path);
    updateUnusedStock();
    refresh();
}

// ---- the selected vehicle

void frmPrincipal::actionTriggered(int id) {
    const int stock = controls_.lstViewMATERIEL->currentStock();
    const bool wasHidden = endIsHidden(editor_.document, controls_.PicRAME->scroll());
    switch (id) {
    case StripActions::InsertEnd:
        return appendFromList(stock);
    case StripActions::InsertBefore:
        if (materielAt(editor_.catalogue, stock))
            finishInsertion(insertBeforeSelected(editor_, stock), wasHidden);
        controls_.PicRAME->showSelected();
        break;
    case StripActions::MoveLeft:
    case StripActions::MoveRight:
        tell(moveSelected(editor_, id == StripActions::MoveLeft ? -1 : 1));
        controls_.PicRAME->showSelected();
        break;
    case StripActions::Flip:
        flipSelected(editor_);
        break;
    case StripActions::Remove:
        removeSelected(editor_);
        controls_.PicRAME->showSelected();
        break;
    case StripActions::FindInList:
        if (const auto found = lookUpSelected(editor_.document))
            lookUp(*found);
        return;
    case StripActions::Renumber:
        numberButtonPressed(editor_);
        break;
    }
    refresh();
}

// What was put at the end comes into sight; elsewhere the strip stays as it was scrolled.
void frmPrincipal::finishInsertion(const Outcome& outcome, bool endWasHidden) {
    StripView& strip = *controls_.PicRAME;
    Findings told = outcome.told;
    if (outcome.done && !endWasHidden && endIsHidden(editor_.document, strip.scroll()))
        told.push_back(endHidden(editor_.document, strip.scroll()));
    if (outcome.done)
        strip.showInserted();
    tell({outcome.done, std::move(told)});
}

// Behind the message everything shows what it speaks of.
bool frmPrincipal::tell(const Outcome& outcome) {
    refresh();
    return showOutcome(editor_.frame, outcome);
}

// ---- the stock list

void frmPrincipal::fillStockList() {
    const BusyPointer busy;
    const int chosen = controls_.cmbMATERIEL->currentIndex();
    StockView& list = *controls_.lstViewMATERIEL;
    list.stock()->setRows(FillStockList(editor_.frame.state, editor_.catalogue, chosen, false));
    list.selectFirst();
    refreshActions();
}

QString frmPrincipal::describeStock(int stock, int column) const {
    const Frame& frame = editor_.frame;
    const Materiel* materiel = materielAt(editor_.catalogue, stock);
    if (!materiel)
        return {};
    if (column != StockModel::NameColumn) {
        const MaterielInfo info = ShowMaterielInfo(frame, *materiel);
        return toQt(column == StockModel::BrakeColumn ? info.brakes : info.coupling);
    }
    QStringList lines{toQt(shownName(*materiel)),
                      toQt(frame.text(materiel->CabView.empty() ? message::TipNoCab : message::TipCab))};
    if (isShownUnused(frame.state, editor_.catalogue, materiel->Folder, materiel->FileName))
        lines.append(toQt(frame.text(message::TipUnusedStock)));
    return lines.join(u'\n');
}

void frmPrincipal::updateUnusedStock() {
    controls_.lstViewMATERIEL->stock()->updateUnused(
        FillStockList(editor_.frame.state, editor_.catalogue, controls_.cmbMATERIEL->currentIndex(), false));
}

void frmPrincipal::appendFromList(int stock) {
    if (!materielAt(editor_.catalogue, stock))
        return;
    const bool wasHidden = endIsHidden(editor_.document, controls_.PicRAME->scroll());
    finishInsertion(appendStock(editor_, stock), wasHidden);
    refresh();
}

void frmPrincipal::finishStockDrag() {
    const bool wasHidden = endIsHidden(editor_.document, controls_.PicRAME->scroll());
    if (const auto index = std::exchange(droppedStock_, std::nullopt))
        finishInsertion(dropStock(editor_, *index), wasHidden);
    else if (!controls_.PicRAME->dragging())
        clearDrag(editor_.document);
    refresh();
}

void frmPrincipal::showStockInfo(int stock) {
    if (materielAt(editor_.catalogue, stock))
        showInfo(ShowMaterielInfo(editor_, stock));
}

void frmPrincipal::showInfo(const MaterielInfo& info) {
    const auto& c = controls_;
    c.tbSELECT->setText(toQt(info.select));
    c.tbPATH->setText(toQt(info.path));
    c.lblFreins->setText(toQt(info.brakes));
    c.lblATTELAGE->setText(toQt(info.coupling));
    c.lblLONGUEUR->setText(toQt(info.length));
    c.lblPOIDS->setText(toQt(info.mass));
    c.picPREVIEW->show(c.PicRAME->pictures(), info.picture);
    c.picPREVIEW->warn(
        info.unreadablePicture.empty()
            ? QString()
            : toQt(editor_.frame.text(
                  message::PictureUnreadable,
                  {{"|1", editor_.frame.files.nativePath(info.unreadablePicture)}, {"|2", "\n"}})));
}

void frmPrincipal::lookUp(int materielIndex) {
    const auto& c = controls_;
    if (materielIndex < 0) {
        for (ElidedLabel* label : {c.tbSELECT, c.tbPATH, c.lblFreins, c.lblATTELAGE})
            label->clear();
        c.picPREVIEW->clear();
        return sayNotInList();
    }
    if (materielIndex >= static_cast<int>(editor_.catalogue.here().Materiels.size()))
        return;
    const int stockClass = stockClassOf(editor_.catalogue.here().Materiels[materielIndex]);
    if (stockClass < 0)
        return sayNotInList();
    c.cmbMATERIEL->setCurrentIndex(stockClass);
    c.lstViewMATERIEL->selectStock(materielIndex);
    showStockInfo(materielIndex);
    c.lstViewMATERIEL->setFocus();
}

void frmPrincipal::sayNotInList() {
    const ConsistDocument& document = editor_.document;
    if (!hasSelection(document))
        return;
    const std::string& name = document.Vehicules[static_cast<std::size_t>(document.selected)].Name;
    controls_.lblSTATUS->setText(toQt(editor_.frame.text(message::VehicleNotInList, {{"|1", name}})));
}

// ---- what the document shows

void frmPrincipal::refresh() {
    const EditorControls& shown = editor_.document.controls;
    const auto& c = controls_;
    refreshNames();
    {
        const QSignalBlocker quiet(c.Slider1);
        c.Slider1->setValue(shown.durability);
    }
    c.lblRESISTANCE->setText(toQt(shown.resistance));
    c.lblLongueurNewRame->setText(toQt(shown.totals));
    c.cmdSAVE->setEnabled(editor_.document.Modified);
    c.cmdNUMEROTATION->setEnabled(shown.numberEnabled);
    c.lblSTATUS->setText(toQt(hasVehicles(editor_.document) ? describeSelected(editor_) : std::string()));
    refreshActions();
    c.PicRAME->refresh();
}

void frmPrincipal::refreshActions() {
    const ConsistDocument& document = editor_.document;
    const bool selected = hasSelection(document);
    actions_->enable(controls_.lstViewMATERIEL->currentStock() >= 0, selected,
                     selected && document.Vehicules[static_cast<std::size_t>(document.selected)].Missing,
                     hasVehicles(document));
    controls_.cmdVEHICLE->setEnabled(hasVehicles(document));
}

void frmPrincipal::refreshNames() {
    const EditorControls& shown = editor_.document.controls;
    setIfDifferent(*controls_.tbNAME, shown.shortName);
    setIfDifferent(*controls_.tbFULL_NAME, shown.fullName);
    controls_.tbNAME->setEnabled(shown.shortNameEnabled);
    QPalette colours;
    if (shown.shortNameRed)
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            colours.setColor(group, QPalette::Text, QColor(255, 0, 0));
    controls_.tbNAME->setPalette(colours);
}

void frmPrincipal::refreshScrollBar() {
    const StripScroll& scroll = controls_.PicRAME->scroll();
    QScrollBar& bar = *controls_.HScrollRAME;
    const QSignalBlocker quiet(bar);
    bar.setRange(0, scroll.maximum);
    bar.setSingleStep(scroll.smallStep);
    bar.setPageStep(scroll.largeStep);
    bar.setValue(scroll.value);
    bar.setEnabled(scroll.enabled);
}

void frmPrincipal::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && !isActiveWindow())
        controls_.PicRAME->cancelPress();
    QWidget::changeEvent(event);
}

// A right click turns a vehicle round; the menu comes by the keyboard, or by a right click with Ctrl.
bool frmPrincipal::filterStrip(QEvent* event) {
    const bool withControl = QGuiApplication::keyboardModifiers() & Qt::ControlModifier;
    if (event->type() == QEvent::ContextMenu) {
        const auto* asked = static_cast<QContextMenuEvent*>(event);
        if (withControl) {
            const StripHit hit = HitTestStrip(editor_.document, controls_.PicRAME->pointAt(asked->pos()));
            if (hit.hit) {
                selectVehicule(editor_.document, hit.index);
                controls_.PicRAME->showSelected();
            }
            refresh();
        }
        if (withControl || asked->reason() == QContextMenuEvent::Keyboard)
            actions_->stripMenu()->popup(asked->globalPos());
        return true;
    }
    return withControl && event->type() == QEvent::MouseButtonRelease &&
           static_cast<QMouseEvent*>(event)->button() == Qt::RightButton;
}

bool frmPrincipal::eventFilter(QObject* watched, QEvent* event) {
    if (watched == controls_.PicRAME && filterStrip(event))
        return true;
    if ((watched == controls_.tbNAME || watched == controls_.tbFULL_NAME) && filterName(watched, event))
        return true;
    return QWidget::eventFilter(watched, event);
}

bool frmPrincipal::filterName(QObject* box, QEvent* event) {
    if (box == controls_.tbNAME && event->type() == QEvent::KeyPress) {
        // Backspace, Tab and the shortcuts come as control characters; they are no text.
        const QString typed = static_cast<QKeyEvent*>(event)->text();
        return !typed.isEmpty() && typed[0].isPrint() && filterShortName(fromQt(typed)) != fromQt(typed);
    }
    // A file isn't text for the box: the window behind it takes the file, or refuses it.
    if (event->type() != QEvent::DragEnter || !static_cast<QDragEnterEvent*>(event)->mimeData()->hasUrls())
        return false;
    event->ignore();
    return true;
}

} // namespace zandor
