// A real folder whose names are kept, so that a name in another case is found without reading the folder
// again.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <time.h>

namespace zandor {

// `Failed` tells nothing of the name: a file must not be made on the strength of it.
enum class NameSearch { Found, Missing, FolderGone, Failed };

// A name of a folder. Bytes that aren't UTF-8 are shown as the Latin-1 letters that they most likely are.
struct KeptName {
    std::string shown;
    std::string onDisk; // its bytes when they aren't what is shown, else empty
    enum Kind : char { File, Folder, Unknown } kind = Unknown;

    const std::string& bytes() const { return onDisk.empty() ? shown : onDisk; }
};

// UTF-8 for the bytes of a name.
std::string shownName(std::string_view bytes);

class KeptFolder {
  public:
    explicit KeptFolder(std::string path) : path_(std::move(path)) {} // native, ends in "/"

    const std::string& path() const { return path_; }

    // True when the kept names, whether or not they still hold, don't have this very spelling.
    bool keepsWithout(std::string_view name) const;
    // The bytes of the name on the disk: as asked when they exist, else differing in case. Costs one stat
    // call and, after a change of the folder, a reading of it.
    NameSearch search(std::string_view name, std::string& bytes);
    // All names by lessIgnoringCase(); empty when the folder can't be read. Valid until the next call.
    const std::vector<KeptName>& names();
    // To be called at each change that this process makes in the folder.
    void forget();

  private:
    enum class State { Kept, Changed, Gone };
    State check();
    int readNames();
    NameSearch scan(std::string_view name, std::string& bytes) const;
    const KeptName* find(std::string_view name) const;

    std::string path_;
    bool kept_ = false;    // names_ may be looked up as long as the folder's time stands
    timespec stamp_{};     // the folder's own time at the reading of the kept names
    bool settled_ = false; // the folder's time, as last seen, is old enough to tell a later change by it
    std::vector<KeptName> names_; // by lessIgnoringCase()
};

} // namespace zandor
