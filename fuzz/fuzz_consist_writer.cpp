// Consists with any names that a user can give and stock of any name that a disk can hold: written and read
// back, or the stock is found to be one that no file can hold.
#include "consist_round_trip.h"
#include "text/text.h"

using namespace zandor;

namespace {

// Those of a file's or a folder's name, beside the letters below.
constexpr const char* DiskLetters[] = {"\"", "\t", "\n", "\r", "Defaut", "(*", "*)", " ) ", "\xFF", "a"};
constexpr const char* Letters[] = {"a",   "B", "7", " ",      "  ",     "_", "-", ".", "+", "#",
                                   "&",   "'", "%", "(",      ")",      ";", "@", "£", "¤", "é",
                                   "£¤@", "Ж", ",", "Engine", "defaut", "/", "[", "=", "ß", "日"};

std::string nameFrom(FuzzedDataProvider& input) {
    std::string name;
    for (int left = input.ConsumeIntegralInRange(1, 12); left > 0; --left)
        name += input.PickValueInArray(Letters);
    name = trim(name);
    return name.empty() || beginsWithIgnoringCase(name, "defaut") ? "plain" : name;
}

std::string stockNameFrom(FuzzedDataProvider& input) {
    std::string name = nameFrom(input);
    for (int left = input.ConsumeIntegralInRange(0, 4); left > 0; --left)
        name.insert(input.ConsumeIntegralInRange<std::size_t>(0, name.size()),
                    input.PickValueInArray(DiskLetters));
    return name;
}

RameItem itemFrom(FuzzedDataProvider& input) {
    RameItem item;
    item.IsEngine = input.ConsumeBool();
    item.Flip = input.ConsumeBool();
    item.UiD = input.ConsumeIntegralInRange(0, 32767);
    item.Name = stockNameFrom(input);
    item.Folder = stockNameFrom(input);
    if (item.IsEngine && input.ConsumeBool())
        item.EngineVariables = "EngineVariables(0 27.5 -1800 0.2)";
    return item;
}

fuzz::Consist consistFrom(FuzzedDataProvider& input) {
    fuzz::Consist consist;
    consist.rame.Serial = input.ConsumeIntegralInRange(0, 32767);
    consist.rame.NextWagonUID = input.ConsumeIntegralInRange(0, 32767);
    consist.rame.CfgName = nameFrom(input);
    consist.rame.Name = nameFrom(input);
    consist.rame.DefaultKey = input.ConsumeBool() ? "Default( )" : "";
    consist.rame.MaxVelocity = input.ConsumeBool() ? EngineMaxVelocity : WagonsOnlyMaxVelocity;
    consist.rame.Durability = formatDurability(input.ConsumeIntegralInRange(0, 1000) / 1000.0);
    for (int left = input.ConsumeIntegralInRange(1, 6); left > 0; --left)
        consist.items.push_back(itemFrom(input));
    return consist;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const fuzz::Consist consist = consistFrom(input);
    fuzz::Surroundings around;
    if (findUnreadable(around.reader, fuzz::rameOf(consist), fuzz::linesOf(consist)))
        return 0;
    const std::string written = fuzz::writeConsist(around, consist);
    fuzz::requireRoundTrip(around, consist, written);
    return 0;
}
