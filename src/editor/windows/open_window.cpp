#include "editor/windows/open_window.h"

#include "catalogue/messages.h"
#include "editor/messages.h"
#include "editor/windows/open_model.h"
#include "editor/windows/row_view.h"
#include "frame/messages.h"
#include "frame/windows/cursors.h"
#include "frame/windows/elided_label.h"
#include "frame/windows/help.h"
#include "frame/windows/name_order.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/settings_colour.h"
#include "frame/windows/window_parts.h"

#include <QBoxLayout>
#include <QCollator>
#include <QHeaderView>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace zandor {

namespace {

constexpr QSize DefaultSize{860, 560};
constexpr int BarWidth = 260; // pixels

// The columns that are as wide as their texts, and how much of the list they take at most.
constexpr std::pair<OpenModel::Column, double> SizedColumns[] = {
    {OpenModel::CompositionColumn, 0.34},
    {OpenModel::FileColumn, 0.26},
};

} // namespace

frmOpen::frmOpen(Frame& frame, Catalogue& catalogue, Open open, QWidget* parent)
    : QDialog(parent), frame_(frame), catalogue_(catalogue), open_(std::move(open)),
      model_(new OpenModel(frame, this)), sorted_(new RowOrder(*model_, this)),
      lsvCONSISTS_(named(new RowView(this), "lsvCONSISTS")),
      Label1_(named(new ElidedLabel(this, Qt::ElideRight), "Label1")),
      lblCOUNT_(named(new QLabel(this), "lblCOUNT")),
      ProgressBar1_(named(new QProgressBar(this), "ProgressBar1")),
      cmdOPEN_(named(new QPushButton(this), "cmdOPEN")),
      cmdCANCEL_(named(new QPushButton(this), "cmdCANCEL")), Timer1_(named(new QTimer(this), "Timer1")) {
    setObjectName("frmOpen");
    setHelpContext(*this, helpContext::OpenConsist);
    buildList();
    layOut();
    connectAll();
    applySettings();
    resize(DefaultSize.boundedTo(screen()->availableSize() * 0.9)); // its frame has room too
}

void frmOpen::buildList() {
    sorted_->setNameOrder(nameOrder(toQt(frame_.state.Language)));
    lsvCONSISTS_->setModel(sorted_);
    lsvCONSISTS_->setIconSize({16, 16});
    lsvCONSISTS_->setMinimumHeight(90);
    lsvCONSISTS_->setAccessibleName(toQt(frame_.text(message::ConsistFilter)));
}

void frmOpen::layOut() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    column->setSpacing(10);
    column->addWidget(lsvCONSISTS_, 1);

    column->addWidget(Label1_);

    auto* buttons = new QHBoxLayout;
    ProgressBar1_->setMaximumWidth(BarWidth);
    ProgressBar1_->setTextVisible(false);
    buttons->addWidget(ProgressBar1_, 1);
    buttons->addWidget(lblCOUNT_, 1);
    buttons->addWidget(cmdOPEN_);
    buttons->addWidget(cmdCANCEL_);
    column->addLayout(buttons);

    setTabOrder(lsvCONSISTS_, cmdOPEN_);
    setTabOrder(cmdOPEN_, cmdCANCEL_);
    lsvCONSISTS_->setFocus();
}

void frmOpen::connectAll() {
    cmdOPEN_->setDefault(true); // Enter in the list
    cmdOPEN_->setEnabled(false);
    Timer1_->setSingleShot(true);
    connect(cmdOPEN_, &QPushButton::clicked, this, &frmOpen::OpenSelectedConsist);
    connect(cmdCANCEL_, &QPushButton::clicked, this, &QDialog::reject);
    connect(Timer1_, &QTimer::timeout, this, &frmOpen::start);
    connect(lsvCONSISTS_, &QTreeView::doubleClicked, this, &frmOpen::OpenSelectedConsist);
    connect(lsvCONSISTS_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &frmOpen::showSelected);
    connect(lsvCONSISTS_->header(), &QHeaderView::sectionClicked, this, &frmOpen::sortBy);
}

void frmOpen::applySettings() {
    setWindowTitle(toQt(frame_.text(message::OpenTitle, {{"|1", frame_.state.Title}})));
    cmdOPEN_->setText(textOr(frame_, message::OpenVerb, "&Ouvrir"));
    cmdCANCEL_->setText(textOr(frame_, message::Cancel, "Annuler"));
    Label1_->setText(toQt(frame_.text(message::ReadingStock)));
    ProgressBar1_->setAccessibleName(Label1_->text());

    const QColor background = readColour(frame_, "Color1"), text = readColour(frame_, "Color2");
    lsvCONSISTS_->showColours(background, text);
    model_->setTextColour(text);
}

