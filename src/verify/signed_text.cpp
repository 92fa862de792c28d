#include "verify/signed_text.h"

#include "text/decode.h"
#include "text/text.h"

#include <algorithm>

namespace zandor {

namespace {

// Most sound sets and small shapes are read whole with it.
constexpr std::size_t Beginning = std::size_t(32) << 10;

bool isSigned(std::string_view bytes, FileKind kind) {
    constexpr std::size_t signatureFits = 1024;
    std::string text;
    decodeSimulatorText(bytes.substr(0, signatureFits), text);
    const std::string_view first = std::string_view(text).substr(0, text.find_first_of("\r\n"));
    return containsIgnoringCase(first, signatureOf(kind));
}

SignedText unread(ReadResult result) {
    return result == ReadResult::NoMemory ? SignedText::NoMemory : SignedText::Unfit;
}

} // namespace

SignedText readSignedText(FileSystem& files, std::string_view path, FileKind kind, std::string& bytes) {
    if (const ReadResult result = files.readStart(path, bytes, Beginning); result != ReadResult::Done)
        return unread(result);
    if (bytes.empty())
        return SignedText::Empty;
    if (!isSigned(bytes, kind))
        return SignedText::Unfit;
    if (bytes.size() < Beginning)
        return SignedText::Read;
    const ReadResult result = files.read(path, bytes, LargestSimFile);
    return result == ReadResult::Done ? SignedText::Read : unread(result);
}

std::string shownLine(std::string_view line) {
    std::string shown(line);
    std::replace(shown.begin(), shown.end(), '\t', ' ');
    return std::string(trim(shown));
}

} // namespace zandor
