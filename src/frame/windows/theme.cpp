#include "frame/windows/theme.h"

#include "frame/windows/pixel_grid.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>

namespace zandor {

namespace {

constexpr double HintShare = 0.7; // of the text's colour

int blended(int over, int under) {
    return qRound(over * HintShare + under * (1 - HintShare));
}

constexpr const char* PlainStyle = "Fusion";

// That style cuts off a part of its frames' lines when the screen has more device pixels than the window
// counts.
class WholeFrames final : public QProxyStyle {
  public:
    WholeFrames() : QProxyStyle(PlainStyle) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element != PE_Frame || (widget && widget->inherits("QComboBoxPrivateContainer")))
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
        const PixelGrid grid(*painter);
        grid.frame(grid.inside(option->rect), 1, frameLine(option->palette));
    }

  private:
    static QColor frameLine(const QPalette& palette) {
        return palette.color(QPalette::Window).darker(140).lighter(108); // as the style has it
    }
};

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
    const QString name = QApplication::style()->name();
    for (const char* replaced : {"windows", PlainStyle})
        if (name.compare(QLatin1String(replaced), Qt::CaseInsensitive) == 0)
            return application.setStyle(new WholeFrames);
}

} // namespace zandor
