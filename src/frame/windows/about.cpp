#include "frame/windows/about.h"

#include "frame/messages.h"
#include "frame/version.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/theme.h"
#include "frame/windows/window_parts.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace zandor {

namespace {

constexpr int IconLines = 4; // the icon's height

QString versionText() {
    return QString("%1.%2%3").arg(VersionMajor).arg(VersionMinor).arg(VersionRevision);
}

// What stands behind the title and its blank line.
QString whatItIs(const Frame& frame) {
    const std::string text = frame.text(message::AboutText, {{"|1", ""}, {"|2", "\n"}});
    return toQt(text).trimmed();
}

} // namespace

frmAbout::frmAbout(Frame& frame, QWidget* parent, const QString& licence) : QDialog(parent) {
    setObjectName("frmAbout");
    setWindowTitle(toQt(frame.text(message::AboutTitle, {{"|1", "Zandor"}})));
    setModal(true);
    const int space = fontMetrics().height();
    auto* texts = new QVBoxLayout;
    const auto add = [&](const char* name, const QString& text) {
        auto* label = new QLabel(text, this);
        label->setObjectName(name);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setMinimumWidth(fontMetrics().averageCharWidth() * 52);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        texts->addWidget(label);
        return label;
    };
    QLabel* title = add("lblTITLE", "Zandor");
    QFont large = title->font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * 1.7);
    title->setFont(large);
    add("lblWHAT", whatItIs(frame));
    texts->addSpacing(space / 2);
    add("lblVERSION",
        toQt(frame.text(message::AboutVersion, {{"|1", fromQt(versionText())}})) + " · Qt " + qVersion());
    if (!licence.isEmpty())
        add("lblLICENCE", toQt(frame.text(message::AboutLicence, {{"|1", fromQt(licence)}})));
    texts->addSpacing(space / 2);
    theme::showAsHint(*add("lblTRADEMARK", toQt(frame.text(message::AboutTrademark))));

    auto* top = new QHBoxLayout;
    top->setSpacing(space);
    if (const QIcon icon = programIcon(); !icon.isNull()) {
        auto* image = new QLabel(this);
        image->setObjectName("Image1");
        image->setPixmap(icon.pixmap(QSize(space, space) * IconLines, devicePixelRatioF()));
        top->addWidget(image, 0, Qt::AlignTop);
    }
    top->addLayout(texts, 1);
    auto* close = new QPushButton(toQt(frame.text(message::Close)), this);
    close->setObjectName("cmdCLOSE");
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(space, space, space, space * 3 / 4);
    layout->addLayout(top);
    layout->addSpacing(space / 2);
    layout->addWidget(close, 0, Qt::AlignRight);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace zandor
