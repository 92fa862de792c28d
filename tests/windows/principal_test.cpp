#include "windows/window_fixture.h"

#include <QHeaderView>
#include <QScrollArea>

namespace zandor {
namespace {

TEST_F(WindowTest, ACommandThatLeadsNowhereIsNotOffered) {
    EXPECT_FALSE(get<QPushButton>("cmdDELETE").isVisible());
}

constexpr const char* Languages[] = {"Français", "English", "Deutsch", "Italiano", "Español", "Nederlands"};

// A screen of 1280 x 800 at 200 and 150 % less the window's frame; and a common one.
TEST_F(WindowTest, NothingIsCutOnALowScreenInAnyLanguage) {
    build({"BB 9288", "CC 6500", "BB 67400"}); // a long line of totals
    for (const char* language : Languages) {
        state.Language = language;
        window->applyLanguage();
        for (const QSize size : {QSize(632, 366), QSize(845, 499), QSize(1024, 700)}) {
            window->resize(size);
            QTest::qWait(1);
            window->resize(size); // a second row of buttons may have come or gone
            QTest::qWait(1);
            EXPECT_EQ(window->size(), size) << language;
            EXPECT_EQ(strip().visibleRegion().boundingRect(), strip().rect()) << language;
            for (QPushButton* button : window->findChildren<QPushButton*>()) {
                EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
                EXPECT_FALSE(button->text().isEmpty() && button->icon().isNull())
                    << language << " " << button->objectName().toStdString();
                const QRect seen =
                    button->isVisible() ? button->visibleRegion().boundingRect() : button->rect();
                EXPECT_EQ(seen, button->rect()) << language << " " << button->text().toStdString();
            }
            for (const char* name : {"lblNAME", "lblFULL_NAME", "lblSLIDER", "lblCLASS", "lblRESISTANCE"})
                EXPECT_GE(get<QLabel>(name).width(), get<QLabel>(name).minimumSizeHint().width()) << name;
            for (const QScrollArea* area : window->findChildren<QScrollArea*>()) {
                EXPECT_LE(area->widget()->width(), area->viewport()->width()) << language;
                const bool scrolls = area->widget()->height() > area->viewport()->height();
                EXPECT_FALSE(scrolls && size.height() >= 499) << language << " " << size.height();
            }
        }
    }
}

// ---- the stock list

TEST_F(WindowTest, EachClassListsItsStockAndShowsTheFirst) {
    struct Case {
        int classIndex;
        Names names;
    };
    const Case cases[] = {
        {1, {"BB 67400"}}, {3, {"Voiture Corail"}}, {4, {"Wagon plat"}}, {0, {"BB 9288", "CC 6500"}}};
    for (const Case& c : cases) {
        get<QComboBox>("cmbMATERIEL").setCurrentIndex(c.classIndex);
        EXPECT_EQ(listed(), c.names);
        EXPECT_EQ(get<QLabel>("tbSELECT").text().trimmed().toStdString(), c.names[0]);
    }
    get<QComboBox>("cmbMATERIEL").setCurrentIndex(2); // no steam engine: the panel stays
    EXPECT_EQ(listed(), Names());
    EXPECT_EQ(get<QLabel>("tbSELECT").text().trimmed(), "BB 9288");
}

TEST_F(WindowTest, ArrowKeysShowTheNextStock) {
    QTest::keyClick(&list(), Qt::Key_Down);
    EXPECT_EQ(get<QLabel>("tbSELECT").text().trimmed(), "CC 6500");
    EXPECT_EQ(get<QLabel>("tbPATH").text(), "BB\\bb2.eng");
    EXPECT_FALSE(get<QLabel>("lblFreins").text().isEmpty());
    EXPECT_FALSE(get<QLabel>("lblLONGUEUR").text().isEmpty());
}

TEST_F(WindowTest, ColumnClicksTurnTheOrderRoundAndKeepTheSelection) {
    const int chosen = list().currentStock();
    QHeaderView& header = *list().header();
    for (const Names& order : {Names{"CC 6500", "BB 9288"}, Names{"BB 9288", "CC 6500"}}) {
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, {20, header.height() / 2});
        EXPECT_EQ(listed(), order);
        EXPECT_EQ(list().currentStock(), chosen);
    }
}

TEST_F(WindowTest, NamesStandInTheOrderOfTheLanguage) {
    const Materiel sample = catalogue.here().Materiels[stockIndex("BB 9288")];
    catalogue.here().Materiels.clear();
    for (const char* name : {"BB 10", "bb 9", "Zug", "Nz", "Ña", "élan", "Elm", "Ela", "BB 9", "BB 007"}) {
        catalogue.here().Materiels.push_back(sample);
        catalogue.here().Materiels.back().EngineName = name;
    }
    window->chooseLanguage("English");
    window->fillStockList();
    const Names english = {"BB 007", "bb 9", "BB 9", "BB 10", "Ela", "élan", "Elm", "Ña", "Nz", "Zug"};
    EXPECT_EQ(listed(), english);
    const int chosen = list().currentStock();
    window->chooseLanguage("Español");
    EXPECT_EQ(list().currentStock(), chosen);
    EXPECT_EQ(listed(), (Names{"BB 007", "bb 9", "BB 9", "BB 10", "Ela", "élan", "Elm", "Nz", "Ña", "Zug"}));
    list().model()->sort(0, Qt::DescendingOrder);
    EXPECT_EQ(listed(), (Names{"Zug", "Ña", "Nz", "Elm", "élan", "Ela", "BB 10", "bb 9", "BB 9", "BB 007"}));
}

TEST_F(WindowTest, UnusedStockIsGreenUntilAConsistUsesIt) {
    const auto colour = [this](int row) {
        return list().model()->index(row, 0).data(Qt::ForegroundRole).value<QColor>();
    };
    EXPECT_EQ(colour(0), QColor(0, 128, 0));
    build({"BB 9288"});
    QTest::keyClicks(&get<QLineEdit>("tbFULL_NAME"), "Used");
    press("cmdSAVE");
    EXPECT_NE(colour(0), QColor(0, 128, 0));
    EXPECT_EQ(colour(1), QColor(0, 128, 0));
}

TEST_F(WindowTest, DoubleClickAndEnterAppend) {
    const QPoint row = list().visualRect(list().model()->index(1, 0)).center();
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, row);
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, row);
    QTest::keyClick(&list(), Qt::Key_Up);
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(vehicles(), (Names{"CC 6500", "BB 9288"}));
    EXPECT_TRUE(get<QLabel>("lblSTATUS").text().contains("BB 9288"));
    EXPECT_TRUE(get<QPushButton>("cmdSAVE").isEnabled());
    EXPECT_FALSE(get<QLabel>("lblLongueurNewRame").text().isEmpty());
}

