#include "verify/quote_repair.h"

#include "simfiles/text_edit.h"
#include "text/text.h"
#include "verify/messages.h"

#include <algorithm>

namespace zandor {

namespace {

std::string quoted(const SimHit& hit) {
    return '"' + std::string(StripQuotes(hit.Value)) + '"';
}

// One piece of the file's text, which quotes would make one value.
bool canBeQuoted(const SimHit& hit) {
    return !hit.place.nowhere() && hit.place.size() == hit.Value.size() &&
           StripQuotes(hit.Value).find('"') == std::string_view::npos;
}

// False: the file stays as it is.
bool writeQuotes(FileSystem& files, const std::string& path, std::vector<TextEdit> edits) {
    std::string bytes;
    if (files.read(path, bytes, LargestSimFile) != ReadResult::Done)
        return false;
    EditableText file = editableText(std::move(bytes));
    const std::string_view first = std::string_view(file.text).substr(0, lineSpan(file.text, 1).end);
    if (!containsIgnoringCase(first, signatureOf(kindOfFile(path))))
        return false;
    std::ranges::sort(edits, {}, [](const TextEdit& edit) { return edit.span.begin; });
    return replaceSpans(file.text, edits) && writeEdited(files, path, file) == EditOutcome::Written;
}

void tellFailure(VerifWork& work, const std::string& path, const SimHit& hit) {
    ++work.results.counters.QuoteRepairFailures;
    Frame& frame = work.frame;
    if (!work.showsQuoteFailures)
        return;
    const std::string shown = frame.files.nativePath(path);
    const std::string text = frame.text(
        message::QuoteRepairFailed, {{"|1", hit.Tail}, {"|2", shown}, {"|3", std::to_string(hit.FirstLine)}});
    work.showsQuoteFailures = frame.dialogs.showRepeated(text, style::Exclamation, frame.state.Title);
}

} // namespace

bool lacksQuotes(const SimHit& hit) {
    return hit.Key == "Sound" && !hit.Value.empty() && !hit.Value.starts_with('"');
}

void repairQuotes(VerifWork& work, const std::string& path, std::vector<SimHit>& hits) {
    std::vector<TextEdit> edits;
    for (const SimHit& hit : hits)
        if (lacksQuotes(hit) && canBeQuoted(hit))
            edits.push_back({hit.place, quoted(hit), hit.Value});
    const bool written = !edits.empty() && writeQuotes(work.frame.files, path, std::move(edits));
    for (SimHit& hit : hits) {
        if (!lacksQuotes(hit))
            continue;
        if (hit.FirstLine > 0)
            --hit.FirstLine; // whatever is reported of such a line later names the one above it
        if (!written || !canBeQuoted(hit)) {
            tellFailure(work, path, hit);
            continue;
        }
        ++work.results.counters.QuoteRepairCount;
        hit.Value = quoted(hit);
        hit.Tail = "Sound ( " + hit.Value + " )";
    }
}

} // namespace zandor
