// The pictures of vehicles and the coupling marks as they are drawn. A picture is kept in memory with its
// mirrored and scaled copies until its file changes.
#pragma once

#include "editor/strip_drawing.h"
#include "platform/file_system.h"

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QSize>

#include <map>
#include <optional>
#include <utility>

namespace zandor {

class PictureStore final : public PictureMeasure {
  public:
    explicit PictureStore(FileSystem& files) : files_(files) {}

    // From here on each file is asked again, once, whether it has changed.
    void askAgain() { ++asking_; }
    // The same for the strip. Pictures that its last redraw didn't use go when many are kept.
    void beginRedraw();

    std::optional<PictureSize> size(const PictureName& picture) override;
    int markWidth(CouplingMark mark) override;

    // At its own size; null when there is none or it can't be read.
    const QImage& image(const PictureName& picture);
    // Brought to this size in device pixels: smoothly, or in whole steps when the size is a multiple of its
    // own.
    const QPixmap& scaled(const PictureName& picture, QSize size, bool mirrored);
    // For this many device pixels to a pixel.
    const QPixmap& mark(CouplingMark mark, double pixelRatio);

  private:
    struct Copy {
        int width, height;
        bool mirrored;
        auto operator<=>(const Copy&) const = default;
    };
    struct Kept {
        QImage image;
        std::optional<FileStamp> stamp; // of a file
        std::map<Copy, QPixmap> copies;
        unsigned asked = 0, drawn = 0; // when its file was last asked, the redraw that last used it

        qsizetype bytes() const;
    };
    Kept& find(const PictureName& picture);
    void refresh(const PictureName& picture, Kept& kept, bool isNew);
    QImage readFile(const PictureName& picture) const;

    FileSystem& files_;
    std::map<PictureName, Kept> kept_;
    std::map<std::pair<CouplingMark, double>, QPixmap> marks_; // by mark and resolution
    unsigned asking_ = 1, redraw_ = 1;
};

} // namespace zandor
