// Any bytes read as a consist, written, and read again.
#include "consist_round_trip.h"
#include "text/text.h"

#include <algorithm>

using namespace zandor;

namespace {

// Can a consist file hold this text? Quotes, brackets and control characters are its own marks, ends are
// trimmed, and a value that begins with "defaut" loses that word.
bool isPlain(std::string_view text) {
    const bool marks = std::any_of(text.begin(), text.end(), [](char c) {
        return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '(' || c == ')';
    });
    return !text.empty() && !marks && trim(text) == text && !beginsWithIgnoringCase(text, "defaut");
}

bool isPlainOrEmpty(std::string_view text) {
    return text.empty() || isPlain(text);
}

// What stands between the brackets of an EngineVariables text.
bool isPlainBlock(std::string_view text) {
    if (text.empty())
        return true;
    const std::size_t open = text.find('(');
    return open != std::string_view::npos && text.back() == ')' &&
           isPlainOrEmpty(trim(text.substr(open + 1, text.size() - open - 2)));
}

bool isPlainItem(const RameItem& item) {
    return isPlain(item.Name) && isPlain(item.Folder) && item.UiD >= 0 &&
           isPlainBlock(item.EngineVariables) && (item.IsEngine || item.EngineVariables.empty());
}

bool isPlainConsist(const fuzz::Consist& consist) {
    const Rame& rame = consist.rame;
    return isPlain(rame.CfgName) && isPlain(rame.Name) && isPlain(rame.MaxVelocity) &&
           isPlain(rame.Durability) && rame.Durability.find(',') == std::string::npos && rame.Serial >= 0 &&
           std::all_of(consist.items.begin(), consist.items.end(), isPlainItem);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Surroundings around;
    around.files.put(fuzz::ConsistPath, {reinterpret_cast<const char*>(data), size});
    const fuzz::Consist consist = fuzz::readConsist(around);
    const std::string written = fuzz::writeConsist(around, consist);
    if (isPlainConsist(consist))
        fuzz::requireRoundTrip(around, consist, written);
    else
        fuzz::readConsist(around);
    return 0;
}
