// Messages and file questions as windows.
#pragma once

#include "frame/dialogs.h"
#include "frame/language.h"

namespace zandor {

class CHelp;

class QtDialogs final : public Dialogs {
  public:
    // Buttons are captioned in the language of `state`, which also gets each answer as LastAnswer. Help
    // buttons open `help`; without it they are off.
    QtDialogs(AppState& state, ProfileFiles& profiles, CHelp* help = nullptr);

    int ShowMessage(const std::string& text, int style, const std::string& title,
                    const std::string& helpFile = {}, int helpContext = 0) override;
    bool showRepeated(const std::string& text, int style, const std::string& title) override;
    // Takes and gives paths in the program's form.
    std::optional<std::string> askOpenFile(const std::string& title, const std::string& filter,
                                           const std::string& folder,
                                           const std::string& proposedName) override;
    std::optional<std::string> askSaveFile(const std::string& title, const std::string& filter,
                                           const std::string& folder, const std::string& proposedName,
                                           const std::string& defaultExtension) override;

  private:
    AppState& state_;
    FileSystem& files_;
    Language language_;
    CHelp* help_;
};

// "text (*.x)|*.x" as a Qt file dialog takes it.
std::string fileDialogFilter(const std::string& filter);

} // namespace zandor
