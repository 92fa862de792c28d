// The controls of the main window and how they are laid out.
#pragma once

#include "editor/consist_document.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;
class QSlider;
class QTimer;
class QWidget;

namespace zandor {

class ElidedLabel;
class PreviewView;
class StockView;
class StripView;

// Owned by the window, as Qt owns the children of a widget. Each control's object name is its name here.
struct PrincipalControls {
    QPushButton *cmdNEW, *cmdOPEN, *cmdSAVE, *cmdDELETE, *cmdNUMEROTATION, *cmdOptions, *cmdHELP, *cmdPROPOS,
        *cmdCANCEL;
    QComboBox* cmbMATERIEL;
    StockView* lstViewMATERIEL;
    PreviewView* picPREVIEW;
    ElidedLabel *tbSELECT, *tbPATH, *lblFreins, *lblATTELAGE, *lblPOIDS, *lblLONGUEUR;
    QLineEdit *tbNAME, *tbFULL_NAME;
    QSlider* Slider1;
    QLabel *lblRESISTANCE, *lblLongueurNewRame;
    StripView* PicRAME;
    QScrollBar* HScrollRAME;
    ElidedLabel* lblSTATUS;                                // the selected vehicle
    QPushButton* cmdVEHICLE;                               // the menu of what can be done with it
    QLabel *lblNAME, *lblFULL_NAME, *lblSLIDER, *lblCLASS; // captions of the inputs
    QTimer* Timer1;
};

PrincipalControls buildPrincipal(QWidget& window, Editor& editor);

// Captions, tool tips and list titles in the user's language.
void captionPrincipal(const PrincipalControls& controls, const Frame& frame);

} // namespace zandor
