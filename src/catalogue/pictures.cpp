#include "catalogue/pictures.h"

#include "catalogue/catalogue.h"
#include "catalogue/passed_over.h"
#include "catalogue/stock_list.h"
#include "text/decode.h"
#include "text/lines.h"

#include <algorithm>
#include <cstdint>

namespace zandor {

namespace {

constexpr std::string_view ListName = "Bitmaps.ini";
constexpr std::string_view DefaultList = "oe380cardin\r\noebarcar\r\noeservcar\r\noesleepcar\r\n";

// Stock whose name is a number, which as the name of a resource would mean another one.
constexpr std::string_view NumericNames[] = {"30000", "2000", "310", "380"};

constexpr std::uint64_t LargestFile = 300u << 20; // bytes: more than the largest picture takes
constexpr int WidestBitmap = 16384;
constexpr int HighestBitmap = 4096;
constexpr std::size_t FileHeaderSize = 14;
constexpr std::uint32_t CoreHeader = 12; // the oldest kind: its size is in 16 bits
// The sizes by which the kinds of headers are told; no window shows a bitmap of another kind.
constexpr std::uint32_t HeaderKinds[] = {CoreHeader, 40, 64, 108, 124};
constexpr std::uint32_t PixelDepths[] = {1, 4, 8, 16, 24, 32};

// The little-endian number of `count` bytes. The bytes are there.
std::uint32_t numberAt(std::string_view bytes, std::size_t at, std::size_t count) {
    std::uint32_t value = 0;
    for (std::size_t i = count; i-- > 0;)
        value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
    return value;
}

std::int64_t signedAt(std::string_view bytes, std::size_t at) {
    return static_cast<std::int32_t>(numberAt(bytes, at, 4));
}

template <std::size_t N> bool isOneOf(const std::uint32_t (&values)[N], std::uint32_t value) {
    return std::find(std::begin(values), std::end(values), value) != std::end(values);
}

bool hasPixelFormat(std::string_view bytes, std::size_t at) {
    return numberAt(bytes, at, 2) == 1 && isOneOf(PixelDepths, numberAt(bytes, at + 2, 2));
}

std::optional<PictureSize> saneSize(std::int64_t width, std::int64_t height) {
    height = height < 0 ? -height : height; // negative: the rows run from top to bottom
    if (width < 1 || width > WidestBitmap || height < 1 || height > HighestBitmap)
        return std::nullopt;
    return PictureSize{static_cast<int>(width), static_cast<int>(height)};
}

// The least that the pixels can take: whole rows of four bytes each, the last one without its filling, or,
// where they are packed, runs of 255 at the most.
std::uint64_t leastBytes(PictureSize size, std::uint64_t depth, bool packed) {
    constexpr std::uint64_t longestRun = 255, runBytes = 2;
    const auto width = static_cast<std::uint64_t>(size.width),
               height = static_cast<std::uint64_t>(size.height);
    if (packed)
        return (width + longestRun - 1) / longestRun * runBytes * height;
    return (width * depth + 31) / 32 * 4 * (height - 1) + (width * depth + 7) / 8;
}

// The size, when as many pixels can stand in the bytes.
std::optional<PictureSize> sizeThatFits(std::string_view bytes, PictureSize size, std::uint64_t depth,
                                        bool packed) {
    const std::uint64_t begin =
        std::max<std::uint64_t>(numberAt(bytes, 10, 4), FileHeaderSize + numberAt(bytes, FileHeaderSize, 4));
    return begin + leastBytes(size, depth, packed) <= bytes.size() ? std::optional(size) : std::nullopt;
}

std::optional<PictureSize> sizeInHeaders(std::string_view bytes) {
    if (bytes.size() < FileHeaderSize + CoreHeader || !bytes.starts_with("BM"))
        return std::nullopt;
    const std::uint32_t header = numberAt(bytes, FileHeaderSize, 4);
    const std::uint32_t pixels = numberAt(bytes, 10, 4);
    if (!isOneOf(HeaderKinds, header) || bytes.size() < FileHeaderSize + header || pixels >= bytes.size())
        return std::nullopt;
    const bool core = header == CoreHeader;
    const std::size_t format = core ? 22 : 26; // of planes and depth
    const auto size = core ? saneSize(numberAt(bytes, 18, 2), numberAt(bytes, 20, 2))
                           : saneSize(signedAt(bytes, 18), signedAt(bytes, 22));
    if (!size || !hasPixelFormat(bytes, format))
        return std::nullopt;
    const std::uint32_t packing = core ? 0 : numberAt(bytes, 30, 4);
    return sizeThatFits(bytes, *size, numberAt(bytes, format + 2, 2), packing == 1 || packing == 2);
}

void takeLines(Catalogue& catalogue, std::string_view text) {
    std::vector<std::string>& prefixes = catalogue.BitmapPrefixes;
    prefixes.clear();
    forEachLine(text, [&prefixes](std::string_view line) {
        if (const std::string_view name = trim(line); !name.empty())
            prefixes.emplace_back(name);
    });
}

void makeFolder(Frame& frame, const Catalogue& catalogue, const std::string& folder) {
    if (catalogue.pictureFolders == PictureFolders::MadeAsNeeded && !FolderExists(frame.files, folder))
        frame.files.createFolder(folder.substr(0, folder.size() - 1));
}

std::string mappedName(const Catalogue& catalogue, const Materiel& materiel) {
    const std::string_view file = materiel.FileName;
    return MapPictureName(catalogue, file.substr(0, file.rfind('.')));
}

// Resources bear the names of files, which hold no separator.
bool isPath(std::string_view picture) {
    return picture.find_first_of("\\/") != std::string_view::npos;
}

PictureRef bitmapFile(Frame& frame, Catalogue& catalogue, const std::string& path) {
    const auto size = catalogue.pictureSizes.sizeOf(frame.files, path);
    return size ? PictureRef{PictureRef::File, path, size->width, size->height} : PictureRef();
}

std::string thumbnailPath(const Frame& frame, const Catalogue& catalogue, const Materiel& materiel) {
    return thumbnailsPath(frame.state) + mappedName(catalogue, materiel) + ".bmp";
}

PictureRef thumbnailOf(Frame& frame, Catalogue& catalogue, Materiel& materiel) {
    makeFolder(frame, catalogue, thumbnailsPath(frame.state));
    PictureRef thumbnail = bitmapFile(frame, catalogue, thumbnailPath(frame, catalogue, materiel));
    if (thumbnail.found()) {
        materiel.ImageIsGeneric = materiel.ImageIsResource = false;
        materiel.Picture = thumbnail.name;
    }
    return thumbnail;
}

// Nothing for stock of no type, such as an engine of another kind.
PictureRef typeImageOf(Materiel& materiel) {
    const bool plainEngine = equalIgnoringCase(materiel.Type, "engine") && materiel.EngineType.empty();
    const int stockClass = plainEngine ? 0 : stockClassOf(materiel);
    if (stockClass < 0)
        return {};
    materiel.ImageIsGeneric = materiel.ImageIsResource = true;
    materiel.Picture = ShippedPictures[static_cast<std::size_t>(stockClass)].name;
    return shippedPicture(materiel.Picture);
}

} // namespace

PictureRef shippedPicture(std::string_view name) {
    for (const ShippedPicture& shipped : ShippedPictures)
        if (shipped.name == name)
            return {PictureRef::Resource, std::string(name), shipped.width, shipped.height};
    return {};
}

std::optional<PictureSize> readBitmapSize(FileSystem& files, std::string_view path) {
    std::string bytes;
    if (files.read(path, bytes, LargestFile) != ReadResult::Done)
        return std::nullopt;
    return sizeInHeaders(bytes);
}

std::optional<PictureSize> PictureSizes::sizeOf(FileSystem& files, std::string_view path) {
    const auto stamp = files.stamp(path);
    if (!stamp)
        return std::nullopt;
    const auto known = known_.find(path);
    if (known != known_.end() && known->second.stamp == *stamp)
        return known->second.size;
    const auto size = readBitmapSize(files, path);
    known_.insert_or_assign(std::string(path), Known{*stamp, size});
    return size;
}

std::string thumbnailsPath(const AppState& state) {
    return state.ProgramFolder + "\\Thumbnails\\";
}

void ReadBitmapList(Frame& frame, Catalogue& catalogue) {
    const std::string folder = thumbnailsPath(frame.state);
    const std::string path = folder + std::string(ListName);
    std::string bytes, text(DefaultList);
    const ReadResult result = frame.files.read(path, bytes, LargestProfile);
    notePassedOver(catalogue, path, result);
    if (result == ReadResult::Done) {
        decodeSettingsText(bytes, text);
    } else if (catalogue.pictureFolders == PictureFolders::MadeAsNeeded && !frame.files.stamp(path)) {
        makeFolder(frame, catalogue, folder);
        replaceFile(frame.files, path, DefaultList);
    }
    takeLines(catalogue, text);
}

std::string MapPictureName(const Catalogue& catalogue, std::string_view name) {
    const bool numeric =
        std::find(std::begin(NumericNames), std::end(NumericNames), name) != std::end(NumericNames);
    std::string mapped(numeric ? "S" : "");
    mapped += name;
    for (const std::string& line : catalogue.BitmapPrefixes)
        if (!line.empty() && mapped.starts_with(line))
            mapped.resize(line.size());
    return mapped;
}

PictureRef LoadMaterielPicture(Frame& frame, Catalogue& catalogue, Materiel& materiel,
                               std::string* baseName) {
    if (baseName)
        baseName->clear();
    if (materiel.Picture.empty()) {
        const std::string mapped = mappedName(catalogue, materiel);
        if (baseName)
            *baseName = mapped;
        materiel.Picture = upperCase(mapped);
        materiel.ImageIsGeneric = false;
        materiel.ImageIsResource = true;
    } else if (isPath(materiel.Picture)) {
        if (PictureRef file = bitmapFile(frame, catalogue, materiel.Picture); file.found())
            return file;
    }
    if (PictureRef own = shippedPicture(materiel.Picture); own.found())
        return own;
    if (PictureRef thumbnail = thumbnailOf(frame, catalogue, materiel); thumbnail.found())
        return thumbnail;
    return typeImageOf(materiel);
}

std::string unreadableThumbnail(Frame& frame, Catalogue& catalogue, const Materiel& materiel) {
    std::string path = thumbnailPath(frame, catalogue, materiel);
    const bool stands = frame.files.stamp(path) && !catalogue.pictureSizes.sizeOf(frame.files, path);
    return stands ? path : std::string();
}

} // namespace zandor
