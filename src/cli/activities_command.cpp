#include "cli/json_output.h"
#include "cli/route_index.h"
#include "cli/text_table.h"
#include "crossref/messages.h"

#include <algorithm>

namespace zandor {

namespace {

bool lacksStock(const ActiviteRoute& activity) {
    return std::any_of(activity.Vehicules.begin(), activity.Vehicules.end(),
                       [](const ActiviteMateriel& vehicle) { return vehicle.Manquant; });
}

Json vehiclesOf(const ActiviteRoute& activity) {
    Json list = Json::list();
    for (const ActiviteMateriel& vehicle : activity.Vehicules)
        list.add({{"fichier", vehicle.Fichier},
                  {"dossier", vehicle.Dossier},
                  {"texte", vehicle.Texte},
                  {"ligne", vehicle.Ligne},
                  {"motrice", vehicle.Motrice},
                  {"manquant", vehicle.Manquant}});
    return list;
}

class ActivitiesCommand final : public Command {
  public:
    const char* name() const override { return "activities"; }
    const char* help() const override {
        return "List the activities of routes, with the stock that stands on them, and tell what is missing";
    }
    bool usesRoots() const override { return true; }

    void addArguments(Arguments& line) override {
        index_.addRouteArgument(line);
        line.flag("--missing", missingOnly_, "only activities whose stock isn't all there");
        index_.addArguments(line);
    }

    int run(Session& session) override {
        if (const int refusal = index_.read(session); refusal != exitcode::Done)
            return refusal;
        const bool missing = index_.asJson() ? printJson(session) : printTable(session);
        return missing || session.dialogs.alerts > 0 ? exitcode::Faults : exitcode::Done;
    }

  private:
    // Calls visit(route, activity) for those to be listed. Returns whether stock is missing.
    template <typename Visit> bool visitAll(Visit visit) const {
        bool missing = false;
        for (const RouteMSTS* route : index_.routes())
            for (const ActiviteRoute& activity : route->Activites) {
                const bool lacks = lacksStock(activity);
                if (activity.Fichier.empty() || (missingOnly_ && !lacks))
                    continue;
                missing = missing || lacks;
                visit(*route, activity);
            }
        return missing;
    }

    bool printJson(Session& session) const {
        JsonList list(session.result);
        const bool missing = visitAll([&](const RouteMSTS& route, const ActiviteRoute& activity) {
            list.add({{"route", route.Nom},
                      {"nom", activity.Nom},
                      {"fichier", session.shown(activity.Fichier)},
                      {"vehicules", vehiclesOf(activity)}});
        });
        list.close();
        session.result << "\n";
        return missing;
    }

    bool printTable(Session& session) const {
        const Frame& frame = session.frame;
        const std::string noStock = frame.text(message::ColumnMissingStock);
        TextTable table({frame.text(message::ColumnRoute), frame.text(message::ColumnActivity),
                         frame.text(message::ColumnLooseStock), ""});
        const bool missing = visitAll([&](const RouteMSTS& route, const ActiviteRoute& activity) {
            for (const ActiviteMateriel& vehicle : activity.Vehicules)
                table.add({route.Nom, activity.Nom, vehicle.Dossier + "\\" + stockFileOf(vehicle),
                           vehicle.Manquant ? noStock : ""});
            if (activity.Vehicules.empty())
                table.add({route.Nom, activity.Nom, "", ""});
        });
        table.print(session.result);
        return missing;
    }

    bool missingOnly_ = false;
    RouteIndex index_;
};

} // namespace

std::unique_ptr<Command> makeActivitiesCommand() {
    return std::make_unique<ActivitiesCommand>();
}

} // namespace zandor
