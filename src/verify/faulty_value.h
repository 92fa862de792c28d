// A faulty value corrected from within the program: what a key may hold, what the folders offer for it, and
// the writing of the new value into the very line of the file.
#pragma once

#include "catalogue/catalogue.h"
#include "frame/finding.h"
#include "verify/checks.h"

#include <optional>
#include <string>
#include <vector>

namespace zandor {

std::string keyPathOf(const ErrorLine& line); // such as "wagon\sound": lower case, without what the key holds

// The file that a fault stands in: the invalid file itself, or the description of one of its shapes.
std::string faultyPath(Frame& frame, const InvalidFile& file, const ErrorLine& line);

// What cmbREPLACE shows: the values that are allowed, or the files that are there, in listing order. Empty
// for keys that take any text.
std::vector<std::string> offeredValues(Frame& frame, const InvalidFile& file, const ErrorLine& line);

// A text as typed, as the value that it stands for: trimmed, without the quotes around it.
std::string typedValue(const std::string& text);
// Why a value isn't taken, or nothing. An empty one isn't.
std::optional<Finding> refusalOf(Frame& frame, const InvalidFile& file, const ErrorLine& line,
                                 const std::string& value);

// Puts the value in place of the old one, in quotes where the old one had them or where it needs them. Every
// other character of the file stays. Not done: refused, or the old value doesn't stand there any more; the
// file is as it was.
Outcome writeFaultyValue(Frame& frame, const InvalidFile& file, const ErrorLine& line,
                         const std::string& value);

// cmdOK: the test, the writing, and the recheck of the file.
struct [[nodiscard]] Correction {
    bool done = false;
    std::optional<int> file; // position of the file in InvalidFiles afterwards; nothing: no fault is left
    Findings told{};         // why not; or that it is written, and what is left
};
// `file`, `line`: positions in InvalidFiles and in its Lines, from 0.
Correction correctFaultyValue(VerifWork& work, Catalogue& catalogue, int file, int line,
                              const std::string& text);

} // namespace zandor
