#include "cli/records.h"
#include "cli/session.h"

namespace zandor {

namespace {

class KeysCommand final : public Command {
  public:
    const char* name() const override { return "keys"; }
    const char* help() const override { return "Print the keys of a simulator file, or those asked for"; }

    void addArguments(Arguments& line) override {
        line.one("FILE", file_, "the file: .con, .eng, .wag, .cvf, .s, .sd, .sms, .act or .srv");
        stock_ = line.flag("--stock", stockMode_, "find the 22 keys that the check of stock follows");
        section_ = line.text("--section", sought_.section, "PATH",
                             "find a key of this block, such as Wagon\\Coupling")
                       .excludes(stock_);
        key_ = line.text("--key", sought_.key, "NAME", "find this key; without it the block's own value")
                   .excludes(stock_);
        line.number("--count", sought_.count, 0, 32767, "N", "stop after so many; 0 finds all (default: 1)")
            .excludes(stock_);
        line.flag("--whole-tails", wholeTails_,
                  "print each \"tail\", the source text of a value, in full, not its first 1,000 characters");
    }

    int run(Session& session) override {
        SimReader reader(session.frame.files);
        ReadAnswer answer;
        const std::string path = session.atWork = ExpandLongPath(file_);
        const ReadRequest all{.keepLines = textureLines(kindOfFile(path))};
        if (const int refusal = readWholeFile(session, reader, path, all, answer); refusal != exitcode::Done)
            return refusal;
        if (section_.given() || key_.given() || stock_.given())
            answer = printHits(session, reader, path);
        else
            printKeys(session, reader);
        return answer.sound() ? exitcode::Done : session.fault(faultOf(session, answer));
    }

  private:
    // A block's tail holds those of all its keys: whole ones can make a thousand times the file.
    template <class Record> Json shortened(Record record) const {
        constexpr std::size_t TailLimit = 1000; // characters
        if (!wholeTails_)
            record.Tail = firstCharacters(record.Tail, TailLimit);
        return recordOf(record);
    }

    void printKeys(Session& session, const SimReader& reader) const {
        JsonList list(session.result);
        for (const SimKey& key : reader.SimKeys)
            list.add(shortened(key));
        list.close();
        session.result << "\n";
    }

    ReadAnswer printHits(Session& session, SimReader& reader, const std::string& path) const {
        const ReadAnswer answer =
            reader.ReadSimFile(path, {sought_.section, sought_.key, stockMode_ ? 0 : sought_.count,
                                      stockMode_, textureLines(kindOfFile(path))});
        JsonObject object(session.result);
        object.member("result", answer.found);
        JsonList list = object.list("hits");
        for (const SimHit& hit : reader.SimHits)
            list.add(shortened(hit));
        list.close();
        object.close();
        return answer;
    }

    std::string file_;
    struct {
        std::string section, key;
        int count = 1;
    } sought_;
    bool stockMode_ = false;
    bool wholeTails_ = false;
    Argument stock_;
    Argument section_;
    Argument key_;
};

} // namespace

std::unique_ptr<Command> makeKeysCommand() {
    return std::make_unique<KeysCommand>();
}

} // namespace zandor