// ---- from the list to the strip

TEST_F(WindowTest, ADropOnTheEmptyStripBeginsIt) {
    const auto data = dragged("BB 9288");
    enterStrip(*data, {300, 50});
    dropOnStrip(*data, {300, 50});
    EXPECT_EQ(vehicles(), Names{"BB 9288"});
}

TEST_F(WindowTest, AForeignDragIsRefused) {
    QMimeData text;
    text.setText("KEY_1");
    EXPECT_FALSE(enterStrip(text, {10, 10}));
    text.setData(StockModel::MimeType, "KEY_");
    EXPECT_FALSE(enterStrip(text, {10, 10}));
}

TEST_F(WindowTest, ADragThatEndedElsewhereLeavesNothing) {
    build({"BB 9288", "CC 6500"});
    const auto data = dragged("BB 67400");
    enterStrip(*data, onVehicle(0));
    leaveStrip();
    emit list().dragEnded();
    EXPECT_FALSE(document.DragActive);
    list().selectStock(stockIndex("CC 6500"));
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(vehicles(), (Names{"BB 9288", "CC 6500", "CC 6500"}));
}

TEST_F(WindowTest, ARefusedCouplingIsToldOnceAndChangesNothing) {
    build({"BB 9288"});
    state.NoAlertCoupling = false;
    state.PassIsBadCoupling = true;
    const auto data = dragged("BB 67400");
    enterStrip(*data, behind(1));
    dropOnStrip(*data, behind(1));
    EXPECT_EQ(test.dialogs.shown.size(), 1u);
    EXPECT_EQ(vehicles(), Names{"BB 9288"});
    EXPECT_FALSE(document.Modified);
}

