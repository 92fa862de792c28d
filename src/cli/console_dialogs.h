// Messages of the operations on a console. Questions get the answer that changes nothing.
#pragma once

#include "frame/dialogs.h"

#include <ostream>
#include <string>

namespace zandor {

class ConsoleDialogs final : public Dialogs {
  public:
    explicit ConsoleDialogs(std::ostream& err) : err_(err) {}

    // A line each. All but information counts as an alert.
    void print(const std::string& text, int messageStyle);
    int ShowMessage(const std::string& text, int messageStyle, const std::string& title,
                    const std::string& helpFile, int helpContext) override;
    std::optional<std::string> askOpenFile(const std::string& title, const std::string& filter,
                                           const std::string& folder,
                                           const std::string& proposedName) override;
    std::optional<std::string> askSaveFile(const std::string& title, const std::string& filter,
                                           const std::string& folder, const std::string& proposedName,
                                           const std::string& defaultExtension) override;

    int alerts = 0;
    std::string subject; // what the alerts are about, put in front of them; may be empty

  private:
    std::ostream& err_;
};

} // namespace zandor
