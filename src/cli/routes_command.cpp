#include "catalogue/messages.h"
#include "cli/json_output.h"
#include "cli/route_index.h"
#include "cli/text_table.h"
#include "crossref/messages.h"

namespace zandor {

namespace {

class RoutesCommand final : public Command {
  public:
    const char* name() const override { return "routes"; }
    const char* help() const override { return "List the routes, and how much runs on them"; }
    bool usesRoots() const override { return true; }

    void addArguments(Arguments& line) override { index_.addArguments(line); }

    int run(Session& session) override {
        if (const int refusal = index_.read(session); refusal != exitcode::Done)
            return refusal;
        if (index_.asJson())
            printJson(session.result);
        else
            printTable(session);
        return session.dialogs.alerts > 0 ? exitcode::Faults : exitcode::Done;
    }

  private:
    void printJson(ResultText& result) const {
        JsonList list(result);
        for (const RouteMSTS* route : index_.routes())
            list.add({{"nom", route->Nom},
                      {"dossier", route->Dossier},
                      {"services", route->Services.size()},
                      {"activites", route->Activites.size()}});
        list.close();
        result << "\n";
    }

    void printTable(Session& session) const {
        const Frame& frame = session.frame;
        TextTable table({"N", frame.text(message::ColumnRoute), frame.text(message::ColumnFolder),
                         frame.text(message::ColumnServices), frame.text(message::Activities)});
        std::size_t number = 0;
        for (const RouteMSTS* route : index_.routes())
            table.add({std::to_string(number++), route->Nom, route->Dossier,
                       std::to_string(route->Services.size()), std::to_string(route->Activites.size())});
        table.print(session.result);
    }

    RouteIndex index_;
};

} // namespace

std::unique_ptr<Command> makeRoutesCommand() {
    return std::make_unique<RoutesCommand>();
}

} // namespace zandor
