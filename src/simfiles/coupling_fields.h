// How the coupling types of a stock file come together in its Materiel; both readers share it.
#pragma once

#include "simfiles/materiel.h"
#include "text/text.h"

#include <array>
#include <string_view>

namespace zandor {

// The coupling types of one file: one that differs from all before it joins them. A type may itself hold "_".
class CouplingTypes {
  public:
    void add(Materiel& materiel, std::string_view type) {
        std::string& coupling = materiel.Coupling;
        if (count_ == 0)
            coupling.clear();
        for (std::size_t i = 0; i < count_; ++i)
            if (equalIgnoringCase(std::string_view(coupling).substr(types_[i].begin, types_[i].size), type))
                return;
        if (count_ == Most)
            return;
        if (!coupling.empty())
            coupling += '_';
        types_[count_++] = {coupling.size(), type.size()};
        coupling += type;
    }

  private:
    static constexpr std::size_t Most = 8; // no vehicle has as many; garbage must not grow with the square
    struct Part {                          // of the joined text
        std::size_t begin = 0, size = 0;
    };
    std::array<Part, Most> types_;
    std::size_t count_ = 0;
};

// Behind both ends of a pair, the unique type is the rear end's.
inline void setCouplingUnique(Materiel& materiel, std::string_view type) {
    materiel.CouplingUnique = type;
    if (materiel.Coupling.find('_') != std::string::npos)
        materiel.CouplingUnique += "_END";
}

} // namespace zandor
