// The about box.
#pragma once

#include "frame/frame.h"

#include <QDialog>

namespace zandor {

class frmAbout final : public QDialog {
    Q_OBJECT
  public:
    // `licence`: the name of the licence that the program comes under; empty: no line of it.
    explicit frmAbout(Frame& frame, QWidget* parent = nullptr, const QString& licence = {});
};

} // namespace zandor