TEST_F(WindowTest, BehindAMessageEveryPaneShowsWhatItSpeaksOf) {
    build({"BB 9288"});
    state.NoAlertCoupling = false;
    const QString totals = get<QLabel>("lblLongueurNewRame").text();
    int messages = 0;
    test.dialogs.whenShown = [&] {
        ++messages;
        EXPECT_TRUE(get<QLabel>("lblSTATUS").text().contains("BB 67400"));
        EXPECT_NE(get<QLabel>("lblLongueurNewRame").text(), totals);
        EXPECT_TRUE(get<QPushButton>("cmdSAVE").isEnabled());
    };
    emit list().chosen(stockIndex("BB 67400"));
    EXPECT_EQ(messages, 1);
    EXPECT_EQ(vehicles(), (Names{"BB 9288", "BB 67400"}));
}

// ---- the mouse on the strip

TEST_F(WindowTest, VehiclesAreMovedAndThrownAway) {
    const QPoint away(200, 400); // far below the strip
    struct Case {
        const char* what;
        QPoint from, to;
        Names after;
        const char* selected;
        bool modified;
    };
    const Case cases[] = {
        {"to the right", onVehicle(0), onVehicle(2), {"CC 6500", "BB 9288", "BB 67400"}, "BB 9288", true},
        {"to the end", onVehicle(0), behind(3), {"CC 6500", "BB 67400", "BB 9288"}, "BB 9288", true},
        {"to the front", onVehicle(2), onVehicle(0), {"BB 67400", "BB 9288", "CC 6500"}, "BB 67400", true},
        {"onto its neighbour's left",
         onVehicle(0),
         onVehicle(1),
         {"BB 9288", "CC 6500", "BB 67400"},
         "BB 9288",
         false},
        {"onto itself", onVehicle(1), onVehicle(1), {"BB 9288", "CC 6500", "BB 67400"}, "CC 6500", false},
        {"away", onVehicle(1), away, {"BB 9288", "BB 67400"}, "BB 67400", true},
        {"the last away", onVehicle(2), away, {"BB 9288", "CC 6500"}, "CC 6500", true},
    };
    for (const Case& c : cases) {
        initialiseDocument(editor);
        build({"BB 9288", "CC 6500", "BB 67400"});
        drag(c.from, c.to);
        EXPECT_EQ(vehicles(), c.after) << c.what;
        EXPECT_EQ(document.Modified, c.modified) << c.what;
        EXPECT_EQ(selected(), c.selected) << c.what;
        EXPECT_TRUE(get<QLabel>("lblSTATUS").text().contains(c.selected)) << c.what;
        EXPECT_FALSE(document.DragActive) << c.what;
        EXPECT_TRUE(test.dialogs.shown.empty()) << c.what;
        document.Modified = false;
    }
}

TEST_F(WindowTest, ATremblingClickMovesNothing) {
    build({"BB 9288", "CC 6500"});
    const QPoint edge(PlainPictureWidth - 2, 60);
    QTest::mousePress(&strip(), Qt::LeftButton, {}, edge);
    moveHeld(edge + QPoint(3, 0));
    QTest::mouseRelease(&strip(), Qt::LeftButton, {}, edge + QPoint(3, 0));
    EXPECT_EQ(vehicles(), (Names{"BB 9288", "CC 6500"}));
    EXPECT_FALSE(document.Modified);
}

