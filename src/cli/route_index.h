// What the commands on routes have in common: their arguments, and the index that they print.
#pragma once

#include "catalogue/routes.h"
#include "cli/session.h"

#include <string>
#include <vector>

namespace zandor {

class RouteIndex {
  public:
    void addArguments(Arguments& line);
    void addRouteArgument(Arguments& line); // --route

    // Reads the index; routes() are those that were asked for. Another code than Done: there is no such
    // route, and the user was told.
    int read(Session& session);
    const std::vector<RouteMSTS*>& routes() const { return routes_; }
    bool asJson() const { return json_; }

  private:
    bool choose(const std::string& wanted);

    std::string route_, optimize_;
    bool json_ = false;
    Catalogue catalogue_;
    std::vector<RouteMSTS*> routes_;
};

} // namespace zandor
