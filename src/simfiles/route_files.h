// The readers of a route's files: its track file (.trk), its services (.srv) and its activities (.act).
#pragma once

#include "simfiles/route.h"
#include "simfiles/sim_file.h"

#include <string>
#include <string_view>
#include <vector>

namespace zandor {

// How activities are read: through the parser, or line by line by the words that stand in a line.
enum class ActivityReading { Full, ByLines };

// What one activity file says. Its vehicles belong to the name before them.
struct ActivityFile {
    std::vector<ActiviteMateriel> before; // the vehicles in front of the first name
    std::vector<ActiviteRoute> named;     // mostly one
};

// Takes a vehicle's value apart into stock file and folder, quotes and blanks as the simulator reads them. A
// value of one word is a folder.
void SplitStockValue(std::string_view value, std::string& fichier, std::string& dossier);

// Reads one file after another; what can't be read gives empty records. Signatures are asked for by the full
// reading of activities alone. Keeps its storage from file to file.
class RouteFilesReader {
  public:
    explicit RouteFilesReader(FileSystem& files) : files_(files), reader_(files) {}

    ReadOutcome readTrack(std::string_view path, std::string& nom);
    // Nom and Rame both stay empty when the file is no service.
    ReadOutcome readService(std::string_view path, ServiceRoute& service);
    // Whether stock is missing isn't looked at.
    ReadOutcome readActivity(std::string_view path, ActivityReading reading, ActivityFile& activity);

  private:
    template <typename Take> ReadOutcome readLines(std::string_view path, Take take);

    FileSystem& files_;
    SimReader reader_;
    std::string bytes_, text_, line_, source_;
};

} // namespace zandor
