#include "editor/windows/stock_model.h"

#include "frame/windows/qt_text.h"
#include "frame/windows/theme.h"

#include <QIcon>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace zandor {

namespace {

struct WordRow {
    std::string_view word;
    Message message;
};
constexpr WordRow CouplingWords[] = {
    {"automatic", Message::CouplingAutomatic},
    {"bar", Message::CouplingBar},
    {"chain", Message::CouplingChain},
    {"hydraulic", Message::CouplingHydraulic},
};
constexpr WordRow BrakeWords[] = {
    {"air_single_pipe", Message::BrakeAirSinglePipe},
    {"air_twin_pipe", Message::BrakeAirTwinPipe},
    {"vacuum_single_pipe", Message::BrakeVacuumSinglePipe},
    {"vacuum_twin_pipe", Message::BrakeVacuumTwinPipe},
    {"air_piped", Message::BrakeAirPiped},
    {"vacuum_piped", Message::BrakeVacuumPiped},
};

template <std::size_t N>
QString wordText(const Frame& frame, const WordRow (&rows)[N], std::string_view word) {
    const auto row = std::ranges::find(rows, word, &WordRow::word);
    const std::string text = row == std::end(rows) ? std::string() : frame.text(row->message);
    return toQt(text.empty() ? word : std::string_view(text));
}

// What the eye sorts by: without case and accents.
QString sortKey(const QString& text) {
    QString key;
    for (const QChar c : text.normalized(QString::NormalizationForm_KD))
        if (c.category() != QChar::Mark_NonSpacing)
            key += c;
    return key.toCaseFolded();
}

// Stock with a cab is what one can drive.
QIcon cabIcon() {
    QPixmap picture(32, 32);
    picture.setDevicePixelRatio(2);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 1)); // seen on a selected row too
    painter.setBrush(theme::Accent);
    painter.drawRoundedRect(QRectF(1.5, 1.0, 13, 13), 3.5, 3.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRect(QRectF(4.5, 4, 3, 3));
    painter.drawRect(QRectF(8.5, 4, 3, 3));
    painter.setBrush(QColor(255, 214, 120));
    painter.drawEllipse(QPointF(5.2, 10.2), 1.1, 1.1);
    painter.drawEllipse(QPointF(10.8, 10.2), 1.1, 1.1);
    return QIcon(picture);
}

QIcon noCabIcon() {
    QPixmap picture(32, 32);
    picture.setDevicePixelRatio(2);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(125, 138, 155), 1.2));
    painter.setBrush(QColor(225, 231, 238));
    painter.drawRoundedRect(QRectF(1.5, 5, 13, 6.5), 1.5, 1.5);
    return QIcon(picture);
}

} // namespace

QString couplingText(const Frame& frame, std::string_view coupling) {
    const std::size_t cut = coupling.find('_');
    const QString front = wordText(frame, CouplingWords, coupling.substr(0, cut));
    if (cut == std::string_view::npos)
        return front;
    const QString rear = wordText(frame, CouplingWords, coupling.substr(cut + 1));
    return front == rear ? front : QString("%1 / %2").arg(front, rear);
}

QString brakeText(const Frame& frame, std::string_view brakeSystem) {
    if (brakeSystem == "ep" || brakeSystem == "ecp")
        return toQt(brakeSystem).toUpper();
    return wordText(frame, BrakeWords, brakeSystem);
}

void StockModel::setRows(const Frame& frame, std::vector<StockListRow> rows, bool showCouplings) {
    std::unordered_map<std::string, QString> brakes, couplings; // few different ones in many rows
    const auto once = [&frame](auto& known, const std::string& word, auto make) {
        const auto [place, isNew] = known.try_emplace(word);
        if (isNew)
            place->second = make(frame, word);
        return place->second;
    };
    beginResetModel();
    rows_.clear();
    rows_.reserve(rows.size());
    for (const StockListRow& row : rows) {
        Row& made = rows_.emplace_back();
        made.key = toQt(row.key);
        made.texts[NameColumn] = toQt(row.text);
        made.texts[BrakeColumn] = once(brakes, row.brakeSystem, brakeText);
        if (showCouplings)
            made.texts[CouplingColumn] = once(couplings, row.coupling, couplingText);
        made.sortText = sortKey(made.texts[NameColumn]);
        made.hasCab = row.hasCab;
        made.unused = row.unused;
    }
    sortRows();
    endResetModel();
}

void StockModel::updateUnused(const std::vector<StockListRow>& rows) {
    std::unordered_set<std::string> unused;
    for (const StockListRow& row : rows)
        if (row.unused)
            unused.insert(row.key);
    for (Row& row : rows_)
        row.unused = unused.contains(fromQt(row.key));
    if (!rows_.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1), {Qt::ForegroundRole});
}

void StockModel::setTitles(const QStringList& titles) {
    titles_ = titles;
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

void StockModel::sortRows() {
    std::ranges::stable_sort(rows_, [this](const Row& a, const Row& b) {
        return order_ == Qt::AscendingOrder ? a.sortText < b.sortText : b.sortText < a.sortText;
    });
}

void StockModel::sort(int, Qt::SortOrder order) {
    order_ = order;
    beginResetModel();
    sortRows();
    endResetModel();
}

QModelIndex StockModel::indexOfKey(const QString& key) const {
    const auto row = std::ranges::find(rows_, key, &Row::key);
    return row == rows_.end() ? QModelIndex() : index(static_cast<int>(row - rows_.begin()), NameColumn);
}

int StockModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int StockModel::columnCount(const QModelIndex&) const {
    return ColumnCount;
}

QVariant StockModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    static const QIcon withCab = cabIcon(), withoutCab = noCabIcon();
    const Row& row = rows_[index.row()];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return row.texts[index.column()];
    case KeyRole:
        return row.key;
    case Qt::DecorationRole:
        return index.column() == NameColumn ? QVariant(row.hasCab ? withCab : withoutCab) : QVariant();
    case Qt::ForegroundRole:
        return row.unused ? theme::Unused : textColour_.isValid() ? QVariant(textColour_) : QVariant();
    default:
        return {};
    }
}

QVariant StockModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return titles_.value(section);
    return {};
}

Qt::ItemFlags StockModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
}

QMimeData* StockModel::mimeData(const QModelIndexList& indexes) const {
    if (indexes.isEmpty())
        return nullptr;
    auto* data = new QMimeData;
    data->setData(MimeType, indexes.first().data(KeyRole).toString().toUtf8());
    return data;
}

} // namespace zandor
