#include "options/tool_tabs.h"

#include "options/messages.h"

namespace zandor {

namespace {

constexpr ToolTab Tabs[] = {
    {"VERIF_FILE", message::TabVerify, "Vérification", 1007},
    {"ROUTES", message::TabRoutes, "Routes", 1009},
    {"RECHERCHE_MATERIELS", message::TabSearch, "Recherche de matériel", 1010},
    {"AFFICHAGE", message::TabDisplay, "Affichage", 1011},
    {"AUTRES", message::TabOthers, "Autres", 1012},
};

} // namespace

std::span<const ToolTab> toolTabs() {
    return Tabs;
}

} // namespace zandor
