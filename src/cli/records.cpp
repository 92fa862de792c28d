#include "cli/records.h"

#include <array>

namespace zandor {

namespace {

struct TextField {
    const char* name;
    std::string Materiel::*field;
};
constexpr std::array<TextField, 17> MaterielTexts{{
    {"BasePath", &Materiel::BasePath},
    {"Folder", &Materiel::Folder},
    {"FileName", &Materiel::FileName},
    {"Type", &Materiel::Type},
    {"Size", &Materiel::Size},
    {"Mass", &Materiel::Mass},
    {"WagonName", &Materiel::WagonName},
    {"CabView", &Materiel::CabView},
    {"Coupling", &Materiel::Coupling},
    {"CouplingUnique", &Materiel::CouplingUnique},
    {"EngineType", &Materiel::EngineType},
    {"EngineName", &Materiel::EngineName},
    {"BrakeSystem", &Materiel::BrakeSystem},
    {"Picture", &Materiel::Picture},
    {"MaxPower", &Materiel::MaxPower},
    {"DisplayName", &Materiel::DisplayName},
    {"Length", &Materiel::Length},
}};

Json pairsOf(const std::vector<StockPair>& pairs) {
    Json list = Json::list();
    for (const StockPair& pair : pairs)
        list.add({{"FileName", pair.FileName}, {"Folder", pair.Folder}});
    return list;
}

} // namespace

Json recordOf(const SimKey& key) {
    return {
        {"path", key.Path}, {"key", key.Key}, {"value", key.Value}, {"tail", key.Tail}, {"line", key.Line}};
}

Json recordOf(const SimHit& hit) {
    return {{"path", hit.Path},           {"key", hit.Key},          {"value", hit.Value}, {"tail", hit.Tail},
            {"firstLine", hit.FirstLine}, {"lastLine", hit.LastLine}};
}

void addRecord(Json& object, const Materiel& materiel) {
    object.set("ImageIsGeneric", materiel.ImageIsGeneric);
    object.set("ImageIsResource", materiel.ImageIsResource);
    for (const TextField& text : MaterielTexts)
        object.set(text.name, materiel.*text.field);
}

Json recordOf(const Materiel& materiel) {
    Json record = Json::object();
    addRecord(record, materiel);
    return record;
}

Json recordOf(const Rame& rame) {
    return {{"Serial", rame.Serial},           {"NextWagonUID", rame.NextWagonUID},
            {"CfgName", rame.CfgName},         {"Name", rame.Name},
            {"FileName", rame.FileName},       {"DefaultKey", rame.DefaultKey},
            {"MaxVelocity", rame.MaxVelocity}, {"Durability", rame.Durability}};
}

Json recordOf(const RameItem& item) {
    return {{"IsEngine", item.IsEngine}, {"UiD", item.UiD},       {"Flip", item.Flip},
            {"Name", item.Name},         {"Folder", item.Folder}, {"EngineVariables", item.EngineVariables}};
}

Json recordOf(const StockUse& use) {
    return {{"Folder", use.Folder}, {"FileName", use.FileName}, {"Count", use.Count}};
}

Json recordOf(const ConsistEntry& entry) {
    return {{"FileName", entry.FileName},
            {"DisplayName", entry.DisplayName},
            {"FolderPath", entry.FolderPath},
            {"Items", pairsOf(entry.Items)},
            {"Used", entry.Used}};
}

} // namespace zandor
