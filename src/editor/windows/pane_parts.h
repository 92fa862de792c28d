// Small parts that the panes of the main window share.
#pragma once

#include "catalogue/catalogue.h"

#include <QLabel>
#include <QScrollArea>

namespace zandor {

// Scrolls its content where a low screen has no room for it. It is never narrower than what is in it.
class LowPane final : public QScrollArea {
    Q_OBJECT
  public:
    LowPane(QWidget* content, QWidget* parent);
    QSize minimumSizeHint() const override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

// The caption of an input, its buddy, which a screen reader then calls by the same name.
void captionInput(QLabel& label, const QString& text);

// An entry of Materiels; nullptr when there is none.
const Materiel* materielAt(const Catalogue& catalogue, int index);

} // namespace zandor
