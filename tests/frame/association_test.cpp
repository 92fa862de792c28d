#include "frame/association.h"

#include "support/fakes.h"

#include <gtest/gtest.h>

namespace zandor {
namespace {

struct FakeAssociation final : FileAssociation {
    std::vector<std::string> calls;
    bool add(const std::string& executable, const AssociationNames& names) override {
        calls.push_back("add " + executable + " " + names.fileType + " " + names.openVerb);
        return true;
    }
    bool remove(const std::string& executable) override {
        calls.push_back("remove " + executable);
        return true;
    }
};

TEST(Association, IsAsTheSettingSaysAtEveryStart) {
    TestFrame test;
    FakeAssociation association;
    const ProgramFolders folders{"/home/me/zandor", "/usr/bin", "zandor"};
    test.state.Language = "English";
    for (const char* setting : {"", "0", "1", "1.0", "2", "no"}) {
        test.set("Associate", setting);
        applyAssociation(test.frame, association, folders);
    }
    const std::string add = "add /usr/bin/zandor Microsoft Train Simulator consist &Open";
    const std::string remove = "remove /usr/bin/zandor";
    EXPECT_EQ(association.calls, (std::vector<std::string>{remove, remove, add, add, remove, remove}));
}

} // namespace
} // namespace zandor
