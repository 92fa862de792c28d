#include "simfiles/sim_file.h"

#include "simfiles/tokeniser.h"
#include "text/decode.h"
#include "text/text.h"

#include <array>
#include <new>

namespace zandor {

namespace {

struct KindRow {
    std::string_view extension;
    FileKind kind;
    std::string_view signature;
    std::string_view keepOnly; // lines without this text are of no use; lower case
};

// A later row wins where two fit.
constexpr std::array<KindRow, 9> Kinds{{
    {".con", FileKind::Consist, ConsistSignature, ""},
    {".eng", FileKind::Engine, ConsistSignature, ""},
    {".wag", FileKind::Wagon, ConsistSignature, ""},
    {".cvf", FileKind::CabView, "SIMISA@@@@@@@@@@JINX0h0t______", ".ace"},
    {".s", FileKind::Shape, "SIMISA@@@@@@@@@@JINX0s1t______", "image"},
    {".sd", FileKind::ShapeDescription, "SIMISA@@@@@@@@@@JINX0t1t______", ""},
    {".sms", FileKind::Sound, "SIMISA@@@@@@@@@@JINX0x1t______", ""},
    {".act", FileKind::Activity, "SIMISA@@@@@@@@@@JINX0a0t______", ""},
    {".srv", FileKind::Service, "SIMISA@@@@@@@@@@JINX0v0t______", ""},
}};

const KindRow* rowOf(std::string_view path) {
    const KindRow* found = nullptr;
    for (const KindRow& row : Kinds)
        if (path.size() >= row.extension.size() &&
            nameIs(path.substr(path.size() - row.extension.size()), row.extension))
            found = &row;
    return found;
}

} // namespace

FileKind kindOfFile(std::string_view path) {
    const KindRow* row = rowOf(path);
    return row ? row->kind : FileKind::Unknown;
}

std::string_view signatureOf(FileKind kind) {
    for (const KindRow& row : Kinds)
        if (row.kind == kind)
            return row.signature;
    return {};
}

struct SimReader::Work {
    explicit Work(SimReader& reader) : tokeniser(reader.SimKeys, reader.SimHits, arena) {}

    std::string bytes;
    std::string text;
    std::vector<SimLine> SimLines; // index n holds line n of the file; only during a call
    TextArena arena;
    Tokeniser tokeniser;
    std::string_view signature; // stands from call to call: a file of no known kind is held to the last one's
};

SimReader::SimReader(FileSystem& files, const Language& language)
    : SimKeys(1), SimHits(1), files_(files), language_(language), work_(std::make_unique<Work>(*this)) {}

SimReader::~SimReader() = default;

bool SimReader::ReadSimFile(std::string_view path, std::string_view section, std::string_view key, int count,
                            bool mustFind, bool stockMode) {
    ReadResult result = files_.read(path, work_->bytes, LargestSimFile);
    try {
        if (result == ReadResult::Done)
            return readBytes(path, work_->bytes, section, key, count, mustFind, stockMode);
    } catch (const std::bad_alloc&) {
        giveBackMemory();
        result = ReadResult::NoMemory;
    }
    forget();
    if (result != ReadResult::Missing)
        error = readError(path, result);
    return false;
}

void SimReader::forget() {
    SimKeys.assign(1, {});
    SimHits.assign(1, {});
    error.reset();
}

void SimReader::giveBackMemory() {
    SimKeys = {};
    SimHits = {};
    const std::string_view signature = work_->signature;
    work_.reset();
    work_ = std::make_unique<Work>(*this);
    work_->signature = signature;
}

SimError SimReader::readError(std::string_view path, ReadResult result) {
    SimError found{UnreadableFile, std::string(path), language_.GetLangText(Message::FileUnreadable)};
    if (result == ReadResult::NoMemory)
        return {NoMemoryLeft, found.source, language_.GetLangText(Message::NoMemoryForFile)};
    if (result != ReadResult::TooLarge)
        return found;
    const std::string size = megabytesOf(files_, path), most = std::to_string(LargestSimFile >> 20);
    return {FileTooLarge, found.source,
            language_.GetLangText(Message::FileTooLarge, {{"|1", size}, {"|2", most}})};
}

bool SimReader::readBytes(std::string_view path, std::string_view bytes, std::string_view section,
                          std::string_view key, int count, bool mustFind, bool stockMode) {
    forget();
    work_->arena.reset();

    const KindRow* row = rowOf(path);
    if (row)
        work_->signature = row->signature;
    decodeSimulatorText(bytes, work_->text);
    if (work_->text.empty()) {
        error = SimError{EmptyFile, std::string(path), {}};
        return false;
    }
    const std::string_view first =
        cutLines(work_->text, row ? row->keepOnly : std::string_view(), work_->SimLines);
    if (!containsIgnoringCase(first, work_->signature))
        return false;

    const bool isConsist = row && row->kind == FileKind::Consist;
    const SearchRequest request{section, key, count, stockMode};
    const Tokeniser::Outcome outcome = work_->tokeniser.run(work_->SimLines, request, isConsist);
    if (outcome.badLine > 0) {
        const std::string number = std::to_string(outcome.badLine);
        const std::string_view line = work_->SimLines[static_cast<std::size_t>(outcome.badLine)].text;
        const Message message =
            outcome.closeMissing ? Message::BracketCloseMissing : Message::BracketOpenMissing;
        error = SimError{MalformedConsist, std::string(path),
                         language_.GetLangText(message, {{"|1", number}, {"|2", "\r\n"}, {"|3", line}})};
        return false;
    }
    return !mustFind || outcome.found;
}

} // namespace zandor
