// The same by the toolkit.

#import <Foundation/Foundation.h>

#include <benchmark/benchmark.h>

#include "bench/small/Listing.h"

namespace launcher {
namespace {

void readList(benchmark::State& state) {
  const std::string text = listingOf(static_cast<int>(state.range()));
  while (state.KeepRunning()) {
    @autoreleasepool {
      NSData* data = [NSData dataWithBytes:text.data() length:text.size()];
      id list = [NSPropertyListSerialization propertyListWithData:data
                                                          options:NSPropertyListMutableContainers
                                                           format:nullptr
                                                            error:nullptr];
      benchmark::DoNotOptimize(list);
    }
  }
}
BENCHMARK(readList)->Name("list/GNUstep")->Arg(1)->Arg(50)->Arg(1000);

}  // namespace
}  // namespace launcher
