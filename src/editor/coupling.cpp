#include "editor/coupling.h"

#include "editor/editor_parts.h"
#include "editor/messages.h"

#include <array>
#include <utility>

namespace zandor {

namespace {

constexpr std::string_view RearEnd = "_END";

constexpr std::array<std::pair<std::string_view, std::string_view>, 16> CouplingNames{{
    {"automatic", "AUTO"},
    {"bar", "BAR"},
    {"chain", "CHAIN"},
    {"hydraulic", "HYDRO"},
    {"automatic_bar", "AUTO_BAR"},
    {"automatic_chain", "AUTO_CHAIN"},
    {"automatic_hydraulic", "AUTO_HYDRO"},
    {"bar_hydraulic", "BAR_HYDRO"},
    {"bar_automatic", "BAR_AUTO"},
    {"chain_automatic", "CHAIN_AUTO"},
    {"hydraulic_automatic", "HYDRO_AUTO"},
    {"chain_bar", "CHAIN_BAR"},
    {"hydraulic_bar", "HYDRO_BAR"},
    {"hydraulic_chain", "HYDRO_CHAIN"},
    {"bar_chain", "BAR_CHAIN"},
    {"chain_hydraulic", "CHAIN_HYDRO"},
}};

// The unique type makes the type of the end that it belongs to private.
std::string withUnique(std::string_view coupling, std::string_view unique) {
    std::string text = lowerCase(coupling);
    if (const std::size_t rear = unique.find(RearEnd); rear != std::string_view::npos) {
        std::string own(unique);
        own.erase(rear, RearEnd.size());
        return text + lowerCase(trim(own));
    }
    const std::string own = lowerCase(unique);
    if (text.find('_') == std::string::npos)
        return text + own;
    std::string front;
    for (char c : text) {
        if (c == '_')
            front += own;
        front += c;
    }
    return front;
}

using Ends = std::pair<std::string_view, std::string_view>;

Ends splitEnds(std::string_view coupling) {
    const std::size_t split = coupling.find('_');
    if (split == std::string_view::npos)
        return {coupling, {}};
    return {coupling.substr(0, split), coupling.substr(split + 1)};
}

bool meets(std::string_view end, const Ends& other) {
    return !end.empty() && (end == other.first || end == other.second);
}

// Looked up in Materiels for every vehicle, also for one of the simulator snapshot. A Missing vehicle has no
// entry anywhere.
std::string_view uniqueOf(const Editor& editor, const Vehicule& vehicule) {
    const auto& materiels = editor.catalogue.here().Materiels;
    const auto index = static_cast<std::size_t>(vehicule.MaterielIndex);
    if (vehicule.Missing || index >= materiels.size())
        return {};
    return materiels[index].CouplingUnique;
}

} // namespace

bool CouplingCompatible(std::string_view couplingA, std::string_view couplingB, std::string_view uniqueA,
                        std::string_view uniqueB) {
    const std::string a = withUnique(couplingA, uniqueA);
    const std::string b = withUnique(couplingB, uniqueB);
    if (a.empty() || b.empty())
        return true;
    const Ends endsA = splitEnds(a), endsB = splitEnds(b);
    return !endsB.first.empty() && (meets(endsA.first, endsB) || meets(endsA.second, endsB));
}

bool CheckCoupling(const Editor& editor, int left, int right, bool rightIsVehicule) {
    const std::vector<Vehicule>& vehicules = editor.document.Vehicules;
    const std::vector<Materiel>& materiels = editor.catalogue.here().Materiels;
    if (!isPosition(editor.document, left) || vehicules.back().Coupling.empty())
        return true;
    const Vehicule& placed = vehicules[static_cast<std::size_t>(left)];
    const Vehicule& leftOne = placed.Coupling.empty() ? vehicules.back() : placed;
    const std::string_view leftUnique = uniqueOf(editor, leftOne);

    if (right < 0 ||
        (rightIsVehicule ? vehicules.size() : materiels.size()) <= static_cast<std::size_t>(right))
        return true;
    if (!rightIsVehicule) {
        const Materiel& materiel = materiels[static_cast<std::size_t>(right)];
        return CouplingCompatible(leftOne.Coupling, materiel.Coupling, leftUnique, materiel.CouplingUnique);
    }
    const Vehicule& rightOne = vehicules[static_cast<std::size_t>(right)];
    return CouplingCompatible(leftOne.Coupling, rightOne.Coupling, leftUnique, uniqueOf(editor, rightOne));
}

bool reactToBadCoupling(Editor& editor, Findings& told) {
    const AppState& state = editor.frame.state;
    if (state.NoAlertCoupling)
        return true;
    const bool refused = state.PassIsBadCoupling;
    if (refused) {
        clearDrag(editor.document);
        updateStrip(editor);
    }
    told.push_back({.message = message::CouplingsDoNotFit});
    return !refused;
}

std::string_view CouplingImageName(std::string_view coupling) {
    for (const auto& [type, name] : CouplingNames)
        if (equalIgnoringCase(type, coupling))
            return name;
    return {};
}

} // namespace zandor
