#include "verify/file_readings.h"

#include "simfiles/shape_description.h"
#include "text/decode.h"
#include "text/text.h"
#include "verify/shape_scan.h"
#include "verify/sound_scan.h"

namespace zandor {

namespace {

// Behind the first ".s" that ends a name: numbers and remarks may follow a freight's shape.
std::string_view upToShape(std::string_view value) {
    constexpr std::string_view Ends = " \t\"#";
    for (std::size_t i = 0; i + 1 < value.size(); ++i)
        if (value[i] == '.' && letterIs(value[i + 1], 's') &&
            (i + 2 == value.size() || Ends.find(value[i + 2]) != std::string_view::npos))
            return value.substr(0, i + 2);
    return value;
}

} // namespace

DescribedShape readDescription(SimReader& reader, std::string_view path) {
    const std::optional<SimKey> key = shapeOfDescription(reader, path);
    if (!key)
        return {};
    return {true, std::string(StripQuotes(key->Value)), std::string(key->Tail), key->Line};
}

void readStock(SimReader& reader, std::string_view path, StockToCheck& reading) {
    ReadRequest request;
    request.count = 0;
    request.stockMode = true;
    reading.outcome = reader.ReadSimFile(path, request).outcome;
    reading.hits.swap(reader.SimHits);
    reading.descriptions.clear();
}

std::string_view shapeNamedBy(const SimHit& hit) {
    if (hit.Key == "FreightAnim" && hit.Path == "Wagon")
        return upToShape(StripQuotes(hit.Value));
    const bool isShape = (hit.Key == "WagonShape" && hit.Path == "Wagon") ||
                         (hit.Key == "PassengerCabinFile" && hit.Path == "Wagon\\Inside");
    return isShape ? StripQuotes(hit.Value) : std::string_view();
}

void TargetReader::read(MissingKind kind, const CheckTarget& target, TargetReading& reading) {
    reading.named.clear();
    path_.assign(target.Dir).append(target.File);
    if (kind == MissingKind::Sound)
        readSoundSet(reading);
    else if (endsWithIgnoringCase(path_, ".s"))
        readShape(reading);
    else
        readCabView(reading);
}

// Read whole: keys whose blocks are left out would be taken for one and the same.
void TargetReader::readCabView(TargetReading& reading) {
    const ReadAnswer answer = reader_.ReadSimFile(path_);
    reading.outcome = answer.accepted()                         ? SignedText::Read
                      : answer.outcome == ReadOutcome::NoMemory ? SignedText::NoMemory
                                                                : SignedText::Unfit;
    if (!answer.accepted())
        return;
    for (const SimKey& key : reader_.SimKeys)
        if (endsWithIgnoringCase(StripQuotes(key.Value), ".ace"))
            reading.named.push_back({std::string(key.Value), std::string(key.Tail), key.Line});
}

void TargetReader::readShape(TargetReading& reading) {
    reading.outcome = readSignedText(reader_.files(), path_, FileKind::Shape, bytes_);
    if (reading.outcome != SignedText::Read)
        return;
    decodeSimulatorText(bytes_, text_);
    for (const ShapeImage& image : findImages(text_))
        reading.named.push_back({shownLine(image.name), std::string(image.line), image.number});
}

void TargetReader::readSoundSet(TargetReading& reading) {
    reading.outcome = readSignedText(reader_.files(), path_, FileKind::Sound, bytes_);
    if (reading.outcome != SignedText::Read)
        return;
    decodeSimulatorText(bytes_, text_);
    for (const WaveName& wave : findWaves(text_))
        reading.named.push_back({textOf(text_, wave), std::string(wave.line), wave.number});
}

} // namespace zandor
