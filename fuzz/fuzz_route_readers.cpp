// The three readers of a route's files, activities in both readings.
#include "simfiles/route_files.h"
#include "surroundings.h"
#include "text/decode.h"
#include "text/lines.h"
#include "text/text.h"

using namespace zandor;
using fuzz::require;

namespace {

int linesOf(std::string_view bytes) {
    std::string text;
    int lines = 0;
    decodeSimulatorText(bytes, text);
    forEachLine(text, [&lines](std::string_view) { ++lines; });
    return lines;
}

// A value is taken apart at its blanks and quotes: nothing is in the parts that wasn't in the line.
void checkVehicle(const ActiviteMateriel& vehicle, int lines) {
    require(vehicle.Ligne >= 1 && vehicle.Ligne <= lines, "a vehicle stands on a line of its file");
    require(!vehicle.Texte.empty(), "a vehicle has a source text");
    require(vehicle.Fichier.find(' ') == std::string::npos || vehicle.Texte.find('"') != std::string::npos,
            "only quotes keep a name with blanks together");
}

void checkVehicles(const std::vector<ActiviteMateriel>& vehicles, int lines) {
    int last = 0;
    for (const ActiviteMateriel& vehicle : vehicles) {
        checkVehicle(vehicle, lines);
        require(vehicle.Ligne >= last, "vehicles come in file order");
        last = vehicle.Ligne;
    }
}

void checkActivity(RouteFilesReader& reader, ActivityReading reading, int lines) {
    ActivityFile activity;
    reader.readActivity("\\a.act", reading, activity);
    checkVehicles(activity.before, lines);
    for (const ActiviteRoute& named : activity.named) {
        require(named.Fichier == "\\a.act", "an activity has its file");
        checkVehicles(named.Vehicules, lines);
    }
    require(reading == ActivityReading::Full || activity.named.size() <= 1, "lines give one name");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Surroundings around;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    for (const char* path : {"\\a.trk", "\\a.srv", "\\a.act"})
        around.files.put(path, bytes);
    const int lines = linesOf(bytes);
    RouteFilesReader reader(around.files);

    std::string nom;
    reader.readTrack("\\a.trk", nom);
    require(trim(nom).size() <= size * 3, "a name is part of its file");
    ServiceRoute service;
    reader.readService("\\a.srv", service);
    require(service.Ligne <= lines, "a service ends within its file");
    checkActivity(reader, ActivityReading::Full, lines);
    checkActivity(reader, ActivityReading::ByLines, lines);
    return 0;
}
