#include "simfiles/stock_reader.h"

#include "simfiles/coupling_fields.h"
#include "simfiles/text_edit.h"
#include "text/decode.h"
#include "text/lines.h"
#include "text/text.h"

#include <array>

namespace zandor {

namespace {

enum class Block { Other, Wagon, Coupling, Engine };

// Most of a file's blocks stand deeper, where nothing is of use.
bool isDeep(std::string_view path) {
    constexpr std::size_t wagonLength = 5, engineLength = 6;
    return path.size() > engineLength &&
           (path[engineLength] == '\\' || (path[wagonLength] == '\\' && (path[engineLength] | 0x20) != 'c'));
}

Block blockOf(std::string_view path) {
    if (isDeep(path))
        return Block::Other;
    switch (path.empty() ? '\0' : path.front()) {
    case 'W':
    case 'w':
        return pathIs(path, "wagon")             ? Block::Wagon
               : pathIs(path, "wagon\\coupling") ? Block::Coupling
                                                 : Block::Other;
    case 'E':
    case 'e':
        return pathIs(path, "engine") ? Block::Engine : Block::Other;
    default:
        return Block::Other;
    }
}

using Field = std::string Materiel::*;
struct FieldRow {
    Block block;
    std::string_view key;
    Field field;
};
constexpr std::array<FieldRow, 10> Fields{{
    {Block::Wagon, "type", &Materiel::Type},
    {Block::Wagon, "size", &Materiel::Size},
    {Block::Wagon, "mass", &Materiel::Mass},
    {Block::Wagon, "", &Materiel::WagonName},
    {Block::Wagon, "name", &Materiel::EngineName},
    {Block::Wagon, "brakesystemtype", &Materiel::BrakeSystem},
    {Block::Engine, "name", &Materiel::EngineName},
    {Block::Engine, "type", &Materiel::EngineType},
    {Block::Engine, "maxpower", &Materiel::MaxPower},
    {Block::Engine, "cabview", &Materiel::CabView},
}};
constexpr std::array<Field, 11> ReadFields{
    &Materiel::Type,       &Materiel::Size,           &Materiel::Mass,       &Materiel::WagonName,
    &Materiel::EngineName, &Materiel::EngineType,     &Materiel::MaxPower,   &Materiel::CabView,
    &Materiel::Coupling,   &Materiel::CouplingUnique, &Materiel::BrakeSystem};

void takeCouplingKey(const SimKey& key, CouplingTypes& types, Materiel& materiel) {
    if (nameIs(key.Key, "type"))
        types.add(materiel, StripQuotes(key.Value));
    else if (nameIs(key.Key, "couplinguniquetype"))
        setCouplingUnique(materiel, StripQuotes(key.Value));
}

void takeKey(const SimKey& key, Block block, Materiel& materiel) {
    for (const FieldRow& row : Fields) {
        if (row.block != block || !nameIs(key.Key, row.key))
            continue;
        const bool comment = commentRuleApplies(block == Block::Engine ? "engine" : "wagon", key.Key);
        materiel.*row.field = StripQuotes(comment ? cutComment(key.Value) : key.Value);
        return;
    }
}

struct NeededKey {
    Field field;
    std::string_view path;
};
constexpr std::array<NeededKey, 4> NeededKeys{{{&Materiel::Coupling, "Wagon\\Coupling\\Type"},
                                               {&Materiel::Mass, "Wagon\\Mass"},
                                               {&Materiel::Size, "Wagon\\Size"},
                                               {&Materiel::Type, "Wagon\\Type"}}};

void noteMissingKey(const Materiel& materiel, ReadAnswer& answer) {
    for (const NeededKey& needed : NeededKeys)
        if ((materiel.*needed.field).empty()) {
            answer.flaw = Flaw::StockKeyMissing;
            answer.text = needed.path;
            return;
        }
}

// The first name stays, unless one stands a few lines behind the shape, where the simulator looks for it.
WagonNameLine nameThatStays(const std::vector<WagonNameLine>& names, int shapeLine) {
    WagonNameLine stays = names.front();
    for (const WagonNameLine& name : names)
        if (shapeLine > 0 && name.line > shapeLine && name.line - shapeLine < 8)
            stays = name;
    return stays;
}

// True when the line is one Name key and nothing else: only such a line can be left out without loss.
bool isNameLine(std::string_view line) {
    std::string plain(line);
    NormalizeLine(plain);
    const std::size_t open = plain.find('(');
    const std::size_t close = plain.find(')', open == std::string::npos ? 0 : open);
    return open != std::string::npos && close == plain.size() - 1 &&
           plain.find('(', open + 1) == std::string::npos &&
           nameIs(trim(std::string_view(plain).substr(0, open)), "name");
}

// Takes the lines of the names that don't stay out; nothing when one of them holds more than its name.
std::optional<std::vector<TextEdit>> surplusLines(std::string_view text,
                                                  const std::vector<WagonNameLine>& names, int stays) {
    std::vector<TextEdit> edits;
    bool alone = true;
    int number = 0;
    auto next = names.begin(); // in the order of the file
    forEachLine(text, [&](std::string_view line) {
        ++number;
        bool surplus = false;
        for (; next != names.end() && next->line <= number; ++next)
            surplus = next->line == number && number != stays;
        if (!surplus)
            return;
        alone = alone && isNameLine(line);
        const auto begin = static_cast<std::uint32_t>(line.data() - text.data());
        edits.push_back({{begin, begin + lineSpan(text.substr(begin), 1).end}, {}});
    });
    return alone ? std::optional(std::move(edits)) : std::nullopt;
}

// The first line becomes the signature and nothing else, and the encoding the simulator's.
bool rewriteNames(FileSystem& files, std::string_view path, const std::vector<WagonNameLine>& names,
                  int stays) {
    std::string bytes;
    if (files.read(path, bytes, LargestSimFile) != ReadResult::Done)
        return false;
    EditableText file = editableText(std::move(bytes));
    std::optional<std::vector<TextEdit>> edits = surplusLines(file.text, names, stays);
    if (!edits || edits->empty())
        return false;
    const auto length = static_cast<std::uint32_t>(file.text.find_first_of("\r\n"));
    edits->insert(edits->begin(), TextEdit{{0, length}, std::string(ConsistSignature)});
    file.encoding = TextEncoding::Utf16;
    return replaceSpans(file.text, *edits) && writeEdited(files, path, file) == EditOutcome::Written;
}

} // namespace

void clearReadFields(Materiel& materiel) {
    for (Field field : ReadFields)
        (materiel.*field).clear();
}

void moveReadFields(Materiel& from, Materiel& to) {
    for (Field field : ReadFields)
        (to.*field).swap(from.*field);
}

StockReading ReadStockFile(SimReader& reader, std::string_view path, Materiel& materiel, NameRepair repair) {
    StockReading reading;
    reading.answer = reader.ReadSimFile(path);
    if (!reading.answer.accepted())
        return reading;
    clearReadFields(materiel);
    const bool isWagonFile = kindOfFile(path) == FileKind::Wagon;
    int shapeLine = 0;
    CouplingTypes couplings;
    int lastPath = -1;
    Block block = Block::Other;
    for (const SimKey& key : reader.SimKeys) {
        if (key.pathId != lastPath) {
            block = blockOf(key.Path);
            lastPath = key.pathId;
        }
        if (block == Block::Other)
            continue;
        if (block == Block::Coupling) {
            takeCouplingKey(key, couplings, materiel);
            continue;
        }
        takeKey(key, block, materiel);
        if (!isWagonFile || block != Block::Wagon)
            continue;
        if (nameIs(key.Key, "name"))
            reading.wagonNames.push_back({key.Line, std::string(StripQuotes(key.Value))});
        else if (nameIs(key.Key, "wagonshape"))
            shapeLine = key.Line;
    }
    noteMissingKey(materiel, reading.answer);
    reading.needsRepair = reading.wagonNames.size() > 1;
    if (!reading.answer.sound() || !reading.needsRepair)
        return reading;
    const WagonNameLine stays = nameThatStays(reading.wagonNames, shapeLine);
    materiel.EngineName = stays.text;
    if (repair == NameRepair::Allowed)
        reading.repaired = rewriteNames(reader.files(), path, reading.wagonNames, stays.line);
    return reading;
}

} // namespace zandor
