// The gate to the simulator's files, for every kind of file and every way of asking.
#include "surroundings.h"
#include "text/decode.h"
#include "text/lines.h"

#include <unordered_map>

using namespace zandor;
using fuzz::require;

namespace {

constexpr const char* Names[] = {"\\a.con", "\\a.eng", "\\a.WAG", "\\a.cvf", "\\a.s",
                                 "\\a.sd",  "\\a.sms", "\\a.act", "\\a.srv", "\\a.txt"};
constexpr const char* Sections[] = {"",
                                    "Engine",
                                    "wagon",
                                    "Wagon\\Coupling",
                                    "Wagon\\Inside",
                                    "Train\\TrainCfg",
                                    "Train\\TrainCfg\\Engine",
                                    "Train\\TrainCfg\\Wagon",
                                    "Tr_Activity\\Tr_Activity_Header"};
constexpr const char* Keys[] = {"",           "Name",      "Type", "Description", "Skip",
                                "EngineData", "WagonData", "Mass", "Shape"};

struct Question {
    std::string path, section, key;
    int count;
    bool mustFind, stockMode;
};

Question questionOf(FuzzedDataProvider& input) {
    const bool stockMode = input.ConsumeBool();
    const bool mustFind = input.ConsumeBool();
    const int count = input.ConsumeIntegralInRange(0, 3);
    return {input.PickValueInArray(Names),
            input.PickValueInArray(Sections),
            input.PickValueInArray(Keys),
            count,
            mustFind,
            stockMode};
}

bool ask(SimReader& reader, const Question& question, std::string_view bytes) {
    return reader.readBytes(question.path, bytes, question.section, question.key, question.count,
                            question.mustFind, question.stockMode);
}

int lineCount(std::string_view bytes) {
    std::string text;
    decodeSimulatorText(bytes, text);
    int count = 0;
    forEachLine(text, [&](std::string_view) { ++count; });
    return count;
}

void checkKeys(const SimReader& reader, int lines) {
    require(!reader.SimKeys.empty(), "there is a key record at all times");
    std::unordered_map<std::string_view, int> ids;
    for (const SimKey& key : reader.SimKeys) {
        require(key.Line >= 0 && key.Line <= lines, "a key's line is one of the file");
        const auto [known, isNew] = ids.try_emplace(key.Path, key.pathId);
        require(isNew || known->second == key.pathId, "equal paths share their handle");
    }
}

void checkHits(const SimReader& reader, const Question& question, bool result, int lines) {
    require(!reader.SimHits.empty(), "there is a hit record at all times");
    if (question.mustFind && result)
        require(reader.SimHits.front().Found, "what was found is among the hits");
    if (!question.stockMode && question.count > 0)
        require(reader.SimHits.size() <= static_cast<std::size_t>(question.count),
                "no more hits than asked for");
    for (const SimHit& hit : reader.SimHits)
        require(hit.FirstLine >= 0 && hit.FirstLine <= lines && hit.LastLine <= lines,
                "a hit's lines are of the file");
}

// All that a read leaves behind, as one text.
std::string describe(const SimReader& reader) {
    std::string all;
    const auto add = [&all](std::string_view text) { all.append(text).push_back('\0'); };
    for (const SimKey& key : reader.SimKeys) {
        for (std::string_view text : {key.Path, key.Key, key.Value, key.Tail})
            add(text);
        add(std::to_string(key.Line));
    }
    for (const SimHit& hit : reader.SimHits) {
        for (std::string_view text : {hit.Path, hit.Key, hit.Value, hit.Tail})
            add(text);
        add(std::to_string(hit.FirstLine) + " " + std::to_string(hit.LastLine) + (hit.Found ? " found" : ""));
    }
    return all;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const Question question = questionOf(input);
    const std::string bytes = fuzz::fileOf(input);
    fuzz::Surroundings around;
    const int lines = lineCount(bytes);

    const bool result = ask(around.reader, question, bytes);
    checkKeys(around.reader, lines);
    checkHits(around.reader, question, result, lines);
    const std::string first = describe(around.reader);
    const bool again = ask(around.reader, question, bytes);
    require(again == result && describe(around.reader) == first,
            "a second read with the same reader gives the same");
    return 0;
}
