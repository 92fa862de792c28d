// The stock of one class as the lists show it.
#pragma once

#include "catalogue/catalogue.h"

#include <string>
#include <vector>

namespace zandor {

inline constexpr int StockClassCount = 6;
// 0 electric, 1 diesel, 2 steam engine, 3 carriage, 4 freight, 5 tender or draisine; -1 for any other stock.
int stockClassOf(const Materiel& materiel);
Message stockClassMessage(int classIndex);

// Steam engines and carriages show no coupling.
bool listsCouplings(int classIndex);

// Numbers of the icons of brakes and couplings; 0: none. Text in any case; 0 also for any other text.
int brakeIcon(std::string_view brakeSystem);
int couplingIcon(std::string_view coupling);
inline constexpr int CabIcon = 20, NoCabIcon = 21;

struct StockListRow {
    int index = 0;    // in Materiels
    std::string text; // the shown name, or the file name
    int icon = NoCabIcon;
    int brakeIcon = 0;    // an unknown brake repeats the icon of the stock before it
    int couplingIcon = 0; // likewise; always 0 in a class that lists no couplings
    bool unused = false;  // shown in green
};

// The rows of a class in catalogue order; the list control sorts.
std::vector<StockListRow> FillStockList(const AppState& state, const Catalogue& catalogue, int classIndex,
                                        bool byFileName);
// True when the stock is to be shown as unused: PrintGreen is on and no consist uses it.
bool isShownUnused(const AppState& state, const Catalogue& catalogue, std::string_view folder,
                   std::string_view file);

} // namespace zandor
