#include "editor/coupling.h"

#include "editor/editor_parts.h"
#include "editor/messages.h"

#include <array>
#include <optional>

namespace zandor {

namespace {

// A brake system is shown by a message or, where it has none, by a text of its own.
struct BrakeRow {
    std::string_view system;
    std::optional<Message> message;
    std::string_view text;
};

constexpr std::array<BrakeRow, 8> Brakes{{
    {"air_single_pipe", message::BrakeAirSinglePipe, ""},
    {"air_twin_pipe", message::BrakeAirTwinPipe, ""},
    {"vacuum_single_pipe", message::BrakeVacuumSinglePipe, ""},
    {"vacuum_twin_pipe", message::BrakeVacuumTwinPipe, ""},
    {"ep", std::nullopt, "EP"},
    {"ecp", std::nullopt, "ECP"},
    {"air_piped", message::BrakeAirPiped, ""},
    {"vacuum_piped", message::BrakeVacuumPiped, ""},
}};

struct CouplingRow {
    std::string_view type;
    Message message;
};

constexpr std::array<CouplingRow, 4> Couplings{{
    {"automatic", message::CouplingAutomatic},
    {"bar", message::CouplingBar},
    {"chain", message::CouplingChain},
    {"hydraulic", message::CouplingHydraulic},
}};

std::string brakesText(const Frame& frame, std::string_view system) {
    for (const BrakeRow& row : Brakes)
        if (equalIgnoringCase(row.system, system))
            return frame.text(message::BrakeSystem) + " " +
                   (row.message ? frame.text(*row.message) : std::string(row.text));
    return {};
}

std::string couplingName(const Frame& frame, std::string_view type) {
    for (const CouplingRow& row : Couplings)
        if (equalIgnoringCase(row.type, type))
            return frame.text(row.message);
    return {};
}

// The names of the ends, the unique type behind the one that it belongs to.
std::string couplingNames(const Frame& frame, const Materiel& materiel) {
    constexpr std::string_view RearEnd = "_END";
    std::string unique = materiel.CouplingUnique;
    const std::size_t rear = unique.find(RearEnd);
    if (rear != std::string::npos)
        unique.erase(rear, RearEnd.size());
    if (!unique.empty())
        unique = " (" + unique + ")";

    const std::string_view coupling = materiel.Coupling;
    const std::size_t split = coupling.find('_');
    if (split == std::string_view::npos)
        return couplingName(frame, coupling) + unique;
    const std::string front = couplingName(frame, coupling.substr(0, split));
    const std::string behind = couplingName(frame, coupling.substr(split + 1));
    return rear == std::string::npos ? front + unique + ", " + behind : front + ", " + behind + unique;
}

std::string couplingText(const Frame& frame, const Materiel& materiel) {
    const bool isPair = materiel.Coupling.find('_') != std::string::npos;
    if (isPair && CouplingImageName(materiel.Coupling).empty())
        return {};
    const std::string names = couplingNames(frame, materiel);
    return names.empty() ? names : frame.text(message::Coupling) + " " + names;
}

std::string figureLine(const Frame& frame, Message message, std::string_view value) {
    const std::string figure = figureText(numericValue(value));
    return frame.text(message, {{"|1", withDecimalMark(figure, decimalMark(frame.language))}});
}

} // namespace

MaterielInfo ShowMaterielInfo(Editor& editor, int index) {
    std::vector<Materiel>& materiels = editor.catalogue.here().Materiels;
    const auto position = static_cast<std::size_t>(index);
    if (index < 0 || position >= materiels.size())
        return {};
    MaterielInfo info = ShowMaterielInfo(editor.frame, materiels[position]);
    info.picture = LoadMaterielPicture(editor.frame, editor.catalogue, materiels[position]);
    info.unreadablePicture = unreadableThumbnail(editor.frame, editor.catalogue, materiels[position]);
    return info;
}

MaterielInfo ShowMaterielInfo(const Frame& frame, const Materiel& materiel) {
    MaterielInfo info;
    info.select = " " + shownName(materiel) + " ";
    info.path = materiel.Folder + "\\" + materiel.FileName;
    info.brakes = brakesText(frame, materiel.BrakeSystem);
    info.coupling = couplingText(frame, materiel);
    if (!materiel.Size.empty())
        info.length = figureLine(frame, message::Length, lastToken(materiel.Size));
    if (!materiel.Mass.empty())
        info.mass = figureLine(frame, message::Mass, materiel.Mass);
    return info;
}

} // namespace zandor
