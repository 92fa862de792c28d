// Sound sets: the scan for waves, and the repair, after which the set names the same waves by their new
// places and every other character is as it was.
#include "fuzz_frame.h"
#include "platform/sim_path.h"
#include "simfiles/text_edit.h"
#include "verify/repair_sounds.h"
#include "verify/sound_scan.h"

#include <unordered_set>

using namespace zandor;
using fuzz::require;

namespace {

// Names of which the input makes waves of two stocks and of the simulator's own folder.
constexpr const char* Trainset = "\\sim\\TRAINS\\TRAINSET\\";
constexpr const char* SetFolder = "\\sim\\TRAINS\\TRAINSET\\A\\Sound\\";

// What stands between the names of waves.
std::vector<std::string> between(std::string_view text, const std::vector<WaveName>& waves) {
    std::vector<std::string> pieces;
    std::size_t from = 0;
    for (const WaveName& wave : waves) {
        pieces.emplace_back(text.substr(from, wave.place.begin - from));
        from = wave.place.end;
    }
    pieces.emplace_back(text.substr(from));
    return pieces;
}

void checkPlaces(std::string_view text, const std::vector<WaveName>& waves) {
    std::size_t from = 0;
    int line = 2;
    for (const WaveName& wave : waves) {
        require(wave.place.begin >= from && wave.place.end <= text.size(), "places ascend within the text");
        const std::string name = textOf(text, wave);
        require(name.size() >= 4 && nameIs(name.substr(name.size() - 4), ".wav"), "a name ends in .wav");
        require(name.find_first_of("\r\n\"") == std::string::npos, "a name stands within one line and pair");
        require(wave.number >= line, "lines ascend, behind the first one");
        from = wave.place.end;
        line = wave.number;
    }
}

// Half of the names that the set has, so that some are found.
void putWaves(fuzz::FramedDisk& disk, std::string_view text, const std::vector<WaveName>& waves,
              std::size_t which) {
    for (std::size_t i = 0; i < waves.size() && i < 64; ++i) {
        const std::string name(lastComponent(textOf(text, waves[i])));
        if ((which >> (i % 8) & 1) != 0)
            disk.files.put(
                std::string(i % 3 == 0 ? "\\sim\\Sound\\" : std::string(Trainset) + "B\\Sound\\") + name, "");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const std::size_t which = input.ConsumeIntegral<std::uint8_t>();
    const std::string bytes = fuzz::fileOf(input);
    const EditableText before = editableText(bytes);
    const std::vector<WaveName> waves = findWaves(before.text);
    checkPlaces(before.text, waves);

    fuzz::FramedDisk disk;
    const std::string path = std::string(SetFolder) + "x.sms";
    disk.files.put(path, bytes);
    putWaves(disk, before.text, waves, which);
    VerifOptions options;
    VerifResults results;
    VerifWork work{disk.frame, options, results};
    work.queues.RepairTargets = {{SetFolder, "A\\Sound\\", "x.sms"}};
    const SoundRepair repair = RepairSoundFiles(work);
    const EditableText after = editableText(disk.files.get(path).value_or(""));
    require((repair.repaired == 1) == (after.bytes != bytes),
            "a set that is counted has changed, and no other");

    const std::vector<WaveName> renamed = findWaves(after.text);
    require(renamed.size() == waves.size(), "a repaired set names as many waves");
    for (std::size_t i = 0; i < waves.size(); ++i)
        require(equalIgnoringCase(lastComponent(textOf(before.text, waves[i])),
                                  lastComponent(textOf(after.text, renamed[i]))),
                "a repaired set names the same waves");
    require(between(before.text, waves) == between(after.text, renamed), "all else is as it was");
    require(before.rest == after.rest && before.encoding == after.encoding, "so are encoding and last byte");

    require(RepairSoundFiles(work).repaired == 0, "a repaired set needs no repair");
    return 0;
}
