// The row of buttons of the main window: the commands for the whole consist and for the program, with their
// keys.
#pragma once

#include "frame/frame.h"
#include "frame/windows/button_bar.h"

#include <array>
#include <vector>

class QMenu;
class QPushButton;

namespace zandor {

class CommandBar final : public ButtonBar {
    Q_OBJECT
  public:
    enum Command { New, Open, Save, Delete, Number, Language, Options, Help, About, Quit, Count };

    explicit CommandBar(QWidget& window); // which owns the buttons and knows the keys

    std::vector<QWidget*> tabOrder() const;
    void caption(const Frame& frame);
    void enable(Command command, bool on);
    void setMenu(Command command, QMenu* menu); // opened by the button
    void setIcon(Command command, const QIcon& icon);

  signals:
    void triggered(int command); // of Command

  private:
    std::array<QPushButton*, Count> buttons_{};
};

} // namespace zandor
