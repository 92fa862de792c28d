// Which picture a vehicle has: one of the program's own, the user's thumbnail, or that of the stock's type.
// What is known of it here is its name and size; a window loads and draws it.
#pragma once

#include "platform/file_system.h"
#include "platform/letter_case.h"
#include "simfiles/materiel.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace zandor {

struct AppState;
struct Catalogue;
struct Frame;

inline constexpr int PlainPictureWidth = 121; // pixels: the width of the type images
inline constexpr int PlainPictureHeight = 96;
inline constexpr std::string_view MissingPicture = "NO_MATERIEL"; // of stock that was found nowhere

struct PictureRef {
    enum Kind { None, Resource, File } kind = None;
    std::string name; // of the resource, or the file's path
    int width = 0, height = 0;

    bool found() const { return kind != None; }
};

// A picture that comes with the program.
struct ShippedPicture {
    std::string_view name;
    int width, height; // pixels
};
// The type images come first, in the order of the stock classes.
inline constexpr std::array<ShippedPicture, 7> ShippedPictures{{
    {"5000", PlainPictureWidth, PlainPictureHeight},
    {"5001", PlainPictureWidth, PlainPictureHeight},
    {"5002", PlainPictureWidth, PlainPictureHeight},
    {"5003", PlainPictureWidth, PlainPictureHeight},
    {"5004", PlainPictureWidth, PlainPictureHeight},
    {"5005", PlainPictureWidth, PlainPictureHeight},
    {MissingPicture, PlainPictureWidth, PlainPictureHeight},
}};
PictureRef shippedPicture(std::string_view name); // upper case

struct PictureSize {
    int width = 0, height = 0; // pixels
    bool operator==(const PictureSize&) const = default;
};
// The size of a bitmap file by its headers; nothing when the file isn't there or holds no picture to show.
std::optional<PictureSize> readBitmapSize(FileSystem& files, std::string_view path);

// Sizes of bitmap files, each read once for as long as it stays the same file.
class PictureSizes {
  public:
    std::optional<PictureSize> sizeOf(FileSystem& files, std::string_view path);

  private:
    struct Known {
        FileStamp stamp;
        std::optional<PictureSize> size;
    };
    std::unordered_map<std::string, Known, TextHash, std::equal_to<>> known_;
};

// What may be made beside the program while pictures are looked for.
enum class PictureFolders { MadeAsNeeded, LeftAlone };

std::string thumbnailsPath(const AppState& state); // with a trailing "\"

// Fills BitmapPrefixes from Bitmaps.ini. A missing file is written with the lines that serve from then on,
// unless the folders are left alone.
void ReadBitmapList(Frame& frame, Catalogue& catalogue);

// The name under which the picture of a stock file, named without extension, is looked for. Case counts.
std::string MapPictureName(const Catalogue& catalogue, std::string_view name);

// Finds the picture of a stock entry and keeps in its three picture fields where it was. `baseName` gets the
// mapped name, empty when the fields answered.
PictureRef LoadMaterielPicture(Frame& frame, Catalogue& catalogue, Materiel& materiel,
                               std::string* baseName = nullptr);

// The thumbnail that the stock entry would have if the file were a picture; empty when there is no such file.
std::string unreadableThumbnail(Frame& frame, Catalogue& catalogue, const Materiel& materiel);

} // namespace zandor
