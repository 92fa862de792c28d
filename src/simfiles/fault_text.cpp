#include "simfiles/fault_text.h"

#include "simfiles/messages.h"
#include "simfiles/sim_file.h"

namespace zandor {

namespace {

std::string flawText(const Language& language, const ReadAnswer& answer) {
    const auto ofLine = [&](Message message) {
        const std::string number = std::to_string(answer.line);
        return language.GetLangText(message, {{"|1", number}, {"|2", "\r\n"}, {"|3", answer.text}});
    };
    switch (answer.flaw) {
    case Flaw::None:
        return {};
    case Flaw::BracketOpenMissing:
        return ofLine(message::BracketOpenMissing);
    case Flaw::BracketCloseMissing:
        return ofLine(message::BracketCloseMissing);
    case Flaw::VehicleMisplaced:
        return ofLine(message::VehicleMisplaced);
    case Flaw::VehicleNameless:
        return ofLine(message::VehicleNameless);
    case Flaw::StockKeyMissing:
        break;
    }
    return language.GetLangText(message::MissingStockKey,
                                {{"|1", "\r\n"}, {"|2", answer.text}, {"|3", "\r\n"}});
}

} // namespace

std::string faultText(const Language& language, const ReadAnswer& answer) {
    switch (answer.outcome) {
    case ReadOutcome::Unreadable:
        return language.GetLangText(message::FileUnreadable);
    case ReadOutcome::NoMemory:
        return language.GetLangText(message::NoMemoryForFile);
    case ReadOutcome::TooLarge: {
        const std::string size = megabytesOf(answer.size), most = megabytesOf(LargestSimFile);
        return language.GetLangText(message::FileTooLarge, {{"|1", size}, {"|2", most}});
    }
    default:
        return flawText(language, answer);
    }
}

} // namespace zandor
