// Files that a load leaves unread, so that no single file can end it.
#pragma once

#include "catalogue/catalogue.h"

#include <string_view>

namespace zandor {

// A file that is too large to be read, or for which no memory is left.
bool isPassedOver(ReadResult result);
bool isPassedOver(ReadOutcome outcome);
// Such a file is noted for tellPassedOver().
void notePassedOver(Catalogue& catalogue, std::string_view path, ReadResult result);
void notePassedOver(Catalogue& catalogue, std::string_view path, ReadOutcome outcome);

// Tells all of them in one message, if there are any.
void tellPassedOver(Frame& frame, const Catalogue& catalogue);

} // namespace zandor
