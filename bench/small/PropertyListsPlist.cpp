// The same by a C library of its own for property lists.

#include <benchmark/benchmark.h>
#include <plist/plist.h>

#include "bench/small/Listing.h"

namespace launcher {
namespace {

void readList(benchmark::State& state) {
  const std::string text = listingOf(static_cast<int>(state.range()));
  while (state.KeepRunning()) {
    plist_t list = nullptr;
    plist_from_xml(text.data(), static_cast<std::uint32_t>(text.size()), &list);
    benchmark::DoNotOptimize(list);
    plist_free(list);
  }
}
BENCHMARK(readList)->Name("list/libplist")->Arg(1)->Arg(50)->Arg(1000);

}  // namespace
}  // namespace launcher
