#include "verify/sound_places.h"

#include "platform/sim_path.h"

namespace zandor {

SoundPlaces::SoundPlaces(PassFiles& onDisk, const std::string& sounds, const CheckTarget& target)
    : onDisk_(onDisk), dir_(target.Dir), setFolder_(dir_ + std::string(folderPart(target.File))),
      defaultFolder_(sounds) {}

bool SoundPlaces::reaches(const std::string& name) {
    return onDisk_.fileExists(dir_ + name) || (setFolder_ != dir_ && onDisk_.fileExists(setFolder_ + name));
}

bool SoundPlaces::isDefault(std::string_view name) {
    return !defaultFolder_.empty() && onDisk_.fileExists(defaultFolder_ + std::string(name));
}

} // namespace zandor
