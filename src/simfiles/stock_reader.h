// The two readers of stock files: the full one through the parser, the quick one by how lines begin.
#pragma once

#include "simfiles/materiel.h"
#include "simfiles/sim_file.h"

#include <string_view>
#include <vector>

namespace zandor {

// A Name key in the wagon block of a .wag file.
struct WagonNameLine {
    int line = 0; // from 1
    std::string text;
};

enum class NameRepair { Allowed, Never };

struct StockReading {
    ReadAnswer answer; // with the first wagon key that is missing
    std::vector<WagonNameLine> wagonNames;
    bool needsRepair = false; // a .wag with several Name keys
    bool repaired = false;
};

// The fields that come from the file: emptied; moved into a record of the same file, where they were empty.
void clearReadFields(Materiel& materiel);
void moveReadFields(Materiel& from, Materiel& to);

// Fills the fields of `materiel`; a file that isn't accepted leaves it as it was. With Allowed, a .wag with
// several Name keys, each alone on its line, is rewritten on the spot with the one that stays: in UTF-16, all
// other lines to the last character as they were. Its attributes are kept.
StockReading ReadStockFile(SimReader& reader, std::string_view path, Materiel& materiel,
                           NameRepair repair = NameRepair::Allowed);

// Sees one key a line, by how the line begins, and tests no signature. Keeps its storage from file to file.
class QuickStockReader {
  public:
    explicit QuickStockReader(FileSystem& files) : files_(files) {}

    // Reads BasePath + Folder + "\" + FileName; a file that can't be read leaves `materiel` as it was, one
    // for which no memory is left as far as it was read.
    ReadResult QuickReadStock(Materiel& materiel);

  private:
    FileSystem& files_;
    std::string path_, bytes_, text_, line_;
};

} // namespace zandor
