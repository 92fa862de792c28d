// The main window by the keyboard alone, its menus, and what comes from outside.
#include "windows/window_fixture.h"

#include "frame/window_place.h"

#include <QAction>
#include <QMenu>
#include <QUrl>

namespace zandor {
namespace {

struct KeyboardTest : WindowTest {
    KeyboardTest() {
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    std::string selected() const {
        return document.selected < 0 ? ""
                                     : document.Vehicules[static_cast<std::size_t>(document.selected)].Name;
    }
    void dropFile(const QString& path) {
        QMimeData data;
        data.setUrls({QUrl("https://example.org/a.con"), QUrl::fromLocalFile(path)});
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window.get(), &enter);
        if (!enter.isAccepted())
            return;
        QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window.get(), &drop);
        QTest::qWait(5);
    }
};

TEST_F(KeyboardTest, AConsistIsMadeWithoutTheMouse) {
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Return);                      // BB 9288
    QTest::keyClick(&list(), Qt::Key_Down);                        // CC 6500
    QTest::keyClick(window.get(), Qt::Key_E, Qt::ControlModifier); // at the end
    strip().setFocus();
    QTest::keyClick(&strip(), Qt::Key_End);
    EXPECT_EQ(selected(), "CC 6500");
    QTest::keyClick(window.get(), Qt::Key_B, Qt::ControlModifier); // one more in front of it
    EXPECT_EQ(vehicles(), (Names{"BB 9288", "CC 6500", "CC 6500"}));
    QTest::keyClick(&strip(), Qt::Key_Left);
    QTest::keyClick(&strip(), Qt::Key_Left);
    QTest::keyClick(&strip(), Qt::Key_Left); // not beyond the first
    EXPECT_EQ(selected(), "BB 9288");
    QTest::keyClick(&strip(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(vehicles(), (Names{"CC 6500", "BB 9288", "CC 6500"}));
    QTest::keyClick(&strip(), Qt::Key_T, Qt::ControlModifier);
    EXPECT_TRUE(document.Vehicules[1].Flipped);
    QTest::keyClick(&strip(), Qt::Key_Home);
    QTest::keyClick(&strip(), Qt::Key_Delete);
    EXPECT_EQ(vehicles(), (Names{"BB 9288", "CC 6500"}));
    EXPECT_TRUE(get<QLabel>("lblSTATUS").text().contains("BB 9288"));
    EXPECT_TRUE(get<QPushButton>("cmdSAVE").isEnabled());
}

TEST_F(KeyboardTest, TheMenusOpenWithoutAMenuKey) {
    build({"BB 9288"});
    for (const auto& [place, menu] : {std::pair<QWidget*, const char*>{&strip(), "mnuSTRIP"},
                                      std::pair<QWidget*, const char*>{&list(), "mnuSTOCK"}}) {
        place->setFocus();
        QTest::keyClick(place, Qt::Key_F10, Qt::ShiftModifier);
        QWidget* const open = QApplication::activePopupWidget();
        ASSERT_TRUE(open) << menu;
        EXPECT_EQ(open->objectName(), menu);
        open->close();
    }
}

TEST_F(KeyboardTest, TheSelectedVehicleIsFoundInTheList) {
    build({"BB 9288", "Wagon plat"});
    strip().setFocus();
    QTest::keyClick(&strip(), Qt::Key_End);
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(list().currentKey(), keyOf("Wagon plat"));
}

TEST_F(KeyboardTest, DeleteInATextBoxDeletesText) {
    build({"BB 9288"});
    QTest::mouseClick(&strip(), Qt::LeftButton, {}, onVehicle(0));
    QLineEdit& name = get<QLineEdit>("tbFULL_NAME");
    name.setFocus();
    QTest::keyClicks(&name, "ab");
    QTest::keyClick(&name, Qt::Key_Home);
    QTest::keyClick(&name, Qt::Key_Delete);
    EXPECT_EQ(name.text(), "b");
    EXPECT_EQ(vehicles().size(), 1u);
}

TEST_F(KeyboardTest, TheMenuOffersWhatMakesSense) {
    const auto enabled = [this](const char* name) { return window->findChild<QAction*>(name)->isEnabled(); };
    EXPECT_FALSE(enabled("actREMOVE"));
    EXPECT_FALSE(get<QPushButton>("cmdVEHICLE").isEnabled());
    build({"BB 9288"});
    EXPECT_FALSE(enabled("actREMOVE")) << "none is selected";
    QTest::mouseClick(&strip(), Qt::LeftButton, {}, onVehicle(0));
    for (const char* name : {"actREMOVE", "actFLIP", "actFIND", "actINSERT_BEFORE", "actRENUMBER"})
        EXPECT_TRUE(enabled(name)) << name;
    document.Vehicules[0].Missing = true;
    window->refresh();
    EXPECT_FALSE(enabled("actFLIP"));
    EXPECT_TRUE(enabled("actREMOVE"));
    get<QComboBox>("cmbMATERIEL").setCurrentIndex(2); // no stock
    EXPECT_FALSE(enabled("actINSERT_END"));
}

TEST_F(KeyboardTest, AnotherLanguageIsShownAtOnceAndKept) {
    build({"BB 9288"});
    const std::size_t row = catalogue.Materiels.size();
    const QString before = get<QPushButton>("cmdNEW").text();
    const QString totals = get<QLabel>("lblLongueurNewRame").text();
    window->chooseLanguage("English");
    EXPECT_NE(get<QPushButton>("cmdNEW").text(), before);
    EXPECT_NE(get<QLabel>("lblLongueurNewRame").text(), totals);
    EXPECT_EQ(get<QComboBox>("cmbMATERIEL").itemText(1).toStdString(), test.frame.text(Message::ClassDiesel));
    EXPECT_EQ(vehicles().size(), 1u);
    EXPECT_EQ(catalogue.Materiels.size(), row);
    const auto entries = window->findChild<QMenu*>("mnuLANGUAGE")->actions();
    ASSERT_EQ(entries.size(), 6);
    for (const QAction* entry : entries)
        EXPECT_EQ(entry->isChecked(), entry->text() == "English") << entry->text().toStdString();
    window->close();
    EXPECT_EQ(test.setting("Langage"), "English");
}

TEST_F(KeyboardTest, ADroppedConsistOpensAfterTheQuestion) {
    test.files.put("\\given\\given.con",
                   encodeConsist(std::string(ConsistSignature) +
                                 "\r\nTrain (\r\nTrainCfg ( given\r\nEngine (\r\nUiD ( 7 )\r\n"
                                 "EngineData ( bb1 BB )\r\n)\r\n)\r\n)\r\n"));
    build({"CC 6500"});
    state.Modified = true;
    test.dialogs.answers = {answer::Yes, answer::Ok};
    dropFile("/given/given.con");
    EXPECT_EQ(vehicles(), Names{"CC 6500"}) << "the save that was wanted had no name";
    test.dialogs.answers = {answer::No};
    dropFile("/given/given.con");
    EXPECT_EQ(vehicles(), Names{"BB 9288"});
    test.dialogs.shown.clear();
    dropFile("/given/readme.txt");
    EXPECT_TRUE(test.dialogs.shown.empty());
}

TEST_F(KeyboardTest, TheWindowComesBackWhereItWas) {
    window->resize(1100, 650);
    QTest::qWait(1);
    window->close();
    frmPrincipal next(editor);
    EXPECT_EQ(next.size(), QSize(1100, 650).boundedTo(next.screen()->availableSize()));
    writeWindowPlace(test.frame, "Window", "Main", {90000, 0, 1200, 700, false}); // of a screen that is gone
    frmPrincipal other(editor);
    EXPECT_TRUE(QGuiApplication::screenAt(other.geometry().center()));
}

} // namespace
} // namespace zandor
