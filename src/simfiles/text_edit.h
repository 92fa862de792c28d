// Changes to a simulator text file that leave every character they aren't about as it was: line ends, tabs,
// remarks, and bytes that make no sense.
#pragma once

#include "platform/file_system.h"
#include "simfiles/sim_keys.h"
#include "text/decode.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace zandor {

// A file's text, with what it takes to give its bytes back.
struct EditableText {
    std::string bytes; // as they were read
    std::string text;  // decoded; TextSpan counts in it
    TextEncoding encoding = TextEncoding::Windows1252;
    std::string rest; // a last byte that makes no character

    // Nothing when the text wouldn't read back from its encoding as it is.
    std::optional<std::string> encoded() const;
};
EditableText editableText(std::string bytes);

// What takes the place of a stretch; an empty stretch puts a text in.
struct TextEdit {
    TextSpan span;
    std::string text;
    // What must stand there, tabs and blanks alike; nothing: whatever does.
    std::optional<std::string> before = std::nullopt;
};

// All edits or none; they come in the order of the text. False: a stretch reaches over the end of the text or
// into the one before it, or holds something else than it must.
bool replaceSpans(std::string& text, std::span<const TextEdit> edits);

// A line with its end, from 1, counted as SimKey::Line does; an empty stretch at the end of the text when
// there is no such line.
TextSpan lineSpan(std::string_view text, int line);

// Refused: the edits don't fit the text, or its encoding lacks a character of theirs. Failed: the disk.
enum class EditOutcome { Same, Written, Refused, Failed };

// Writes what has changed; a read-only file stays one.
EditOutcome writeEdited(FileSystem& files, std::string_view path, const EditableText& edited);
// Reads, edits and writes, in the encoding that the file has.
EditOutcome editFile(FileSystem& files, std::string_view path, std::span<const TextEdit> edits);

} // namespace zandor
