#include "verify/ahead_stages.h"

#include "platform/letter_case.h"
#include "platform/read_ahead.h"
#include "verify/messages.h"
#include "verify/missing_list.h"

#include <algorithm>
#include <memory>
#include <string>
#include <unordered_set>
#include <utility>

namespace zandor {

namespace {

// A progress text in which only a file's name changes.
class FileText {
  public:
    FileText(const Frame& frame, Message message) : text_(frame.text(message)), at_(text_.find("|1")) {
        if (at_ == std::string::npos)
            at_ = text_.size();
        else
            text_.erase(at_, 2);
    }
    const std::string& with(std::string_view file) {
        text_.replace(at_, length_, file);
        length_ = file.size();
        return text_;
    }

  private:
    std::string text_;
    std::size_t at_, length_ = 0;
};

// What all stages have in common.
class Stage : public AheadWork {
  public:
    Stage(VerifWork& work, Message message, std::size_t count)
        : work_(work), shown_(work.frame, message), count_(static_cast<int>(count)) {}

    bool goOn() override { return work_.frame.progress.yield(); }
    void turnOf(std::size_t file) override {
        work_.frame.progress.ShowProgress(0, count_, static_cast<int>(file), shown_.with(nameOf(file)));
    }

  protected:
    virtual const std::string& nameOf(std::size_t file) const = 0;

    VerifWork& work_;

  private:
    FileText shown_;
    int count_;
};

class ChosenStage : public Stage {
  public:
    ChosenStage(VerifWork& work, const VerifSelection& selection, std::span<const int> chosen)
        : Stage(work, message::VerifyingFile, chosen.size()), selection_(selection), chosen_(chosen) {}

  protected:
    const std::string& nameOf(std::size_t file) const override { return selection_.nameOf(chosen_[file]); }
    const StockFileEntry& stock(std::size_t file) const {
        return selection_.stock[static_cast<std::size_t>(chosen_[file])];
    }

  private:
    const VerifSelection& selection_;
    std::span<const int> chosen_;
};

class ConsistStage final : public ChosenStage {
  public:
    using ChosenStage::ChosenStage;

    std::unique_ptr<AheadReader> makeReader(FileSystem&) override { return std::make_unique<NoReader>(); }
    void take(std::size_t file) override {
        CheckConsistFile(work_, nameOf(file));
        ++work_.results.counters.files;
    }

  private:
    struct NoReader final : AheadReader {
        void read(std::size_t) override {}
    };
};

// Reads stock files, and the descriptions of the shapes that they name: neighbours mostly name the same few.
class StockFiles {
  public:
    StockFiles(FileSystem& door, const VerifPlaces& places) : reader_(door), places_(places) {}

    void read(const StockFileEntry& stock, StockToCheck& reading) {
        path_.assign(places_.stock).append(stock.Folder).append(1, '\\').append(stock.File);
        readStock(reader_, path_, reading);
        if (folder_ != stock.Folder) {
            folder_ = stock.Folder;
            described_.clear();
        }
        for (const SimHit& hit : reading.hits)
            if (const std::string_view shape = shapeNamedBy(hit); !shape.empty())
                readDescriptionOf(shape, reading);
    }

  private:
    // One that can't be read is left to the check, which may not want it.
    void readDescriptionOf(std::string_view shape, StockToCheck& reading) {
        path_.assign(places_.trainset).append(folder_).append(1, '\\').append(shape).append(1, 'd');
        std::string key = lowerCase(path_);
        if (kindOfFile(key) != FileKind::ShapeDescription || !described_.insert(key).second)
            return;
        DescribedShape described = readDescription(reader_, path_);
        if (described.found)
            reading.descriptions.emplace_back(std::move(key), std::move(described));
    }

    SimReader reader_;
    const VerifPlaces& places_;
    std::string folder_, path_;                 // of the last file
    std::unordered_set<std::string> described_; // in its folder
};

class StockStage final : public ChosenStage {
  public:
    StockStage(VerifWork& work, const VerifSelection& selection, std::span<const int> chosen)
        : ChosenStage(work, selection, chosen), ring_(std::min(chosen.size(), MostAhead)) {}

