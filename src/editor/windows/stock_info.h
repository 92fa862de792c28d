// What is known of one stock entry: its picture, and under it name, file, brakes, coupling, length and mass.
#pragma once

#include "editor/coupling.h"

#include <QFrame>

class QGridLayout;

namespace zandor {

class ElidedLabel;
class PictureStore;
class PreviewView;

class StockInfo final : public QFrame {
    Q_OBJECT
  public:
    StockInfo(Editor& editor, PictureStore& pictures, QWidget* parent);

    void applyLanguage();
    void showStock(int materielIndex); // one that the catalogue has not changes nothing
    void clear();                      // length and mass stay
    PreviewView* preview() const { return picPREVIEW_; }

  private:
    QGridLayout* buildFigures();
    ElidedLabel* label(const char* name, Qt::TextElideMode mode = Qt::ElideRight);

    Editor& editor_;
    PictureStore& pictures_;
    PreviewView* picPREVIEW_;
    ElidedLabel *tbSELECT_, *tbPATH_, *lblFreins_, *lblATTELAGE_, *lblPOIDS_, *lblLONGUEUR_;
};

} // namespace zandor