TEST_F(WindowTest, EscapeAndLostFocusPutAHeldVehicleBack) {
    build({"BB 9288", "CC 6500"});
    for (const bool byKey : {true, false}) {
        QTest::mousePress(&strip(), Qt::LeftButton, {}, onVehicle(0));
        moveHeld(onVehicle(0) + QPoint(0, 300));
        if (byKey)
            QTest::keyClick(&strip(), Qt::Key_Escape);
        else
            list().setFocus();
        EXPECT_FALSE(strip().dragging());
        EXPECT_FALSE(QApplication::overrideCursor());
        QTest::mouseRelease(&strip(), Qt::LeftButton, {}, onVehicle(0) + QPoint(0, 300));
        EXPECT_EQ(vehicles(), (Names{"BB 9288", "CC 6500"})) << byKey;
    }
}

// The bin wherever letting go throws the vehicle away, and nowhere else.
TEST_F(WindowTest, ThePointerShowsWhatLettingGoWouldDo) {
    const QWidget& preview = get<QWidget>("picPREVIEW");
    const auto ofPreview = [&](QPoint at) { return strip().mapFromGlobal(preview.mapToGlobal(at)); };
    struct Case {
        const char* what;
        QPoint at;
        bool thrownAway;
    };
    const Case cases[] = {
        {"a little further", onVehicle(0) + QPoint(20, 0), false},
        {"the strip's last line", {30, strip().height() - 1}, false},
        {"under it", {30, strip().height()}, true},
        {"far below", {5, 400}, true},
        {"the preview", ofPreview(preview.rect().center()), false},
        {"its corner", ofPreview({0, 0}), false},
        {"left of it", ofPreview({-1, 20}), true},
        {"above it", ofPreview({20, -1}), true},
        {"right of it", ofPreview({preview.width(), 20}), true},
        {"between it and the strip", ofPreview({20, preview.height()}), true},
    };
    for (const Case& c : cases) {
        initialiseDocument(editor);
        build({"BB 9288"});
        QTest::mousePress(&strip(), Qt::LeftButton, {}, onVehicle(0));
        EXPECT_FALSE(QApplication::overrideCursor()) << "a hand at rest throws nothing away";
        moveHeld(c.at);
        ASSERT_TRUE(QApplication::overrideCursor()) << c.what;
        EXPECT_EQ(QApplication::overrideCursor()->shape() == Qt::BitmapCursor, c.thrownAway) << c.what;
        QTest::mouseRelease(&strip(), Qt::LeftButton, {}, c.at);
        EXPECT_FALSE(QApplication::overrideCursor()) << c.what;
        EXPECT_EQ(vehicles().empty(), c.thrownAway) << c.what;
        document.Modified = false;
    }
}

TEST_F(WindowTest, AHandThatTremblesOverTheEdgeRemovesNothing) {
    build({"BB 9288", "CC 6500"});
    const QPoint edge(onVehicle(0).x(), strip().height() - 1);
    QTest::mousePress(&strip(), Qt::LeftButton, {}, edge);
    QTest::mouseRelease(&strip(), Qt::LeftButton, {}, edge + QPoint(0, 3));
    EXPECT_EQ(vehicles().size(), 2u);
    EXPECT_FALSE(document.Modified);
}

TEST_F(WindowTest, LettersLookForNamesAlsoBehindAClickOnAnIcon) {
    const QModelIndex brakes = list().model()->index(0, 1);
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualRect(brakes).center());
    QTest::keyClicks(&list(), "cc");
    EXPECT_EQ(list().currentStock(), stockIndex("CC 6500"));
}

