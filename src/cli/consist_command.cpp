#include "cli/records.h"
#include "cli/session.h"

namespace zandor {

namespace {

class ConsistCommand final : public Command {
  public:
    const char* name() const override { return "consist"; }
    const char* help() const override { return "Print a consist file's record and its vehicles"; }

    void addArguments(Arguments& line) override { line.one("FILE", file_, "the consist file: .con"); }

    int run(Session& session) override {
        SimReader reader(session.frame.files);
        ReadAnswer answer;
        const std::string path = session.atWork = ExpandLongPath(file_);
        if (const int refusal = readWholeFile(session, reader, path, {}, answer); refusal != exitcode::Done)
            return refusal;
        if (kindOfFile(path) != FileKind::Consist)
            return session.fault("Not a consist file: " + session.shown(path));
        Rame rame;
        std::vector<RameItem> items;
        answer = ReadConsistFile(reader, rame, items, path);
        print(session.result, rame, items);
        return answer.sound() ? exitcode::Done : session.fault(faultOf(session, answer));
    }

  private:
    static void print(ResultText& result, const Rame& rame, const std::vector<RameItem>& items) {
        JsonObject object(result);
        object.member("rame", recordOf(rame));
        JsonList list = object.list("items");
        for (const RameItem& item : items)
            list.add(recordOf(item));
        list.close();
        object.close();
    }

    std::string file_;
};

} // namespace

std::unique_ptr<Command> makeConsistCommand() {
    return std::make_unique<ConsistCommand>();
}

} // namespace zandor
