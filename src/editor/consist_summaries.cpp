#include "editor/consist_summaries.h"

#include "catalogue/messages.h"
#include "editor/messages.h"

namespace zandor {

const std::string& CompositionTexts::of(int engines, int wagons) {
    const auto [place, isNew] = known_.try_emplace({engines, wagons});
    if (!isNew)
        return place->second;
    const auto part = [this](int count, Message one, Message many) {
        const std::string figure = std::to_string(count);
        return count == 0 ? std::string() : frame_.text(count == 1 ? one : many, {{"|1", figure}});
    };
    place->second = part(engines, message::OneEngine, message::ManyEngines);
    if (engines > 0 && wagons > 0)
        place->second += frame_.text(message::CompositionJoint);
    place->second += part(wagons, message::OneWagon, message::ManyWagons);
    return place->second;
}

ServiceConsists::ServiceConsists(const Catalogue& catalogue) {
    for (const std::string& name : catalogue.here().RamesEnService)
        names_.insert(lowerCase(name));
}

std::string_view ServiceConsists::markOf(std::string_view fileName) const {
    return names_.contains(lowerCase(fileName)) ? RouteMarkYes : RouteMarkNo;
}

SummaryReader::SummaryReader(Frame& frame, const Catalogue& catalogue)
    : folder_(consistsPath(frame.state.roots.RootPrimary())), reader_(frame.files),
      stock_(frame.files, {frame.state.roots.RootMSTS, frame.state.roots.RootTStore}), services_(catalogue),
      compositions_(frame) {}

void SummaryReader::takeItem(const RameItem& item, ConsistSummary& summary) {
    ++(item.IsEngine ? summary.Engines : summary.Wagons);
    summary.Complete = summary.Complete && stock_.has(item.Folder, stockFileOf(item));
}

void SummaryReader::ReadConsistSummary(const std::string& fileName, std::vector<ConsistSummary>& summaries) {
    // What is wrong with a file is told when it is opened.
    ReadConsistFile(reader_, rame_, items_, folder_ + fileName);
    ConsistSummary& summary = summaries.emplace_back();
    summary.FullName = rame_.Name;
    summary.FileName = fileName;
    summary.RouteMark = services_.markOf(fileName);
    for (const RameItem& item : items_)
        takeItem(item, summary);
    summary.Composition = compositions_.of(summary.Engines, summary.Wagons);
}

bool BuildConsistSummaries(Frame& frame, Catalogue& catalogue, Progress& progress) {
    forgetSummaries(catalogue.here());
    const std::vector<std::string> names = catalogue.here().ConsistFiles; // events are served while this runs
    const std::string head = frame.text(message::ReadingStock) + "   ";
    const int last = static_cast<int>(names.size()) - 1;
    SummaryReader reader(frame, catalogue);
    std::vector<ConsistSummary> summaries;
    summaries.reserve(names.size());
    int current = 0;
    for (const std::string& name : names) {
        progress.ShowProgress(0, last, current++, head + name);
        if (!progress.yield())
            return false;
        reader.ReadConsistSummary(name, summaries);
    }
    catalogue.here().ConsistSummaries = std::move(summaries);
    catalogue.here().summariesRead = true;
    return true;
}

bool prepareSummaries(Frame& frame, Catalogue& catalogue, Progress& progress) {
    // A load that is running has its own use for the arrays: the last table serves.
    if (!catalogue.here().summariesRead && !frame.state.Busy)
        return BuildConsistSummaries(frame, catalogue, progress);
    CompositionTexts compositions(frame);
    for (ConsistSummary& summary : catalogue.here().ConsistSummaries)
        summary.Composition = compositions.of(summary.Engines, summary.Wagons);
    return true;
}

std::vector<int> FillConsistList(const Catalogue& catalogue) {
    const std::vector<ConsistSummary>& summaries = catalogue.here().ConsistSummaries;
    std::vector<int> rows;
    rows.reserve(summaries.size());
    for (const bool complete : {true, false})
        for (std::size_t i = 0; i < summaries.size(); ++i)
            if (summaries[i].Complete == complete)
                rows.push_back(static_cast<int>(i));
    return rows;
}

} // namespace zandor