TEST_F(WindowTest, AVehicleOnThePreviewIsLookedUpInTheList) {
    build({"BB 9288", "Wagon plat"});
    drag(onVehicle(1), fromWindow(get<QWidget>("picPREVIEW")));
    EXPECT_EQ(get<QComboBox>("cmbMATERIEL").currentIndex(), 4);
    EXPECT_EQ(list().currentStock(), stockIndex("Wagon plat"));
    EXPECT_EQ(get<QLabel>("tbSELECT").text().trimmed(), "Wagon plat");
    EXPECT_EQ(vehicles().size(), 2u);
    EXPECT_FALSE(document.Modified);
}

TEST_F(WindowTest, TheRightButtonTurnsAVehicleRound) {
    build({"BB 9288", "CC 6500"});
    for (const bool flipped : {true, false}) {
        document.selected = 0;
        QTest::mouseClick(&strip(), Qt::RightButton, {}, onVehicle(1));
        EXPECT_EQ(document.Vehicules[1].Flipped, flipped);
        EXPECT_EQ(selected(), "CC 6500");
        EXPECT_TRUE(get<QLabel>("lblSTATUS").text().contains("CC 6500"));
    }
    EXPECT_TRUE(get<QPushButton>("cmdSAVE").isEnabled());
}

TEST_F(WindowTest, TheToolTipNamesTheVehicle) {
    build({"BB 9288", "CC 6500"});
    QTest::mouseMove(&strip(), onVehicle(1));
    EXPECT_EQ(strip().toolTip(), "CC 6500");
    QTest::mouseMove(&strip(), behind(2));
    EXPECT_EQ(strip().toolTip(), "");
}

TEST_F(WindowTest, ADragThatRestsAtTheEdgeScrolls) {
    for (int i = 0; i < 20; ++i)
        build({"BB 9288"});
    const QScrollBar& bar = get<QScrollBar>("HScrollRAME");
    const auto data = dragged("CC 6500");
    enterStrip(*data, {strip().width() - 5, 60});
    const int before = bar.value();
    QTest::qWait(200);
    EXPECT_GT(bar.value(), before);
    leaveStrip();
    const int after = bar.value();
    QTest::qWait(100);
    EXPECT_EQ(bar.value(), after);
}

// ---- names, durability, saving

TEST_F(WindowTest, TypedNamesKeepWhatAFileNameCanHold) {
    QLineEdit& shortName = get<QLineEdit>("tbNAME");
    QTest::keyClicks(&shortName, "a*b?c");
    EXPECT_EQ(shortName.text(), "abc");
    shortName.setCursorPosition(1);
    QTest::keyClicks(&shortName, ":X"); // a dropped key leaves the caret alone
    EXPECT_EQ(shortName.text(), "aXbc");
    QTest::keyClick(&shortName, Qt::Key_Backspace);
    EXPECT_EQ(shortName.text(), "abc");
    QTest::keyClicks(&get<QLineEdit>("tbFULL_NAME"), "Paris: <Lyon>");
    EXPECT_EQ(get<QLineEdit>("tbFULL_NAME").text(), "Paris: <Lyon>");
    EXPECT_EQ(shortName.text(), "Paris Lyon");
    EXPECT_FALSE(document.Modified) << "there is no vehicle yet";
}

TEST_F(WindowTest, TheSliderShowsItsForce) {
    QSlider& slider = get<QSlider>("Slider1");
    EXPECT_EQ(slider.value(), 1000);
    const QString full = get<QLabel>("lblRESISTANCE").text();
    EXPECT_TRUE(full.contains("29")) << full.toStdString();
    QTest::keyClick(&slider, Qt::Key_Home);
    EXPECT_EQ(document.controls.durability, 0);
    EXPECT_NE(get<QLabel>("lblRESISTANCE").text(), full);
}

