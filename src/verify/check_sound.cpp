#include "platform/letter_case.h"
#include "platform/sim_path.h"
#include "verify/checks.h"
#include "verify/missing_list.h"
#include "verify/signed_text.h"
#include "verify/sound_places.h"

namespace zandor {

namespace {

// The waves of one set, in their order: a later one may lie in the folder of an earlier one.
class WaveCheck {
  public:
    WaveCheck(VerifWork& work, const CheckTarget& target)
        : work_(work), target_(target), places_(work.onDisk, work.places.sounds, target) {}

    void test(const NamedFile& wave) {
        const std::string& name = wave.name;
        if (const std::string_view folder = folderPart(name); !folder.empty())
            earlierFolder_ = folder;
        if (!isFound(name))
            add(std::string(lastComponent(name)), wave);
    }

  private:
    bool isFound(const std::string& name) {
        if (places_.reaches(name))
            return true;
        if (!earlierFolder_.empty() && !beginsWithIgnoringCase(name, earlierFolder_) &&
            work_.onDisk.fileExists(target_.Dir + earlierFolder_ + name))
            return true;
        return places_.isDefault(lastComponent(name));
    }

    // Several waves of one line make one item.
    void add(std::string name, const NamedFile& wave) {
        std::vector<MissingItem>& items = missingEntryOf(work_.results, MissingKind::Sound, target_).Items;
        if (!items.empty() && items.back().Line == wave.number)
            items.back().Name += "     -     " + name;
        else
            items.push_back({std::move(name), shownLine(wave.line), wave.number});
    }

    VerifWork& work_;
    const CheckTarget& target_;
    SoundPlaces places_;
    std::string earlierFolder_;
};

} // namespace

void checkSoundReading(VerifWork& work, const CheckTarget& target, const TargetReading& reading) {
    WaveCheck check(work, target);
    for (const NamedFile& wave : reading.named)
        check.test(wave);
}

void CheckSoundFile(VerifWork& work, const CheckTarget& target) {
    if (!beginExamination(work, target))
        return;
    TargetReading reading;
    work.targetReader.read(MissingKind::Sound, target, reading);
    checkSoundReading(work, target, reading);
}

} // namespace zandor
