#include "catalogue/catalogue.h"
#include "catalogue/messages.h"
#include "catalogue/passed_over.h"
#include "platform/read_ahead.h"

#include <algorithm>
#include <optional>

namespace zandor {

namespace {

void setPath(std::string& path, const Materiel& materiel) {
    path.assign(materiel.BasePath).append(materiel.Folder).append(1, '\\').append(materiel.FileName);
}

// What was found in a file whose turn may not have come yet.
struct StockAhead {
    Materiel read;
    bool passedOver = false;
    bool lackedMemory = false;
    bool needsRepair = false;
};

// Reads stock files as the settings want it. Keeps its storage from file to file.
class StockFiles {
  public:
    StockFiles(FileSystem& files, bool full) : reader_(files), quick_(files), full_(full) {}

    // What is wrong with a file is the verifier's business; its entry keeps what could be read.
    void read(const Materiel& materiel, NameRepair repair, StockAhead& ahead) {
        clearReadFields(ahead.read);
        if (full_)
            readFull(materiel, repair, ahead);
        else
            readQuickly(materiel, ahead);
    }

  private:
    void readFull(const Materiel& materiel, NameRepair repair, StockAhead& ahead) {
        setPath(path_, materiel);
        const StockReading reading = ReadStockFile(reader_, path_, ahead.read, repair);
        ahead.passedOver = isPassedOver(reading.answer.outcome);
        ahead.lackedMemory = reading.answer.outcome == ReadOutcome::NoMemory;
        ahead.needsRepair = reading.needsRepair && reading.answer.sound();
    }
    void readQuickly(const Materiel& materiel, StockAhead& ahead) {
        ahead.read.BasePath = materiel.BasePath;
        ahead.read.Folder = materiel.Folder;
        ahead.read.FileName = materiel.FileName;
        const ReadResult result = quick_.QuickReadStock(ahead.read);
        ahead.passedOver = isPassedOver(result);
        ahead.lackedMemory = result == ReadResult::NoMemory;
        ahead.needsRepair = false;
    }

    SimReader reader_;
    QuickStockReader quick_;
    std::string path_;
    bool full_;
};

// A thread's own way to the stock files. It writes none: one that needs it is repaired in its turn. One for
// which no memory was left may have it then, when fewer are read.
class StockThread final : public AheadReader {
  public:
    StockThread(FileSystem& door, bool full, const std::vector<Materiel>& materiels,
                std::vector<StockAhead>& ring)
        : files_(door, full), materiels_(materiels), ring_(ring) {}

    void read(std::size_t file) override {
        files_.read(materiels_[file], NameRepair::Never, ring_[file % ring_.size()]);
    }

  private:
    StockFiles files_;
    const std::vector<Materiel>& materiels_; // of which it looks at the names
    std::vector<StockAhead>& ring_;
};

class StockLoad final : public AheadWork {
  public:
    StockLoad(Frame& frame, Catalogue& catalogue, NameRepair repair)
        : frame_(frame), catalogue_(catalogue), materiels_(catalogue.here().Materiels), repair_(repair),
          ring_(std::min(materiels_.size(), MostAhead)), shown_(frame.text(message::ReadingStock) + " "),
          shownPrefix_(shown_.size()) {}

    std::unique_ptr<AheadReader> makeReader(FileSystem& door) override {
        return std::make_unique<StockThread>(door, frame_.state.Optimize, materiels_, ring_);
    }
    bool goOn() override { return frame_.progress.yield(); }
    void turnOf(std::size_t file) override {
        setPath(path_, materiels_[file]);
        frame_.progress.atFile(path_);
    }
    void take(std::size_t file) override {
        Materiel& materiel = materiels_[file];
        StockAhead& ahead = ring_[file % ring_.size()];
        if (ahead.lackedMemory || (ahead.needsRepair && repair_ == NameRepair::Allowed))
            readAgain(materiel, ahead);
        moveReadFields(ahead.read, materiel);
        if (ahead.passedOver)
            catalogue_.passedOver.push_back(path_);
        shown_.replace(shownPrefix_, std::string::npos, materiel.FileName);
        frame_.progress.ShowProgress(0, static_cast<int>(materiels_.size()) - 1, static_cast<int>(file),
                                     shown_);
    }

  private:
    void readAgain(const Materiel& materiel, StockAhead& ahead) {
        if (!own_)
            own_.emplace(frame_.files, frame_.state.Optimize);
        own_->read(materiel, repair_, ahead);
    }

    Frame& frame_;
    Catalogue& catalogue_;
    std::vector<Materiel>& materiels_;
    NameRepair repair_;
    std::vector<StockAhead> ring_;
    std::optional<StockFiles> own_; // the caller's thread's, when a file needs it
    std::string path_, shown_;      // of the file whose turn it is; storage used again
    std::size_t shownPrefix_;
};

} // namespace

bool readAllStock(Frame& frame, Catalogue& catalogue, LoadOptions options) {
    StockLoad load(frame, catalogue, options.repair);
    return readAhead(frame.files, catalogue.here().Materiels.size(), options.threads, load);
}

} // namespace zandor
