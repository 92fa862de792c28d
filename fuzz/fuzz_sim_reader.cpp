// The gate to the simulator's files, for every kind of file and every way of asking.
#include "simfiles/text_edit.h"
#include "surroundings.h"
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
    bool stockMode;
};

Question questionOf(FuzzedDataProvider& input) {
    const bool stockMode = input.ConsumeBool();
    const int count = input.ConsumeIntegralInRange(0, 3);
    return {input.PickValueInArray(Names), input.PickValueInArray(Sections), input.PickValueInArray(Keys),
            count, stockMode};
}

ReadAnswer ask(SimReader& reader, const Question& question, std::string_view bytes) {
    return reader.readBytes(question.path, bytes,
                            {question.section, question.key, question.count, question.stockMode});
}

int lineCount(std::string_view text) {
    int count = 0;
    forEachLine(text, [&](std::string_view) { ++count; });
    return count;
}

void checkKeys(const SimReader& reader, std::string_view text, int lines) {
    std::unordered_map<std::string_view, int> ids;
    for (const SimKey& key : reader.SimKeys) {
        require(key.Line >= 0 && key.Line <= lines, "a key's line is one of the file");
        const auto [known, isNew] = ids.try_emplace(key.Path, key.pathId);
        require(isNew || known->second == key.pathId, "equal paths share their handle");
        require(key.place.begin <= key.place.end && key.place.end <= text.size(),
                "a value stands in the text");
    }
}

void checkHits(const SimReader& reader, const Question& question, const ReadAnswer& answer, int lines) {
    require(!answer.found || !reader.SimHits.empty(), "what was found is among the hits");
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
        add(std::to_string(key.Line) + " " + std::to_string(key.place.begin));
    }
    for (const SimHit& hit : reader.SimHits) {
        for (std::string_view text : {hit.Path, hit.Key, hit.Value, hit.Tail})
            add(text);
        add(std::to_string(hit.FirstLine) + " " + std::to_string(hit.LastLine) + " " +
            std::to_string(hit.place.end));
    }
    return all;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const Question question = questionOf(input);
    const std::string bytes = fuzz::fileOf(input);
    fuzz::Surroundings around;
    const EditableText file = editableText(bytes);
    require(file.encoded() == bytes, "a file that nothing was changed in is the same to the last byte");
    const int lines = lineCount(file.text);

    const ReadAnswer answer = ask(around.reader, question, bytes);
    checkKeys(around.reader, file.text, lines);
    checkHits(around.reader, question, answer, lines);
    const std::string first = describe(around.reader);
    const ReadAnswer again = ask(around.reader, question, bytes);
    require(again.outcome == answer.outcome && again.found == answer.found &&
                describe(around.reader) == first,
            "a second read with the same reader gives the same");
    return 0;
}
