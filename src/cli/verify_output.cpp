#include "cli/verify_output.h"

#include "cli/json_output.h"
#include "text/control_characters.h"
#include "text/lines.h"
#include "verify/messages.h"

namespace zandor {

namespace {

// A folder of the records as results show it, with the separator at its end that it has there.
std::string shownFolder(Session& session, const std::string& folder) {
    if (folder.empty())
        return {};
    std::string shown = session.shown(folder);
    if (!shown.ends_with('/') && !shown.ends_with('\\'))
        shown += '/';
    return shown;
}

Json recordOf(Session& session, const InvalidFile& file) {
    Json lines = Json::list();
    for (const ErrorLine& line : file.Lines)
        lines.add({{"summary", line.Summary},
                   {"long", line.Long},
                   {"summaryText", line.summaryText},
                   {"longText", line.longText},
                   {"value", line.Value},
                   {"key", line.Key},
                   {"line", line.Line}});
    return {{"root", shownFolder(session, file.Root)},
            {"folder", file.Folder},
            {"file", file.File},
            {"name", file.Name},
            {"lines", std::move(lines)}};
}

Json recordOf(Session&, const DuplicateEntry& entry) {
    return {{"name", entry.Name}, {"others", entry.Others}};
}

Json recordOf(Session& session, const MissingEntry& entry) {
    Json items = Json::list();
    for (const MissingItem& item : entry.Items)
        items.add({{"name", item.Name}, {"detail", item.Detail}, {"line", item.Line}});
    return {{"kind", static_cast<int>(entry.Kind)},
            {"owner", entry.Owner},
            {"file", entry.File},
            {"dir", shownFolder(session, entry.Dir)},
            {"items", std::move(items)}};
}

Json recordOf(Session&, const MandatoryFault& fault) {
    return {{"folder", fault.folder}, {"file", fault.file}, {"key", fault.key}};
}

Json recordOf(Session&, const std::string& message) {
    return message;
}

template <class Record>
void addList(Session& session, JsonObject& object, std::string_view name,
             const std::vector<Record>& records) {
    JsonList list = object.list(name);
    for (const Record& record : records)
        list.add(recordOf(session, record));
    list.close();
}

// The report for people, line by line; a text of several lines gives several.
class ReportText {
  public:
    explicit ReportText(Session& session) : session_(session) {}

    void print(std::string_view text, std::string_view indent = {}) {
        forEachLine(text, [&](std::string_view line) {
            if (!trim(line).empty())
                session_.result << std::string(indent) + escapeControls(line) + "\n";
        });
    }
    void endPart() { session_.result << "\n"; }

    void print(const InvalidFile& file) {
        print((file.Folder.empty() ? "" : file.Folder + "\\") + file.File);
        for (const ErrorLine& line : file.Lines)
            print((line.Line > 0 ? std::to_string(line.Line) + ": " : "") + line.Long, "  ");
    }
    void print(const DuplicateEntry& entry) {
        print(entry.Name);
        for (const std::string& other : entry.Others)
            print(other, "  = ");
    }
    void print(const MissingEntry& entry) {
        print(entry.Owner);
        for (const MissingItem& item : entry.Items)
            print(worded(entry, item), "  ");
    }

  private:
    std::string worded(const MissingEntry& entry, const MissingItem& item) const {
        const Frame& frame = session_.frame;
        if (item.Detail == EmptyFileMark)
            return frame.text(message::MissingItemEmptyFile, {{"|1", item.Name}, {"|2", ""}});
        const Message message =
            entry.Kind == MissingKind::Texture ? message::ListingTexture : message::ListingSound;
        return std::to_string(item.Line) + ": " + frame.text(message, {{"|1", item.Name}});
    }

    Session& session_;
};

template <class Record> void printPart(ReportText& report, const std::vector<Record>& records) {
    for (const Record& record : records)
        report.print(record);
    if (!records.empty())
        report.endPart();
}

} // namespace

void printVerification(Session& session, const VerifResults& results,
                       const std::vector<std::string>& messages) {
    const VerifCounters& counters = results.counters;
    JsonObject object(session.result);
    addList(session, object, "invalidFiles", results.InvalidFiles);
    addList(session, object, "duplicates", results.DuplicateEntries);
    addList(session, object, "missing", results.MissingEntries);
    addList(session, object, "mandatory", results.mandatory);
    object.member("counters", {{"files", counters.files},
                               {"invalidFiles", results.InvalidFiles.size()},
                               {"missingTextures", counters.MissingTextures},
                               {"missingSounds", counters.MissingSounds},
                               {"quoteRepairs", counters.QuoteRepairCount},
                               {"quoteFailures", counters.QuoteRepairFailures},
                               {"repairedSoundFiles", counters.RepairedSoundFiles}});
    addList(session, object, "messages", messages);
    object.close();
}

void printVerification(Session& session, const VerifResults& results,
                       const std::vector<std::string>& messages, const std::string& closing) {
    ReportText report(session);
    printPart(report, results.InvalidFiles);
    printPart(report, results.DuplicateEntries);
    printPart(report, results.MissingEntries);
    for (const std::string& text : messages)
        report.print(oneLine(text));
    if (!messages.empty())
        report.endPart();
    report.print(closing);
}

} // namespace zandor