    std::unique_ptr<AheadReader> makeReader(FileSystem& door) override {
        return std::make_unique<Thread>(door, *this);
    }
    void take(std::size_t file) override {
        const StockFileEntry& entry = stock(file);
        if (!checkReadStock(work_, entry.Folder, entry.File, at(file)))
            CheckStockFile(work_, entry.Folder, entry.File);
        ++work_.results.counters.files;
    }

  private:
    class Thread final : public AheadReader {
      public:
        Thread(FileSystem& door, StockStage& stage) : files_(door, stage.work_.places), stage_(stage) {}
        void read(std::size_t file) override { files_.read(stage_.stock(file), stage_.at(file)); }

      private:
        StockFiles files_;
        StockStage& stage_; // of which it changes its file's place in the ring alone
    };
    StockToCheck& at(std::size_t file) { return ring_[file % ring_.size()]; }

    std::vector<StockToCheck> ring_;
};

// Files are looked into once, in the turn of the first stock that names them.
class TargetStage final : public Stage {
  public:
    TargetStage(VerifWork& work, Message message, MissingKind kind, const std::vector<CheckTarget>& targets)
        : Stage(work, message, targets.size()), kind_(kind), targets_(targets),
          ring_(std::min(targets.size(), MostAhead)) {
        isFirst_.reserve(targets.size());
        for (const CheckTarget& target : targets)
            isFirst_.push_back(beginExamination(work, target));
    }

    std::unique_ptr<AheadReader> makeReader(FileSystem& door) override {
        return std::make_unique<Thread>(door, *this);
    }
    void take(std::size_t file) override {
        if (!isFirst_[file])
            return;
        TargetReading& reading = at(file);
        if (reading.outcome == SignedText::NoMemory)
            work_.targetReader.read(kind_, targets_[file], reading);
        (kind_ == MissingKind::Sound ? checkSoundReading : checkShapeReading)(work_, targets_[file], reading);
    }

  protected:
    const std::string& nameOf(std::size_t file) const override { return targets_[file].File; }

  private:
    class Thread final : public AheadReader {
      public:
        Thread(FileSystem& door, TargetStage& stage) : reader_(door), stage_(stage) {}

        void read(std::size_t file) override {
            if (stage_.isFirst_[file])
                reader_.read(stage_.kind_, stage_.targets_[file], stage_.at(file));
        }

      private:
        TargetReader reader_;
        TargetStage& stage_; // of which it changes its file's place in the ring alone
    };
    TargetReading& at(std::size_t file) { return ring_[file % ring_.size()]; }

    const MissingKind kind_;
    const std::vector<CheckTarget>& targets_;
    std::vector<bool> isFirst_;
    std::vector<TargetReading> ring_;
};

bool run(VerifWork& work, std::size_t count, int threads, AheadWork&& stage) {
    return readAhead(work.frame.files, count, threads, stage);
}

} // namespace

bool checkChosen(VerifWork& work, const VerifSelection& selection, std::span<const int> chosen, int threads) {
    if (selection.kind == VerifiedKind::Consists)
        return run(work, chosen.size(), 1, ConsistStage(work, selection, chosen));
    return run(work, chosen.size(), threads, StockStage(work, selection, chosen));
}

bool checkTextures(VerifWork& work, int threads) {
    const std::vector<CheckTarget>& targets = work.queues.ShapeTargets;
    return run(work, targets.size(), threads,
               TargetStage(work, message::CheckingTextures, MissingKind::Texture, targets));
}

bool checkSoundSets(VerifWork& work, int threads) {
    const std::vector<CheckTarget>& targets = work.queues.SoundTargets;
    return run(work, targets.size(), threads,
               TargetStage(work, message::CheckingSounds, MissingKind::Sound, targets));
}

} // namespace zandor
