// Messages of a run that nobody watches: written to the standard error stream, and answered so that nothing
// changes.
#pragma once

#include "frame/dialogs.h"

namespace zandor {

class QuietDialogs final : public Dialogs {
  public:
    int ShowMessage(const std::string& text, int style, const std::string& title,
                    const std::string& helpFile = {}, int helpContext = 0) override;
    std::optional<std::string> askOpenFile(const std::string& title, const std::string& filter,
                                           const std::string& folder,
                                           const std::string& proposedName) override;
    std::optional<std::string> askSaveFile(const std::string& title, const std::string& filter,
                                           const std::string& folder, const std::string& proposedName,
                                           const std::string& defaultExtension) override;
};

} // namespace zandor
