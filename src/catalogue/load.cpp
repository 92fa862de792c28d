#include "catalogue/catalogue.h"
#include "catalogue/messages.h"
#include "catalogue/passed_over.h"
#include "catalogue/routes.h"
#include "catalogue/thumbnails.h"

namespace zandor {

namespace {

// At the start the consists are read only for those who want to see what is unused; a later reload keeps what
// that scan found.
bool loadConsists(Frame& frame, Catalogue& catalogue, LoadOptions options, const std::string& stepDone) {
    const bool scan = !frame.state.MainReady && frame.state.PrintGreen;
    if (scan && !ScanConsists(frame, catalogue, options))
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
    if (!ReadRoutes(frame, catalogue, options))
        return false;
    markStep();
    if (!ReadServicesActivites(frame, catalogue, options))
        return false;
    markStep();
    ReadBitmapList(frame, catalogue);
    markStep();
    if (!loadConsists(frame, catalogue, options, stepDone))
        return false;
    const std::vector<std::string> folders =
        ListStockFolders(frame, trainsetPath(frame.state.roots.RootPrimary()), true);
    markStep();
    if (!ScanStockFiles(frame, catalogue, folders, options))
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

bool reloadCatalogue(Frame& frame, Catalogue& catalogue) {
    const RootCatalogue& wanted = catalogue.of(frame.state.roots.first);
    if (!wanted.loadedFrom.empty() && equalIgnoringCase(wanted.loadedFrom, frame.state.roots.RootPrimary())) {
        catalogue.current = frame.state.roots.first;
        frame.state.Busy = false;
        return true;
    }
    if (!LoadCatalogue(frame, catalogue))
        return false;
    frame.progress.ShowProgress(0, 255, 0, frame.text(message::StepDone));
    return true;
}

} // namespace zandor
