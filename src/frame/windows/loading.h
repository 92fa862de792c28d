// What stands on the screen while a consist is opened.
#pragma once

#include <QFrame>

namespace zandor {

// A message without buttons over its parent. It is on the screen when the constructor returns, and gone with
// the object, or as soon as a message has to be answered.
class frmLoading final : public QFrame {
    Q_OBJECT
  public:
    explicit frmLoading(const QString& message, QWidget* parent = nullptr);
};

} // namespace zandor
