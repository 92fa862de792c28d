// The stock of the class that the user has chosen, where vehicles come from; and what is known of the one
// that is selected, which stands in a widget of its own for the window to place.
#pragma once

#include "editor/windows/document_edits.h"

#include <QFrame>
#include <QPixmap>

#include <vector>

class QComboBox;
class QLabel;
class QMenu;

namespace zandor {

class PictureStore;
class StockInfo;
class StockView;
struct StockListRow;

class StockPane final : public QFrame {
    Q_OBJECT
  public:
    StockPane(DocumentEdits& edits, PictureStore& pictures, QWidget* parent);

    StockInfo* info() const { return info_; }
    int currentStock() const; // the index in Materiels, -1 when nothing is selected
    std::vector<QWidget*> tabOrder() const;
    void setMenu(QMenu* menu) { menu_ = menu; } // of what can be done with the selected stock
    void applyLanguage();
    void applyColours(); // Color7 and Color8 of the settings
    void fill();
    void takeChanges(); // of the stock itself: what was selected stays so while it is there         // the
                        // class chosen in cmbMATERIEL
    // Goes to this entry of Materiels; -1: a vehicle that the catalogue lacks. False: no list has it.
    bool lookUp(int materielIndex);

  signals:
    void filled();
    void chosen(int materielIndex); // to be put on the strip
    void dragEnded();

  private:
    void build();
    void connectControls();
    void captionClasses();
    void refresh();
    void openMenu(const QPoint& at);
    std::vector<StockListRow> rows() const;
    QString describe(int stock, int column) const;
    QPixmap carriedPicture() const;

    Editor& editor_;
    PictureStore& pictures_;
    StockInfo* info_;
    QLabel* lblCLASS_ = nullptr;
    QComboBox* cmbMATERIEL_ = nullptr;
    StockView* lstViewMATERIEL_ = nullptr;
    QMenu* menu_ = nullptr;
    std::size_t listed_ = 0; // entries of the catalogue when the list was filled
};

} // namespace zandor
