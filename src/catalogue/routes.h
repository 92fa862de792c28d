// The index of the root in use: its routes with their services and activities, and who of them needs what. It
// lives in RootCatalogue, and stays there until that root is loaded anew.
#pragma once

#include "catalogue/catalogue.h"
#include "catalogue/stock_presence.h"

#include <string>
#include <string_view>

namespace zandor {

std::string routesPath(std::string_view root); // root + "\ROUTES\"

// Fills Routes with one record a folder, named by the first track file in it; one without stays there as a
// blank record. False: the user ended it.
bool ReadRoutes(Frame& frame, Catalogue& catalogue, LoadOptions options = {});
// Fills the services and activities of all routes that have a name, and RamesEnService. Activities are read
// in full or by lines, as the setting Optimize wants it. False: the user ended it.
bool ReadServicesActivites(Frame& frame, Catalogue& catalogue, LoadOptions options = {});

// Sets Manquant.
void CheckStockFile(StockPresence& stock, ActiviteMateriel& vehicle);

// The first route with a service that runs this consist, given by its file's name in any case; nullptr: none
// does.
const RouteMSTS* findRouteUsing(const RootCatalogue& catalogue, std::string_view consistFile);

// Marks the entry of ConsistIndex of this consist (a short name) in this root as one that a service runs.
void MarkRameUsed(Catalogue& catalogue, std::string_view name, std::string_view root);
// The same for all services of the two roots, without a walk through ConsistIndex for each.
void markUsedConsists(Catalogue& catalogue, const Roots& roots);

} // namespace zandor
