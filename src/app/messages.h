// The messages of the application: their numbers in Langues.lng. The code uses the names alone.
#pragma once

#include "frame/message.h"

namespace zandor::message {

inline constexpr Message SplashText{201}; // |1 the legal line

} // namespace zandor::message
