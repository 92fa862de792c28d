// Small parts that the frame's windows share.
#pragma once

#include "frame/frame.h"

#include <QLabel>
#include <QStyle>
#include <QTextEdit>

#include <string>
#include <vector>

class QPushButton;

namespace zandor {

template <class Widget> Widget* named(Widget* widget, const char* name) {
    widget->setObjectName(name);
    return widget;
}

// The window that a message stands in front of, also while another program has the focus.
QWidget* parentOfDialogs();

// The text of a message, or the French one that serves when the language lacks it.
QString textOr(const Frame& frame, Message message, const char* french);

// One of the desktop's own icons at the size of its messages.
QLabel* makeIconLabel(QWidget* parent, const QIcon& icon);
// The icon of the program, for messages that have none of their own; may be empty.
QIcon programIcon();

// A text to read, as large as it needs to be: it wraps between words and, in a path, between any two
// letters, and scrolls when it would leave the screen. What is copied is the text as it was given.
class WrappedText final : public QTextEdit {
    Q_OBJECT
  public:
    explicit WrappedText(QWidget* parent);
    void setText(const QString& text);
    void copyAll(); // the selection, where there is one

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool scrolls() const { return wanted_.height() > longest(); }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void measure();
    int longest() const;

    QSize wanted_;
};

// The wheel changes a slider or a list of choices only while the keyboard is there; otherwise it scrolls what
// is around it.
void keepFromWheel(QWidget& widget);

// Buttons as wide as the widest of them.
void makeSameWidth(const std::vector<QPushButton*>& buttons);

} // namespace zandor
