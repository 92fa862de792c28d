#include "verify/messages.h"
#include "verify/missing_list.h"
#include "verify/verification.h"

#include <utility>

namespace zandor {

namespace {

constexpr const char* LineBreak = "\r\n";

// The report as it grows: each message takes the text so far.
class ClosingText {
  public:
    ClosingText(const Frame& frame, const VerifResults& results) : frame_(frame), results_(results) {
        text_ = frame.text(message::VerifyDone, {{"|1", LineBreak}});
    }

    void tellInvalid() {
        const std::size_t count = results_.InvalidFiles.size();
        if (count > 0)
            add(message::ReportInvalid, std::to_string(count) + LineBreak);
        else if (!results_.mandatory.empty())
            add(message::ReportKeysMissing, LineBreak);
        else if (!results_.MissingEntries.empty())
            add(message::ReportOnlyMissing, LineBreak);
        else
            add(message::ReportInvalid, std::string("0") + LineBreak);
    }

    // `count` stands in front of the message, on a line of its own.
    void tellCount(int count, Message one, Message several) {
        if (count > 0)
            addCounted(count, count == 1 ? one : several, LineBreak);
    }

    void tellMissing(bool repairTried) {
        tellCount(results_.counters.MissingTextures, message::ReportOneTexture, message::ReportManyTextures);
        const int sounds = results_.counters.MissingSounds;
        if (sounds == 0)
            return;
        const int names = countDistinctNames(results_, MissingKind::Sound);
        const Message shown = sounds == 1  ? message::ReportOneSound
                              : names == 1 ? message::ReportOneSoundOften
                                           : message::ReportManySounds;
        addCounted(names, shown, std::to_string(sounds));
        tellSoundSets();
        if (repairTried)
            add(sounds == 1 ? message::ReportOneSoundNowhere : message::ReportManySoundsNowhere, LineBreak);
    }

    void tellQuotes() {
        const VerifCounters& counters = results_.counters;
        if (counters.QuoteRepairCount > 0) {
            startLine();
            const std::string sofar = text_ + std::to_string(counters.QuoteRepairCount);
            text_ = frame_.text(counters.QuoteRepairCount == 1 ? message::ReportOneQuoteRepaired
                                                               : message::ReportManyQuotesRepaired,
                                {{"|1", sofar}, {"|2", "'Sound ( xxx )'"}, {"|3", LineBreak}});
        }
        if (results_.InvalidFiles.empty())
            tellCount(counters.QuoteRepairFailures, message::ReportOneQuoteFailed,
                      message::ReportManyQuotesFailed);
    }

    std::string text() && { return std::move(text_); }

  private:
    void add(Message message, const std::string& second) {
        text_ = frame_.text(message, {{"|1", text_}, {"|2", second}});
    }
    void addCounted(int count, Message message, const std::string& second) {
        startLine();
        text_ += std::to_string(count);
        add(message, second);
    }
    // The sentence about sound sets ends without a line break.
    void startLine() {
        if (!text_.empty() && text_.back() != '\n')
            text_ += LineBreak;
    }

    void tellSoundSets() {
        const int sets = countMissingOwners(results_, MissingKind::Sound);
        const std::string note =
            frame_.text(sets == 1 ? message::OneSoundSetNote : message::ManySoundSetsNote);
        text_ = frame_.text(sets == 1 ? message::ReportInOneSoundSet : message::ReportInManySoundSets,
                            {{"|1", text_}, {"|2", std::to_string(sets)}, {"|3", note}});
    }

    const Frame& frame_;
    const VerifResults& results_;
    std::string text_;
};

} // namespace

std::string closingReport(const Frame& frame, const VerifSelection& selection, const VerifOptions& options,
                          const VerifResults& results) {
    const VerifOptions done = optionsFor(selection.kind, options);
    ClosingText report(frame, results);
    report.tellInvalid();
    report.tellCount(static_cast<int>(results.DuplicateEntries.size()), message::ReportOneDuplicate,
                     message::ReportManyDuplicates);
    report.tellCount(results.counters.RepairedSoundFiles, message::ReportOneSoundSetRepaired,
                     message::ReportManySoundSetsRepaired);
    // what could not be written may well exist
    report.tellMissing(done.RepairSounds && results.counters.SoundRepairFailures == 0);
    report.tellQuotes();
    return std::move(report).text();
}

} // namespace zandor
