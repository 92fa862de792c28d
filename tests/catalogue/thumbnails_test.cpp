#include "catalogue/thumbnails.h"

#include "catalogue_fixture.h"

#include <algorithm>

namespace zandor {
namespace {

constexpr const char* Folder = "\\program\\Thumbnails\\";
constexpr const char* Unusable = "\\program\\Unusable_Thumbnails\\";

class ThumbnailsTest : public CatalogueTest {
  protected:
    ThumbnailsTest() {
        files.put(state.LanguagePath,
                  "[Test]\r\n93=failed |1\r\n389=engines\r\n390=wagons\r\n455=|1 checks\r\n"
                  "456=one to |3\r\n457=|1 to |3\r\n458=one back to |2\r\n"
                  "459=|1 back to |2 (|4)\r\n460=names\r\n498=step\r\n");
        state.Title = "T";
        files.put("\\program\\Thumbnails\\Bitmaps.ini", "");
    }
    void putThumbnails(const char* folder, const Names& names) {
        for (const std::string& name : names)
            files.put(folder + name + ".bmp", "picture " + name);
    }
    // What stands in a folder, without ".bmp".
    Names thumbnails(const char* folder) {
        Names names = listFiles(files, folder, ".bmp");
        for (std::string& name : names)
            name.resize(name.size() - 4);
        return names;
    }
    void forgetThumbnails() {
        for (const char* folder : {Folder, Unusable})
            for (const std::string& name : thumbnails(folder))
                files.deleteFile(folder + name + ".bmp");
    }
};

TEST_F(ThumbnailsTest, ThumbnailsFollowTheirStock) {
    putStock("Parc\\Loco.eng");
    putStock("Parc\\default.wag");
    putStock("Parc\\oebarcar7.wag");
    putStock("Parc\\ABC1.wag");
    putStock("Parc\\DASH9.eng");
    putStock("Other\\Voit.wag", {}, StoreRoot);
    struct Case {
        const char* what;
        Names lines, there, unusable, thereAfter, unusableAfter;
    };
    const Case cases[] = {
        {"used", {}, {"loco", "VOIT"}, {}, {"loco", "VOIT"}, {}},
        {"without stock", {}, {"gone", "Loco", "other gone"}, {}, {"Loco"}, {"gone", "other gone"}},
        {"back again", {}, {}, {"LOCO", "gone", "voit"}, {"LOCO", "voit"}, {"gone"}},
        {"moved and back", {}, {"gone"}, {"loco"}, {"loco"}, {"gone"}},
        {"of a family", {"OEBARCAR"}, {"oebarcar"}, {}, {"oebarcar"}, {}},
        {"of a family, back", {"abc"}, {}, {"Abc"}, {"Abc"}, {}},
        {"the first line counts", {"ab", "abc", "a"}, {"abc"}, {"a", "ab"}, {"ab"}, {"a", "abc"}},
        {"its own beside the family's", {"abc"}, {"abc1", "abc"}, {}, {"abc", "abc1"}, {}},
        {"its own isn't brought back", {"abc"}, {}, {"abc1"}, {}, {"abc1"}},
        {"built-in ones stay", {}, {"dash9"}, {}, {"dash9"}, {}},
        {"built-in ones don't come back", {}, {}, {"dash9"}, {}, {"dash9"}},
        {"built-in without stock", {}, {"sd40"}, {}, {}, {"sd40"}},
        {"default.wag is no stock", {}, {"default"}, {}, {}, {"default"}},
    };
    for (const Case& c : cases) {
        forgetThumbnails();
        putThumbnails(Folder, c.there);
        putThumbnails(Unusable, c.unusable);
        catalogue.BitmapPrefixes = c.lines;
        EXPECT_TRUE(ControlThumbnails(frame, catalogue)) << c.what;
        EXPECT_EQ(thumbnails(Folder), c.thereAfter) << c.what;
        EXPECT_EQ(thumbnails(Unusable), c.unusableAfter) << c.what;
        const std::size_t shown = dialogs.shown.size();
        EXPECT_TRUE(ControlThumbnails(frame, catalogue)) << c.what;
        EXPECT_EQ(dialogs.shown.size(), shown) << c.what << ": nothing is left to do";
    }
}

TEST_F(ThumbnailsTest, OneMessageTellsWhatWasMoved) {
    putStock("Parc\\a.wag");
    putStock("Parc\\b.wag");
    struct Case {
        Names there, unusable, messages;
    };
    for (const Case& c :
         {Case{{"a"}, {}, {}}, Case{{"x"}, {}, {"64 one to Unusable_Thumbnails"}},
          Case{{"x", "y"}, {}, {"64 2 to Unusable_Thumbnails"}},
          Case{{}, {"a"}, {"64 one back to Thumbnails"}},
          Case{{}, {"a", "b"}, {"64 2 back to Thumbnails (T)"}},
          Case{{"x"}, {"a", "b"}, {"64 one to Unusable_Thumbnails\r\n\r\n2 back to Thumbnails (T)"}}}) {
        forgetThumbnails();
        putThumbnails(Folder, c.there);
        putThumbnails(Unusable, c.unusable);
        dialogs.shown.clear();
        ControlThumbnails(frame, catalogue);
        EXPECT_EQ(messagesShown(), c.messages);
    }
}

TEST_F(ThumbnailsTest, NoFailureOfTheDiskLosesAThumbnail) {
    for (bool allAfter : {false, true})
        for (int call = 1;; ++call) {
            forgetThumbnails();
            putStock("Parc\\a.wag");
            putStock("Parc\\b.wag");
            putThumbnails(Folder, {"a", "x", "y"});
            putThumbnails(Unusable, {"b", "z"});
            dialogs.shown.clear();
            files.failAt(call, allAfter);
            EXPECT_TRUE(ControlThumbnails(frame, catalogue));
            const bool failed = files.failed();
            files.failAt(0);
            for (const char* name : {"a", "b", "x", "y", "z"}) {
                const std::string whole = std::string("picture ") + name;
                EXPECT_TRUE(files.get(Folder + std::string(name) + ".bmp") == whole ||
                            files.get(Unusable + std::string(name) + ".bmp") == whole)
                    << name << " at " << call;
            }
            const auto alerts =
                std::ranges::count(dialogs.shown, style::Exclamation, &FakeDialogs::Shown::style);
            EXPECT_LE(alerts, 1) << "told once, at " << call;
            if (!failed)
                break;
        }
}

TEST_F(ThumbnailsTest, NothingIsMovedOnceTheUserHasEndedIt) {
    for (const char* name : {"Parc\\a.wag", "Parc\\b.wag", "Depot\\c.wag"})
        putStock(name);
    for (int at = 1;; ++at) {
        forgetThumbnails();
        putThumbnails(Folder, {"a", "b", "c", "x"});
        progress.yields = 0;
        progress.cancelAtYield = at;
        const bool ended = !ControlThumbnails(frame, catalogue);
        EXPECT_EQ(thumbnails(Folder).size(), ended ? 4u : 3u) << at;
        if (!ended)
            break;
    }
}

} // namespace
} // namespace zandor
