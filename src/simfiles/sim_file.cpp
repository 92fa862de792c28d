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
    std::string_view textureLines;
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

std::string_view textureLines(FileKind kind) {
    for (const KindRow& row : Kinds)
        if (row.kind == kind)
            return row.textureLines;
    return {};
}

int errorNumber(const ReadAnswer& answer) {
    switch (answer.outcome) {
    case ReadOutcome::NoMemory:
        return NoMemoryLeft;
    case ReadOutcome::Empty:
        return EmptyFile;
    case ReadOutcome::Unreadable:
        return UnreadableFile;
    case ReadOutcome::TooLarge:
        return FileTooLarge;
    case ReadOutcome::Malformed:
        return MalformedConsist;
    default:
        break;
    }
    if (answer.flaw == Flaw::StockKeyMissing)
        return MissingStockKeyError;
    return answer.flaw == Flaw::None ? 0 : LostVehicle;
}

struct SimReader::Work {
    explicit Work(SimReader& reader) : tokeniser(reader.SimKeys, reader.SimHits, arena) {}

    std::string bytes;
    std::string text;
    std::vector<SimLine> SimLines; // index n holds line n of the file; only during a call
    TextArena arena;
    Tokeniser tokeniser;
};

SimReader::SimReader(FileSystem& files) : files_(files), work_(std::make_unique<Work>(*this)) {}

SimReader::~SimReader() = default;

ReadAnswer SimReader::ReadSimFile(std::string_view path, const ReadRequest& request) {
    ReadResult result = files_.read(path, work_->bytes, LargestSimFile);
    try {
        if (result == ReadResult::Done)
            return readBytes(path, work_->bytes, request);
    } catch (const std::bad_alloc&) {
        giveBackMemory();
        result = ReadResult::NoMemory;
    }
    SimKeys.clear();
    SimHits.clear();
    return unreadAnswer(files_, path, result);
}

void SimReader::giveBackMemory() {
    SimKeys = {};
    SimHits = {};
    work_.reset();
    work_ = std::make_unique<Work>(*this);
}

ReadAnswer unreadAnswer(FileSystem& files, std::string_view path, ReadResult result) {
    ReadAnswer answer;
    switch (result) {
    case ReadResult::Missing:
        answer.outcome = ReadOutcome::NoFile;
        break;
    case ReadResult::NoMemory:
        answer.outcome = ReadOutcome::NoMemory;
        break;
    case ReadResult::TooLarge:
        answer.outcome = ReadOutcome::TooLarge;
        if (const auto stamp = files.stamp(path))
            answer.size = stamp->size;
        break;
    default:
        answer.outcome = ReadOutcome::Unreadable;
    }
    return answer;
}

ReadAnswer SimReader::readBytes(std::string_view path, std::string_view bytes, const ReadRequest& request) {
    SimKeys.clear();
    SimHits.clear();
    work_->arena.reset();
    ReadAnswer answer;
    const KindRow* row = rowOf(path);
    if (!row) {
        answer.outcome = ReadOutcome::OtherKind;
        return answer;
    }
    decodeSimulatorText(bytes, work_->text);
    const std::string_view first = cutLines(work_->text, request.keepLines, work_->SimLines);
    if (work_->text.empty() || !containsIgnoringCase(first, row->signature)) {
        answer.outcome = work_->text.empty() ? ReadOutcome::Empty : ReadOutcome::OtherKind;
        return answer;
    }
    const Tokeniser::Outcome outcome =
        work_->tokeniser.run(work_->text, work_->SimLines, request, row->kind == FileKind::Consist);
    answer.found = outcome.found;
    if (outcome.badLine == 0)
        return answer;
    answer.outcome = ReadOutcome::Malformed;
    answer.flaw = outcome.closeMissing ? Flaw::BracketCloseMissing : Flaw::BracketOpenMissing;
    answer.line = outcome.badLine;
    answer.text = work_->SimLines[static_cast<std::size_t>(outcome.badLine)].text;
    return answer;
}

} // namespace zandor
