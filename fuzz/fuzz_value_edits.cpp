// The replacement of values in their places: each reads back, and all else is as it was.
#include "simfiles/text_edit.h"
#include "surroundings.h"

#include <algorithm>
#include <vector>

using namespace zandor;
using fuzz::require;

namespace {

constexpr const char* Names[] = {"\\a.con", "\\a.eng", "\\a.wag", "\\a.cvf", "\\a.sd", "\\a.sms", "\\a.srv"};

std::string without(std::string_view text, std::size_t begin, std::size_t end) {
    return std::string(text.substr(0, begin)).append(text.substr(end));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const char* path = input.PickValueInArray(Names);
    const std::size_t chosen = input.ConsumeIntegral<std::uint16_t>();
    const std::string bytes = fuzz::fileOf(input);
    fuzz::Surroundings around;
    around.files.put(path, bytes);
    if (!around.reader.ReadSimFile(path).accepted() || around.reader.SimKeys.empty())
        return 0;
    const SimKey& key = around.reader.SimKeys[chosen % around.reader.SimKeys.size()];
    const TextSpan place = key.place;
    if (place.nowhere())
        return 0;
    const std::string value = "\"new (value) # 1\"";
    const EditableText before = editableText(bytes);
    const TextEdit edits[] = {{place, value, before.text.substr(place.begin, place.size())}};
    require(editFile(around.files, path, edits) != EditOutcome::Refused, "a value's place takes a value");
    const EditableText after = editableText(around.files.get(path).value_or(""));
    require(after.text.compare(place.begin, value.size(), value) == 0, "the value stands in its place");
    require(without(before.text, place.begin, place.end) ==
                without(after.text, place.begin, place.begin + value.size()),
            "all else is as it was");
    require(before.rest == after.rest && before.encoding == after.encoding, "so are encoding and last byte");

    const TextEdit wrong[] = {{place, value, value + "?"}};
    require(editFile(around.files, path, wrong) == EditOutcome::Refused, "another value isn't replaced");
    require(around.files.get(path) == after.bytes, "what is refused is not written");
    return 0;
}
