// Whether the root folder that isn't primary is to be loaded for the search.
#pragma once

#include "frame/frame.h"

#include <QDialog>

namespace zandor {

// exec() gives Accepted for cmdLOAD. `askOtherRoot` is set when the window opens and cleared by
// chkShowWindow.
class frmQuestion final : public QDialog {
    Q_OBJECT
  public:
    frmQuestion(Frame& frame, bool& askOtherRoot, QWidget* parent = nullptr);
};

} // namespace zandor
