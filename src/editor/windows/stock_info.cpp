#include "editor/windows/stock_info.h"

#include "editor/messages.h"
#include "editor/windows/pane_parts.h"
#include "editor/windows/preview_view.h"
#include "frame/windows/elided_label.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/theme.h"
#include "frame/windows/window_parts.h"

#include <QBoxLayout>
#include <QGridLayout>

namespace zandor {

StockInfo::StockInfo(Editor& editor, PictureStore& pictures, QWidget* parent)
    : QFrame(parent), editor_(editor), pictures_(pictures) {
    setFrameShape(QFrame::StyledPanel);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(10, 6, 10, 6);
    column->setSpacing(3);
    picPREVIEW_ = new PreviewView(this);
    picPREVIEW_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    column->addWidget(picPREVIEW_, 1);
    column->addWidget(tbSELECT_ = label("tbSELECT"));
    column->addWidget(tbPATH_ = label("tbPATH", Qt::ElideMiddle));
    column->addLayout(buildFigures());
    QFont bold = tbSELECT_->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.15);
    tbSELECT_->setFont(bold);
    theme::showAsHint(*tbPATH_);
}

ElidedLabel* StockInfo::label(const char* name, Qt::TextElideMode mode) {
    return named(new ElidedLabel(this, mode), name);
}

QGridLayout* StockInfo::buildFigures() {
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(3);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    grid->addWidget(lblFreins_ = label("lblFreins"), 0, 0);
    grid->addWidget(lblATTELAGE_ = label("lblATTELAGE"), 1, 0);
    grid->addWidget(lblLONGUEUR_ = label("lblLONGUEUR"), 0, 1);
    grid->addWidget(lblPOIDS_ = label("lblPOIDS"), 1, 1);
    return grid;
}

void StockInfo::applyLanguage() {
    picPREVIEW_->setAccessibleName(toQt(editor_.frame.text(message::NameOfPreview)));
}

void StockInfo::showStock(int materielIndex) {
    if (!materielAt(editor_.catalogue, materielIndex))
        return;
    const MaterielInfo info = ShowMaterielInfo(editor_, materielIndex);
    tbSELECT_->setText(toQt(info.select));
    tbPATH_->setText(toQt(info.path));
    lblFreins_->setText(toQt(info.brakes));
    lblATTELAGE_->setText(toQt(info.coupling));
    lblLONGUEUR_->setText(toQt(info.length));
    lblPOIDS_->setText(toQt(info.mass));
    picPREVIEW_->show(pictures_, info.picture);
    const std::string& unreadable = info.unreadablePicture;
    const Frame& frame = editor_.frame;
    picPREVIEW_->warn(unreadable.empty()
                          ? QString()
                          : toQt(frame.text(message::PictureUnreadable,
                                            {{"|1", frame.files.nativePath(unreadable)}, {"|2", "\n"}})));
}

void StockInfo::clear() {
    for (ElidedLabel* label : {tbSELECT_, tbPATH_, lblFreins_, lblATTELAGE_})
        label->clear();
    picPREVIEW_->clear();
}

} // namespace zandor
