#include "verify/windows/faulty_value_window.h"

#include "editor/windows/pane_parts.h"
#include "frame/messages.h"
#include "frame/windows/elided_label.h"
#include "frame/windows/help.h"
#include "verify/faulty_value.h"
#include "verify/messages.h"
#include "verify/result_lists.h"
#include "verify/windows/captions.h"
#include "verify/windows/result_view.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace zandor {

namespace {
constexpr int Columns = 2, LineColumn = 1;
constexpr int WidestField = 56; // letters
} // namespace

frmModifieValeur::frmModifieValeur(VerifySession& session, int file, int line, QWidget* parent)
    : QDialog(parent), session_(session), file_(file) {
    setObjectName("frmModifieValeur");
    setModal(true);
    setHelpContext(*this, helpContext::Verify);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    lblFILE_ = named(new ElidedLabel(this, Qt::ElideMiddle), "lblFILE");
    QFont bold = lblFILE_->font();
    bold.setBold(true);
    lblFILE_->setFont(bold);
    lblERRORS_ = named(new QLabel(this), "lblERRORS");
    lstKEY_ = new ResultView(*new ResultModel(Columns, LineColumn, this), "lstKEY", this);
    lstKEY_->setMinimumHeight(5 * (fontMetrics().height() + 4));
    column->addWidget(lblFILE_);
    column->addWidget(lblERRORS_);
    column->addWidget(lstKEY_, 1);
    column->addLayout(buildForm());
    column->addSpacing(6);
    column->addLayout(buildButtons());
    applyLanguage();
    connectControls();
    showFile(line);
    tbNewValue_->setFocus();
}

QLayout* frmModifieValeur::buildForm() {
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    tbKEY_ = named(new QLineEdit(this), "tbKEY");
    tbVALUE_ = named(new QLineEdit(this), "tbVALUE");
    cmbREPLACE_ = named(new QComboBox(this), "cmbREPLACE");
    tbNewValue_ = named(new QLineEdit(this), "tbNewValue");
    for (QLineEdit* shown : {tbKEY_, tbVALUE_})
        shown->setReadOnly(true);
    tbKEY_->setMinimumWidth(WidestField * fontMetrics().averageCharWidth());
    cmbREPLACE_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    keepFromWheel(*cmbREPLACE_);
    const auto add = [&](QLabel*& label, QWidget* field) {
        label = new QLabel(this);
        label->setBuddy(field);
        form->addRow(label, field);
    };
    add(lblKEY_, tbKEY_);
    add(lblVALUE_, tbVALUE_);
    add(lblREPLACE_, cmbREPLACE_);
    add(lblNEW_, tbNewValue_);
    return form;
}

QLayout* frmModifieValeur::buildButtons() {
    cmdOK_ = named(new QPushButton(this), "cmdOK");
    cmdCANCEL_ = named(new QPushButton(this), "cmdCANCEL");
    cmdOK_->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdOK_);
    buttons->addWidget(cmdCANCEL_);
    return buttons;
}

void frmModifieValeur::connectControls() {
    connect(lstKEY_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &frmModifieValeur::showKey);
    connect(cmbREPLACE_, &QComboBox::activated, this,
            [this] { tbNewValue_->setText(cmbREPLACE_->currentText()); });
    connect(cmdOK_, &QPushButton::clicked, this, &frmModifieValeur::write);
    connect(cmdCANCEL_, &QPushButton::clicked, this, &QDialog::reject);
}

void frmModifieValeur::applyLanguage() {
    const Frame& frame = session_.frame();
    setWindowTitle(toQt(frame.text(message::CorrectTitle, {{"|1", frame.state.Title}})));
    Captions captions(frame);
    captions.add(cmdOK_, message::ButtonOk, "&OK");
    captions.add(cmdCANCEL_, message::Close, "&Fermer");
    const auto label = [&captions](QLabel* shown, Message message, const char* french) {
        captions.add(message, french, [shown](const QString& text) { captionInput(*shown, text); });
    };
    label(lblNEW_, message::NewValueLabel, "Nouvelle valeur :");
    label(lblREPLACE_, message::OfferedLabel, "Valeurs proposées :");
    label(lblKEY_, message::KeyLabel, "Clé :");
    label(lblVALUE_, message::ValueLabel, "Valeur actuelle :");
    captions.put();
    makeSameWidth({cmdOK_, cmdCANCEL_});
    lstKEY_->setAccessibleName(textOr(frame, message::InvalidKeysLabel, "Clés invalides :"));
    lstKEY_->rows().setTitles(
        {toQt(frame.text(message::ColumnFault)), toQt(frame.text(message::ColumnLine))});
}

const InvalidFile& frmModifieValeur::record() const {
    return session_.results().InvalidFiles[static_cast<std::size_t>(file_)];
}

const ErrorLine* frmModifieValeur::chosenLine() const {
    const int number = lstKEY_->currentNumber();
    return number < 0 ? nullptr : &record().Lines[static_cast<std::size_t>(number)];
}

void frmModifieValeur::showFile(int line) {
    const Frame& frame = session_.frame();
    const InvalidFile& file = record();
    lblFILE_->setText(textOr(frame, message::FileLabel, "Fichier :") + u' ' +
                      toQt(file.Folder.empty() ? file.File : file.Folder + "\\" + file.File));
    const std::string count = std::to_string(file.Lines.size());
    lblERRORS_->setText(toQt(frame.text(message::FaultsLeft, {{"|1", count}})));
    std::vector<ListRow> rows;
    for (std::size_t i = 0; i < file.Lines.size(); ++i)
        rows.push_back({static_cast<int>(i),
                        {toQt(file.Lines[i].Summary),
                         file.Lines[i].Line > 0 ? QString::number(file.Lines[i].Line) : QString()}});
    lstKEY_->rows().setRows(std::move(rows));
    lstKEY_->fitColumns({"99999"});
    lstKEY_->showRow(std::min(line, static_cast<int>(file.Lines.size()) - 1));
    showKey();
}

void frmModifieValeur::showKey() {
    const ErrorLine* const line = chosenLine();
    cmbREPLACE_->clear();
    tbNewValue_->clear();
    cmdOK_->setEnabled(line != nullptr);
    if (!line)
        return;
    tbKEY_->setText(toQt(line->Key));
    tbVALUE_->setText(toQt(line->Value));
    for (QLineEdit* shown : {tbKEY_, tbVALUE_})
        shown->setCursorPosition(0);
    for (const std::string& value : offeredValues(session_.frame(), record(), *line))
        cmbREPLACE_->addItem(toQt(value));
    cmbREPLACE_->setCurrentIndex(-1);
    cmbREPLACE_->setEnabled(cmbREPLACE_->count() > 0);
}

void frmModifieValeur::write() {
    const int line = lstKEY_->currentNumber();
    if (line < 0)
        return;
    VerifWork work = session_.work();
    const Correction correction =
        correctFaultyValue(work, session_.editor().catalogue, file_, line, fromQt(tbNewValue_->text()));
    if (correction.done)
        session_.tellChange();
    if (correction.done && correction.file) {
        file_ = *correction.file;
        showFile(line);
    }
    showFindings(session_.frame(), correction.told);
    if (correction.done && !correction.file)
        return accept();
    tbNewValue_->setFocus();
    tbNewValue_->selectAll();
}

} // namespace zandor
