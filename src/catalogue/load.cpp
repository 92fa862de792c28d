#include "catalogue/catalogue.h"
#include "catalogue/messages.h"
#include "catalogue/passed_over.h"
#include "catalogue/thumbnails.h"

namespace zandor {

namespace {

// A path and a progress text that keep their storage from one stock file to the next.
struct ReadingTexts {
    std::string path;
    std::string shown;
    std::size_t shownPrefix = 0;

    explicit ReadingTexts(const std::string& prefix) : shown(prefix + " "), shownPrefix(shown.size()) {}

    void moveTo(const Materiel& materiel) {
        path.assign(materiel.BasePath).append(materiel.Folder).append(1, '\\').append(materiel.FileName);
        shown.resize(shownPrefix);
        shown += materiel.FileName;
    }
};

// At the start the consists are read only for those who want to see what is unused; a later reload keeps what
// that scan found.
bool loadConsists(Frame& frame, Catalogue& catalogue, const std::string& stepDone) {
    const bool scan = !frame.state.MainReady && frame.state.PrintGreen;
    if (scan && !ScanConsists(frame, catalogue))
        return false;
    if (!scan)
        ListConsistFiles(frame, catalogue, frame.state.roots.RootPrimary());
    if (scan || frame.state.MainReady)
        frame.progress.ShowProgress(0, 255, 0, stepDone);
    return true;
}

// At the start alone, for those who want their thumbnails kept in order.
bool wantsThumbnailControl(Frame& frame, const Catalogue& catalogue) {
    return !frame.state.MainReady && catalogue.pictureFolders == PictureFolders::MadeAsNeeded &&
           readFlag(frame.profiles, "ControlThumbnails", frame.state.IniPath);
}

bool loadSteps(Frame& frame, Catalogue& catalogue, LoadOptions options) {
    const std::string stepDone = frame.text(message::StepDone);
    const auto markStep = [&] { frame.progress.ShowProgress(0, 255, 0, stepDone); };
    ReadBitmapList(frame, catalogue);
    markStep();
    if (!loadConsists(frame, catalogue, stepDone))
        return false;
    const std::vector<std::string> folders =
        ListStockFolders(frame, trainsetPath(frame.state.roots.RootPrimary()), true);
    markStep();
    if (!ScanStockFiles(frame, catalogue, folders))
        return false;
    markStep();
    if (wantsThumbnailControl(frame, catalogue)) {
        if (!ControlThumbnails(frame, catalogue))
            return false;
        markStep();
    }
    if (!readAllStock(frame, catalogue, options))
        return false;
    markStep();
    return true;
}

} // namespace

void forgetSummaries(RootCatalogue& catalogue) {
    catalogue.ConsistSummaries.clear();
    catalogue.summariesRead = false;
}

std::string trainsetPath(std::string_view root) {
    return std::string(root) + "\\TRAINS\\TRAINSET\\";
}

std::string consistsPath(std::string_view root) {
    return std::string(root) + "\\TRAINS\\CONSISTS\\";
}

bool LoadCatalogue(Frame& frame, Catalogue& catalogue, LoadOptions options) {
    catalogue.pictureFolders = options.pictureFolders;
    catalogue.current = frame.state.roots.first;
    RootCatalogue& root = catalogue.here();
    root.loadedFrom.clear();
    forgetSummaries(root);
    catalogue.passedOver.clear();
    const bool complete = loadSteps(frame, catalogue, options);
    if (complete) {
        root.loadedFrom = frame.state.roots.RootPrimary();
        tellPassedOver(frame, catalogue);
    }
    frame.state.Busy = false;
    return complete;
}

bool readAllStock(Frame& frame, Catalogue& catalogue, LoadOptions options) {
    SimReader reader(frame.files);
    QuickStockReader quick(frame.files);
    ReadingTexts texts(frame.text(message::ReadingStock));
    std::vector<Materiel>& materiels = catalogue.here().Materiels;
    const int last = static_cast<int>(materiels.size()) - 1;
    int index = 0;
    for (Materiel& materiel : materiels) {
        if (!frame.progress.yield())
            return false;
        texts.moveTo(materiel);
        frame.progress.atFile(texts.path);
        // What is wrong with a file is the verifier's business; its entry keeps what could be read.
        if (frame.state.Optimize)
            notePassedOver(catalogue, texts.path,
                           ReadStockFile(reader, texts.path, materiel, options.repair).answer.outcome);
        else
            notePassedOver(catalogue, texts.path, quick.QuickReadStock(materiel));
        frame.progress.ShowProgress(0, last, index++, texts.shown);
    }
    return true;
}

bool reloadCatalogue(Frame& frame, Catalogue& catalogue) {
    const RootCatalogue& wanted = catalogue.of(frame.state.roots.first);
    if (!wanted.loadedFrom.empty() && equalIgnoringCase(wanted.loadedFrom, frame.state.roots.RootPrimary())) {
        catalogue.current = frame.state.roots.first;
        frame.state.Busy = false;
        return true;
    }
    catalogue.of(frame.state.roots.first).RamesEnService.clear();
    if (!LoadCatalogue(frame, catalogue))
        return false;
    frame.progress.ShowProgress(0, 255, 0, frame.text(message::StepDone));
    return true;
}

} // namespace zandor
