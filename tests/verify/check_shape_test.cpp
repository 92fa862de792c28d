#include "target_fixture.h"
#include "verify/shape_scan.h"

namespace zandor {

using ShapeCheck = TargetFixture;

TEST(ShapeScan, ReadsTheBlocksOfImages) {
    struct Row {
        const char* text;
        std::vector<std::string> found; // name and line
    };
    const Row rows[] = {
        {"h\r\nimages ( 2\r\n\timage ( a.ace )\r\n image\t(\tb c.ace )\r\n)\r\nimages (\r\nimage ( no.ace "
         ")\r\n",
         {"a.ace|3", "b c.ace|4"}},
        {"h\nimages ( 1\nimage ( \"b (1).ace\" )\n)", {"\"b (1).ace\"|3"}},
        {"h\nIMAGES ( 1\nIMAGE ( \"a.ace\" )\n\t)\n", {"\"a.ace\"|3"}},
        {"h\rimages\r(\rimage ( no.ace )", {}},
        {"h\nimages ( 1\nimage ( a.ace )\npoints ( 1 )\nimages ( 1\nimage ( b.ace )\n)",
         {"a.ace|3", "b.ace|6"}},
        {"h\n\n\nimages ( 1\nimage a.ace )", {"image a.ace )|5"}},
        {"images", {}},
        {"gG\nimage ( a.ace )\nimagesimages\nimage ( b.ace )", {"b.ace|4"}},
        {"h\nimages ( 1 )", {}},
        {"", {}},
    };
    for (const Row& row : rows) {
        std::vector<std::string> found;
        for (const ShapeImage& image : findImages(row.text))
            found.push_back(std::string(image.name) + "|" + std::to_string(image.number));
        EXPECT_EQ(found, row.found) << row.text;
    }
}

TEST_F(ShapeCheck, NamesTheTexturesThatAreNotThere) {
    const CheckTarget target = shapeTarget("A", "x.S");
    files.put(inTrainset("A\\Here.ACE"), "");
    files.put(inTrainset("Common\\textures\\up.ace"), "");
    files.put(inTrainset("A\\x.s"), text("images ( 5\r\n\timage ( here.ace )\r\n\timage ( \"HERE.ace\" )\r\n"
                                         "\timage ( ..\\common\\Textures/up.ace )\r\n\timage ( Gone.ace )\r\n"
                                         "\timage ( \"gone 2.ace\" )\r\n)\r\n",
                                         FileKind::Shape));
    CheckShapeFile(*work, target);
    const Rows rows = {"A\\x.S|Gone.ace|image ( Gone.ace )|6",
                       "A\\x.S|\"gone 2.ace\"|image ( \"gone 2.ace\" )|7"};
    EXPECT_EQ(missing(), rows);
    CheckShapeFile(*work, shapeTarget("a", "X.s"));
    EXPECT_EQ(missing(), rows) << "each is examined once";
    EXPECT_EQ(results.MissingEntries[0].Kind, MissingKind::Texture);
    EXPECT_EQ(results.MissingEntries[0].File, "") << "only sound sets tell it";
}

TEST_F(ShapeCheck, ATextureBesideAShapeOfAnotherStockIsThere) {
    files.put(inTrainset("B\\b.ace"), "");
    files.put(inTrainset("B\\x.s"), text("images ( 2\nimage ( b.ace )\nimage ( c.ace )\n)", FileKind::Shape));
    CheckShapeFile(*work, shapeTarget("A", "..\\B\\x.s"));
    EXPECT_EQ(missing(), (Rows{"A\\..\\B\\x.s|c.ace|image ( c.ace )|4"}));
}

TEST_F(ShapeCheck, PassesOverWhatIsNoTextShape) {
    const std::string body = "images ( 1\nimage ( gone.ace )\n)";
    files.put(inTrainset("A\\empty.s"), "");
    files.put(inTrainset("A\\packed.s"), "SIMISA@F\1\2\3\4@@@@JINX0s1b\r\n" + std::string(3 << 20, 'x'));
    files.put(inTrainset("A\\other.s"), text(body, FileKind::Sound));
    for (const char* file : {"empty.s", "packed.s", "other.s", "none.s"})
        CheckShapeFile(*work, shapeTarget("A", file));
    EXPECT_EQ(missing(), (Rows{"A\\empty.s|A\\empty.s|ZERO_OCTET_FILE|0"}));
    for (const std::string& call : files.log)
        EXPECT_FALSE(call.starts_with("readFile")) << "only the beginning is read: " << call;
}

TEST_F(ShapeCheck, ALargeShapeOfEitherEncodingIsReadWhole) {
    const std::string points = [] {
        std::string all;
        for (int i = 0; i < 5000; ++i)
            all += "\t\tpoint ( 1 2 3 )\r\n";
        return all;
    }();
    for (const TextEncoding encoding : {TextEncoding::Utf16, TextEncoding::Windows1252}) {
        beginPass();
        files.put(inTrainset("A\\x.s"),
                  text(points + "images ( 1\r\nimage ( é.ace )\r\n)\r\n", FileKind::Shape, encoding));
        CheckShapeFile(*work, shapeTarget("A", "x.s"));
        EXPECT_EQ(missing(), (Rows{"A\\x.s|é.ace|image ( é.ace )|5003"}));
    }
}

TEST_F(ShapeCheck, ACabViewsImagesCountWithAndWithoutQuotes) {
    files.put(inTrainset("A\\Cabview\\front.ace"), "");
    files.put(inTrainset("A\\Cabview\\c.cvf"),
              text("Tr_CabViewFile (\r\n\tCabViewFile ( Front.ace )\r\n\tCabViewFile ( \"left.ace\" )\r\n"
                   "\tDial (\r\n\t\tGraphic ( Dial.ACE )\r\n\t\tType ( SPEED DIAL )\r\n\t)\r\n)\r\n",
                   FileKind::CabView));
    CheckShapeFile(*work, {inTrainset("A\\Cabview\\"), "A\\Cabview\\", "C.cvf"});
    EXPECT_EQ(missing(), (Rows{"A\\Cabview\\C.cvf|\"left.ace\"|CabViewFile ( \"left.ace\" )|4",
                               "A\\Cabview\\C.cvf|Dial.ACE|Graphic ( Dial.ACE )|6"}));
}

} // namespace zandor
