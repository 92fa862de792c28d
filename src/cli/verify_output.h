// What a pass of the verifier has found, as zandor-cli prints it. `messages`: what it told on its way.
#pragma once

#include "cli/session.h"
#include "verify/verify_records.h"

#include <string>
#include <vector>

namespace zandor {

// As JSON.
void printVerification(Session& session, const VerifResults& results,
                       const std::vector<std::string>& messages);
// For people, in the language of the session; `closing` is the closing report.
void printVerification(Session& session, const VerifResults& results,
                       const std::vector<std::string>& messages, const std::string& closing);

} // namespace zandor