TEST_F(WindowTest, OpenShowsTheConsistAndItsDoubleNameInRed) {
    const std::string path = consistsPath(state.roots.RootMSTS) + "other.con";
    test.files.put(
        path, encodeConsist(std::string(ConsistSignature) +
                            "\r\nTrain (\r\nTrainCfg ( inside\r\nName ( \"Full name\" )\r\n"
                            "Durability ( 0.50000 )\r\nEngine (\r\nUiD ( 7 )\r\nEngineData ( bb1 BB )\r\n)"
                            "\r\nWagon (\r\nWagonData ( gone Cars )\r\nUiD ( 8 )\r\n)\r\n)\r\n)\r\n"));
    LoadCatalogue(test.frame, catalogue);
    answerOpen(
        [](QDialog& dialog) { QTest::keyClick(dialog.findChild<QWidget*>("lsvCONSISTS"), Qt::Key_Return); });
    press("cmdOPEN");
    EXPECT_EQ(vehicles(), (Names{"BB 9288", "gone.wag"}));
    QLineEdit& shortName = get<QLineEdit>("tbNAME");
    EXPECT_EQ(shortName.text(), "inside - other.con");
    EXPECT_FALSE(shortName.isEnabled());
    EXPECT_EQ(shortName.palette().color(QPalette::Disabled, QPalette::Text), QColor(255, 0, 0));
    EXPECT_EQ(get<QLineEdit>("tbFULL_NAME").text(), "Full name");
    EXPECT_EQ(get<QSlider>("Slider1").value(), 500);
    EXPECT_FALSE(get<QPushButton>("cmdSAVE").isEnabled());
    press("cmdNEW");
    EXPECT_TRUE(shortName.isEnabled());
    EXPECT_NE(shortName.palette().color(QPalette::Text), QColor(255, 0, 0));
}

TEST_F(WindowTest, StockThatAConsistBringsIsListedAndTheSelectionStays) {
    const StockSample late = {"BB", "late.eng", "Engine", "Electric", "AA 1", "Chain", "EP"};
    test.files.put(trainsetPath(state.roots.RootMSTS) + "BB\\late.eng", stockText(late));
    const std::string path = consistsPath(state.roots.RootMSTS) + "late.con";
    test.files.put(path, encodeConsist(std::string(ConsistSignature) +
                                       "\r\nTrain (\r\nTrainCfg ( late\r\nEngine (\r\nUiD ( 0 )\r\n"
                                       "EngineData ( late BB )\r\n)\r\n)\r\n)\r\n"));
    list().selectStock(stockIndex("CC 6500"));
    ASSERT_TRUE(window->openFile(path));
    EXPECT_EQ(selected(), "AA 1");
    EXPECT_EQ(listed(), (Names{"AA 1", "BB 9288", "CC 6500"}));
    EXPECT_EQ(list().currentStock(), stockIndex("CC 6500"));
}

TEST_F(WindowTest, CloseWaitsForASaveThatDidNotHappen) {
    build({"BB 9288"});
    document.Modified = true;
    test.dialogs.answers = {answer::Yes}; // then the message that the name is missing
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(test.setting("InstallDir"), "");
    test.dialogs.answers = {answer::No};
    press("cmdCANCEL");
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(test.setting("InstallDir"), state.roots.RootMSTS);
}

TEST_F(WindowTest, AResizedWindowShowsAsMuchOfTheStrip) {
    for (int i = 0; i < 12; ++i)
        build({"BB 9288"});
    const int narrow = get<QScrollBar>("HScrollRAME").maximum();
    window->resize(1400, 800);
    QTest::qWait(1);
    EXPECT_EQ(get<QScrollBar>("HScrollRAME").pageStep(), strip().width()) << "the handle is as large";
    EXPECT_LT(get<QScrollBar>("HScrollRAME").maximum(), narrow);
    window->resize(1800, 800);
    QTest::qWait(1);
    EXPECT_FALSE(get<QScrollBar>("HScrollRAME").isEnabled());
}

} // namespace
} // namespace zandor
