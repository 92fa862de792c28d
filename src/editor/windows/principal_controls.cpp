#include "editor/windows/principal_controls.h"

#include "catalogue/stock_list.h"
#include "editor/messages.h"
#include "editor/windows/preview_view.h"
#include "editor/windows/stock_view.h"
#include "editor/windows/strip_view.h"
#include "frame/windows/art.h"
#include "frame/windows/button_bar.h"
#include "frame/windows/elided_label.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/theme.h"
#include "frame/windows/window_parts.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSlider>
#include <QTimer>

#include <algorithm>

namespace zandor {

namespace {

constexpr int Gap = 10;      // pixels between cards
constexpr int ButtonGap = 6; // pixels
constexpr int LowestPane = 50;
constexpr int DurabilityRange = 1000;

// A pane of the window.
QFrame* card(QWidget* parent) {
    auto* frame = new QFrame(parent);
    frame->setFrameShape(QFrame::StyledPanel);
    return frame;
}

// A pane that scrolls where a low screen has no room for it. It is never narrower than what is in it.
class LowPane final : public QScrollArea {
  public:
    LowPane(QWidget* parent, QWidget* content) : QScrollArea(parent) {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setFocusPolicy(Qt::NoFocus);
        setWidget(content);
    }
    QSize minimumSizeHint() const override {
        return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(), LowestPane};
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == widget() && event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return QScrollArea::eventFilter(watched, event);
    }
};

// ---- the buttons

struct ButtonRow {
    QPushButton* PrincipalControls::*place;
    const char* name;
    Message caption;
    const char* french;
    Message tip;      // NoTip: none
    const char* icon; // as desktops name it
};
constexpr Message NoTip{0};
constexpr ButtonRow Buttons[] = {
    {&PrincipalControls::cmdNEW, "cmdNEW", message::CaptionNew, "&Nouveau", message::TipNew, "document-new"},
    {&PrincipalControls::cmdOPEN, "cmdOPEN", message::CaptionOpen, "&Ouvrir", message::TipOpen,
     "document-open"},
    {&PrincipalControls::cmdSAVE, "cmdSAVE", message::CaptionSave, "&Enregistrer", message::TipSave,
     "document-save"},
    {&PrincipalControls::cmdDELETE, "cmdDELETE", message::CaptionDelete, "&Supprimer", message::TipDelete,
     "edit-delete"},
    {&PrincipalControls::cmdNUMEROTATION, "cmdNUMEROTATION", message::CaptionNumber, "N&uméroter",
     message::TipNumber, "view-sort-ascending"},
    {&PrincipalControls::cmdOptions, "cmdOptions", message::CaptionOptions, "Opt&ions", NoTip,
     "preferences-system"},
    {&PrincipalControls::cmdHELP, "cmdHELP", message::CaptionHelp, "&Aide", NoTip, "help-contents"},
    {&PrincipalControls::cmdPROPOS, "cmdPROPOS", message::CaptionAbout, "A &propos", NoTip, "help-about"},
    {&PrincipalControls::cmdCANCEL, "cmdCANCEL", message::CaptionQuit, "&Quitter", NoTip, "application-exit"},
};

QLayout* buildButtons(QWidget& window, PrincipalControls& c) {
    auto* bar = new ButtonBar(ButtonGap);
    for (const ButtonRow& row : Buttons) {
        QPushButton* button = named(new QPushButton(&window), row.name);
        button->setAutoDefault(false);
        button->setIcon(QIcon::fromTheme(row.icon));
        c.*row.place = button;
        if (button == c.cmdOptions)
            bar->beginRightEnd();
        bar->addWidget(button);
    }
    // A consist that a service uses must not go, and the services aren't known yet.
    c.cmdDELETE->setEnabled(false);
    c.cmdDELETE->hide();
    return bar;
}

// ---- the stock list

QWidget* buildStock(QWidget& window, PrincipalControls& c) {
    QFrame* frame = card(nullptr);
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(12, 10, 12, 12);
    c.lblCLASS = named(new QLabel(frame), "lblCLASS");
    c.cmbMATERIEL = named(new QComboBox(frame), "cmbMATERIEL");
    c.cmbMATERIEL->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    keepFromWheel(*c.cmbMATERIEL);
    c.lblCLASS->setBuddy(c.cmbMATERIEL);
    c.lstViewMATERIEL = new StockView(frame);
    c.lstViewMATERIEL->setMinimumHeight(90);
    auto* head = new QHBoxLayout;
    head->addWidget(c.lblCLASS);
    head->addWidget(c.cmbMATERIEL, 1);
    column->addLayout(head);
    column->addWidget(c.lstViewMATERIEL, 1);
    return new LowPane(&window, frame);
}

// ---- what is known of the selected stock

QWidget* buildInfo(QWidget* parent, PrincipalControls& c) {
    QFrame* frame = card(parent);
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(10, 8, 10, 8);
    c.picPREVIEW = new PreviewView(frame);
    c.picPREVIEW->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    column->addWidget(c.picPREVIEW, 1);
    const auto label = [&](const char* name, Qt::TextElideMode mode) {
        return named(new ElidedLabel(frame, mode), name);
    };
    c.tbSELECT = label("tbSELECT", Qt::ElideRight);
    c.tbPATH = label("tbPATH", Qt::ElideMiddle);
    column->addWidget(c.tbSELECT);
    column->addWidget(c.tbPATH);
    auto* grid = new QGridLayout;
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    grid->addWidget(c.lblFreins = label("lblFreins", Qt::ElideRight), 0, 0);
    grid->addWidget(c.lblATTELAGE = label("lblATTELAGE", Qt::ElideRight), 1, 0);
    grid->addWidget(c.lblLONGUEUR = label("lblLONGUEUR", Qt::ElideRight), 0, 1);
    grid->addWidget(c.lblPOIDS = label("lblPOIDS", Qt::ElideRight), 1, 1);
    column->addLayout(grid);
    QFont bold = c.tbSELECT->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.15);
    c.tbSELECT->setFont(bold);
    theme::showAsHint(*c.tbPATH);
    return frame;
}

