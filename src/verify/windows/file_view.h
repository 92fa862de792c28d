// The text of a file to look at, with the numbers of its lines, one of which is marked.
#pragma once

#include "frame/frame.h"

#include <QPlainTextEdit>

#include <string>

namespace zandor {

class FileView final : public QPlainTextEdit {
    Q_OBJECT
  public:
    FileView(Frame& frame, QWidget* parent);

    // `line` from 1, 0: none is marked. `value` is what is wrong in it; may be empty. A file that is shown
    // already isn't read again.
    void showFile(const std::string& path, int line, const QString& value);
    void forget(); // what is shown may be another text now
    void clearFile();
    void setUnreadableHint(const QString& hint) { unreadable_ = hint; }

    int markedLine() const { return marked_; } // of the file, from 1; 0: none

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    class Margin;
    void readFile(const std::string& path);
    void showAround(int line);
    void mark(int line, const QString& value);
    int marginWidth() const;
    void placeMargin();
    void paintMargin(QPaintEvent& event);

    Frame& frame_;
    Margin* margin_;
    QString unreadable_;
    std::string path_;
    QStringList lines_;
    int first_ = 0; // of lines_, from 0: what stands in the first line of the view
    int marked_ = 0;
    QString value_;
};

} // namespace zandor
