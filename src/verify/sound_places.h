// Where the waves of one sound set may lie.
#pragma once

#include "verify/pass_files.h"
#include "verify/verify_records.h"

#include <string>
#include <string_view>

namespace zandor {

class SoundPlaces {
  public:
    // `sounds`: the simulator's own, with "\" at its end, or empty. The set's own path may lead out of the
    // target's folder.
    SoundPlaces(PassFiles& onDisk, const std::string& sounds, const CheckTarget& target);

    // By a name as the set has it, from the target's folder or from the set's own.
    bool reaches(const std::string& name);
    // In the simulator's own Sound folder.
    bool isDefault(std::string_view name);

  private:
    PassFiles& onDisk_;
    std::string dir_, setFolder_, defaultFolder_;
};

} // namespace zandor