// ---- the consist's names and durability

QWidget* buildConsist(QWidget* parent, PrincipalControls& c) {
    QFrame* frame = card(parent);
    auto* grid = new QGridLayout(frame);
    grid->setVerticalSpacing(4);
    grid->setContentsMargins(10, 8, 10, 8);
    grid->setHorizontalSpacing(12);
    grid->setColumnStretch(1, 1);
    c.lblFULL_NAME = named(new QLabel(frame), "lblFULL_NAME");
    c.lblNAME = named(new QLabel(frame), "lblNAME");
    c.lblSLIDER = named(new QLabel(frame), "lblSLIDER");
    c.tbFULL_NAME = named(new QLineEdit(frame), "tbFULL_NAME");
    c.tbNAME = named(new QLineEdit(frame), "tbNAME");
    c.Slider1 = named(new QSlider(Qt::Horizontal, frame), "Slider1");
    keepFromWheel(*c.Slider1);
    c.Slider1->setRange(0, DurabilityRange);
    c.Slider1->setPageStep(DurabilityRange / 10);
    c.Slider1->setSingleStep(DurabilityRange / 100);
    // No label here wraps its words: the scrolled side would then keep the preview at its full height.
    c.lblRESISTANCE = named(new ElidedLabel(frame, Qt::ElideRight), "lblRESISTANCE");
    theme::showAsHint(*c.lblRESISTANCE);
    c.lblFULL_NAME->setBuddy(c.tbFULL_NAME);
    c.lblNAME->setBuddy(c.tbNAME);
    c.lblSLIDER->setBuddy(c.Slider1);
    grid->addWidget(c.lblFULL_NAME, 0, 0);
    grid->addWidget(c.tbFULL_NAME, 0, 1);
    grid->addWidget(c.lblNAME, 1, 0);
    grid->addWidget(c.tbNAME, 1, 1);
    grid->addWidget(c.lblSLIDER, 2, 0);
    grid->addWidget(c.Slider1, 2, 1);
    grid->addWidget(c.lblRESISTANCE, 3, 1);
    return frame;
}

QWidget* buildDetails(QWidget& window, PrincipalControls& c) {
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap);
    column->addWidget(buildInfo(content, c), 1);
    column->addWidget(buildConsist(content, c));
    return new LowPane(&window, content);
}

// ---- the strip

QWidget* buildStrip(QWidget& window, PrincipalControls& c, Editor& editor) {
    QFrame* frame = card(&window);
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(12, 10, 12, 12);
    column->setSpacing(6);
    c.lblLongueurNewRame = named(new QLabel(frame), "lblLongueurNewRame");
    c.lblLongueurNewRame->setTextFormat(Qt::PlainText);
    QFont heading = c.lblLongueurNewRame->font();
    heading.setBold(true);
    c.lblLongueurNewRame->setFont(heading);
    c.lblSTATUS = named(new ElidedLabel(frame, Qt::ElideRight), "lblSTATUS");
    c.lblSTATUS->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    theme::showAsHint(*c.lblSTATUS);
    c.cmdVEHICLE = named(new QPushButton(frame), "cmdVEHICLE");
    c.cmdVEHICLE->setAutoDefault(false);
    c.PicRAME = new StripView(editor, frame);
    c.PicRAME->setFocusPolicy(Qt::StrongFocus);
    c.HScrollRAME = named(new QScrollBar(Qt::Horizontal, frame), "HScrollRAME");
    c.HScrollRAME->setFocusPolicy(Qt::StrongFocus);
    auto* head = new QHBoxLayout;
    head->addWidget(c.lblLongueurNewRame);
    head->addWidget(c.lblSTATUS, 1);
    head->addWidget(c.cmdVEHICLE);
    column->addLayout(head);
    column->addWidget(c.PicRAME);
    column->addWidget(c.HScrollRAME);
    return frame;
}

