#include "frame/windows/qt_dialogs.h"

#include "frame/messages.h"
#include "frame/windows/alert.h"
#include "frame/windows/cursors.h"
#include "frame/windows/help.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/window_parts.h"

#include <QDir>
#include <QFileDialog>

#include <algorithm>

namespace zandor {

namespace {

// "text (*.x)|*.x|text (*.y)|*.y", one of them for each kind of file.
QStringList filtersOf(const std::string& filter) {
    const QStringList parts = toQt(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        filters << toQt(fileDialogFilter(fromQt(parts[i] + '|' + parts[i + 1])));
    return filters;
}

// Of "text (*.x)": "x".
QString extensionOf(const QString& filter) {
    const qsizetype dot = filter.lastIndexOf("*.");
    return dot < 0 ? QString() : filter.mid(dot + 2).remove(')');
}

} // namespace

QtDialogs::QtDialogs(AppState& state, ProfileFiles& profiles, CHelp* help)
    : state_(state), files_(profiles.files()), language_(profiles, state), help_(help) {}

int QtDialogs::ShowMessage(const std::string& text, int style, const std::string& title,
                           const std::string& helpFile, int context) {
    const PointerShape pointer(Qt::ArrowCursor);
    const Alert alert = decodeAlertStyle(style);
    frmAlert window(alert, alertCaptions(language_, alert), toQt(title), toQt(text), parentOfDialogs());
    setHelpContext(window, context != 0 ? context : helpContext::Messages);
    if (help_)
        window.setHelp([this, helpFile, context] { help_->ShowFile(helpFile, context); });
    const int answer = window.ask();
    state_.LastAnswer = std::to_string(answer);
    return answer;
}

bool QtDialogs::showRepeated(const std::string& text, int style, const std::string& title) {
    const PointerShape pointer(Qt::ArrowCursor);
    const Alert alert = decodeAlertStyle(style);
    frmAlert window(alert, alertCaptions(language_, alert), toQt(title), toQt(text), parentOfDialogs());
    setHelpContext(window, helpContext::Messages);
    window.offerNoMore(toQt(language_.GetLangText(message::ShowNoMore)));
    state_.LastAnswer = std::to_string(window.ask());
    return !window.noMore();
}

std::string fileDialogFilter(const std::string& filter) {
    const std::size_t bar = filter.find('|');
    if (bar == std::string::npos)
        return filter;
    std::string text = filter.substr(0, bar);
    text = text.substr(0, text.find('('));
    while (!text.empty() && text.back() == ' ')
        text.pop_back();
    std::string patterns = filter.substr(bar + 1);
    std::ranges::replace(patterns, ';', ' ');
    return text + " (" + patterns + ")";
}

std::optional<std::string> QtDialogs::askOpenFile(const std::string& title, const std::string& filter,
                                                  const std::string& folder,
                                                  const std::string& proposedName) {
    const PointerShape pointer(Qt::ArrowCursor);
    QFileDialog dialog(parentOfDialogs(), toQt(title), toQt(files_.nativePath(folder)),
                       toQt(fileDialogFilter(filter)));
    dialog.setObjectName("frmOpen");
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (!QDir(dialog.directory()).exists())
        dialog.setDirectory(QDir::homePath());
    if (!proposedName.empty())
        dialog.selectFile(toQt(proposedName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return pathFromQt(dialog.selectedFiles().first());
}

std::optional<std::string> QtDialogs::askSaveFile(const std::string& title, const std::string& filter,
                                                  const std::string& folder, const std::string& proposedName,
                                                  const std::string& defaultExtension) {
    const PointerShape pointer(Qt::ArrowCursor);
    QFileDialog dialog(parentOfDialogs(), toQt(title), toQt(files_.nativePath(folder)));
    dialog.setObjectName("frmSave");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilters(filtersOf(filter));
    dialog.setDefaultSuffix(toQt(defaultExtension).remove('.'));
    if (!QDir(dialog.directory()).exists())
        dialog.setDirectory(QDir::homePath());
    // Of several kinds, the one that is chosen names the extension.
    const auto useExtension = [&dialog](const QString& chosen) {
        const QString extension = extensionOf(chosen);
        if (!extension.isEmpty())
            dialog.setDefaultSuffix(extension);
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, useExtension);
    if (!proposedName.empty())
        dialog.selectFile(toQt(proposedName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return pathFromQt(dialog.selectedFiles().first());
}

} // namespace zandor
