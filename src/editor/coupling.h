// Which vehicles fit together, and what the panel tells of a stock entry.
#pragma once

#include "editor/consist_document.h"

#include <string>
#include <string_view>

namespace zandor {

// True when the two have a coupling in common; an unknown coupling fits everything. No orientation counts.
bool CouplingCompatible(std::string_view couplingA, std::string_view couplingB, std::string_view uniqueA,
                        std::string_view uniqueB);

// `left`: a position of the strip; `right`: one too when `rightIsVehicule`, otherwise an index of Materiels.
bool CheckCoupling(const Editor& editor, int left, int right, bool rightIsVehicule);

// What the settings ask for on an incompatible pair: whether it is told, and whether it is refused. False:
// the operation stops.
bool reactToBadCoupling(Editor& editor, Findings& told);

// "CHAIN_BAR" for "chain_bar"; empty for any other text. Any case.
std::string_view CouplingImageName(std::string_view coupling);

// The information panel.
struct MaterielInfo {
    std::string select;            // tbSELECT
    std::string path;              // tbPATH
    std::string brakes;            // lblFreins
    std::string coupling;          // lblATTELAGE
    std::string length;            // lblLONGUEUR
    std::string mass;              // lblPOIDS
    PictureRef picture;            // picPREVIEW
    std::string unreadablePicture; // the path of a thumbnail that serves for nothing
};
// Of an entry of Materiels. Nothing for an index that is no stock's.
MaterielInfo ShowMaterielInfo(Editor& editor, int index);
// The texts alone.
MaterielInfo ShowMaterielInfo(const Frame& frame, const Materiel& materiel);

} // namespace zandor
