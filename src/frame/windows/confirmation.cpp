#include "frame/windows/confirmation.h"

#include "frame/alert.h"
#include "frame/messages.h"
#include "frame/windows/help.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/window_parts.h"

#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace zandor {

namespace {

struct OptionRow {
    const char* name;
    Message caption;
    Replacement answer;
};
constexpr OptionRow Options[] = {
    {"optRENAME", message::ReplaceThis, Replacement::ReplaceThis},
    {"optNO_RENAME", message::KeepThis, Replacement::KeepThis},
    {"optALL_RENAME", message::ReplaceAll, Replacement::ReplaceAll},
    {"optALL_NO_RENAME", message::KeepAll, Replacement::KeepAll},
};

} // namespace

frmConfirmation::frmConfirmation(Frame& frame, const std::string& file, QWidget* parent) : QDialog(parent) {
    setObjectName("frmConfirmation");
    setWindowTitle(toQt(frame.text(message::ReplaceTitle)));
    setModal(true);
    setHelpContext(*this, helpContext::Stock);
    auto* layout = new QVBoxLayout(this);
    const int space = fontMetrics().height();
    layout->setContentsMargins(space, space, space, space * 3 / 4);
    auto* text = new WrappedText(this);
    text->setObjectName("Label1");
    text->setText(toQt(frame.text(message::ReplaceText, {{"|1", frame.files.nativePath(file)}})));
    layout->addWidget(text);
    layout->addSpacing(space / 2);

    std::vector<std::string> captions;
    for (const OptionRow& row : Options)
        captions.push_back(frame.text(row.caption));
    captions.push_back(frame.text(message::ButtonOk));
    std::vector<std::string*> all;
    for (std::string& caption : captions)
        all.push_back(&caption);
    makeMnemonicsUnique(all);

    for (std::size_t i = 0; i < std::size(Options); ++i) {
        auto* option = new QRadioButton(toQt(captions[i]), this);
        option->setObjectName(Options[i].name);
        connect(option, &QRadioButton::toggled, this, [this, answer = Options[i].answer](bool on) {
            if (on)
                chosen_ = answer;
        });
        option->setChecked(i == 0);
        layout->addWidget(option);
    }
    auto* ok = new QPushButton(toQt(captions.back()), this);
    ok->setObjectName("cmdOK");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    layout->addSpacing(space / 2);
    layout->addWidget(ok, 0, Qt::AlignRight);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace zandor
