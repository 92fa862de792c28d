#include "indexed.h"

#include <algorithm>
#include <map>
#include <vector>

namespace art {

namespace {

constexpr int PaletteSize = 256;

struct Shade {
    QRgb colour;
    int pixels;
};
using Shades = std::vector<Shade>;
using Channel = int (*)(QRgb);
constexpr Channel Channels[] = {qRed, qGreen, qBlue};

struct Spread {
    Channel channel;
    int width;
};

Spread widestSpread(const Shades& shades) {
    Spread widest{qRed, -1};
    for (const Channel channel : Channels) {
        const auto [low, high] =
            std::ranges::minmax(shades, {}, [&](const Shade& s) { return channel(s.colour); });
        const int width = channel(high.colour) - channel(low.colour);
        if (width > widest.width)
            widest = {channel, width};
    }
    return widest;
}

Shades shadesOf(const QImage& picture, QRgb except) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    counts.erase(except);
    Shades shades;
    for (const auto& [colour, pixels] : counts)
        shades.push_back({colour, pixels});
    return shades;
}

// Cuts the box of colours with the widest spread in two, at its middle pixel.
bool splitOne(std::vector<Shades>& boxes) {
    const auto box =
        std::ranges::max_element(boxes, {}, [](const Shades& s) { return widestSpread(s).width; });
    const Spread spread = widestSpread(*box);
    if (spread.width == 0)
        return false;
    std::ranges::stable_sort(*box, {}, [&](const Shade& s) { return spread.channel(s.colour); });
    int pixels = 0, half = 0;
    for (const Shade& shade : *box)
        pixels += shade.pixels;
    std::size_t cut = 0;
    while (cut + 1 < box->size() && half < pixels / 2)
        half += (*box)[cut++].pixels;
    cut = std::max<std::size_t>(cut, 1);
    Shades rest(box->begin() + std::ptrdiff_t(cut), box->end());
    box->resize(cut);
    boxes.push_back(std::move(rest));
    return true;
}

QRgb meanOf(const Shades& shades) {
    long red = 0, green = 0, blue = 0, pixels = 0;
    for (const Shade& s : shades) {
        red += long(qRed(s.colour)) * s.pixels;
        green += long(qGreen(s.colour)) * s.pixels;
        blue += long(qBlue(s.colour)) * s.pixels;
        pixels += s.pixels;
    }
    return qRgb(int(red / pixels), int(green / pixels), int(blue / pixels));
}

QList<QRgb> paletteOf(const QImage& picture, QRgb background) {
    QList<QRgb> palette{background};
    std::vector<Shades> boxes;
    if (Shades shades = shadesOf(picture, background); !shades.empty())
        boxes.push_back(std::move(shades));
    while (!boxes.empty() && boxes.size() < PaletteSize - 1 && splitOne(boxes)) {
    }
    for (const Shades& box : boxes)
        palette.append(meanOf(box));
    return palette;
}

int distance(QRgb a, QRgb b) {
    const int red = qRed(a) - qRed(b), green = qGreen(a) - qGreen(b), blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

} // namespace

QImage toIndexed(const QImage& picture, QRgb background) {
    const QList<QRgb> palette = paletteOf(picture, background);
    QImage indexed(picture.size(), QImage::Format_Indexed8);
    indexed.setColorTable(palette);
    std::fill_n(indexed.bits(), indexed.sizeInBytes(), uchar(0)); // the rows' padding goes to the file too
    std::map<QRgb, uint> nearest;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb colour = picture.pixel(x, y);
            const auto [known, isNew] = nearest.try_emplace(colour, 0);
            if (isNew)
                known->second =
                    uint(std::ranges::min_element(palette, {}, [&](QRgb p) { return distance(p, colour); }) -
                         palette.begin());
            indexed.setPixel(x, y, known->second);
        }
    return indexed;
}

} // namespace art
