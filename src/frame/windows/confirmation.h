// Whether a thumbnail replaces an existing one.
#pragma once

#include "frame/frame.h"

#include <QDialog>

namespace zandor {

enum class Replacement { ReplaceThis = 1, KeepThis = 2, ReplaceAll = 3, KeepAll = 4 };

class frmConfirmation final : public QDialog {
    Q_OBJECT
  public:
    // `file`: the picture that exists already.
    frmConfirmation(Frame& frame, const std::string& file, QWidget* parent = nullptr);

    // What was chosen; a window closed without cmdOK keeps the existing picture.
    Replacement answer() const { return result() == Accepted ? chosen_ : Replacement::KeepThis; }

  private:
    Replacement chosen_ = Replacement::ReplaceThis;
};

} // namespace zandor
