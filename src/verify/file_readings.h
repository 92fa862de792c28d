// What the checks need of a file, read without a look at anything but the file: on any thread.
#pragma once

#include "simfiles/sim_file.h"
#include "verify/signed_text.h"
#include "verify/verify_records.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zandor {

// The shape that a shape description names.
struct DescribedShape {
    bool found = false;
    std::string value; // without quotes
    std::string tail;
    int line = 0; // from 1
};
DescribedShape readDescription(SimReader& reader, std::string_view path);

// A stock file, with the keys that the checks look at.
struct StockToCheck {
    ReadOutcome outcome = ReadOutcome::Read;
    std::vector<SimHit> hits;
    // Of the shapes that it names, those that were read with it; by path, lower case.
    std::vector<std::pair<std::string, DescribedShape>> descriptions;
};
void readStock(SimReader& reader, std::string_view path, StockToCheck& reading);

// The shape that a key of stock names, or nothing.
std::string_view shapeNamedBy(const SimHit& hit);

// A file that a shape, a cab view or a sound set names.
struct NamedFile {
    std::string name;
    std::string line; // that holds it; tabs may stand in it
    int number = 0;   // of the line, from 1
};
struct TargetReading {
    SignedText outcome = SignedText::Unfit;
    std::vector<NamedFile> named; // in the file's order
};

// Reads shapes, cab views and sound sets. Keeps its storage from file to file.
class TargetReader {
  public:
    explicit TargetReader(FileSystem& files) : reader_(files) {}

    // The textures of a text shape or of a cab view, or the waves of a sound set.
    void read(MissingKind kind, const CheckTarget& target, TargetReading& reading);

  private:
    void readCabView(TargetReading& reading);
    void readShape(TargetReading& reading);
    void readSoundSet(TargetReading& reading);

    SimReader reader_;
    std::string path_, bytes_, text_;
};

} // namespace zandor
