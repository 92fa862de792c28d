#include "catalogue/messages.h"
#include "catalogue/passed_over.h"
#include "catalogue/routes.h"
#include "platform/read_ahead.h"
#include "simfiles/route_files.h"

#include <algorithm>
#include <unordered_set>

namespace zandor {

namespace {

// What was found in the folder of a route whose turn may not have come yet.
struct TrackAhead {
    std::string path; // of the track file; empty: there is none
    std::string nom;
    ReadOutcome outcome = ReadOutcome::NoFile;
};

// Looks into the folders of routes.
class TrackThread final : public AheadReader {
  public:
    TrackThread(FileSystem& door, const std::string& routesFolder, const std::vector<std::string>& folders,
                std::vector<TrackAhead>& ring)
        : door_(door), reader_(door), routesFolder_(routesFolder), folders_(folders), ring_(ring) {}

    void read(std::size_t route) override {
        TrackAhead& ahead = ring_[route % ring_.size()];
        ahead = TrackAhead();
        const std::string folder = routesFolder_ + folders_[route] + "\\";
        const std::vector<std::string> tracks = listFiles(door_, folder, ".trk");
        if (tracks.empty())
            return;
        ahead.path = folder + tracks.front();
        ahead.outcome = reader_.readTrack(ahead.path, ahead.nom);
    }

  private:
    FileSystem& door_;
    RouteFilesReader reader_;
    const std::string& routesFolder_;
    const std::vector<std::string>& folders_;
    std::vector<TrackAhead>& ring_;
};

class RouteScan final : public AheadWork {
  public:
    RouteScan(Frame& frame, Catalogue& catalogue)
        : frame_(frame), catalogue_(catalogue), routesFolder_(routesPath(frame.state.roots.RootPrimary())),
          shown_(frame.text(message::ReadingRoute) + " ") {
        for (FolderEntry& entry : frame.files.listFolder(routesFolder_))
            if (entry.isFolder)
                folders_.push_back(std::move(entry.name));
        ring_.resize(std::min(folders_.size(), MostAhead));
    }

    bool run(int threads) { return readAhead(frame_.files, folders_.size(), threads, *this); }

    std::unique_ptr<AheadReader> makeReader(FileSystem& door) override {
        return std::make_unique<TrackThread>(door, routesFolder_, folders_, ring_);
    }
    bool goOn() override { return frame_.progress.yield(); }
    void turnOf(std::size_t route) override { frame_.progress.atFile(routesFolder_ + folders_[route]); }
    void take(std::size_t index) override {
        TrackAhead& ahead = ring_[index % ring_.size()];
        if (ahead.outcome == ReadOutcome::NoMemory) // there may be some when fewer are read
            TrackThread(frame_.files, routesFolder_, folders_, ring_).read(index);
        RouteMSTS& route = catalogue_.here().Routes.emplace_back();
        if (!ahead.path.empty())
            route.Dossier = folders_[index] + "\\";
        route.Nom = std::move(ahead.nom);
        notePassedOver(catalogue_, ahead.path, ahead.outcome);
        frame_.progress.ShowProgress(0, static_cast<int>(folders_.size()) - 1, static_cast<int>(index),
                                     shown_ + route.Nom);
    }

  private:
    Frame& frame_;
    Catalogue& catalogue_;
    const std::string routesFolder_;
    std::vector<std::string> folders_;
    std::vector<TrackAhead> ring_;
    std::string shown_;
};

enum class RouteFileKind { Service, Activity };

// A service or activity that is to be read.
struct RouteFile {
    std::size_t route = 0; // in Routes
    RouteFileKind kind = RouteFileKind::Service;
    std::string path;
};

// What was found in one whose turn may not have come yet.
struct RouteFileAhead {
    ServiceRoute service;
    ActivityFile activity;
    ReadOutcome outcome = ReadOutcome::Read;
};

class RouteFileThread final : public AheadReader {
  public:
    RouteFileThread(FileSystem& door, ActivityReading reading, const std::vector<RouteFile>& routeFiles,
                    std::vector<RouteFileAhead>& ring)
        : reader_(door), reading_(reading), routeFiles_(routeFiles), ring_(ring) {}

    void read(std::size_t number) override {
        const RouteFile& file = routeFiles_[number];
        RouteFileAhead& ahead = ring_[number % ring_.size()];
        ahead.outcome = file.kind == RouteFileKind::Service
                            ? reader_.readService(file.path, ahead.service)
                            : reader_.readActivity(file.path, reading_, ahead.activity);
    }

  private:
    RouteFilesReader reader_;
    const ActivityReading reading_;
    const std::vector<RouteFile>& routeFiles_;
    std::vector<RouteFileAhead>& ring_;
};

// The consist files that services name, each once, whatever its case.
class ServiceNames {
  public:
    explicit ServiceNames(std::vector<std::string>& names) : names_(names) { names_.clear(); }

    void add(std::string_view rame) {
        const std::string file = lowerCase(rame) + ".con";
        if (known_.insert(file).second)
            names_.push_back(properCase(file));
    }

