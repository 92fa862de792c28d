#include "catalogue/catalogue_fixture.h"
#include "crossref/service_check.h"

namespace zandor {
namespace {

struct ServiceCheckTest : CatalogueTest {
    RouteMSTS route;

    ServiceCheckTest() {
        putStock("Parc\\sim.eng");
        putStock("Parc\\store.wag", {}, StoreRoot);
        putConsist("whole.con", "whole", {"EngineData ( SIM parc )"});
        putConsist("lacks.con", "lacks", {"EngineData ( sim Parc )", "WagonData ( store Parc )"});
        putConsist("store.con", "store", {"EngineData ( sim Parc )", "WagonData ( store Parc )"}, StoreRoot);
        putConsist("wrong.con", "wrong", {"WagonData ( sim Parc )"}, StoreRoot);
        for (const char* rame : {"Whole", "lacks", "store", "wrong", "nowhere", ""})
            route.Services.emplace_back().Rame = rame;
    }
    // Of each service: "c" when the consist is missing, "s" when its stock is, "-" otherwise.
    std::string checked() {
        ServiceCheck check(files, state.roots);
        EXPECT_TRUE(checkServices(frame, check, route));
        std::string marks;
        for (const ServiceRoute& service : route.Services)
            marks += service.RameManquante ? 'c' : service.MaterielManquant ? 's' : '-';
        return marks;
    }
};

TEST_F(ServiceCheckTest, ConsistsAreLookedForInBothRootsAndStockInThoseInReach) {
    struct Case {
        Root first;
        const char *store, *marks;
    };
    for (const Case& c : {Case{Root::Simulator, StoreRoot, "-ssscc"}, Case{Root::Store, StoreRoot, "---scc"},
                          Case{Root::Simulator, "", "-scccc"}}) {
        state.roots.first = c.first;
        state.roots.RootTStore = c.store;
        EXPECT_EQ(checked(), c.marks) << static_cast<int>(c.first) << c.store;
    }
}

TEST_F(ServiceCheckTest, AConsistOfManyServicesIsReadOnce) {
    route.Services.assign(300, route.Services[1]);
    files.log.clear();
    EXPECT_EQ(checked(), std::string(300, 's'));
    EXPECT_LT(files.log.size(), 10u);
    progress.cancelAtYield = progress.yields + 2;
    ServiceCheck check(files, state.roots);
    EXPECT_FALSE(checkServices(frame, check, route));
}

} // namespace
} // namespace zandor
