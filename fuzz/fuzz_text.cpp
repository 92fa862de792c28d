// Decoding and encoding, and the small text rules, on any bytes.
#include "surroundings.h"
#include "text/decode.h"
#include "text/lines.h"
#include "text/text.h"

using namespace zandor;
using fuzz::require;

namespace {

void decodeUtf16(std::string_view bytes) {
    std::string text, again;
    decodeSimulatorText(bytes, text);
    const std::string encoded = encodeText(text, TextEncoding::Utf16);
    require(encoded == bytes.substr(0, bytes.size() / 2 * 2), "UTF-16 text is written as it was read");
    decodeSimulatorText(encoded, again);
    require(again == text, "written text reads back");
}

void decodeAny(std::string_view bytes) {
    std::string text, again;
    const TextEncoding encoding = decodeSettingsText(bytes, text);
    decodeSettingsText(encodeText(text, encoding), again);
    if (encoding != TextEncoding::Windows1252)
        require(again == text, "settings text reads back");
    else
        require(again.size() <= text.size(), "no character grows");
}

void tryTextRules(std::string_view line) {
    std::string normal(line);
    NormalizeLine(normal);
    require(normal.size() <= line.size(), "a normalised line is no longer than the line");
    require(CleanValue(line).size() <= line.size(), "a cleaned value is no longer than the value");
    require(StripQuotes(line).size() <= line.size(), "a value without quotes is no longer");
    require(firstCharacters(line, 40).size() <= line.size(), "a beginning is no longer than the text");
    require(equalIgnoringCase(line, lowerCase(line)), "lower case equals its text with case ignored");
    require(containsIgnoringCase(line, trim(line)), "a text holds its trimmed self");
    numericInt16(line);
    formatDurability(numericValue(line));
    lastToken(line);
    QuotesBalanced(line);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    if (hasUtf16Mark(bytes))
        decodeUtf16(bytes);
    decodeAny(bytes);
    std::string text;
    decodeSimulatorText(bytes, text);
    forEachLine(text, tryTextRules);
    return 0;
}
