#include "verify/windows/file_view.h"

#include "frame/windows/qt_text.h"
#include "frame/windows/theme.h"
#include "simfiles/sim_file.h"
#include "simfiles/text_edit.h"
#include "text/lines.h"

#include <QFontDatabase>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

namespace zandor {

namespace {

// Of a longer file only the lines around the fault are laid out.
constexpr int MostLines = 4000;
constexpr int MarginGap = 6;                    // pixels beside the numbers
constexpr int LineShade = 45, ValueShade = 110; // of 255, over the background

QColor shaded(const QPalette& palette, int alpha) {
    QColor colour = palette.color(QPalette::Highlight);
    colour.setAlpha(alpha);
    return colour;
}

// What the view would take for the end of a line within one.
QString lineText(std::string_view line) {
    QString text = toQt(line);
    for (QChar& letter : text)
        if (letter == QChar::ParagraphSeparator || letter == QChar::LineSeparator || letter.isNull() ||
            letter == u'\ufdd0' || letter == u'\ufdd1')
            letter = QChar::ReplacementCharacter;
    return text;
}

} // namespace

class FileView::Margin final : public QWidget {
  public:
    explicit Margin(FileView& view) : QWidget(&view), view_(view) {}

  protected:
    void paintEvent(QPaintEvent* event) override { view_.paintMargin(*event); }

  private:
    FileView& view_;
};

FileView::FileView(Frame& frame, QWidget* parent)
    : QPlainTextEdit(parent), frame_(frame), margin_(new Margin(*this)) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setLineWrapMode(NoWrap);
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setPointSizeF(font().pointSizeF());
    setFont(fixed);
    setTabStopDistance(4 * fontMetrics().horizontalAdvance(u' '));
    connect(this, &QPlainTextEdit::updateRequest, this, [this](const QRect& area, int moved) {
        if (moved)
            margin_->scroll(0, moved);
        else
            margin_->update(0, area.y(), margin_->width(), area.height());
    });
    placeMargin();
}

void FileView::forget() {
    path_.clear();
}

void FileView::clearFile() {
    path_.clear();
    lines_.clear();
    first_ = marked_ = 0;
    setExtraSelections({});
    setPlainText({});
    placeMargin();
}

void FileView::showFile(const std::string& path, int line, const QString& value) {
    const bool isNew = path != path_;
    if (isNew)
        readFile(path);
    const int wanted = line - 1 - first_;
    if (isNew || wanted < 0 || wanted >= blockCount())
        showAround(line);
    mark(line, value);
}

void FileView::readFile(const std::string& path) {
    path_ = path;
    lines_.clear();
    std::string bytes;
    if (frame_.files.read(path, bytes, LargestSimFile) != ReadResult::Done) {
        setPlaceholderText(unreadable_);
        return;
    }
    setPlaceholderText({});
    forEachLine(editableText(std::move(bytes)).text,
                [this](std::string_view line) { lines_.append(lineText(line)); });
}

void FileView::showAround(int line) {
    const int count = static_cast<int>(lines_.size());
    first_ = std::clamp(line - MostLines / 2, 0, std::max(0, count - MostLines));
    setPlainText(lines_.mid(first_, MostLines).join(u'\n'));
    placeMargin();
}

void FileView::mark(int line, const QString& value) {
    marked_ = 0;
    value_ = value;
    setExtraSelections({});
    const QTextBlock block = document()->findBlockByNumber(line - 1 - first_);
    if (line <= 0 || line > lines_.size() || !block.isValid()) {
        moveCursor(QTextCursor::Start);
        margin_->update();
        return;
    }
    marked_ = line;
    QTextCursor cursor(block);
    setTextCursor(cursor);
    QTextEdit::ExtraSelection whole;
    whole.cursor = cursor;
    whole.format.setBackground(shaded(palette(), LineShade));
    whole.format.setProperty(QTextFormat::FullWidthSelection, true);
    QList<QTextEdit::ExtraSelection> marks{whole};
    const auto at = static_cast<int>(value.isEmpty() ? -1 : block.text().indexOf(value));
    if (at >= 0) {
        QTextEdit::ExtraSelection part;
        part.cursor = QTextCursor(block);
        part.cursor.setPosition(block.position() + at);
        part.cursor.setPosition(block.position() + at + static_cast<int>(value.size()),
                                QTextCursor::KeepAnchor);
        part.format.setBackground(shaded(palette(), ValueShade));
        marks.append(part);
    }
    setExtraSelections(marks);
    horizontalScrollBar()->setValue(0);
    centerCursor();
    margin_->update();
}

// ---- the numbers

int FileView::marginWidth() const {
    const auto digits = QString::number(std::max<qsizetype>(lines_.size(), 100)).size();
    QFont bold = font();
    bold.setBold(true);
    return static_cast<int>(digits) * QFontMetrics(bold).horizontalAdvance(u'9') + 2 * MarginGap;
}

void FileView::placeMargin() {
    setViewportMargins(marginWidth(), 0, 0, 0);
    const QRect inside = contentsRect();
    margin_->setGeometry(inside.left(), viewport()->geometry().top(), marginWidth(),
                         viewport()->geometry().height());
}

void FileView::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    placeMargin();
}

void FileView::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && marked_ > 0)
        mark(marked_, value_);
}

void FileView::paintMargin(QPaintEvent& event) {
    QPainter painter(margin_);
    painter.fillRect(event.rect(), palette().color(QPalette::Window));
    if (lines_.isEmpty())
        return;
    QFont bold = font();
    bold.setBold(true);
    const QColor quiet = theme::hintText(palette()), strong = palette().color(QPalette::WindowText);
    for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
        if (place.top() > event.rect().bottom())
            break;
        const int line = first_ + block.blockNumber() + 1;
        const QRectF row(0, place.top(), margin_->width(), place.height());
        if (line == marked_)
            painter.fillRect(row, shaded(palette(), ValueShade));
        painter.setFont(line == marked_ ? bold : font());
        painter.setPen(line == marked_ ? strong : quiet);
        painter.drawText(row.adjusted(0, 0, -MarginGap, 0), Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(line));
    }
}

} // namespace zandor
