// The parsed form of a simulator text file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zandor {

// A stretch of a file's decoded text, in bytes from 0. Line 1 begins it, so that 0 to 0 is nowhere.
struct TextSpan {
    std::uint32_t begin = 0, end = 0;

    bool nowhere() const { return end == 0; }
    std::size_t size() const { return end - begin; }
    bool operator==(const TextSpan&) const = default;
};

// One key of a file. The texts live in the reader that parsed them, until its next read.
struct SimKey {
    std::string_view Path;  // the block, components joined by "\", as spelled; may hold occurrence markers
    std::string_view Key;   // empty on the record that a block's opening makes
    std::string_view Value; // between the brackets, trimmed, quotes kept
    std::string_view Tail;  // the source text that the value came from
    int Line = 0;           // from 1
    // A handle of Path for callers that compare many records: equal paths of one read share it. From 0.
    int pathId = 0;
    // Where the value stands between its brackets, with its quotes; of one that several lines make, from the
    // first piece's begin to the last one's end. Words behind the bracket that joined the value are outside
    // of it. Empty where a value could be put in; nowhere when no text put in there would be read as one.
    TextSpan place;
};

// One match of what a read was asked for.
struct SimHit {
    int FirstLine = 0; // from 1; for a Description, the line that holds its bracket
    int LastLine = 0;  // for a Description, the line at which it was complete; otherwise 0
    std::string Path;  // as asked for
    std::string Key;   // as asked for
    std::string Tail;
    std::string Value; // cut at "#" where the comment rule applies
    TextSpan place;    // of Value, as in SimKey: a comment that was cut isn't part of it
};

// Two blocks of one name in one parent are kept apart by this marker and a number behind the name.
inline constexpr std::string_view OccurrenceMarker = "£¤@";

// Without the occurrence markers and their numbers.
std::string StripOccurrence(std::string_view path);

// The same letter in any case; `wanted` is ASCII, which no other character's other case is.
inline bool letterIs(char letter, char wanted) {
    const char folded = static_cast<char>(wanted | 0x20);
    return letter == wanted || (static_cast<char>(letter | 0x20) == folded && folded >= 'a' && folded <= 'z');
}
// True when a key or a component of a path has this name (ASCII), in any case: this runs several times for
// every key of every file.
inline bool nameIs(std::string_view text, std::string_view name) {
    if (text.size() != name.size())
        return false;
    for (std::size_t i = 0; i < name.size(); ++i)
        if (!letterIs(text[i], name[i]))
            return false;
    return true;
}
// True when the path, its markers left out, is `wanted` (ASCII, no markers), in any case.
bool pathIs(std::string_view path, std::string_view wanted);

// The comment rule of stock files: a "#" behind the first character of a value and outside of its pairs of
// quotes ends it, in the blocks engine, wagon and wagon\inside, except for keys that hold names, texts or
// files.
bool commentRuleApplies(std::string_view path, std::string_view key); // path without markers; any case
std::string_view cutComment(std::string_view value);

} // namespace zandor
