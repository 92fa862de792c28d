// Messages of the operations on a console. Questions get the answer that changes nothing.
#pragma once

#include "frame/dialogs.h"

#include <ostream>
#include <string>
#include <string_view>

namespace zandor {

// Line breaks become blanks: what is wrong takes one line.
std::string oneLine(std::string_view text);

class ConsoleDialogs final : public Dialogs {
  public:
    ConsoleDialogs(std::ostream& out, std::ostream& err) : out_(out), err_(err) {}

    // Information goes to the output, any other message counts as an alert and goes to the error output.
    int ShowMessage(const std::string& text, int messageStyle, const std::string& title,
                    const std::string& helpFile, int helpContext) override;
    std::optional<std::string> askOpenFile(const std::string& title, const std::string& filter,
                                           const std::string& folder,
                                           const std::string& proposedName) override;

    int alerts = 0;
    std::string subject; // what the alerts are about, put in front of them; may be empty

  private:
    std::ostream& out_;
    std::ostream& err_;
};

} // namespace zandor
