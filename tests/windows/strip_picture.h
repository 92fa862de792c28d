// The strip of a consist of the demonstration tree as a picture at 100 %, the same on every machine: letters
// are left out, since they differ with the fonts.
#pragma once

#include "editor/consist_io.h"
#include "editor/windows/picture_store.h"
#include "editor/windows/strip_painter.h"
#include "support/fakes.h"

#include <QImage>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace zandor {

struct NoLetters final : TextMeasure {
    int width(std::string_view) const override { return 0; }
    int height() const override { return 0; }
};

inline QImage withoutLetters(std::vector<StripStep> steps, PictureStore& pictures, double pixelRatio = 1) {
    std::erase_if(steps, [](const StripStep& step) { return std::holds_alternative<PrintText>(step); });
    StripPicture picture;
    picture.carryOut(steps, pictures, QFont(), pixelRatio);
    return picture.pixmap().toImage().convertToFormat(QImage::Format_RGB32);
}

// The tree is read into memory, so that nothing of it changes.
class DemoStrip {
  public:
    DemoStrip() {
        test.state.roots.RootMSTS = "C:\\MSTS";
        putFolder(std::string(ZANDOR_SOURCE_DIR) + "/demo/Train Simulator", "C:\\MSTS\\");
    }
    // Thumbnails of a folder of this machine's disk.
    void putThumbnails(const std::string& folder) {
        putFolder(folder, test.state.ProgramFolder + "\\Thumbnails\\");
    }

    // `consist`: the name of its file.
    QImage picture(std::string_view consist) {
        LoadCatalogue(test.frame, catalogue_, ReadOnlyLoad);
        initialiseDocument(editor_);
        document_.controls.viewWidth = 1; // the picture is as wide as the strip makes it
        EXPECT_TRUE(openConsist(editor_, consistsPath(test.state.roots.RootMSTS) + std::string(consist)));
        return withoutLetters(DrawStrip(editor_, pictures_, NoLetters()), pictures_);
    }
    const ConsistDocument& document() const { return document_; }

    TestFrame test;

  private:
    void putFolder(const std::filesystem::path& folder, const std::string& to) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            if (!entry.is_regular_file())
                continue;
            std::ifstream file(entry.path(), std::ios::binary);
            std::string name = entry.path().lexically_relative(folder).generic_string();
            std::ranges::replace(name, '/', '\\');
            test.files.put(to + name, std::string(std::istreambuf_iterator<char>(file), {}));
        }
    }

    Catalogue catalogue_;
    ConsistDocument document_;
    Editor editor_{test.frame, catalogue_, document_};
    PictureStore pictures_{test.files};
};

} // namespace zandor
