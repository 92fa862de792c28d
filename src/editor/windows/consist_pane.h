// The names and the durability of the consist under edit.
#pragma once

#include "editor/windows/document_edits.h"

#include <QFrame>

#include <vector>

class QLabel;
class QLineEdit;
class QSlider;

namespace zandor {

class ConsistPane final : public QFrame {
    Q_OBJECT
  public:
    ConsistPane(DocumentEdits& edits, QWidget* parent);

    std::vector<QWidget*> tabOrder() const;
    void applyLanguage();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build();
    void buildSlider();
    void connectControls();
    void refresh();
    void refreshNames();

    DocumentEdits& edits_;
    QLabel *lblNAME_, *lblFULL_NAME_, *lblSLIDER_, *lblRESISTANCE_;
    QLineEdit *tbNAME_, *tbFULL_NAME_;
    QSlider* Slider1_;
};

} // namespace zandor
