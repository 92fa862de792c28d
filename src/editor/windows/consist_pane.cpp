#include "editor/windows/consist_pane.h"

#include "editor/messages.h"
#include "editor/windows/pane_parts.h"
#include "frame/windows/elided_label.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/theme.h"
#include "frame/windows/window_parts.h"

#include <QDragEnterEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalBlocker>
#include <QSlider>

namespace zandor {

namespace {

constexpr int DurabilityRange = 1000;

void setIfDifferent(QLineEdit& edit, const std::string& text) {
    const QString shown = toQt(text);
    if (edit.text() == shown)
        return;
    const QSignalBlocker quiet(edit);
    edit.setText(shown); // the caret goes to the end
}

// Backspace, Tab and the shortcuts come as control characters; they are no text.
bool isLostInFileName(const QString& typed) {
    return !typed.isEmpty() && typed[0].isPrint() && filterShortName(fromQt(typed)) != fromQt(typed);
}

} // namespace

ConsistPane::ConsistPane(DocumentEdits& edits, QWidget* parent) : QFrame(parent), edits_(edits) {
    setFrameShape(QFrame::StyledPanel);
    build();
    connectControls();
    connect(&edits, &DocumentEdits::documentChanged, this, &ConsistPane::refresh);
}

void ConsistPane::build() {
    lblFULL_NAME_ = named(new QLabel(this), "lblFULL_NAME");
    lblNAME_ = named(new QLabel(this), "lblNAME");
    tbFULL_NAME_ = named(new QLineEdit(this), "tbFULL_NAME");
    tbNAME_ = named(new QLineEdit(this), "tbNAME");
    lblFULL_NAME_->setBuddy(tbFULL_NAME_);
    lblNAME_->setBuddy(tbNAME_);
    buildSlider();
    auto* grid = new QGridLayout(this);
    grid->setVerticalSpacing(3);
    grid->setContentsMargins(10, 6, 10, 6);
    grid->setHorizontalSpacing(12);
    grid->setColumnStretch(1, 1);
    grid->addWidget(lblFULL_NAME_, 0, 0);
    grid->addWidget(tbFULL_NAME_, 0, 1);
    grid->addWidget(lblNAME_, 1, 0);
    grid->addWidget(tbNAME_, 1, 1);
    grid->addWidget(lblSLIDER_, 2, 0);
    grid->addWidget(Slider1_, 2, 1);
    grid->addWidget(lblRESISTANCE_, 3, 1);
}

void ConsistPane::buildSlider() {
    lblSLIDER_ = named(new QLabel(this), "lblSLIDER");
    Slider1_ = named(new QSlider(Qt::Horizontal, this), "Slider1");
    keepFromWheel(*Slider1_);
    Slider1_->setRange(0, DurabilityRange);
    Slider1_->setPageStep(DurabilityRange / 10);
    Slider1_->setSingleStep(DurabilityRange / 100);
    lblSLIDER_->setBuddy(Slider1_);
    // No label here wraps its words: the scrolled side would then keep the preview at its full height.
    lblRESISTANCE_ = named(new ElidedLabel(this, Qt::ElideRight), "lblRESISTANCE");
    theme::showAsHint(*lblRESISTANCE_);
}

void ConsistPane::connectControls() {
    connect(tbNAME_, &QLineEdit::textEdited, this, [this](const QString& text) {
        edits_.change([&](Editor& editor) { changeShortName(editor, fromQt(text)); });
    });
    connect(tbFULL_NAME_, &QLineEdit::textEdited, this, [this](const QString& text) {
        edits_.change([&](Editor& editor) { changeFullName(editor, fromQt(text)); });
    });
    connect(Slider1_, &QSlider::valueChanged, this,
            [this](int value) { edits_.change([=](Editor& editor) { changeDurability(editor, value); }); });
    tbNAME_->installEventFilter(this);
    tbFULL_NAME_->installEventFilter(this);
}

std::vector<QWidget*> ConsistPane::tabOrder() const {
    return {tbFULL_NAME_, tbNAME_, Slider1_};
}

void ConsistPane::applyLanguage() {
    const Frame& frame = edits_.editor().frame;
    captionInput(*lblNAME_, textOr(frame, message::CaptionShortName, "Nom &court"));
    captionInput(*lblFULL_NAME_, textOr(frame, message::CaptionFullName, "Nom co&mplet"));
    captionInput(*lblSLIDER_, textOr(frame, message::CaptionDurability, "&Résistance de la rame"));
    Slider1_->setToolTip(toQt(frame.text(message::TipDurability)));
}

void ConsistPane::refresh() {
    const EditorControls& shown = edits_.document().controls;
    refreshNames();
    const QSignalBlocker quiet(Slider1_);
    Slider1_->setValue(shown.durability);
    lblRESISTANCE_->setText(toQt(shown.resistance));
}

void ConsistPane::refreshNames() {
    const EditorControls& shown = edits_.document().controls;
    setIfDifferent(*tbNAME_, shown.shortName);
    setIfDifferent(*tbFULL_NAME_, shown.fullName);
    tbNAME_->setEnabled(shown.shortNameEnabled);
    QPalette colours;
    if (shown.shortNameRed)
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            colours.setColor(group, QPalette::Text, QColor(255, 0, 0));
    tbNAME_->setPalette(colours);
}

bool ConsistPane::eventFilter(QObject* watched, QEvent* event) {
    if (watched == tbNAME_ && event->type() == QEvent::KeyPress)
        return isLostInFileName(static_cast<QKeyEvent*>(event)->text());
    // A file isn't text for a box: the window behind it takes the file, or refuses it.
    if (event->type() != QEvent::DragEnter || !static_cast<QDragEnterEvent*>(event)->mimeData()->hasUrls())
        return QFrame::eventFilter(watched, event);
    event->ignore();
    return true;
}

} // namespace zandor
