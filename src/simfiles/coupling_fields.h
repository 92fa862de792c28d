// How the coupling types of a stock file come together in its Materiel; both readers share it.
#pragma once

#include "simfiles/materiel.h"
#include "text/text.h"

#include <string_view>

namespace zandor {

// A second end that differs joins the first; equal ends count once.
inline void addCouplingType(Materiel& materiel, std::string_view type) {
    std::string& coupling = materiel.Coupling;
    if (coupling.empty())
        coupling = type;
    else if (coupling.find('_') == std::string::npos && !equalIgnoringCase(coupling, type))
        coupling.append("_").append(type);
}

// Behind both ends of a pair, the unique type is the rear end's.
inline void setCouplingUnique(Materiel& materiel, std::string_view type) {
    materiel.CouplingUnique = type;
    if (materiel.Coupling.find('_') != std::string::npos)
        materiel.CouplingUnique += "_END";
}

} // namespace zandor
