#include "frame/windows/question.h"

#include "frame/alert.h"
#include "frame/messages.h"
#include "frame/windows/help.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/window_parts.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>

namespace zandor {

namespace {

std::string questionText(const Frame& frame) {
    return frame.text(message::AskOtherRoot,
                      {{"|1", frame.state.Title},
                       {"|2", frame.files.nativePath(frame.state.roots.RootSecondary())},
                       {"|3", "\n"},
                       {"|4", "\n"},
                       {"|5", "\n"}});
}

} // namespace

frmQuestion::frmQuestion(Frame& frame, bool& askOtherRoot, QWidget* parent) : QDialog(parent) {
    setObjectName("frmQuestion");
    setWindowTitle(toQt(frame.state.Title));
    setModal(true);
    setHelpContext(*this, helpContext::Messages);
    askOtherRoot = true;
    std::string yes = frame.text(message::Yes), no = frame.text(message::No),
                again = frame.text(message::DoNotAskAgain);
    makeMnemonicsUnique({&yes, &no, &again});

    QLabel* image = makeIconLabel(this, style()->standardIcon(QStyle::SP_MessageBoxQuestion, nullptr, this));
    image->setObjectName("Image1");
    auto* text = new WrappedText(this);
    text->setObjectName("Label1");
    text->setText(toQt(questionText(frame)));
    auto* box = new QCheckBox(toQt(again), this);
    box->setObjectName("chkShowWindow");
    auto* load = new QPushButton(toQt(yes), this);
    load->setObjectName("cmdLOAD");
    auto* cancel = new QPushButton(toQt(no), this);
    cancel->setObjectName("cmdCANCEL");
    makeSameWidth({load, cancel});
    load->setDefault(true);
    load->setFocus();

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(load);
    buttons->addWidget(cancel);
    auto* layout = new QGridLayout(this);
    const int space = fontMetrics().height();
    layout->setContentsMargins(space, space, space, space * 3 / 4);
    layout->setSpacing(space);
    layout->addWidget(image, 0, 0, Qt::AlignTop);
    layout->addWidget(text, 0, 1);
    layout->addWidget(box, 1, 1);
    layout->addLayout(buttons, 2, 0, 1, 2);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    connect(box, &QCheckBox::toggled, this, [&askOtherRoot](bool checked) { askOtherRoot = !checked; });
    connect(load, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

} // namespace zandor
