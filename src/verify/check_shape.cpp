#include "platform/sim_path.h"
#include "text/decode.h"
#include "text/text.h"
#include "verify/checks.h"
#include "verify/missing_list.h"
#include "verify/shape_scan.h"
#include "verify/signed_text.h"

namespace zandor {

namespace {

// Where the textures of a file may lie: in the folder of the stock that names it, and beside the file itself,
// which may be reached through "..\".
class TextureCheck {
  public:
    TextureCheck(VerifWork& work, const CheckTarget& target)
        : work_(work), target_(target), fileFolder_(target.Dir + std::string(folderPart(target.File))) {}

    void test(std::string_view name, std::string_view line, int number) {
        const std::string_view plain = StripQuotes(name);
        if (!isIn(target_.Dir, plain) && (fileFolder_ == target_.Dir || !isIn(fileFolder_, plain)))
            add({std::string(name), shownLine(line), number});
    }
    void add(MissingItem item) {
        missingEntryOf(work_.results, MissingKind::Texture, target_).Items.push_back(std::move(item));
    }

  private:
    bool isIn(const std::string& folder, std::string_view name) {
        return work_.onDisk.fileExists(folder + std::string(name));
    }

    VerifWork& work_;
    const CheckTarget& target_;
    std::string fileFolder_;
};

void checkCabView(VerifWork& work, const std::string& path, TextureCheck& textures) {
    // Read whole: keys whose blocks are left out would be taken for one and the same.
    if (!work.reader.ReadSimFile(path).accepted())
        return;
    for (const SimKey& key : work.reader.SimKeys)
        if (endsWithIgnoringCase(StripQuotes(key.Value), ".ace"))
            textures.test(key.Value, key.Tail, key.Line);
}

void checkShape(VerifWork& work, const std::string& path, const std::string& owner, TextureCheck& textures) {
    switch (readSignedText(work.frame.files, path, FileKind::Shape, work.bytes)) {
    case SignedText::Unfit:
        return;
    case SignedText::Empty:
        return textures.add({owner, EmptyFileMark, 0});
    case SignedText::Read:
        break;
    }
    decodeSimulatorText(work.bytes, work.text);
    for (const ShapeImage& image : findImages(work.text))
        textures.test(shownLine(image.name), image.line, image.number);
}

} // namespace

void CheckShapeFile(VerifWork& work, const CheckTarget& target) {
    if (!beginExamination(work, target))
        return;
    const std::string path = target.Dir + target.File;
    TextureCheck textures(work, target);
    if (endsWithIgnoringCase(path, ".s"))
        checkShape(work, path, ownerOf(target), textures);
    else
        checkCabView(work, path, textures);
}

} // namespace zandor
