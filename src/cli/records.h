// The program's records as JSON, each field under its own name.
#pragma once

#include "catalogue/catalogue.h"
#include "cli/json_output.h"

namespace zandor {

Json recordOf(const SimKey& key);
Json recordOf(const SimHit& hit);
Json recordOf(const Materiel& materiel);
void addRecord(Json& object, const Materiel& materiel); // its members to those that are there
Json recordOf(const Rame& rame);
Json recordOf(const RameItem& item);
Json recordOf(const StockUse& use);
Json recordOf(const ConsistEntry& entry);

} // namespace zandor
