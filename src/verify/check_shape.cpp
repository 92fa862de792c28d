#include "platform/sim_path.h"
#include "verify/checks.h"
#include "verify/missing_list.h"
#include "verify/signed_text.h"

namespace zandor {

namespace {

// Where the textures of a file may lie: in the folder of the stock that names it, and beside the file itself,
// which may be reached through "..\".
class TextureCheck {
  public:
    TextureCheck(VerifWork& work, const CheckTarget& target)
        : work_(work), target_(target), fileFolder_(target.Dir + std::string(folderPart(target.File))) {}

    void test(const NamedFile& named) {
        const std::string_view plain = StripQuotes(named.name);
        if (!isIn(target_.Dir, plain) && (fileFolder_ == target_.Dir || !isIn(fileFolder_, plain)))
            add({named.name, shownLine(named.line), named.number});
    }
    void add(MissingItem item) {
        missingEntryOf(work_.results, MissingKind::Texture, target_).Items.push_back(std::move(item));
    }

  private:
    bool isIn(const std::string& folder, std::string_view name) {
        path_.assign(folder).append(name);
        return work_.onDisk.fileExists(path_);
    }

    VerifWork& work_;
    const CheckTarget& target_;
    std::string fileFolder_;
    std::string path_; // storage used again
};

} // namespace

void checkShapeReading(VerifWork& work, const CheckTarget& target, const TargetReading& reading) {
    TextureCheck textures(work, target);
    if (reading.outcome == SignedText::Empty)
        textures.add({ownerOf(target), EmptyFileMark, 0});
    for (const NamedFile& named : reading.named)
        textures.test(named);
}

void CheckShapeFile(VerifWork& work, const CheckTarget& target) {
    if (!beginExamination(work, target))
        return;
    TargetReading reading;
    work.targetReader.read(MissingKind::Texture, target, reading);
    checkShapeReading(work, target, reading);
}

} // namespace zandor