  private:
    std::vector<std::string>& names_;
    std::unordered_set<std::string> known_; // in lower case
};

// A service without a consist is a free place, which the next one of its route takes.
void addService(RouteMSTS& route, ServiceRoute& service) {
    if (route.Services.empty() || !route.Services.back().Rame.empty())
        route.Services.emplace_back();
    route.Services.back() = std::move(service);
}

void addVehicles(ActiviteRoute& activity, std::vector<ActiviteMateriel>& vehicles) {
    activity.Vehicules.insert(activity.Vehicules.end(), std::make_move_iterator(vehicles.begin()),
                              std::make_move_iterator(vehicles.end()));
}

// Vehicles in front of a file's first name go to the activity before it. Where there is none they wait in a
// record without a file, whose place the next activity takes.
void addActivity(RouteMSTS& route, ActivityFile& file) {
    std::vector<ActiviteRoute>& activities = route.Activites;
    if (!file.before.empty()) {
        if (activities.empty())
            activities.emplace_back();
        addVehicles(activities.back(), file.before);
    }
    for (ActiviteRoute& named : file.named) {
        if (activities.empty() || !activities.back().Fichier.empty())
            activities.emplace_back();
        activities.back() = std::move(named);
    }
}

class RouteFilesScan final : public AheadWork {
  public:
    RouteFilesScan(Frame& frame, Catalogue& catalogue)
        : frame_(frame), catalogue_(catalogue), routes_(catalogue.here().Routes),
          stock_(frame.files, rootsInReach(frame.state.roots)), names_(catalogue.here().RamesEnService),
          services_(" - " + frame.text(message::ReadingServices) + " --> "),
          activities_(" - " + frame.text(message::Activities) + " --> ") {}

    bool run(int threads) {
        for (std::size_t route = 0; route < routes_.size(); ++route) {
            if (!goOn())
                return false;
            list(route);
        }
        ring_.resize(std::min(routeFiles_.size(), MostAhead));
        return readAhead(frame_.files, routeFiles_.size(), threads, *this);
    }

    std::unique_ptr<AheadReader> makeReader(FileSystem& door) override {
        const ActivityReading reading =
            frame_.state.Optimize ? ActivityReading::Full : ActivityReading::ByLines;
        return std::make_unique<RouteFileThread>(door, reading, routeFiles_, ring_);
    }
    bool goOn() override { return frame_.progress.yield(); }
    void turnOf(std::size_t number) override {
        const RouteFile& file = routeFiles_[number];
        frame_.progress.atFile(file.path);
        const bool isService = file.kind == RouteFileKind::Service;
        shown_.assign(routes_[file.route].Nom).append(isService ? services_ : activities_);
        shown_.append(file.path, file.path.rfind('\\') + 1);
        frame_.progress.ShowProgress(0, static_cast<int>(routeFiles_.size()) - 1, static_cast<int>(number),
                                     shown_);
    }
    void take(std::size_t number) override {
        const RouteFile& file = routeFiles_[number];
        RouteFileAhead& ahead = ring_[number % ring_.size()];
        if (ahead.outcome == ReadOutcome::NoMemory) // there may be some when fewer are read
            makeReader(frame_.files)->read(number);
        notePassedOver(catalogue_, file.path, ahead.outcome);
        if (file.kind == RouteFileKind::Service)
            takeService(routes_[file.route], ahead.service);
        else
            takeActivity(routes_[file.route], ahead.activity);
    }

  private:
    // One whose track file gave no name isn't looked into.
    void list(std::size_t index) {
        RouteMSTS& route = routes_[index];
        route.Services.clear();
        route.Activites.clear();
        if (route.Nom.empty())
            return;
        const std::string folder = routesPath(frame_.state.roots.RootPrimary()) + route.Dossier;
        listKind(index, RouteFileKind::Service, folder + "SERVICES\\", ".srv");
        listKind(index, RouteFileKind::Activity, folder + "ACTIVITIES\\", ".act");
    }
    void listKind(std::size_t route, RouteFileKind kind, const std::string& folder,
                  std::string_view extension) {
        for (const std::string& name : listFiles(frame_.files, folder, extension))
            routeFiles_.push_back({route, kind, folder + name});
    }
    void takeService(RouteMSTS& route, ServiceRoute& service) {
        if (service.Nom.empty() && service.Rame.empty())
            return;
        names_.add(service.Rame);
        addService(route, service);
    }
    void takeActivity(RouteMSTS& route, ActivityFile& file) {
        checkStock(file.before);
        for (ActiviteRoute& named : file.named)
            checkStock(named.Vehicules);
        addActivity(route, file);
    }
    void checkStock(std::vector<ActiviteMateriel>& vehicles) {
        for (ActiviteMateriel& vehicle : vehicles)
            CheckStockFile(stock_, vehicle);
    }

    Frame& frame_;
    Catalogue& catalogue_;
    std::vector<RouteMSTS>& routes_;
    StockPresence stock_;
    ServiceNames names_;
    std::vector<RouteFile> routeFiles_; // in the order of their turns
    std::vector<RouteFileAhead> ring_;
    const std::string services_, activities_; // stand between a route and a file in what is shown
    std::string shown_;                       // storage used again
};

} // namespace

bool ReadRoutes(Frame& frame, Catalogue& catalogue, LoadOptions options) {
    catalogue.here().Routes.clear();
    catalogue.here().RamesEnService.clear();
    return RouteScan(frame, catalogue).run(options.threads);
}

bool ReadServicesActivites(Frame& frame, Catalogue& catalogue, LoadOptions options) {
    return RouteFilesScan(frame, catalogue).run(options.threads);
}

} // namespace zandor
