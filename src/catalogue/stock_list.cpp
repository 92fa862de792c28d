#include "catalogue/stock_list.h"

#include <algorithm>
#include <charconv>

namespace zandor {

namespace {

constexpr std::string_view KeyPrefix = "KEY_";

// An empty engineType fits any.
struct StockClassRule {
    int classIndex;
    std::string_view type;
    std::string_view engineType;
};
constexpr StockClassRule StockClassRules[] = {
    {0, "engine", "electric"}, {1, "engine", "diesel"}, {2, "engine", "steam"}, {3, "carriage", ""},
    {4, "freight", ""},        {5, "tender", ""},       {5, "draisine", ""},
};

constexpr Message StockClassMessages[StockClassCount] = {Message::ClassElectric, Message::ClassDiesel,
                                                         Message::ClassSteam,    Message::ClassCarriage,
                                                         Message::ClassFreight,  Message::ClassTender};

StockListRow makeRow(const AppState& state, const Catalogue& catalogue, int index, bool byFileName) {
    const Materiel& materiel = catalogue.Materiels[index];
    StockListRow row;
    row.key = std::string(KeyPrefix) + std::to_string(index);
    row.text = byFileName ? materiel.FileName : shownName(materiel);
    row.brakeSystem = lowerCase(materiel.BrakeSystem);
    row.coupling = lowerCase(materiel.Coupling);
    row.hasCab = !materiel.CabView.empty();
    row.unused = isShownUnused(state, catalogue, materiel.Folder, materiel.FileName);
    return row;
}

} // namespace

int stockClassOf(const Materiel& materiel) {
    for (const StockClassRule& rule : StockClassRules)
        if (equalIgnoringCase(materiel.Type, rule.type) &&
            (rule.engineType.empty() || equalIgnoringCase(materiel.EngineType, rule.engineType)))
            return rule.classIndex;
    return -1;
}

Message stockClassMessage(int classIndex) {
    return StockClassMessages[std::clamp(classIndex, 0, StockClassCount - 1)];
}

std::vector<StockListRow> FillStockList(const AppState& state, const Catalogue& catalogue, int classIndex,
                                        bool byFileName) {
    std::vector<StockListRow> rows;
    if (classIndex < 0)
        return rows;
    for (std::size_t i = 0; i < catalogue.Materiels.size(); ++i) {
        const Materiel& materiel = catalogue.Materiels[i];
        if (!materiel.FileName.empty() && stockClassOf(materiel) == classIndex)
            rows.push_back(makeRow(state, catalogue, static_cast<int>(i), byFileName));
    }
    return rows;
}

int indexOfKey(std::string_view key) {
    if (!key.starts_with(KeyPrefix))
        return -1;
    key.remove_prefix(KeyPrefix.size());
    unsigned short index = 0;
    const auto [end, error] = std::from_chars(key.data(), key.data() + key.size(), index);
    return error == std::errc() && end == key.data() + key.size() ? index : -1;
}

bool isShownUnused(const AppState& state, const Catalogue& catalogue, std::string_view folder,
                   std::string_view file) {
    if (!state.PrintGreen)
        return false;
    const StockUse* use = findStockUse(catalogue, folder, file);
    return !use || use->Count <= 0;
}

} // namespace zandor