void setTabOrder(const PrincipalControls& c) {
    QWidget* const order[] = {
        c.cmbMATERIEL,     c.lstViewMATERIEL, c.PicRAME, c.cmdVEHICLE, c.HScrollRAME, c.tbFULL_NAME,
        c.tbNAME,          c.Slider1,         c.cmdNEW,  c.cmdOPEN,    c.cmdSAVE,     c.cmdDELETE,
        c.cmdNUMEROTATION, c.cmdOptions,      c.cmdHELP, c.cmdPROPOS,  c.cmdCANCEL};
    for (std::size_t i = 1; i < std::size(order); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}

struct LabelRow {
    QLabel* PrincipalControls::*label;
    Message message;
    const char* french;
};
constexpr LabelRow Labels[] = {
    {&PrincipalControls::lblNAME, message::CaptionShortName, "Nom &court"},
    {&PrincipalControls::lblFULL_NAME, message::CaptionFullName, "Nom co&mplet"},
    {&PrincipalControls::lblSLIDER, message::CaptionDurability, "&Résistance de la rame"},
    {&PrincipalControls::lblCLASS, message::CaptionStockClass, "&Type de matériel"},
};

void captionButtons(const PrincipalControls& c, const Frame& frame) {
    for (const ButtonRow& row : Buttons) {
        QPushButton* button = c.*row.place;
        button->setText(textOr(frame, row.caption, row.french));
        if (row.tip != NoTip)
            button->setToolTip(toQt(frame.text(row.tip)));
    }
}

void captionClasses(QComboBox& box, const Frame& frame) {
    const QSignalBlocker quiet(box);
    const int chosen = std::max(0, box.currentIndex());
    box.clear();
    for (int i = 0; i < StockClassCount; ++i)
        box.addItem(toQt(frame.text(stockClassMessage(i))));
    box.setCurrentIndex(chosen);
}

} // namespace

PrincipalControls buildPrincipal(QWidget& window, Editor& editor) {
    PrincipalControls c{};
    auto* column = new QVBoxLayout(&window);
    column->setContentsMargins(12, 12, 12, 12);
    column->setSpacing(Gap);
    column->addLayout(buildButtons(window, c));
    auto* middle = new QHBoxLayout;
    middle->setSpacing(Gap);
    middle->addWidget(buildStock(window, c), 6);
    middle->addWidget(buildDetails(window, c), 5);
    column->addLayout(middle, 1);
    column->addWidget(buildStrip(window, c, editor));
    c.PicRAME->setPreview(c.picPREVIEW);
    c.Timer1 = named(new QTimer(&window), "Timer1");
    setTabOrder(c);
    return c;
}

void captionPrincipal(const PrincipalControls& c, const Frame& frame) {
    captionButtons(c, frame);
    captionClasses(*c.cmbMATERIEL, frame);
    for (const LabelRow& row : Labels)
        (c.*row.label)->setText(textOr(frame, row.message, row.french));
    c.lstViewMATERIEL->stock()->setTitles({textOr(frame, message::ColumnName, "Nom"),
                                           textOr(frame, message::ColumnBrakes, "Freins"),
                                           textOr(frame, message::ColumnCoupling, "Attelage")});
    c.lstViewMATERIEL->setToolTip(toQt(frame.text(message::TipStockList)));
    c.Slider1->setToolTip(toQt(frame.text(message::TipDurability)));
    c.PicRAME->setEmptyHint(toQt(frame.text(message::StripEmpty)));
    c.PicRAME->setEmptyToolTip(toQt(frame.text(message::TipStrip)));
    const auto plain = [](QString text) { return text.remove(u'&'); };
    c.tbNAME->setAccessibleName(plain(c.lblNAME->text()));
    c.tbFULL_NAME->setAccessibleName(plain(c.lblFULL_NAME->text()));
    c.Slider1->setAccessibleName(plain(c.lblSLIDER->text()));
    c.cmbMATERIEL->setAccessibleName(plain(c.lblCLASS->text()));
    c.lstViewMATERIEL->setAccessibleName(toQt(frame.text(message::NameOfStockList)));
    c.lstViewMATERIEL->setEmptyHint(toQt(frame.text(message::StockListEmpty)));
    c.PicRAME->setAccessibleName(toQt(frame.text(message::NameOfStrip)));
    c.picPREVIEW->setAccessibleName(toQt(frame.text(message::NameOfPreview)));
    c.HScrollRAME->setAccessibleName(toQt(frame.text(message::NameOfStripScroll)));
    c.cmdVEHICLE->setText(textOr(frame, message::CaptionVehicle, "&Véhicule"));
}

} // namespace zandor