void frmOpen::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!started_)
        Timer1_->start(0);
}

void frmOpen::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    sizeColumns();
}

void frmOpen::start() {
    if (std::exchange(started_, true))
        return;
    sizeColumns();
    const BusyPointer busy;
    QtProgress progress;
    progress.setView(this);
    if (prepareSummaries(frame_, catalogue_, progress))
        QTimer::singleShot(0, this, &frmOpen::showList); // the events that wait go first
}

void frmOpen::showStep(int lower, int upper, int current, const QString& text) {
    ProgressBar1_->setRange(lower, upper);
    ProgressBar1_->setValue(current);
    Label1_->setText(text);
}

void frmOpen::done(int result) {
    ended_ = true;
    QDialog::done(result);
}

// The complete consists first, as they are listed; among those alike by name.
std::vector<int> frmOpen::rowsByName() const {
    const std::vector<ConsistSummary>& consists = catalogue_.here().ConsistSummaries;
    const QCollator order = nameOrder(toQt(frame_.state.Language));
    std::vector<std::pair<QCollatorSortKey, int>> rows;
    for (const int row : FillConsistList(catalogue_))
        rows.emplace_back(order.sortKey(toQt(consists[static_cast<std::size_t>(row)].FullName)), row);
    std::ranges::stable_sort(rows, [&consists](const auto& a, const auto& b) {
        const bool first = consists[static_cast<std::size_t>(a.second)].Complete,
                   second = consists[static_cast<std::size_t>(b.second)].Complete;
        return first != second ? first : a.first < b.first;
    });
    std::vector<int> sorted;
    for (const auto& [key, row] : rows)
        sorted.push_back(row);
    return sorted;
}

void frmOpen::showList() {
    if (ended_)
        return;
    model_->setRows(catalogue_.here().ConsistSummaries, rowsByName());
    ProgressBar1_->hide();
    sizeColumns();
    showCounts();
    const bool any = model_->rowCount() > 0;
    cmdOPEN_->setEnabled(any);
    if (any)
        lsvCONSISTS_->setCurrentIndex(sorted_->index(0, 0));
    else
        Label1_->setText(toQt(frame_.text(message::OpenNone)));
}

// The names get what is left; as soon as the user has sized a column, all stay.
void frmOpen::sizeColumns() {
    if (lsvCONSISTS_->sizedByUser())
        return;
    QFont bold = lsvCONSISTS_->font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    const int width = lsvCONSISTS_->viewport()->width();
    for (const auto& [column, most] : SizedColumns) {
        const int needed =
            metrics.horizontalAdvance(model_->longestText(column)) + 3 * metrics.averageCharWidth();
        lsvCONSISTS_->sizeColumn(column, std::min(needed, static_cast<int>(most * width)));
    }
}

void frmOpen::showCounts() {
    const std::string all = std::to_string(model_->rowCount());
    const std::string incomplete = std::to_string(model_->incompleteCount());
    const Message message = incomplete == "0" ? message::OpenCount : message::OpenCountIncomplete;
    lblCOUNT_->setText(toQt(frame_.text(message, {{"|1", all}, {"|2", incomplete}})));
}

const ConsistSummary* frmOpen::selected() const {
    const QModelIndex row = lsvCONSISTS_->currentIndex();
    return row.isValid() ? &catalogue_.here().ConsistSummaries[row.data(OpenModel::NumberRole).toUInt()]
                         : nullptr;
}

void frmOpen::showSelected() {
    if (const ConsistSummary* consist = selected())
        Label1_->setText(toQt(
            frame_.text(message::ConsistSelected, {{"|1", consist->FullName}, {"|2", consist->FileName}})));
}

void frmOpen::sortBy(int column) {
    if (model_->rowCount() == 0)
        return;
    order_ = order_ == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    sorted_->sort(column, order_);
    lsvCONSISTS_->header()->setSortIndicatorShown(true);
    lsvCONSISTS_->header()->setSortIndicator(column, order_);
    lsvCONSISTS_->scrollTo(lsvCONSISTS_->currentIndex());
}

void frmOpen::OpenSelectedConsist() {
    const ConsistSummary* const consist = selected();
    if (consist && open_(consistsPath(frame_.state.roots.RootPrimary()) + consist->FileName))
        accept();
}

} // namespace zandor
