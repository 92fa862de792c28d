#include "catalogue/pictures.h"

#include "catalogue_fixture.h"
#include "support/bitmaps.h"

#include <algorithm>

namespace zandor {
namespace {

constexpr const char* Thumbnails = "\\program\\Thumbnails\\";
constexpr const char* List = "\\program\\Thumbnails\\Bitmaps.ini";

class PicturesTest : public CatalogueTest {
  protected:
    void putThumbnail(std::string_view name, int width, int height = 96) {
        files.put(Thumbnails + std::string(name) + ".bmp", makeBitmap(width, height));
    }
    PictureRef load(Materiel& materiel) { return LoadMaterielPicture(frame, catalogue, materiel); }
    static Materiel stock(std::string_view file, std::string_view type = "Carriage",
                          std::string_view engineType = {}) {
        Materiel materiel;
        materiel.FileName = file;
        materiel.Type = type;
        materiel.EngineType = engineType;
        return materiel;
    }
    long reads(std::string_view path) const {
        return std::count(files.log.begin(), files.log.end(), "readFile " + std::string(path));
    }
};

// "kind name width flags" of what was found, and what the entry keeps.
std::string shown(const PictureRef& picture, const Materiel& materiel) {
    constexpr const char* Kinds[] = {"none", "resource", "file"};
    return std::string(Kinds[picture.kind]) + " " + picture.name + " " + std::to_string(picture.width) +
           (materiel.ImageIsGeneric ? " generic" : "") + (materiel.ImageIsResource ? " resource" : "") +
           " kept " + materiel.Picture;
}

TEST_F(PicturesTest, BitmapsAreKnownByTheirHeaders) {
    const auto changed = [](std::string bytes, std::size_t at, std::string_view with) {
        return bytes.replace(at, with.size(), with);
    };
    const std::string plain = makeBitmap(121, 96);
    struct Case {
        const char* what;
        std::string bytes;
        std::optional<PictureSize> size;
    };
    const PictureSize usual{121, 96};
    const Case cases[] = {
        {"core header", makeBitmap(121, 96, 12), usual},
        {"info header", plain, usual},
        {"another system's header", makeBitmap(121, 96, 64), usual},
        {"version 4", makeBitmap(121, 96, 108), usual},
        {"version 5", makeBitmap(121, 96, 124), usual},
        {"from top to bottom", makeBitmap(200, -50), PictureSize{200, 50}},
        {"large core header", makeBitmap(16384, 2, 12), PictureSize{16384, 2}},
        {"the highest", makeBitmap(1, 4096), PictureSize{1, 4096}},
        {"a header that no window reads", makeBitmap(121, 96, 56), {}},
        {"no width", makeBitmap(0, 96), {}},
        {"no height", makeBitmap(121, 0), {}},
        {"negative width", changed(plain, 18, std::string_view("\xFF\xFF\xFF\xFF", 4)), {}},
        {"too wide", makeBitmap(16385, 1), {}},
        {"too high", makeBitmap(1, 4097), {}},
        {"the lowest number as height", changed(plain, 22, std::string_view("\0\0\0\x80", 4)), {}},
        {"two planes", changed(plain, 26, "\2"), {}},
        {"7 bits a pixel", changed(plain, 28, "\7"), {}},
        {"another signature", changed(plain, 0, "MB"), {}},
        {"pixels behind the end", changed(plain, 12, "\1"), {}},
        {"not a single pixel", plain.substr(0, 14 + 40 + 1024), {}},
        {"without the filling of its last row", plain.substr(0, plain.size() - 3), usual},
        {"cut in its last row", plain.substr(0, plain.size() - 4), {}},
        {"packed", changed(plain, 30, "\1").substr(0, 14 + 40 + 1024 + 2 * 96), usual},
        {"more than its runs can hold", changed(plain, 30, "\1").substr(0, 14 + 40 + 1024 + 2 * 96 - 1), {}},
        {"deeper than its bytes", changed(plain, 28, "\x20"), {}},
        {"wider than its bytes", changed(plain, 19, "\x30"), {}},
        {"nothing", "", {}},
        {"a text", std::string(4000, 'x'), {}},
    };
    for (const Case& c : cases) {
        files.put("\\a.bmp", c.bytes);
        EXPECT_EQ(readBitmapSize(files, "\\a.bmp"), c.size) << c.what;
    }
    for (std::size_t length = 0; length <= 14 + 40 + 1024; ++length) {
        files.put("\\a.bmp", plain.substr(0, length));
        EXPECT_FALSE(readBitmapSize(files, "\\a.bmp")) << "cut at " << length;
    }
    EXPECT_FALSE(readBitmapSize(files, "\\gone.bmp"));
}

TEST_F(PicturesTest, NamesAreMappedByNumbersAndLines) {
    struct Case {
        Names lines;
        const char *name, *mapped;
    };
    for (const Case& c :
         {Case{{""}, "2000", "S2000"}, Case{{""}, "30000", "S30000"}, Case{{""}, "310", "S310"},
          Case{{""}, "380", "S380"}, Case{{""}, "3800", "3800"}, Case{{"oebarcar"}, "oebarcar2", "oebarcar"},
          Case{{"oebarcar"}, "OEbarcar2", "OEbarcar2"}, Case{{"oebarcar"}, "oebar", "oebar"},
          Case{{"abcd", "", "ab"}, "abcdef", "ab"}, Case{{"ab", "abcd"}, "abcdef", "ab"},
          Case{{"S2"}, "2000", "S2"}, Case{{"20"}, "2000", "S2000"}}) {
        catalogue.BitmapPrefixes = c.lines;
        EXPECT_EQ(MapPictureName(catalogue, c.name), c.mapped);
    }
}

TEST_F(PicturesTest, TheListIsReadAndMadeWhereThereIsNone) {
    const Names usual{"oe380cardin", "oebarcar", "oeservcar", "oesleepcar"};
    catalogue.pictureFolders = PictureFolders::LeftAlone;
    ReadBitmapList(frame, catalogue);
    EXPECT_EQ(catalogue.BitmapPrefixes, usual) << "they serve though they aren't written";
    EXPECT_FALSE(files.folderExists("\\program\\Thumbnails"));

    catalogue.pictureFolders = PictureFolders::MadeAsNeeded;
    ReadBitmapList(frame, catalogue);
    EXPECT_EQ(files.get(List), "oe380cardin\r\noebarcar\r\noeservcar\r\noesleepcar\r\n");
    catalogue.BitmapPrefixes.clear();
    ReadBitmapList(frame, catalogue);
    EXPECT_EQ(catalogue.BitmapPrefixes, usual);

    files.put(List, "one\r\n\r\n  \r\n two three \nété");
    ReadBitmapList(frame, catalogue);
    EXPECT_EQ(catalogue.BitmapPrefixes.size(), 3u);
    EXPECT_EQ(catalogue.BitmapPrefixes[1], "two three");
    files.put(List, "");
    ReadBitmapList(frame, catalogue);
    EXPECT_TRUE(catalogue.BitmapPrefixes.empty());
}

TEST_F(PicturesTest, AListThatCannotBeReadIsNotReplaced) {
    files.put(List, "mine\r\n");
    for (bool allAfter : {false, true})
        for (int call = 1; call < 8; ++call) {
            files.failAt(call, allAfter);
            ReadBitmapList(frame, catalogue);
            EXPECT_EQ(files.get(List), "mine\r\n") << call;
        }
}

TEST_F(PicturesTest, StockWithoutAPictureShowsItsType) {
    struct Case {
        const char *type, *engineType, *result;
    };
    for (const Case& c :
         {Case{"Engine", "Electric", "5000"}, Case{"engine", "diesel", "5001"},
          Case{"Engine", "Steam", "5002"}, Case{"Engine", "", "5000"}, Case{"Carriage", "", "5003"},
          Case{"Freight", "", "5004"}, Case{"Tender", "", "5005"}, Case{"Draisine", "", "5005"},
          Case{"Carriage", "diesel", "5003"}}) {
        Materiel materiel = stock("any.wag", c.type, c.engineType);
        const std::string expected =
            "resource " + std::string(c.result) + " 121 generic resource kept " + c.result;
        for (int i = 0; i < 2; ++i)
            EXPECT_EQ(shown(load(materiel), materiel), expected) << c.type << ' ' << c.engineType;
    }
    for (const char* type : {"Engine", ""}) {
        Materiel other = stock("any.eng", type, "other");
        EXPECT_EQ(shown(load(other), other), "none  0 resource kept ANY") << type;
        putThumbnail("Any", 50);
        EXPECT_TRUE(load(other).found()) << "it is looked for again";
        files.deleteFile(Thumbnails + std::string("Any.bmp"));
    }
}

TEST_F(PicturesTest, AThumbnailComesBeforeTheType) {
    struct Case {
        const char *file, *thumbnail;
        bool found;
    };
    catalogue.BitmapPrefixes = {"oebarcar"};
    for (const Case& c : {Case{"Loco.v2.eng", "LOCO.V2", true}, Case{"2000.eng", "S2000", true},
                          Case{"310.wag", "310", false}, Case{"oebarcar2.wag", "OEBARCAR", true},
                          Case{"oebarcar3.wag", "oebarcar3", false}, Case{"dash9.eng", "dash9", true},
                          Case{"5003.wag", "5003", false}}) {
        putThumbnail(c.thumbnail, 77);
        Materiel materiel = stock(c.file);
        std::string baseName;
        const PictureRef picture = LoadMaterielPicture(frame, catalogue, materiel, &baseName);
        EXPECT_EQ(picture.width, c.found ? 77 : 121) << c.file;
        EXPECT_EQ(materiel.ImageIsResource, !c.found) << c.file;
        EXPECT_EQ(materiel.Picture, picture.name);
        if (c.found) {
            EXPECT_EQ(materiel.Picture, Thumbnails + baseName + ".bmp");
            EXPECT_FALSE(materiel.ImageIsGeneric);
        }
        LoadMaterielPicture(frame, catalogue, materiel, &baseName);
        EXPECT_EQ(baseName, "") << "the entry answered";
        files.deleteFile(Thumbnails + std::string(c.thumbnail) + ".bmp");
    }
}

TEST_F(PicturesTest, AThumbnailThatIsGoneOrNoPictureGivesWayToTheType) {
    const std::string file = Thumbnails + std::string("voit.bmp");
    const std::string type = "resource 5003 121 generic resource kept 5003";
    for (const char* bytes : {"", "BM", "no picture"}) {
        files.put(file, bytes);
        Materiel materiel = stock("voit.wag");
        EXPECT_EQ(shown(load(materiel), materiel), type);
        EXPECT_EQ(unreadableThumbnail(frame, catalogue, materiel), file);
        EXPECT_EQ(unreadableThumbnail(frame, catalogue, stock("none.wag")), "");
    }
    putThumbnail("voit", 90);
    EXPECT_EQ(unreadableThumbnail(frame, catalogue, stock("voit.wag")), "");
    for (const bool deleted : {true, false}) {
        putThumbnail("voit", 90);
        Materiel materiel = stock("voit.wag");
        EXPECT_EQ(shown(load(materiel), materiel), "file " + file + " 90 kept " + file);
        if (deleted)
            files.deleteFile(file);
        else
            files.put(file, "spoilt");
        EXPECT_EQ(shown(load(materiel), materiel), type);
        putThumbnail("voit", 90);
        EXPECT_EQ(shown(load(materiel), materiel), type) << "until the next load of the catalogue";
    }
}

TEST_F(PicturesTest, AThumbnailIsReadOnceForAsLongAsItIsTheSame) {
    catalogue.BitmapPrefixes = {"voit"};
    putThumbnail("voit", 90);
    Materiel first = stock("voit1.wag"), second = stock("voit2.wag");
    for (int i = 0; i < 50; ++i)
        EXPECT_EQ(load(first).width + load(second).width, 180);
    EXPECT_EQ(reads(Thumbnails + std::string("voit.bmp")), 1);
    putThumbnail("voit", 91);
    EXPECT_EQ(load(first).width, 91);
    files.log.clear();
    Materiel typed = stock("flat.wag", "Freight");
    load(typed);
    files.log.clear();
    load(typed);
    EXPECT_EQ(files.log, Names{}) << "the type needs no file";
}

} // namespace
} // namespace zandor
