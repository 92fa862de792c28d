// The main window over a small simulator folder, and hands to use it with.
#pragma once

#include "editor/consist_io.h"
#include "editor/windows/principal.h"
#include "editor/windows/stock_view.h"
#include "editor/windows/strip_view.h"
#include "simfiles/consist_file.h"
#include "support/fakes.h"
#include "text/decode.h"

#include <QComboBox>
#include <QDialog>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zandor {

struct StockSample {
    const char *folder, *file, *type, *engineType, *name, *coupling, *brakes;
};
inline constexpr StockSample Samples[] = {
    {"BB", "bb1.eng", "Engine", "Electric", "BB 9288", "Chain", "Air_twin_pipe"},
    {"BB", "bb2.eng", "Engine", "Electric", "CC 6500", "Chain", "Air_single_pipe"},
    {"DD", "dd1.eng", "Engine", "Diesel", "BB 67400", "Automatic", "Vacuum_single_pipe"},
    {"Cars", "car1.wag", "Carriage", "", "Voiture Corail", "Chain", "Air_twin_pipe"},
    {"Cars", "wag1.wag", "Freight", "", "Wagon plat", "Bar", "EP"},
};

inline std::string stockText(const StockSample& s) {
    const std::string line = "\r\n";
    std::string text = std::string(ConsistSignature) + line + line + "Wagon ( " + s.file + line + "Type ( " +
                       (*s.engineType ? "Engine" : s.type) + " )" + line + "Name ( \"" + s.name + "\" )" +
                       line + "Size ( 3m 4m 18.5m )" + line + "Mass ( 80t )" + line + "Coupling (" + line +
                       "Type ( " + s.coupling + " )" + line + ")" + line + "BrakeSystemType ( \"" + s.brakes +
                       "\" )" + line + ")" + line;
    if (*s.engineType)
        text += std::string("Engine ( ") + s.file + line + "Type ( " + s.engineType + " )" + line +
                "Name ( \"" + s.name + "\" )" + line + "CabView ( " + s.file + ".cvf )" + line + ")" + line;
    return encodeConsist(text);
}

struct WindowTest : ::testing::Test {
    TestFrame test;
    AppState& state = test.state;
    Catalogue catalogue;
    ConsistDocument document;
    Editor editor{test.frame, catalogue, document};
    std::unique_ptr<frmPrincipal> window;

    WindowTest() {
        state.roots.RootMSTS = "C:\\MSTS";
        state.PrintName = state.PrintGreen = state.Optimize = true;
        test.set("NewFile", "0");
        for (const StockSample& sample : Samples)
            test.files.put(trainsetPath(state.roots.RootMSTS) + sample.folder + "\\" + sample.file,
                           stockText(sample));
        test.files.put(consistsPath(state.roots.RootMSTS) + "empty.txt", "");
        LoadCatalogue(test.frame, catalogue);
        initialiseDocument(editor);
        window = std::make_unique<frmPrincipal>(editor);
        state.MainReady = true;
        window->resize(1024, 700);
        window->show();
        QTest::qWait(1);
    }

    template <class Widget> Widget& get(const char* name) {
        auto* found = window->findChild<Widget*>(name);
        if (!found)
            throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }
    StripView& strip() { return get<StripView>("PicRAME"); }
    StockView& list() { return get<StockView>("lstViewMATERIEL"); }
    void press(const char* button) { QTest::mouseClick(&get<QPushButton>(button), Qt::LeftButton); }

    int stockIndex(std::string_view name) const {
        for (std::size_t i = 0; i < catalogue.here().Materiels.size(); ++i)
            if (shownName(catalogue.here().Materiels[i]) == name)
                return static_cast<int>(i);
        ADD_FAILURE() << "no stock " << name;
        return -1;
    }
    // A strip of these, without unsaved changes, none selected.
    void build(std::initializer_list<const char*> names) {
        state.NoAlertCoupling = true;
        for (const char* name : names)
            EXPECT_TRUE(appendStock(editor, stockIndex(name)).done);
        document.Modified = false;
        document.selected = -1;
        window->refresh();
    }
    std::vector<std::string> vehicles() const {
        std::vector<std::string> names;
        for (const Vehicule& vehicule : document.Vehicules)
            names.push_back(vehicule.Name);
        return names;
    }
    std::vector<std::string> listed() {
        std::vector<std::string> names;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            names.push_back(list().model()->index(row, 0).data().toString().toStdString());
        return names;
    }

    std::string selected() const {
        return document.selected < 0 ? ""
                                     : document.Vehicules[static_cast<std::size_t>(document.selected)].Name;
    }

    // ---- the mouse
    static QPoint onVehicle(int position) {
        return {position * PlainPictureWidth + PlainPictureWidth / 2, 60};
    }
    static QPoint behind(int count) { return {count * PlainPictureWidth + 40, 60}; }
    void drag(QPoint from, QPoint to) { // both in the strip's coordinates
        QTest::mousePress(&strip(), Qt::LeftButton, {}, from);
        moveHeld(from + QPoint(15, 0));
        moveHeld(to);
        QTest::mouseRelease(&strip(), Qt::LeftButton, {}, to);
    }
    void moveHeld(QPoint to) {
        QMouseEvent move(QEvent::MouseMove, to, strip().mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&strip(), &move);
    }
    QPoint fromWindow(QWidget& widget) {
        return strip().mapFromGlobal(widget.mapToGlobal(widget.rect().center()));
    }

    // ---- a row of the list over the strip
    std::unique_ptr<QMimeData> dragged(std::string_view name) const {
        auto data = std::make_unique<QMimeData>();
        data->setData(StockModel::MimeType, QByteArray::number(stockIndex(name)));
        return data;
    }
    bool enterStrip(QMimeData& data, QPoint at) {
        QDragEnterEvent event(at, Qt::CopyAction, &data, Qt::LeftButton, {});
        event.ignore();
        QApplication::sendEvent(&strip(), &event);
        return event.isAccepted();
    }
    void leaveStrip() {
        QDragLeaveEvent event;
        QApplication::sendEvent(&strip(), &event);
    }
    void dropOnStrip(QMimeData& data, QPoint at) {
        QDropEvent event(at, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&strip(), &event);
        QTest::qWait(5); // the drop waits for the end of the system's drag
    }
    // What the next dialog that lists the consists gets to do, once they are listed.
    void answerOpen(std::function<void(QDialog&)> act) {
        auto* waiting = new QTimer(window.get());
        QObject::connect(waiting, &QTimer::timeout, window.get(), [waiting, act = std::move(act)] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->findChild<QPushButton*>("cmdOPEN")->isEnabled())
                return;
            waiting->deleteLater();
            waiting->stop();
            act(*dialog);
        });
        waiting->start(20);
    }
    QColor pixel(QPoint at) { return strip().grab().toImage().pixelColor(at); }
};

using Names = std::vector<std::string>;

} // namespace zandor
