// Whether the consists that services run are there, with all their stock.
#pragma once

#include "catalogue/routes.h"
#include "frame/frame.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zandor {

// The path of a consist file (its name with .con): in the root in use, otherwise in the other one, where it
// may not be either.
std::string ResolveRamePath(FileSystem& files, const Roots& roots, std::string_view file);

// One look at many services: each consist is read once, and each stock file looked for once.
class ServiceCheck {
  public:
    ServiceCheck(FileSystem& files, const Roots& roots);

    // Sets RameManquante and MaterielManquant.
    void CheckServiceRame(ServiceRoute& service);

  private:
    struct Found {
        bool rameMissing = false, stockMissing = false;
    };
    Found look(std::string_view file);

    FileSystem& files_;
    Roots roots_;
    SimReader reader_;
    Rame rame_;
    std::vector<RameItem> items_;
    StockPresence stock_;
    std::unordered_map<std::string, Found> known_; // by the consist's name in lower case
};

// All services of a route. False: the user ended it.
bool checkServices(Frame& frame, ServiceCheck& check, RouteMSTS& route);

} // namespace zandor
