#include "editor/windows/picture_store.h"

#include "frame/windows/qt_text.h"

#include <QPainter>

#include <algorithm>
#include <numeric>

namespace zandor {

namespace {

constexpr qsizetype KeptBytes = 64 << 20; // more goes when it isn't in use

struct MarkRow {
    CouplingMark mark;
    const char* file;
};
constexpr MarkRow Marks[] = {
    {CouplingMark::Auto, "imgAUTO"},
    {CouplingMark::Bar, "imgBAR"},
    {CouplingMark::Chain, "imgCHAIN"},
    {CouplingMark::Hydro, "imgHYDRO"},
    {CouplingMark::NotCompatible, "imgNO_COMPATIBLE"},
};

QImage readResource(const PictureName& picture) {
    return QImage(QString(":/stock/%1.bmp").arg(toQt(picture.name)));
}

QPixmap readMark(const MarkRow& row, double ratio) {
    const QImage plain(QString(":/art/%1.png").arg(row.file));
    QImage fine(QString(":/art/%1@2x.png").arg(row.file));
    fine.setDevicePixelRatio(1); // the strip counts in device pixels
    const QSize size(qRound(plain.width() * ratio), qRound(plain.height() * ratio));
    return QPixmap::fromImage(
        (ratio > 1 ? fine : plain).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

QPixmap scaledCopy(const QImage& image, QSize size, bool mirrored) {
    const bool whole = size.width() % image.width() == 0 && size.height() % image.height() == 0;
    const QImage copy =
        image.scaled(size, Qt::IgnoreAspectRatio, whole ? Qt::FastTransformation : Qt::SmoothTransformation);
    return QPixmap::fromImage(mirrored ? copy.mirrored(true, false) : copy);
}

} // namespace

qsizetype PictureStore::Kept::bytes() const {
    return std::accumulate(copies.begin(), copies.end(), image.sizeInBytes(),
                           [](qsizetype sum, const auto& copy) {
                               return sum + qsizetype(copy.first.width) * copy.first.height * 4;
                           });
}

void PictureStore::beginRedraw() {
    qsizetype bytes = 0;
    for (const auto& [name, kept] : kept_)
        bytes += kept.bytes();
    if (bytes > KeptBytes)
        std::erase_if(kept_, [this](const auto& entry) { return entry.second.drawn != redraw_; });
    ++redraw_;
    askAgain();
}

PictureStore::Kept& PictureStore::find(const PictureName& picture) {
    const auto [place, isNew] = kept_.try_emplace(picture);
    Kept& kept = place->second;
    if (isNew || kept.asked != asking_)
        refresh(picture, kept, isNew);
    kept.asked = asking_;
    kept.drawn = redraw_;
    return kept;
}

void PictureStore::refresh(const PictureName& picture, Kept& kept, bool isNew) {
    if (picture.isResource) {
        if (isNew)
            kept.image = readResource(picture).convertToFormat(QImage::Format_RGB32);
        return;
    }
    const auto stamp = files_.stamp(picture.name);
    if (!isNew && stamp == kept.stamp)
        return;
    kept.stamp = stamp;
    kept.copies.clear();
    kept.image = stamp ? readFile(picture) : QImage();
}

QImage PictureStore::readFile(const PictureName& picture) const {
    std::string bytes;
    QImage image;
    if (files_.readFile(picture.name, bytes))
        image.loadFromData(QByteArray::fromRawData(bytes.data(), qsizetype(bytes.size())), "BMP");
    return image.convertToFormat(QImage::Format_RGB32);
}

std::optional<PictureSize> PictureStore::size(const PictureName& picture) {
    const QImage& found = image(picture);
    if (found.isNull())
        return std::nullopt;
    return PictureSize{found.width(), found.height()};
}

const QImage& PictureStore::image(const PictureName& picture) {
    return find(picture).image;
}

const QPixmap& PictureStore::scaled(const PictureName& picture, QSize size, bool mirrored) {
    Kept& kept = find(picture);
    const auto [place, isNew] = kept.copies.try_emplace({size.width(), size.height(), mirrored});
    if (isNew && !kept.image.isNull() && !size.isEmpty())
        place->second = scaledCopy(kept.image, size, mirrored);
    return place->second;
}

int PictureStore::markWidth(CouplingMark mark) {
    return this->mark(mark, 1).width();
}

const QPixmap& PictureStore::mark(CouplingMark mark, double pixelRatio) {
    const auto [place, isNew] = marks_.try_emplace({mark, pixelRatio});
    if (isNew)
        place->second = readMark(*std::ranges::find(Marks, mark, &MarkRow::mark), pixelRatio);
    return place->second;
}

} // namespace zandor
