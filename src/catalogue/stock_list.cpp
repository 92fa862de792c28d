#include "catalogue/stock_list.h"

#include "catalogue/messages.h"
#include "catalogue/stock_files.h"

#include <algorithm>

namespace zandor {

namespace {

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

constexpr Message StockClassMessages[StockClassCount] = {message::ClassElectric, message::ClassDiesel,
                                                         message::ClassSteam,    message::ClassCarriage,
                                                         message::ClassFreight,  message::ClassTender};

struct IconRow {
    std::string_view text;
    int icon;
};
constexpr IconRow BrakeIcons[] = {
    {"air_single_pipe", 2},
    {"air_twin_pipe", 3},
    {"vacuum_single_pipe", 4},
    {"vacuum_twin_pipe", 5},
    {"ep", 6},
    {"air_piped", 7},
    {"vacuum_piped", 8},
    {"ecp", 22},
};
constexpr IconRow CouplingIcons[] = {
    {"automatic", 10},
    {"automatic_automatic", 10},
    {"bar", 11},
    {"bar_bar", 11},
    {"chain", 12},
    {"chain_chain", 12},
    {"hydraulic", 13},
    {"hydraulic_hydraulic", 13},
    {"chain_bar", 14},
    {"bar_automatic", 15},
    {"chain_automatic", 16},
    {"hydraulic_automatic", 17},
    {"hydraulic_bar", 18},
    {"hydraulic_chain", 19},
    {"bar_chain", 23},
    {"automatic_bar", 24},
    {"automatic_chain", 25},
    {"automatic_hydraulic", 26},
    {"bar_hydraulic", 27},
    {"chain_hydraulic", 28},
};

template <std::size_t N> int iconOf(const IconRow (&rows)[N], std::string_view text) {
    for (const IconRow& row : rows)
        if (equalIgnoringCase(row.text, text))
            return row.icon;
    return 0;
}

StockListRow makeRow(const AppState& state, const Catalogue& catalogue, int index, bool byFileName) {
    const Materiel& materiel = catalogue.here().Materiels[static_cast<std::size_t>(index)];
    StockListRow row;
    row.index = index;
    row.text = byFileName ? materiel.FileName : shownName(materiel);
    row.icon = materiel.CabView.empty() ? NoCabIcon : CabIcon;
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
    int brakes = 0, coupling = 0; // they go on from one stock to the next, of whatever class
    const std::vector<Materiel>& materiels = catalogue.here().Materiels;
    for (std::size_t i = 0; i < materiels.size(); ++i) {
        const Materiel& materiel = materiels[i];
        if (materiel.FileName == UncataloguedWagon)
            continue;
        if (const int own = brakeIcon(materiel.BrakeSystem))
            brakes = own;
        if (const int own = couplingIcon(materiel.Coupling))
            coupling = own;
        if (stockClassOf(materiel) != classIndex)
            continue;
        StockListRow& row = rows.emplace_back(makeRow(state, catalogue, static_cast<int>(i), byFileName));
        row.brakeIcon = brakes;
        row.couplingIcon = listsCouplings(classIndex) ? coupling : 0;
    }
    return rows;
}

bool listsCouplings(int classIndex) {
    return classIndex != 2 && classIndex != 3;
}

int brakeIcon(std::string_view brakeSystem) {
    return iconOf(BrakeIcons, brakeSystem);
}

int couplingIcon(std::string_view coupling) {
    return iconOf(CouplingIcons, coupling);
}

bool isShownUnused(const AppState& state, const Catalogue& catalogue, std::string_view folder,
                   std::string_view file) {
    if (!state.PrintGreen)
        return false;
    const StockUse* use = findStockUse(catalogue, folder, file);
    return !use || use->Count <= 0;
}

} // namespace zandor
