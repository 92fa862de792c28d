// What is measured: a small add-on collection up to about as much as the catalogue holds.
#pragma once

namespace zandor::bench {

inline constexpr int StockCounts[] = {1000, 4000, 16000, 32000};
inline constexpr int ConsistCount = 10000;
inline constexpr int ConsistStock = 16000;          // the stock that these consists name
inline constexpr int RouteCount = 60;               // beside these consists
inline constexpr int RouteFiles = RouteCount * 126; // their track files, services and activities
inline constexpr int ColdStock = 4000;              // read from the disk itself

} // namespace zandor::bench
