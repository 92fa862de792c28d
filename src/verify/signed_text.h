// The text files that the later stages of a pass look into.
#pragma once

#include "platform/file_system.h"
#include "simfiles/sim_file.h"

#include <string>
#include <string_view>

namespace zandor {

// Unfit: it can't be read, or its first line lacks the signature of its kind, as in compressed and binary
// files, of which no more than the beginning is read. NoMemory: there may
// be some later.
enum class SignedText { Unfit, Empty, Read, NoMemory };

// The bytes of a whole file, when it bears the signature.
SignedText readSignedText(FileSystem& files, std::string_view path, FileKind kind, std::string& bytes);

// As lists show a line: tabs become blanks, its ends are trimmed.
std::string shownLine(std::string_view line);

} // namespace zandor
