// The words for what a reader found.
#pragma once

#include "frame/language.h"
#include "simfiles/read_request.h"

#include <string>

namespace zandor {

// Empty for a sound answer and for those that their outcome tells whole: NoFile, Empty, OtherKind.
std::string faultText(const Language& language, const ReadAnswer& answer);

} // namespace zandor
