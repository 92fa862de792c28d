#include "cli/json_output.h"
#include "cli/route_index.h"
#include "cli/text_table.h"
#include "crossref/messages.h"
#include "crossref/service_check.h"

namespace zandor {

namespace {

class ServicesCommand final : public Command {
  public:
    const char* name() const override { return "services"; }
    const char* help() const override {
        return "List the services of routes, with the consists that they run, and tell what is missing";
    }
    bool usesRoots() const override { return true; }

    void addArguments(Arguments& line) override {
        index_.addRouteArgument(line);
        index_.addArguments(line);
    }

    int run(Session& session) override {
        if (const int refusal = index_.read(session); refusal != exitcode::Done)
            return refusal;
        ServiceCheck check(session.frame.files, session.state.roots);
        for (RouteMSTS* route : index_.routes())
            checkServices(session.frame, check, *route);
        const bool missing = index_.asJson() ? printJson(session) : printTable(session);
        return missing || session.dialogs.alerts > 0 ? exitcode::Faults : exitcode::Done;
    }

  private:
    static bool lacks(const ServiceRoute& service) {
        return service.RameManquante || service.MaterielManquant;
    }

    // Both return whether something is missing.
    bool printJson(Session& session) const {
        bool missing = false;
        JsonList list(session.result);
        for (const RouteMSTS* route : index_.routes())
            for (const ServiceRoute& service : route->Services) {
                list.add({{"route", route->Nom},
                          {"nom", service.Nom},
                          {"rame", service.Rame},
                          {"fichier", session.shown(service.Fichier)},
                          {"ligne", service.Ligne},
                          {"materielManquant", service.MaterielManquant},
                          {"rameManquante", service.RameManquante}});
                missing = missing || lacks(service);
            }
        list.close();
        session.result << "\n";
        return missing;
    }

    bool printTable(Session& session) const {
        const Frame& frame = session.frame;
        const std::string noStock = frame.text(message::ColumnMissingStock),
                          noConsist = frame.text(message::ColumnMissingConsist);
        TextTable table({frame.text(message::ColumnRoute), frame.text(message::ColumnServices),
                         frame.text(message::ColumnConsistFile), ""});
        bool missing = false;
        for (const RouteMSTS* route : index_.routes())
            for (const ServiceRoute& service : route->Services) {
                table.add({route->Nom, service.Nom, service.Rame + ".con",
                           service.RameManquante      ? noConsist
                           : service.MaterielManquant ? noStock
                                                      : ""});
                missing = missing || lacks(service);
            }
        table.print(session.result);
        return missing;
    }

    RouteIndex index_;
};

} // namespace

std::unique_ptr<Command> makeServicesCommand() {
    return std::make_unique<ServicesCommand>();
}

} // namespace zandor
