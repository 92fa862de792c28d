#include "catalogue/catalogue.h"
#include "catalogue/name_key.h"

namespace zandor {

namespace {

bool isNamed(const Materiel& materiel, std::string_view folder, std::string_view file) {
    return equalIgnoringCase(materiel.FileName, file) && equalIgnoringCase(materiel.Folder, folder);
}

} // namespace

int MaterielFinder::find(const std::vector<Materiel>& materiels, std::string_view folder,
                         std::string_view file) {
    if (known_ != materiels.data() || size_ != materiels.size())
        index(materiels);
    const std::string key = foldedNameKey(folder, file);
    auto found = byName_.find(key);
    if (found != byName_.end() && !isNamed(materiels[found->second], folder, file)) {
        index(materiels);
        found = byName_.find(key);
    }
    return found == byName_.end() ? -1 : found->second;
}

void MaterielFinder::index(const std::vector<Materiel>& materiels) {
    byName_.clear();
    known_ = materiels.data();
    size_ = materiels.size();
    for (std::size_t i = 0; i < size_; ++i)
        byName_.try_emplace(foldedNameKey(materiels[i].Folder, materiels[i].FileName), static_cast<int>(i));
}

} // namespace zandor
