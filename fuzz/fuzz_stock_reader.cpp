// Both readers of stock files, with the repair of a wagon that has several names.
#include "simfiles/stock_reader.h"
#include "surroundings.h"
#include "text/decode.h"
#include "text/lines.h"

#include <vector>

using namespace zandor;
using fuzz::require;

namespace {

Materiel materielAt(const char* fileName) {
    Materiel materiel;
    materiel.BasePath = "\\sim\\trains\\trainset\\";
    materiel.Folder = "stock";
    materiel.FileName = fileName;
    return materiel;
}

std::vector<std::string> linesOf(std::string_view bytes) {
    std::string text;
    std::vector<std::string> lines;
    decodeSimulatorText(bytes, text);
    forEachLine(text, [&](std::string_view line) { lines.emplace_back(line); });
    return lines;
}

// A repair takes out lines with a name, at most all but one, and leaves the others as they are and where they
// are.
void checkLines(const std::vector<std::string>& before, const std::vector<std::string>& after,
                std::size_t names) {
    require(after.size() + names > before.size(), "no more lines go than names");
    std::size_t at = 1; // the signature, which is written anew
    for (std::size_t i = 1; i < before.size(); ++i)
        if (at < after.size() && before[i] == after[at])
            ++at;
    require(at == after.size(), "the lines that stay are as they were");
}

void checkRepair(fuzz::Surroundings& around, const std::string& path, const StockReading& reading,
                 const std::string& before) {
    const std::string after = around.files.get(path).value_or("");
    require(reading.repaired || after == before, "without a repair the file stays as it is");
    if (!reading.repaired)
        return;
    require(reading.needsRepair, "only a file that needs it is repaired");
    require(around.reader.ReadSimFile(path).accepted(), "a repaired file reads");
    checkLines(linesOf(before), linesOf(after), reading.wagonNames.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const bool isEngine = input.ConsumeBool();
    const NameRepair repair = input.ConsumeBool() ? NameRepair::Allowed : NameRepair::Never;
    const std::string bytes = fuzz::fileOf(input);
    fuzz::Surroundings around;
    Materiel materiel = materielAt(isEngine ? "a.eng" : "a.wag");
    const std::string path = materiel.BasePath + materiel.Folder + "\\" + materiel.FileName;
    around.files.put(path, bytes);

    Materiel quick = materiel;
    QuickStockReader(around.files).QuickReadStock(quick);
    require(quick.FileName == materiel.FileName, "the quick reader leaves the names as they are");
    require(around.files.get(path) == bytes, "the quick reader changes no file");

    const StockReading reading = ReadStockFile(around.reader, path, materiel, repair);
    require(repair == NameRepair::Allowed || !reading.repaired, "no repair unless it is allowed");
    checkRepair(around, path, reading, bytes);
    return 0;
}
