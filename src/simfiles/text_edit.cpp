#include "simfiles/text_edit.h"

#include "simfiles/sim_file.h"

#include <algorithm>
#include <utility>

namespace zandor {

namespace {

bool sameButTabs(std::string_view a, std::string_view b) {
    const auto plain = [](char c) { return c == '\t' ? ' ' : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [plain](char one, char other) { return plain(one) == plain(other); });
}

bool fits(std::string_view text, const TextEdit& edit, std::size_t from) {
    const TextSpan span = edit.span;
    if (span.begin < from || span.end < span.begin || span.end > text.size())
        return false;
    return !edit.before || sameButTabs(text.substr(span.begin, span.size()), *edit.before);
}

// Behind the line's end, CR LF being one; the end of the text when it has none.
std::size_t behindLine(std::string_view text, std::size_t from) {
    const std::size_t end = text.find_first_of("\r\n", from);
    if (end == std::string_view::npos)
        return text.size();
    return end + (text.substr(end).starts_with("\r\n") ? 2 : 1);
}

} // namespace

EditableText editableText(std::string bytes) {
    EditableText result;
    decodeSimulatorText(bytes, result.text);
    if (hasUtf16Mark(bytes)) {
        result.encoding = TextEncoding::Utf16;
        result.rest = bytes.substr(bytes.size() - bytes.size() % 2);
    }
    result.bytes = std::move(bytes);
    return result;
}

std::optional<std::string> EditableText::encoded() const {
    std::string result = encodeText(text, encoding) + rest, again;
    decodeSimulatorText(result, again);
    return again == text ? std::optional(std::move(result)) : std::nullopt;
}

bool replaceSpans(std::string& text, std::span<const TextEdit> edits) {
    std::string result;
    std::size_t done = 0;
    for (const TextEdit& edit : edits) {
        if (!fits(text, edit, done))
            return false;
        result.append(text, done, edit.span.begin - done).append(edit.text);
        done = edit.span.end;
    }
    text = result.append(text, done);
    return true;
}

TextSpan lineSpan(std::string_view text, int line) {
    std::size_t begin = 0;
    for (; line > 1 && begin < text.size(); --line)
        begin = behindLine(text, begin);
    const std::size_t end = behindLine(text, begin);
    return {static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end)};
}

EditOutcome writeEdited(FileSystem& files, std::string_view path, const EditableText& edited) {
    const std::optional<std::string> bytes = edited.encoded();
    if (!bytes)
        return EditOutcome::Refused;
    if (*bytes == edited.bytes)
        return EditOutcome::Same;
    return replaceFile(files, path, *bytes, ReadOnly::Kept) ? EditOutcome::Written : EditOutcome::Failed;
}

EditOutcome editFile(FileSystem& files, std::string_view path, std::span<const TextEdit> edits) {
    std::string bytes;
    if (files.read(path, bytes, LargestSimFile) != ReadResult::Done)
        return EditOutcome::Failed;
    EditableText file = editableText(std::move(bytes));
    return replaceSpans(file.text, edits) ? writeEdited(files, path, file) : EditOutcome::Refused;
}

} // namespace zandor
