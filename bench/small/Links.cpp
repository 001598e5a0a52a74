// The link check of a typed location, the links of a long text, and texts made to take long. The
// floor is a look at every byte.

#include <benchmark/benchmark.h>

#include <cstring>
#include <string>

#include "base/Unicode.h"
#include "bench/small/LinkTexts.h"
#include "net/AddressChecks.h"
#include "net/LinkDetector.h"

namespace launcher {
namespace {

constexpr std::size_t kMegabyte = 1'000'000;

void typedOurs(benchmark::State& state) {
  const auto detector = makeLinkDetector();
  while (state.KeepRunning()) {
    benchmark::DoNotOptimize(isValidURLAddress(kTypedLocation, *detector));
  }
}
BENCHMARK(typedOurs)->Name("typed/ours");

void bytesOf(benchmark::State& state, const std::string& text) {
  while (state.KeepRunning()) {
    const char* bytes = text.data();
    benchmark::DoNotOptimize(bytes);
    benchmark::DoNotOptimize(std::memchr(bytes, '\x01', text.size()));
  }
}
BENCHMARK_CAPTURE(bytesOf, typed, std::string(kTypedLocation))->Name("typed/floor");
BENCHMARK_CAPTURE(bytesOf, megabyte, kProse.ofSize(kMegabyte))->Name("megabyte/floor");

int linksIn(std::u16string_view text, const LinkDetector& detector) {
  int count = 0;
  while (const auto match = detector.firstMatch(text, text.size())) {
    text.remove_prefix(match->location + match->length);
    ++count;
  }
  return count;
}

void everyLink(benchmark::State& state, const std::string& text) {
  const auto detector = makeLinkDetector();
  while (state.KeepRunning()) benchmark::DoNotOptimize(linksIn(utf16(text), *detector));
}
BENCHMARK_CAPTURE(everyLink, prose, kProse.ofSize(kMegabyte))->Name("megabyte/ours");

/// Every hostile text in two sizes, the second one ten times the first.
const bool registered = [] {
  for (const HostileText& hostile : kHostileTexts) {
    for (const std::size_t size : {10'000U, 100'000U}) {
      const std::string name =
          std::string("hostile/ours/") + hostile.name + "/" + std::to_string(size);
      benchmark::RegisterBenchmark(name.c_str(), everyLink, hostile.ofSize(size));
    }
  }
  return true;
}();

}  // namespace
}  // namespace launcher
