#include "editor/windows/stock_pane.h"

#include "catalogue/stock_list.h"
#include "editor/coupling.h"
#include "editor/messages.h"
#include "editor/windows/pane_parts.h"
#include "editor/windows/picture_store.h"
#include "editor/windows/stock_info.h"
#include "editor/windows/stock_view.h"
#include "frame/windows/cursors.h"
#include "frame/windows/name_order.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/settings_colour.h"
#include "frame/windows/window_parts.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QMenu>
#include <QSignalBlocker>

#include <algorithm>

namespace zandor {

StockPane::StockPane(DocumentEdits& edits, PictureStore& pictures, QWidget* parent)
    : QFrame(parent), editor_(edits.editor()), pictures_(pictures),
      info_(new StockInfo(editor_, pictures, parent)) {
    setFrameShape(QFrame::StyledPanel);
    build();
    connectControls();
    connect(&edits, &DocumentEdits::catalogueChanged, this, &StockPane::refresh);
}

void StockPane::build() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 10, 12, 12);
    lblCLASS_ = named(new QLabel(this), "lblCLASS");
    cmbMATERIEL_ = named(new QComboBox(this), "cmbMATERIEL");
    cmbMATERIEL_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    keepFromWheel(*cmbMATERIEL_);
    lblCLASS_->setBuddy(cmbMATERIEL_);
    lstViewMATERIEL_ = new StockView(this);
    lstViewMATERIEL_->setMinimumHeight(90);
    auto* head = new QHBoxLayout;
    head->addWidget(lblCLASS_);
    head->addWidget(cmbMATERIEL_, 1);
    column->addLayout(head);
    column->addWidget(lstViewMATERIEL_, 1);
}

void StockPane::connectControls() {
    StockView* const list = lstViewMATERIEL_;
    connect(cmbMATERIEL_, &QComboBox::currentIndexChanged, this, &StockPane::fill);
    connect(list, &StockView::currentStockChanged, info_, &StockInfo::showStock);
    connect(list, &StockView::chosen, this, &StockPane::chosen);
    connect(list, &StockView::dragEnded, this, &StockPane::dragEnded);
    connect(list, &QWidget::customContextMenuRequested, this, &StockPane::openMenu);
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    list->setDragPicture([this] { return carriedPicture(); });
    list->stock()->setDescriber(
        [this](int stock, StockModel::Column column) { return describe(stock, column); });
}

std::vector<QWidget*> StockPane::tabOrder() const {
    return {cmbMATERIEL_, lstViewMATERIEL_};
}

int StockPane::currentStock() const {
    return lstViewMATERIEL_->currentStock();
}

void StockPane::openMenu(const QPoint& at) {
    if (menu_ && currentStock() >= 0)
        menu_->popup(lstViewMATERIEL_->viewport()->mapToGlobal(at));
}

// What goes with the pointer: half the size, so that the strip is seen beside it.
QPixmap StockPane::carriedPicture() const {
    const PictureRef picture = ShowMaterielInfo(editor_, currentStock()).picture;
    if (!picture.found())
        return {};
    const double ratio = devicePixelRatioF();
    QPixmap carried = QPixmap::fromImage(
        pictures_.image({picture.kind == PictureRef::Resource, picture.name})
            .scaledToHeight(static_cast<int>(PlainPictureHeight * ratio / 2), Qt::SmoothTransformation));
    carried.setDevicePixelRatio(ratio);
    return carried;
}

// ---- texts and colours

void StockPane::applyLanguage() {
    const Frame& frame = editor_.frame;
    StockView& list = *lstViewMATERIEL_;
    captionInput(*lblCLASS_, textOr(frame, message::CaptionStockClass, "&Type de matériel"));
    captionClasses();
    list.stock()->setTitles({textOr(frame, message::ColumnName, "Nom"),
                             textOr(frame, message::ColumnBrakes, "Freins"),
                             textOr(frame, message::ColumnCoupling, "Attelage")});
    list.setToolTip(toQt(frame.text(message::TipStockList)));
    list.setAccessibleName(toQt(frame.text(message::NameOfStockList)));
    list.setEmptyHint(toQt(frame.text(message::StockListEmpty)));
    list.setNameOrder(nameOrder(toQt(frame.state.Language)));
    list.selectStock(currentStock());
    info_->applyLanguage();
    info_->showStock(currentStock());
}

void StockPane::captionClasses() {
    const QSignalBlocker quiet(*cmbMATERIEL_);
    const int chosen = std::max(0, cmbMATERIEL_->currentIndex());
    cmbMATERIEL_->clear();
    for (int i = 0; i < StockClassCount; ++i)
        cmbMATERIEL_->addItem(toQt(editor_.frame.text(stockClassMessage(i))));
    cmbMATERIEL_->setCurrentIndex(chosen);
}

void StockPane::applyColours() {
    lstViewMATERIEL_->setColours(readColour(editor_.frame, "Color7"), readColour(editor_.frame, "Color8"));
}

// A cell in words.
QString StockPane::describe(int stock, int column) const {
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

// ---- the list

std::vector<StockListRow> StockPane::rows() const {
    return FillStockList(editor_.frame.state, editor_.catalogue, cmbMATERIEL_->currentIndex(), false);
}

void StockPane::fill() {
    const BusyPointer busy;
    listed_ = editor_.catalogue.here().Materiels.size();
    lstViewMATERIEL_->stock()->setRows(rows());
    lstViewMATERIEL_->selectFirst();
    emit filled();
}

// A consist can bring stock that came since the load; otherwise only what is used may be another.
void StockPane::refresh() {
    if (editor_.catalogue.here().Materiels.size() == listed_)
        return lstViewMATERIEL_->stock()->updateUnused(rows());
    const int stock = currentStock();
    fill();
    lstViewMATERIEL_->selectStock(stock);
}

void StockPane::takeChanges() {
    const int stock = currentStock();
    fill();
    lstViewMATERIEL_->selectStock(stock);
}

bool StockPane::lookUp(int materielIndex) {
    const Materiel* materiel = materielAt(editor_.catalogue, materielIndex);
    if (!materiel)
        info_->clear();
    const int stockClass = materiel ? stockClassOf(*materiel) : -1;
    if (stockClass < 0)
        return false;
    cmbMATERIEL_->setCurrentIndex(stockClass);
    lstViewMATERIEL_->selectStock(materielIndex);
    info_->showStock(materielIndex); // it may show another vehicle of the list since
    lstViewMATERIEL_->setFocus();
    return true;
}

} // namespace zandor
