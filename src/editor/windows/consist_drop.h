// Lets a window take a consist file that is dragged onto it, to be read where it lies.
#pragma once

#include <QObject>

#include <string>

class QWidget;

namespace zandor {

class ConsistDrop final : public QObject {
    Q_OBJECT
  public:
    explicit ConsistDrop(QWidget& window); // belongs to it

  signals:
    void dropped(const std::string& path); // the system's drag has ended

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace zandor
