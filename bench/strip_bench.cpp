// zandor-strip-bench: a redraw of a strip of 100 vehicles with its pictures in memory, beside copying those
// pictures alone, at three resolutions. Median of 41 each. The aim is 16 ms, one frame of a screen.
#include "bench_session.h"

#include "editor/windows/picture_store.h"
#include "editor/windows/strip_painter.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace zandor::bench {

namespace {

constexpr int Vehicles = 100, Runs = 41, ViewWidth = 800;

template <class Work> double medianMs(Work work) {
    std::array<double, Runs> times;
    for (double& time : times) {
        QElapsedTimer timer;
        timer.start();
        work();
        time = double(timer.nsecsElapsed()) / 1e6;
    }
    std::ranges::sort(times);
    return times[Runs / 2];
}

void addStock(Catalogue& catalogue, const char* name, const char* type, const char* engine,
              const char* coupling) {
    Materiel& stock = catalogue.here().Materiels.back();
    stock.FileName = stock.EngineName = stock.WagonName = name;
    stock.Type = type;
    stock.EngineType = engine;
    stock.Coupling = coupling;
    stock.BrakeSystem = "Air_Twin_Pipe";
    stock.Size = "3m 4m 18m";
    stock.Mass = "80t";
    catalogue.here().Materiels.emplace_back();
}

void compose(Editor& editor) {
    addStock(editor.catalogue, "Electric engine of some length", "Engine", "Electric", "Automatic");
    addStock(editor.catalogue, "Diesel", "Engine", "Diesel", "Chain");
    addStock(editor.catalogue, "First class coach", "Carriage", "", "Chain_Bar");
    addStock(editor.catalogue, "Hopper", "Freight", "", "Bar");
    addStock(editor.catalogue, "Tender", "Tender", "", "Automatic");
    initialiseDocument(editor);
    for (int i = 0; i < Vehicles; ++i)
        if (!appendStock(editor, i % 5).done)
            std::abort();
    for (int i = 0; i < Vehicles; i += 3)
        editor.document.Vehicules[std::size_t(i)].Flipped = true;
}

void copyPictures(QPixmap& target, const std::vector<StripStep>& steps, PictureStore& pictures,
                  double ratio) {
    QPainter painter(&target);
    painter.fillRect(target.rect(), Qt::blue);
    for (const StripStep& step : steps)
        if (const auto* copy = std::get_if<CopyPicture>(&step)) {
            const int left = qRound(copy->area.left * ratio);
            const QSize size(qRound((copy->area.left + copy->area.width) * ratio) - left,
                             qRound(copy->area.height * ratio));
            painter.drawPixmap(left, 0, pictures.scaled(copy->picture, size, copy->mirrored));
        }
}

void measure(Editor& editor, double ratio) {
    PictureStore pictures(editor.frame.files);
    const QFont font = QApplication::font();
    const FontMeasure letters(font);
    StripPicture strip;
    const auto redraw = [&] {
        pictures.beginRedraw();
        strip.carryOut(DrawStrip(editor, pictures, letters, ViewWidth), pictures, font, ratio);
    };
    redraw();
    const double whole = medianMs(redraw);
    const auto steps = DrawStrip(editor, pictures, letters, ViewWidth);
    QPixmap target(strip.pixmap().size());
    const double copies = medianMs([&] { copyPictures(target, steps, pictures, ratio); });
    QPixmap shown(QSize(1000, StripHeight) * ratio);
    shown.setDevicePixelRatio(ratio);
    const double scroll = medianMs([&] {
        QPainter painter(&shown);
        strip.ShowStrip(painter, {1000, StripHeight}, 777);
    });
    std::printf("%3.0f %%  redraw %6.2f ms  %5.2f times the copying alone (%.2f ms)   scroll %.3f ms\n",
                ratio * 100, whole, whole / copies, copies, scroll);
}

} // namespace

} // namespace zandor::bench

int main(int argc, char** argv) {
    using namespace zandor::bench;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Session session("\\none");
    session.state.NoAlertCoupling = session.state.PrintName = true;
    zandor::ConsistDocument document;
    zandor::Editor editor{session.frame, session.catalogue, document};
    compose(editor);
    for (const double ratio : {1.0, 1.5, 2.0})
        measure(editor, ratio);
    return 0;
}
