// The message window.
#pragma once

#include "frame/alert.h"

#include <QDialog>

#include <functional>

class QBoxLayout;
class QCheckBox;
class QPushButton;

namespace zandor {

class WrappedText;

// Icon, text, the answers as Command1 to Command3 and Command4, which opens the help and closes nothing.
// Enter takes the default button, Escape and closing the answer that `alert` has for them. The text can be
// selected; Ctrl+C copies it whole.
class frmAlert final : public QDialog {
    Q_OBJECT
  public:
    frmAlert(const Alert& alert, const AlertCaptions& captions, const QString& title, const QString& text,
             QWidget* parent = nullptr);

    // What Command4 does; without it that button is off.
    void setHelp(std::function<void()> help);
    // A box under the text, for a message that may be the first of many like it.
    void offerNoMore(const QString& caption);
    bool noMore() const;
    // The sound of the icon and the answer that was chosen.
    int ask();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void build(const AlertCaptions& captions, const QString& text);
    void addButtons(QBoxLayout& row, const AlertCaptions& captions);
    void answerWith(int answer);
    void sound();

    Alert alert_;
    int answer_;
    WrappedText* text_ = nullptr;
    QPushButton* help_ = nullptr;
    QCheckBox* noMore_ = nullptr;
    std::function<void()> showHelp_;
};

} // namespace zandor
