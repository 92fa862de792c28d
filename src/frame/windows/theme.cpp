#include "frame/windows/theme.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QWidget>

namespace zandor {

namespace {

constexpr double HintShare = 0.7; // of the text's colour

int blended(int over, int under) {
    return qRound(over * HintShare + under * (1 - HintShare));
}

// Keeps a widget's text in the hint colour of the palette at hand.
class HintKeeper final : public QObject {
  public:
    explicit HintKeeper(QWidget* widget) : QObject(widget) {
        colour();
        widget->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::ApplicationPaletteChange)
            colour();
        return false;
    }

  private:
    void colour() {
        auto* widget = static_cast<QWidget*>(parent());
        QPalette palette; // only what is set here differs from the application's
        palette.setColor(QPalette::WindowText, theme::hintText(QApplication::palette(widget)));
        widget->setPalette(palette);
    }
};

} // namespace

namespace theme {

QColor hintText(const QPalette& palette) {
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    const QColor back = palette.color(QPalette::Active, QPalette::Window);
    return {blended(text.red(), back.red()), blended(text.green(), back.green()),
            blended(text.blue(), back.blue())};
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

void showAsHint(QWidget& widget) {
    new HintKeeper(&widget);
}

} // namespace theme

void applyTheme(QApplication& application) {
    // The toolkit falls back on its oldest look where the desktop has none of its own.
    if (QApplication::style()->name().compare("windows", Qt::CaseInsensitive) == 0)
        application.setStyle(QStyleFactory::create("Fusion"));
}

} // namespace zandor
