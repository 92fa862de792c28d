// Draws the pictures of vehicles: draw_vehicles <folder of the built-in ones> <folder of the thumbnails>.
#include "fleet.h"
#include "indexed.h"

#include <QDir>

#include <cstdio>

namespace {

constexpr QColor Sky{148, 198, 239}; // the background that the strip takes over from its first picture
constexpr QColor RailTopColour{120, 112, 106}, RailColour{84, 76, 72};

QImage draw(const art::Vehicle& vehicle) {
    QImage picture(vehicle.length, int(art::PictureHeight), QImage::Format_RGB32);
    picture.fill(Sky);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.fillRect(QRectF(0, art::RailTop, vehicle.length, 1), RailTopColour);
    painter.fillRect(QRectF(0, art::RailTop + 1, vehicle.length, 2), RailColour);
    for (const art::Part& part : vehicle.parts)
        part({painter, double(vehicle.length)});
    return picture;
}

bool saveAll(const std::vector<art::Vehicle>& vehicles, const QDir& folder) {
    for (const art::Vehicle& vehicle : vehicles) {
        const QString file = folder.filePath(QString::fromStdString(vehicle.name) + ".bmp");
        if (!art::toIndexed(draw(vehicle), Sky.rgb()).save(file, "BMP")) {
            std::fprintf(stderr, "Can't write %s\n", qPrintable(file));
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3)
        return 2;
    const bool saved =
        saveAll(art::builtInVehicles(), QDir(argv[1])) && saveAll(art::demonstrationFleet(), QDir(argv[2]));
    return saved ? 0 : 1;
}
