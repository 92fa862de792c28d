// The scan of text shapes for their textures, and the check around it.
#include "fuzz_frame.h"
#include "text/decode.h"
#include "text/lines.h"
#include "verify/checks.h"
#include "verify/shape_scan.h"

using namespace zandor;
using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const bool isCabView = input.ConsumeBool();
    const std::string bytes = fuzz::fileOf(input);
    std::string text;
    decodeSimulatorText(bytes, text);
    std::vector<std::string_view> lines;
    forEachLine(text, [&](std::string_view line) { lines.push_back(line); });
    int last = 1;
    for (const ShapeImage& image : findImages(text)) {
        require(image.number > last && static_cast<std::size_t>(image.number) <= lines.size(),
                "lines ascend");
        last = image.number;
        const std::string_view line = lines[static_cast<std::size_t>(last) - 1];
        require(line.find(image.line) != std::string_view::npos,
                "the line that is told is that of its number");
        require(image.line.find(image.name) != std::string_view::npos, "a name stands in its line");
    }

    fuzz::FramedDisk disk;
    const std::string folder = "\\sim\\TRAINS\\TRAINSET\\A\\", file = isCabView ? "x.cvf" : "x.s";
    disk.files.put(folder + file, bytes);
    VerifOptions options;
    VerifResults results;
    VerifWork work{disk.frame, options, results};
    CheckShapeFile(work, {folder, "A\\", file});
    CheckShapeFile(work, {folder, "A\\", file});
    require(results.MissingEntries.size() <= 1, "a file is examined once");
    require(disk.files.get(folder + file) == bytes, "a check changes nothing");
    return 0;
}
