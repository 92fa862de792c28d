#include "verify/result_lists.h"

#include "editor/consist_io.h"
#include "verify/results_fixture.h"

namespace zandor {
namespace {

using Names = std::vector<std::string>;
const std::string Backup = "\\program\\Backup\\";

struct ResultLists : ResultsTest {
    void addConsists() {
        for (const char* name : {"used.con", "lonely.con"})
            CheckConsistFile(work, name);
    }
    int positionOf(std::string_view name) const {
        const Names names = invalid();
        return static_cast<int>(std::ranges::find(names, name) - names.begin());
    }
};

// One tree more, for tests that begin anew again and again.
struct FreshTree : ResultLists {
    void TestBody() override {}
};

TEST_F(ResultLists, CaptionsNameThePlaceOfStockAndNoneOfAConsist) {
    const InvalidFile stockFile{Trainset, "F", "a.wag", "Name", {}}, consist{Consists, "", "c.con", "", {}};
    EXPECT_EQ(placeCaption(stockFile), "( TRAINSET\\F\\a.wag )");
    EXPECT_EQ(placeCaption(consist), "");
    EXPECT_EQ(selectionCaption(frame, stockFile), "Selected file: Name");
    EXPECT_EQ(invalidPath(stockFile), std::string(Trainset) + "F\\a.wag");
    EXPECT_EQ(invalidPath(consist), std::string(Consists) + "c.con");
    EXPECT_EQ(resultHint(kindOf(consist), ResultList::Keys), message::HintConsistKey);
    EXPECT_EQ(resultHint(kindOf(stockFile), ResultList::Files), message::HintInvalidStock);
}

TEST_F(ResultLists, OneFileGoesWhereTheUserSays) {
    const auto bytes = files.get(wagonPath("b.wag"));
    dialogs.saveFile = "C:\\Elsewhere\\kept.wag";
    files.put("C:\\Elsewhere\\x", "");
    EXPECT_EQ(move({1}), 1);
    EXPECT_EQ(dialogs.asked.at(0).folder, Backup + "Wagons\\");
    EXPECT_EQ(dialogs.asked[0].proposedName, "b.wag");
    EXPECT_EQ(dialogs.asked[0].filter, "Wagons (*.wag)|*.wag");
    EXPECT_EQ(dialogs.asked[0].defaultExtension, ".wag");
    EXPECT_TRUE(files.folderExists(Backup + "Wagons"));
    EXPECT_EQ(files.get("C:\\Elsewhere\\kept.wag"), bytes);
    EXPECT_FALSE(files.get(wagonPath("b.wag")));
    EXPECT_EQ(invalid(), (Names{"a.wag", "c.wag"}));
    EXPECT_EQ(stock("b.wag"), nullptr);
    ASSERT_NE(stock("c.wag"), nullptr); // the others keep their positions
    EXPECT_EQ(catalogue.here().Materiels.size(), 4u);
    EXPECT_EQ(toldNumbers(), std::vector<int>{message::FileMoved.number});
}

TEST_F(ResultLists, SeveralGoToTheBackupFolderAfterOneQuestion) {
    addConsists();
    dialogs.defaultAnswer = answer::Yes;
    const std::vector<int> all{0, 1, 2, 3, 4};
    EXPECT_EQ(move(all), 5);
    ASSERT_EQ(dialogs.shown.size(), 2u); // the second is for the consist that a service runs
    EXPECT_NE(dialogs.shown[0].text.find(": 5"), std::string::npos) << dialogs.shown[0].text;
    EXPECT_NE(dialogs.shown[1].text.find("used.con"), std::string::npos);
    EXPECT_TRUE(dialogs.asked.empty());
    for (const char* path : {"Wagons\\a.wag", "Wagons\\c.wag", "Rames\\used.con", "Rames\\lonely.con"})
        EXPECT_TRUE(files.get(Backup + path)) << path;
    EXPECT_TRUE(results.InvalidFiles.empty());
    EXPECT_TRUE(catalogue.here().ConsistFiles.empty());
}

TEST_F(ResultLists, ALongListOfNamesIsCutInTheQuestion) {
    for (int i = 0; i < 20; ++i)
        results.InvalidFiles.push_back({Trainset, "F", "n" + std::to_string(i) + ".wag", "", {}});
    std::vector<int> all(results.InvalidFiles.size());
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = static_cast<int>(i);
    dialogs.defaultAnswer = answer::No;
    EXPECT_EQ(remove(all), 0);
    const std::string& text = dialogs.shown.at(0).text;
    EXPECT_NE(text.find(": 23"), std::string::npos) << text;
    EXPECT_NE(text.find("and 18 more"), std::string::npos) << text;
    EXPECT_EQ(text.find("n5.wag"), std::string::npos) << text;
}

TEST_F(ResultLists, NoLeavesEverythingAsItWas) {
    addConsists();
    const Names before = files.allFiles(), listed = invalid();
    const int used = positionOf("used.con");
    dialogs.defaultAnswer = answer::No;
    EXPECT_EQ(remove({0}), 0);
    EXPECT_EQ(move({0, 1}), 0);
    EXPECT_EQ(move({0}), 0); // no name given
    EXPECT_EQ(move({used}), 0);
    dialogs.answers = {answer::Yes, answer::No}; // deleted, but not while a service runs it
    EXPECT_EQ(remove({used}), 0);
    EXPECT_NE(dialogs.shown.back().text.find("The line"), std::string::npos) << "the route that needs it";
    EXPECT_EQ(files.allFiles(), before);
    EXPECT_EQ(invalid(), listed);
    EXPECT_TRUE(told.empty());
}

TEST_F(ResultLists, ATakenNameAndAReadOnlyFileStayAndAreTold) {
    files.put(Backup + "Wagons\\a.wag", "older");
    files.setAttributes(wagonPath("b.wag"), {.readOnly = true});
    dialogs.defaultAnswer = answer::Yes;
    EXPECT_EQ(move({0, 1, 2}), 1);
    EXPECT_EQ(invalid(), (Names{"a.wag", "b.wag"}));
    EXPECT_EQ(files.get(Backup + "Wagons\\a.wag"), "older");
    EXPECT_FALSE(files.get(Backup + "Wagons\\b.wag")); // no second copy is left behind
    EXPECT_TRUE(files.get(wagonPath("a.wag")) && files.get(wagonPath("b.wag")));
    EXPECT_EQ(toldNumbers(),
              (std::vector<int>{message::SeveralMoved.number, message::SeveralNamesTaken.number,
                                message::SeveralNotMoved.number}));
    EXPECT_EQ(remove({1}), 0);
    EXPECT_EQ(told.size(), 1u);
    EXPECT_TRUE(files.get(wagonPath("b.wag")));
}

TEST_F(ResultLists, AFileMovedOntoItselfIsNotLost) {
    for (const char* spelling :
         {"C:\\MSTS\\TRAINS\\TRAINSET\\F\\A.WAG", "c:\\msts\\trains\\..\\TRAINS\\TRAINSET\\f\\a.wag"}) {
        dialogs.saveFile = spelling;
        EXPECT_EQ(move({0}), 0);
        EXPECT_TRUE(files.get(wagonPath("a.wag")));
        EXPECT_EQ(toldNumbers(), std::vector<int>{message::MoveNameTaken.number});
    }
}

// At every call, for good or only this once: each file stands whole in one place or the other, and a record
// goes only with its file.
TEST_F(ResultLists, NothingIsLostWhenTheDiskFailsAtAnyCall) {
    struct Case {
        const char* name;
        std::vector<int> chosen;
        bool deletes;
    };
    for (const Case& one :
         {Case{"move one", {0}, false}, Case{"move several", {0, 1, 2}, false}, Case{"delete", {0, 2}, true}})
        for (const bool forGood : {false, true})
            for (int call = 1;; ++call) {
                FreshTree other;
                other.dialogs.defaultAnswer = answer::Yes;
                other.dialogs.saveFile = Backup + "Wagons\\a.wag";
                const auto bytes = other.files.get(wagonPath("a.wag"));
                other.files.failAt(call, forGood);
                const int gone = one.deletes ? other.remove(one.chosen) : other.move(one.chosen);
                const bool failed = other.files.failed();
                other.files.failAt(0);
                SCOPED_TRACE(std::string(one.name) + " " + std::to_string(call));
                EXPECT_EQ(gone, 3 - static_cast<int>(other.results.InvalidFiles.size()));
                for (const char* name : {"a.wag", "b.wag", "c.wag"}) {
                    const bool listed = other.positionOf(name) < static_cast<int>(other.invalid().size());
                    EXPECT_EQ(listed, other.files.get(wagonPath(name)).has_value()) << name;
                    if (!listed && !one.deletes) {
                        EXPECT_EQ(other.files.get(Backup + "Wagons\\" + name), bytes) << name;
                    }
                    EXPECT_EQ(listed, other.stock(name) != nullptr) << name;
                }
                if (!failed)
                    break;
                ASSERT_LT(call, 200);
            }
}

TEST_F(ResultLists, AConsistLeavesTheListsAndTheCountsOfItsStock) {
    addConsists();
    EXPECT_EQ(countOf("a.wag"), 2);
    catalogue.here().summariesRead = true;
    dialogs.defaultAnswer = answer::Yes;
    EXPECT_EQ(remove({positionOf("lonely.con")}), 1);
    EXPECT_EQ(dialogs.shown.size(), 1u); // no service runs it
    EXPECT_EQ(catalogue.here().ConsistFiles, Names{"used.con"});
    EXPECT_FALSE(catalogue.here().summariesRead);
    EXPECT_EQ(countOf("a.wag"), 1);
    EXPECT_EQ(catalogue.ConsistIndex.size(), 1u);
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(remove({positionOf("used.con")}), 1);
    EXPECT_EQ(dialogs.shown.size(), 3u);
}

TEST_F(ResultLists, StockOnTheStripBecomesMissingAndIsSavedAsItWas) {
    ASSERT_TRUE(openConsist(editor, std::string(Consists) + "lonely.con").done);
    const int index = document.Vehicules.at(1).MaterielIndex;
    EXPECT_FALSE(document.Vehicules[1].Missing);
    dialogs.defaultAnswer = answer::Yes;
    EXPECT_EQ(remove({0}), 1);
    EXPECT_TRUE(document.Vehicules[1].Missing);
    EXPECT_EQ(catalogue.here().Materiels[static_cast<std::size_t>(index)].FileName, "");
    changeFullName(editor, "Full");
    EXPECT_TRUE(SaveFileRame(editor).done);
    std::string text;
    decodeSimulatorText(files.get(std::string(Consists) + "lonely.con").value(), text);
    EXPECT_NE(text.find("WagonData ( a F )"), std::string::npos) << text;
}

TEST_F(ResultLists, AFolderThatCannotBeShownIsTold) {
    EXPECT_TRUE(openFolder(frame, std::string(Trainset) + "F").done);
    EXPECT_EQ(processes.opened, Names{std::string(Trainset) + "F"});
    EXPECT_FALSE(openFolder(frame, std::string(Trainset) + "G").done);
    processes.works = false;
    const Outcome outcome = openFolder(frame, std::string(Trainset) + "F");
    EXPECT_FALSE(outcome.done);
    EXPECT_EQ(outcome.told.size(), 1u);
}

} // namespace
} // namespace zandor
