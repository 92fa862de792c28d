#include "editor/windows/strip_pane.h"

#include "editor/messages.h"
#include "editor/strip_selection.h"
#include "editor/windows/pane_parts.h"
#include "editor/windows/strip_view.h"
#include "frame/windows/elided_label.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/theme.h"
#include "frame/windows/window_parts.h"

#include <QBoxLayout>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTimer>

#include <utility>

namespace zandor {

namespace {

constexpr int RepaintEvery = 1000; // ms: Timer1

bool isControlHeld() {
    return QGuiApplication::keyboardModifiers() & Qt::ControlModifier;
}

} // namespace

StripPane::StripPane(DocumentEdits& edits, QWidget* parent) : QFrame(parent), edits_(edits) {
    setFrameShape(QFrame::StyledPanel);
    build();
    connectControls();
    connect(&edits, &DocumentEdits::documentChanged, this, &StripPane::refresh);
}

void StripPane::build() {
    lblLongueurNewRame_ = named(new QLabel(this), "lblLongueurNewRame");
    lblLongueurNewRame_->setTextFormat(Qt::PlainText);
    QFont heading = lblLongueurNewRame_->font();
    heading.setBold(true);
    lblLongueurNewRame_->setFont(heading);
    lblSTATUS_ = named(new ElidedLabel(this, Qt::ElideRight), "lblSTATUS");
    lblSTATUS_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    theme::showAsHint(*lblSTATUS_);
    cmdVEHICLE_ = named(new QPushButton(this), "cmdVEHICLE");
    cmdVEHICLE_->setAutoDefault(false);
    PicRAME_ = new StripView(edits_, this);
    PicRAME_->setFocusPolicy(Qt::StrongFocus);
    HScrollRAME_ = named(new QScrollBar(Qt::Horizontal, this), "HScrollRAME");
    HScrollRAME_->setFocusPolicy(Qt::StrongFocus);
    Timer1_ = named(new QTimer(this), "Timer1");
    auto* head = new QHBoxLayout;
    head->addWidget(lblLongueurNewRame_);
    head->addWidget(lblSTATUS_, 1);
    head->addWidget(cmdVEHICLE_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 10, 12, 12);
    column->setSpacing(6);
    column->addLayout(head);
    column->addWidget(PicRAME_);
    column->addWidget(HScrollRAME_);
}

void StripPane::connectControls() {
    connect(PicRAME_, &StripView::scrolled, this, &StripPane::refreshScrollBar);
    connect(PicRAME_, &StripView::lookedUp, this, &StripPane::lookedUp);
    connect(PicRAME_, &StripView::stockDropped, this, &StripPane::takeDrop);
    connect(HScrollRAME_, &QScrollBar::valueChanged, PicRAME_, &StripView::scrollTo);
    connect(Timer1_, &QTimer::timeout, this, [this] {
        if (!PicRAME_->dragging())
            PicRAME_->update();
    });
    Timer1_->start(RepaintEvery);
    PicRAME_->installEventFilter(this);
}

PictureStore& StripPane::pictures() {
    return PicRAME_->pictures();
}

std::vector<QWidget*> StripPane::tabOrder() const {
    return {PicRAME_, cmdVEHICLE_, HScrollRAME_};
}

void StripPane::setMenu(QMenu* menu) {
    cmdVEHICLE_->setMenu(menu);
}

void StripPane::applyLanguage() {
    const Frame& frame = edits_.editor().frame;
    PicRAME_->setEmptyHint(toQt(frame.text(message::StripEmpty)));
    PicRAME_->setEmptyToolTip(toQt(frame.text(message::TipStrip)));
    PicRAME_->setAccessibleName(toQt(frame.text(message::NameOfStrip)));
    PicRAME_->DrawStrip(); // a Missing vehicle bears a word
    HScrollRAME_->setAccessibleName(toQt(frame.text(message::NameOfStripScroll)));
    cmdVEHICLE_->setText(textOr(frame, message::CaptionVehicle, "&Véhicule"));
}

// ---- what the document shows

void StripPane::refresh() {
    const ConsistDocument& document = edits_.document();
    const bool any = hasVehicles(document);
    lblLongueurNewRame_->setText(toQt(document.controls.totals));
    lblSTATUS_->setText(any ? toQt(describeSelected(edits_.editor())) : QString());
    cmdVEHICLE_->setEnabled(any);
    PicRAME_->refresh();
}

void StripPane::refreshScrollBar() {
    const StripScroll& scroll = PicRAME_->scroll();
    const QSignalBlocker quiet(HScrollRAME_);
    HScrollRAME_->setRange(0, scroll.maximum);
    HScrollRAME_->setSingleStep(scroll.smallStep);
    HScrollRAME_->setPageStep(scroll.largeStep);
    HScrollRAME_->setValue(scroll.value);
    HScrollRAME_->setEnabled(scroll.enabled);
}

Findings StripPane::showOpened() {
    selectVehicule(edits_.editor().document, 0);
    PicRAME_->showSelected();
    if (!endIsHidden(edits_.document(), PicRAME_->scroll()))
        return {};
    return {endHidden(edits_.document(), PicRAME_->scroll())};
}

void StripPane::sayNotInList() {
    const ConsistDocument& document = edits_.document();
    if (!hasSelection(document))
        return;
    const std::string& name = document.Vehicules[static_cast<std::size_t>(document.selected)].Name;
    lblSTATUS_->setText(toQt(edits_.editor().frame.text(message::VehicleNotInList, {{"|1", name}})));
}

// ---- vehicles put in, moved and removed

// What was put at the end comes into sight; elsewhere the strip stays as it was scrolled.
void StripPane::insert(const std::function<Outcome(Editor&)>& insertion) {
    edits_.carryOut([&](Editor& editor) {
        const StripScroll& scroll = PicRAME_->scroll();
        const bool wasHidden = endIsHidden(editor.document, scroll);
        Outcome outcome = insertion(editor);
        if (!outcome.done)
            return outcome;
        if (!wasHidden && endIsHidden(editor.document, scroll))
            outcome.told.push_back(endHidden(editor.document, scroll));
        PicRAME_->showInserted();
        return outcome;
    });
}

void StripPane::append(int stock) {
    if (materielAt(edits_.editor().catalogue, stock))
        insert([=](Editor& editor) { return appendStock(editor, stock); });
}

void StripPane::insertBefore(int stock) {
    if (!materielAt(edits_.editor().catalogue, stock))
        return;
    insert([=](Editor& editor) { return insertBeforeSelected(editor, stock); });
    PicRAME_->showSelected();
}

// A message of the drop must not stand in the middle of the system's drag: it waits for the drag's end.
void StripPane::takeDrop(int stock) {
    droppedStock_ = stock;
    QTimer::singleShot(0, this, [this] {
        if (droppedStock_) // otherwise the drag's end has taken it, and may still be asking
            finishStockDrag();
    });
}

void StripPane::finishStockDrag() {
    if (const auto stock = std::exchange(droppedStock_, std::nullopt))
        insert([=](Editor& editor) { return dropStock(editor, *stock); });
    else if (!PicRAME_->dragging())
        edits_.change([](Editor& editor) { clearDrag(editor.document); });
}

void StripPane::moveSelectedBy(int step) {
    edits_.carryOut([&](Editor& editor) {
        Outcome outcome = moveSelected(editor, step);
        PicRAME_->showSelected();
        return outcome;
    });
}

void StripPane::remove() {
    edits_.change(removeSelected);
    PicRAME_->showSelected();
}

// ---- the menu

// A right click turns a vehicle round; the menu comes by the keyboard, or by a right click with Ctrl.
bool StripPane::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ContextMenu) {
        openMenu(*static_cast<QContextMenuEvent*>(event));
        return true;
    }
    if (isControlHeld() && event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::RightButton)
        return true;
    return QFrame::eventFilter(watched, event);
}

void StripPane::openMenu(const QContextMenuEvent& asked) {
    const bool withControl = isControlHeld();
    if (withControl)
        edits_.change([&](Editor& editor) {
            const StripHit hit = HitTestStrip(editor.document, PicRAME_->pointAt(asked.pos()));
            if (!hit.hit)
                return;
            selectVehicule(editor.document, hit.index);
            PicRAME_->showSelected();
        });
    if (withControl || asked.reason() == QContextMenuEvent::Keyboard)
        cmdVEHICLE_->menu()->popup(asked.globalPos());
}

} // namespace zandor
