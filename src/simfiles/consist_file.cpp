#include "simfiles/consist_file.h"

#include "text/decode.h"
#include "text/text.h"

namespace zandor {

namespace {

enum class Block { Other, TrainCfg, Engine, Wagon, EngineVariables };

// Which block a path is. `train` keeps the spelling of the last Train\TrainCfg from call to call: every
// vehicle's path begins with it.
Block blockOf(std::string_view path, std::string_view& train) {
    if (train.empty() || !path.starts_with(train) || path.size() == train.size() ||
        path[train.size()] != '\\') {
        if (pathIs(path, "Train\\TrainCfg")) {
            train = path;
            return Block::TrainCfg;
        }
        return Block::Other;
    }
    const std::string_view vehicle = path.substr(train.size() + 1);
    if (!vehicle.empty() && letterIs(vehicle.front(), 'w'))
        return pathIs(vehicle, "Wagon") ? Block::Wagon : Block::Other;
    if (pathIs(vehicle, "Engine"))
        return Block::Engine;
    return pathIs(vehicle, "Engine\\EngineVariables") ? Block::EngineVariables : Block::Other;
}

void takeTrainKey(const SimKey& key, Rame& rame) {
    const auto is = [&key](std::string_view name) { return nameIs(key.Key, name); };
    if (key.Key.empty())
        rame.CfgName = StripQuotes(key.Value);
    else if (is("Name"))
        rame.Name = StripQuotes(key.Value);
    else if (is("Serial"))
        rame.Serial = numericInt16(key.Value);
    else if (is("Default"))
        rame.DefaultKey = std::string(key.Key) + "( )";
    else if (is("MaxVelocity"))
        rame.MaxVelocity = StripQuotes(key.Value);
    else if (is("NextWagonUID"))
        rame.NextWagonUID = numericInt16(key.Value);
    else if (is("Durability"))
        rame.Durability = StripQuotes(key.Value);
}

void takeVariables(std::string_view name, std::string_view value, RameItem& item) {
    item.EngineVariables = std::string(name) + "(" + (value.empty() ? " " : std::string(value)) + ")";
}

// Behind a bracket that is missing or too many, vehicles stand in another block.
bool isVehicleData(const SimKey& key) {
    return nameIs(key.Key, "EngineData") || nameIs(key.Key, "WagonData");
}

bool bracketsBalance(std::string_view text) {
    int depth = 0;
    for (const char c : text) {
        depth += (c == '(') - (c == ')');
        if (depth < 0)
            return false;
    }
    return depth == 0;
}

// CleanValue() would take the brackets of "Coach (old)" for strays.
std::string_view cleanFolder(std::string_view text) {
    text = trim(text);
    const bool itsOwn = text.ends_with(')') && bracketsBalance(text);
    return itsOwn ? text : CleanValue(text);
}

// The keys of a consist as they come.
class ConsistKeys {
  public:
    ConsistKeys(Rame& rame, std::vector<RameItem>& items, ReadAnswer& answer)
        : rame_(rame), items_(items), answer_(answer) {}

    void take(const SimKey& key) {
        if (key.Path.empty())
            return;
        if (key.pathId != lastPath_) {
            block_ = blockOf(key.Path, train_);
            lastPath_ = key.pathId;
        }
        if (block_ == Block::TrainCfg)
            takeTrainKey(key, rame_);
        else if (block_ == Block::Engine || block_ == Block::Wagon)
            takeVehicleKey(key, block_ == Block::Engine);
        else if (block_ == Block::EngineVariables && key.Key.empty()) // its numbers stand on several lines
            takeVariables("EngineVariables", key.Value, item());
        else if (block_ == Block::Other && isVehicleData(key))
            noteFlaw(Flaw::VehicleMisplaced, key.Line, key.Tail);
    }

    void finish() {
        dropNameless();
        if (rame_.Name.empty())
            rame_.Name = rame_.CfgName;
    }

  private:
    RameItem& item() { return items_.empty() ? items_.emplace_back() : items_.back(); }

    void beginVehicle(const SimKey& opening, bool isEngine) {
        dropNameless();
        items_.emplace_back().IsEngine = isEngine;
        opening_ = &opening;
    }

    // What it is can't be told, and a save would lose it.
    void dropNameless() {
        if (items_.empty() || !items_.back().Name.empty())
            return;
        items_.pop_back();
        if (opening_)
            noteFlaw(Flaw::VehicleNameless, opening_->Line, opening_->Tail);
    }

    void takeVehicleKey(const SimKey& key, bool inEngine) {
        const auto is = [&key](std::string_view name) { return nameIs(key.Key, name); };
        if (key.Key.empty()) {
            beginVehicle(key, inEngine);
        } else if (is("Flip")) {
            item().Flip = true;
        } else if (is("UiD")) {
            item().UiD = numericInt16(key.Value);
        } else if (inEngine && is("EngineVariables")) {
            takeVariables(key.Key, key.Value, item());
        } else if (is(inEngine ? "EngineData" : "WagonData")) {
            splitVehicleData(key.Value, item().Name, item().Folder);
            opening_ = &key;
        }
    }

    void noteFlaw(Flaw flaw, int line, std::string_view text) {
        if (answer_.flaw != Flaw::None)
            return;
        answer_.flaw = flaw;
        answer_.line = line;
        answer_.text = text;
    }

