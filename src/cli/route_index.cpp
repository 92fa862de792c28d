#include "cli/route_index.h"

#include "catalogue/passed_over.h"

#include <charconv>
#include <optional>

namespace zandor {

namespace {

// The number that the text is; nothing when it is none or beyond `count`.
std::optional<std::size_t> positionIn(std::string_view text, std::size_t count) {
    std::size_t position = 0;
    const char* const end = text.data() + text.size();
    const auto [behind, error] = std::from_chars(text.data(), end, position);
    if (error != std::errc() || behind != end || position >= count)
        return std::nullopt;
    return position;
}

} // namespace

void RouteIndex::addArguments(Arguments& line) {
    line.flag("--json", json_, "print JSON, for programs");
    line.word("--optimize", optimize_, {"0", "1"}, "MODE",
              "read activities in full (1) or by their lines (0); by default as the settings want it");
}

void RouteIndex::addRouteArgument(Arguments& line) {
    line.text("--route", route_, "N",
              "of this route alone: its number in the list of routes, from 0, its folder or its name");
}

int RouteIndex::read(Session& session) {
    if (!optimize_.empty())
        session.state.Optimize = optimize_ == "1";
    session.atWork = session.state.roots.RootPrimary();
    catalogue_.current = session.state.roots.first;
    ReadRoutes(session.frame, catalogue_);
    ReadServicesActivites(session.frame, catalogue_);
    tellPassedOver(session.frame, catalogue_);
    for (RouteMSTS& route : catalogue_.here().Routes)
        if (!route.Dossier.empty())
            routes_.push_back(&route);
    if (!route_.empty() && !choose(route_))
        return session.cannotRun("There is no route " + route_);
    return exitcode::Done;
}

bool RouteIndex::choose(const std::string& wanted) {
    if (const auto position = positionIn(wanted, routes_.size())) {
        routes_ = {routes_[*position]};
        return true;
    }
    std::erase_if(routes_, [&wanted](const RouteMSTS* route) {
        return !equalIgnoringCase(route->Dossier, wanted + "\\") && !equalIgnoringCase(route->Nom, wanted);
    });
    return !routes_.empty();
}

} // namespace zandor
