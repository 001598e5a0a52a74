// Reading the listing of attached images.

#include <benchmark/benchmark.h>

#include "bench/small/Listing.h"
#include "discovery/PropertyList.h"

namespace launcher {
namespace {

void readList(benchmark::State& state) {
  const std::string text = listingOf(static_cast<int>(state.range()));
  while (state.KeepRunning()) benchmark::DoNotOptimize(readPropertyList(text));
}
BENCHMARK(readList)->Name("list/ours")->Arg(1)->Arg(50)->Arg(1000);

}  // namespace
}  // namespace launcher