    Rame& rame_;
    std::vector<RameItem>& items_;
    ReadAnswer& answer_;
    std::string_view train_;
    int lastPath_ = -1;
    Block block_ = Block::Other;
    const SimKey* opening_ = nullptr; // of the last vehicle: its data, or its block's begin
};

void beginReading(Rame& rame, std::vector<RameItem>& items, std::string_view path, double durability) {
    items.clear();
    rame = Rame();
    rame.Durability = formatDurability(durability);
    rame.MaxVelocity = EngineMaxVelocity;
    rame.FileName = GetFileName(path);
}

ReadAnswer takeKeys(const SimReader& reader, Rame& rame, std::vector<RameItem>& items, ReadAnswer answer) {
    ConsistKeys keys(rame, items, answer);
    for (const SimKey& key : reader.SimKeys)
        keys.take(key);
    keys.finish();
    return answer;
}

bool isReadBack(const VehicleLines& vehicle, const RameItem& item) {
    return !item.Name.empty() && item.Name == vehicle.stockName && item.Folder == vehicle.folder &&
           item.IsEngine == vehicle.isEngine && item.Flip == vehicle.flipped;
}

void addLine(std::string& text, int tabs, std::string_view line) {
    text.append(static_cast<std::size_t>(tabs), '\t');
    text += line;
    text += "\r\n";
}

void addKey(std::string& text, int tabs, std::string_view key, std::string_view value) {
    addLine(text, tabs, std::string(key) + " ( " + std::string(value) + " )");
}

void addVehicle(std::string& text, const VehicleLines& vehicle) {
    const std::string data = quotedName(vehicle.stockName) + " " + quotedName(vehicle.folder);
    const std::string number = std::to_string(vehicle.number);
    addLine(text, 2, vehicle.isEngine ? "Engine (" : "Wagon (");
    if (vehicle.isEngine) {
        if (vehicle.flipped)
            addLine(text, 3, "Flip ( )");
        addKey(text, 3, "UiD", number);
        addKey(text, 3, "EngineData", data);
        if (!vehicle.engineVariables.empty())
            addLine(text, 3, vehicle.engineVariables);
    } else {
        addKey(text, 3, "WagonData", data);
        addKey(text, 3, "UiD", number);
        if (vehicle.flipped)
            addLine(text, 3, "Flip ( )");
    }
    addLine(text, 2, ")");
}

} // namespace

void splitVehicleData(std::string_view value, std::string& name, std::string& folder) {
    std::size_t split = 0; // where the folder's text begins
    if (!value.empty() && value.front() == '"') {
        const std::size_t quote = value.find('"', 1);
        if (quote == std::string_view::npos || quote < 2) {
            split = value.find(' ');
            if (split == std::string_view::npos)
                split = 1;
        } else {
            split = quote;
        }
        name = value.substr(1, split - 1);
    } else {
        split = value.find(' ');
        if (split == std::string_view::npos)
            split = 0;
        name = value.substr(0, split);
    }
    folder = cleanFolder(name.empty() ? value : value.substr(split + 1));
}

ReadAnswer ReadConsistFile(SimReader& reader, Rame& rame, std::vector<RameItem>& items, std::string_view path,
                           double durability) {
    beginReading(rame, items, path, durability);
    return takeKeys(reader, rame, items, reader.ReadSimFile(path));
}

ReadAnswer ReadConsistBytes(SimReader& reader, Rame& rame, std::vector<RameItem>& items,
                            std::string_view path, std::string_view bytes, double durability) {
    beginReading(rame, items, path, durability);
    return takeKeys(reader, rame, items, reader.readBytes(path, bytes));
}

std::optional<std::size_t> findUnreadable(SimReader& reader, const Rame& rame,
                                          const std::vector<VehicleLines>& vehicles) {
    Rame readRame;
    std::vector<RameItem> read;
    ReadConsistBytes(reader, readRame, read, ".con", encodeConsist(buildConsistText(rame, vehicles)));
    for (std::size_t i = 0; i < vehicles.size(); ++i)
        if (i >= read.size() || !isReadBack(vehicles[i], read[i]))
            return i;
    if (!vehicles.empty() && read.size() > vehicles.size())
        return vehicles.size() - 1;
    return std::nullopt;
}

std::string quotedName(std::string_view name) {
    const bool needed = name.find_first_of(" ()") != std::string_view::npos;
    return needed ? '"' + std::string(name) + '"' : std::string(name);
}

std::string buildConsistText(const Rame& rame, const std::vector<VehicleLines>& vehicles) {
    std::string text;
    text.reserve(512 + vehicles.size() * 96);
    addLine(text, 0, ConsistSignature);
    addLine(text, 0, "");
    addLine(text, 0, "Train (");
    addLine(text, 1, "TrainCfg ( " + rame.CfgName);
    addKey(text, 2, "Name", '"' + rame.Name + '"');
    if (rame.Serial > 0)
        addKey(text, 2, "Serial", std::to_string(rame.Serial));
    if (!rame.DefaultKey.empty())
        addLine(text, 2, rame.DefaultKey);
    addKey(text, 2, "MaxVelocity", rame.MaxVelocity);
    addKey(text, 2, "NextWagonUID", std::to_string(rame.NextWagonUID));
    std::string durability = rame.Durability;
    if (const std::size_t comma = durability.find(','); comma != std::string::npos)
        durability[comma] = '.';
    addKey(text, 2, "Durability", durability);
    for (const VehicleLines& vehicle : vehicles)
        addVehicle(text, vehicle);
    addLine(text, 1, ")");
    addLine(text, 0, ")");
    return text;
}

std::string encodeConsist(std::string_view text) {
    return encodeText(text, TextEncoding::Utf16);
}

} // namespace zandor
