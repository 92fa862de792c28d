#include "editor/windows/principal.h"

#include "catalogue/stock_list.h"
#include "editor/consist_io.h"
#include "editor/coupling.h"
#include "editor/windows/elided_label.h"
#include "editor/windows/preview_view.h"
#include "editor/windows/stock_view.h"
#include "editor/windows/strip_view.h"
#include "editor/windows/vehicle_art.h"
#include "frame/startup.h"
#include "frame/windows/cursors.h"
#include "frame/windows/qt_text.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSlider>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace zandor {

namespace {

constexpr QSize DefaultSize{1024, 700};
constexpr int RepaintEvery = 1000; // ms: Timer1

// A colour of the settings: a decimal number with blue in the high byte. Invalid when the text is empty.
QColor settingsColour(const Frame& frame, std::string_view key) {
    const std::string text = frame.profiles.ReadIniValue(GeneralSection, key, frame.state.IniPath);
    if (text.empty())
        return {};
    const int value = static_cast<int>(numericValue(text));
    return QColor(value & 255, (value >> 8) & 255, (value >> 16) & 255);
}

// The steps of the scroll bar: a part of its range, and never nothing.
int scrollStep(int maximum, int parts) {
    return maximum < parts ? 1 : maximum / parts;
}

const Materiel* materielOfKey(const Catalogue& catalogue, const QString& key) {
    const int index = indexOfKey(fromQt(key));
    const bool known = index >= 0 && index < static_cast<int>(catalogue.Materiels.size());
    return known ? &catalogue.Materiels[index] : nullptr;
}

// Steam engines and carriages show no coupling in the list.
constexpr bool listsCouplings(int classIndex) {
    return classIndex != 2 && classIndex != 3;
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
    controls_ = buildPrincipal(*this, editor);
    applyLanguage();
    connectButtons();
    connectInputs();
    connectStock();
    connectStrip();
    addShortcuts();

    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    resize(DefaultSize.boundedTo(screen.size()));
    move(screen.center() - rect().center());
    controls_.lstViewMATERIEL->setFocus();
    refresh();
}

void frmPrincipal::connectButtons() {
    const auto& c = controls_;
    connect(c.cmdNEW, &QPushButton::clicked, this, &frmPrincipal::newPressed);
    connect(c.cmdOPEN, &QPushButton::clicked, this, &frmPrincipal::openPressed);
    connect(c.cmdSAVE, &QPushButton::clicked, this, &frmPrincipal::savePressed);
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
}

void frmPrincipal::connectStock() {
    const auto& c = controls_;
    connect(c.cmbMATERIEL, &QComboBox::currentIndexChanged, this, &frmPrincipal::fillStockList);
    connect(c.lstViewMATERIEL, &StockView::currentKeyChanged, this, &frmPrincipal::showStockInfo);
    connect(c.lstViewMATERIEL, &StockView::chosen, this, &frmPrincipal::appendFromList);
    connect(c.lstViewMATERIEL, &StockView::dragEnded, this, &frmPrincipal::finishStockDrag);
    c.lstViewMATERIEL->setDragPicture(
        [this] { return dragPixmap(controls_.cmbMATERIEL->currentIndex(), devicePixelRatioF()); });
}

void frmPrincipal::connectStrip() {
    const auto& c = controls_;
    connect(c.PicRAME, &StripView::changed, this, &frmPrincipal::refresh);
    connect(c.PicRAME, &StripView::scrolled, this, &frmPrincipal::refreshScrollBar);
    connect(c.PicRAME, &StripView::lookedUp, this, &frmPrincipal::lookUp);
    connect(c.PicRAME, &StripView::sizeChanged, this, &frmPrincipal::stripResized);
    connect(c.PicRAME, &StripView::stockDropped, this, [this](int index) {
        // A message of the drop must not stand in the middle of the system's drag: it waits for the drag's
        // end.
        droppedStock_ = index;
        QTimer::singleShot(0, this, [this] {
            if (droppedStock_) // otherwise the drag's end has taken it, and may still be asking
                finishStockDrag();
        });
    });
    connect(c.HScrollRAME, &QScrollBar::valueChanged, this, [this](int value) {
        editor_.document.controls.scrollValue = value;
        controls_.PicRAME->update();
    });
    connect(c.Timer1, &QTimer::timeout, this, [this] {
        if (!controls_.PicRAME->dragging())
            controls_.PicRAME->update();
    });
    c.Timer1->start(RepaintEvery);
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
}

void frmPrincipal::applyLanguage() {
    captionPrincipal(controls_, editor_.frame);
    updateResistance(editor_);
    ShowTotals(editor_);
    fillStockList();
    refresh();
}

void frmPrincipal::applyListColours() {
    controls_.lstViewMATERIEL->setColours(settingsColour(editor_.frame, "Color7"),
                                          settingsColour(editor_.frame, "Color8"));
}

// ---- commands

void frmPrincipal::newPressed() {
    newConsist(editor_);
    updateUnusedStock(); // the question may have led to a save
    refresh();
}

void frmPrincipal::openPressed() {
    Frame& frame = editor_.frame;
    const bool goOn = offerToSave(editor_);
    updateUnusedStock();
    refresh();
    if (!goOn)
        return;
    const std::string filter = frame.text(Message::ConsistFilter) + "|*.con";
    const auto path = frame.dialogs.askOpenFile(fromQt(controls_.cmdOPEN->text().remove(u'&')), filter,
                                                consistsPath(frame.state.RootPrimary), {});
    if (path)
        openFile(*path);
}

void frmPrincipal::openFile(const std::string& path) {
    const BusyPointer busy;
    const std::size_t known = editor_.catalogue.Materiels.size();
    openConsist(editor_, path);
    if (editor_.catalogue.Materiels.size() != known) { // stock that came since the load
        const QString key = controls_.lstViewMATERIEL->currentKey();
        fillStockList();
        controls_.lstViewMATERIEL->selectKey(key);
    }
    refresh();
}

void frmPrincipal::savePressed() {
    SaveFileRame(editor_);
    updateUnusedStock();
    refresh();
}

void frmPrincipal::aboutPressed() {
    Frame& frame = editor_.frame;
    frame.show(frame.text(Message::AboutText, {{"|1", frame.state.Title}, {"|2", "\n"}}), style::Information);
}

void frmPrincipal::closeEvent(QCloseEvent* event) {
    if (closeEditor(editor_)) {
        event->accept();
        return;
    }
    event->ignore();
    refresh();
}

// ---- the stock list

void frmPrincipal::fillStockList() {
    const BusyPointer busy;
    const int chosen = controls_.cmbMATERIEL->currentIndex();
    StockView& list = *controls_.lstViewMATERIEL;
    list.stock()->setRows(editor_.frame, FillStockList(editor_.frame.state, editor_.catalogue, chosen, false),
                          listsCouplings(chosen));
    list.selectFirst();
}

void frmPrincipal::updateUnusedStock() {
    controls_.lstViewMATERIEL->stock()->updateUnused(
        FillStockList(editor_.frame.state, editor_.catalogue, controls_.cmbMATERIEL->currentIndex(), false));
}

void frmPrincipal::appendFromList(const QString& key) {
    if (!materielOfKey(editor_.catalogue, key))
        return;
    appendStock(editor_, indexOfKey(fromQt(key)));
    refresh();
}

void frmPrincipal::finishStockDrag() {
    if (const auto index = std::exchange(droppedStock_, std::nullopt))
        dropStock(editor_, *index);
    else if (!controls_.PicRAME->dragging())
        clearDrag(editor_.document);
    refresh();
}

void frmPrincipal::showStockInfo(const QString& key) {
    const Materiel* materiel = materielOfKey(editor_.catalogue, key);
    if (!materiel)
        return;
    showInfo(ShowMaterielInfo(editor_.frame, *materiel));
    controls_.picPREVIEW->showClass(stockClassOf(*materiel));
}

void frmPrincipal::showInfo(const MaterielInfo& info) {
    const auto& c = controls_;
    c.tbSELECT->setText(toQt(info.select));
    c.tbPATH->setText(toQt(info.path));
    c.lblFreins->setText(toQt(info.brakes));
    c.lblATTELAGE->setText(toQt(info.coupling));
    c.lblLONGUEUR->setText(toQt(info.length));
    c.lblPOIDS->setText(toQt(info.mass));
}

void frmPrincipal::lookUp(int materielIndex) {
    const auto& c = controls_;
    if (materielIndex < 0) {
        for (ElidedLabel* label : {c.tbSELECT, c.tbPATH, c.lblFreins, c.lblATTELAGE})
            label->clear();
        c.picPREVIEW->clear();
        return;
    }
    if (materielIndex >= static_cast<int>(editor_.catalogue.Materiels.size()))
        return;
    const int stockClass = stockClassOf(editor_.catalogue.Materiels[materielIndex]);
    if (stockClass < 0)
        return;
    c.cmbMATERIEL->setCurrentIndex(stockClass);
    const QString key = QString("KEY_%1").arg(materielIndex);
    c.lstViewMATERIEL->selectKey(key);
    showStockInfo(key);
    c.lstViewMATERIEL->setFocus();
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
    c.cmdSAVE->setEnabled(shown.saveEnabled);
    c.cmdNUMEROTATION->setEnabled(shown.numberEnabled);
    refreshScrollBar();
    c.PicRAME->update();
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
    const EditorControls& shown = editor_.document.controls;
    QScrollBar& bar = *controls_.HScrollRAME;
    const QSignalBlocker quiet(bar);
    bar.setRange(0, shown.scrollMaximum);
    bar.setSingleStep(scrollStep(shown.scrollMaximum, 20));
    bar.setPageStep(scrollStep(shown.scrollMaximum, 65));
    bar.setValue(shown.scrollValue);
    bar.setEnabled(shown.scrollEnabled);
}

void frmPrincipal::stripResized() {
    EditorControls& shown = editor_.document.controls;
    shown.viewWidth = controls_.PicRAME->width();
    shown.viewHeight = controls_.PicRAME->height();
    updateStrip(editor_);
    refresh();
}

void frmPrincipal::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && !isActiveWindow())
        controls_.PicRAME->cancelPress();
    QWidget::changeEvent(event);
}

bool frmPrincipal::eventFilter(QObject* watched, QEvent* event) {
    if (watched == controls_.tbNAME && event->type() == QEvent::KeyPress) {
        // Backspace, Tab and the shortcuts come as control characters; they are no text.
        const QString typed = static_cast<QKeyEvent*>(event)->text();
        if (!typed.isEmpty() && typed[0].isPrint() && filterShortName(fromQt(typed)) != fromQt(typed))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace zandor
