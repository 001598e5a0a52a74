// The link check of a typed location, links in long texts, and texts made to take long. The floor
// of a long text is a search for a byte that it does not hold.

#include <benchmark/benchmark.h>

#include <string>

#include "base/Text.h"
#include "net/AddressChecks.h"
#include "net/LinkDetector.h"

namespace launcher {
namespace {

constexpr std::string_view kTyped = "https://server.example/path";
constexpr std::size_t kMegabyte = 1'000'000;

std::string filled(std::string_view piece) {
  std::string text;
  while (text.size() < kMegabyte) text += piece;
  return text;
}

void typedLocation(benchmark::State& state) {
  const auto detector = makeLinkDetector();
  while (state.KeepRunning()) benchmark::DoNotOptimize(isValidURLAddress(kTyped, *detector));
}
BENCHMARK(typedLocation);

void typedLocationDetectorAlone(benchmark::State& state) {
  const auto detector = makeLinkDetector();
  const std::u16string units = utf16(kTyped);
  while (state.KeepRunning()) benchmark::DoNotOptimize(detector->firstMatch(units, units.size()));
}
BENCHMARK(typedLocationDetectorAlone);

void typedLocationFloor(benchmark::State& state) {
  while (state.KeepRunning()) {
    benchmark::DoNotOptimize(kTyped.find('\x01'));
  }
}
BENCHMARK(typedLocationFloor);

int linksIn(std::u16string_view text, const LinkDetector& detector) {
  int count = 0;
  while (const auto match = detector.firstMatch(text, text.size())) {
    text.remove_prefix(match->location + match->length);
    ++count;
  }
  return count;
}

void everyLink(benchmark::State& state, std::string_view piece) {
  const auto detector = makeLinkDetector();
  const std::string text = filled(piece);
  const std::u16string units = utf16(text);
  while (state.KeepRunning()) benchmark::DoNotOptimize(linksIn(units, *detector));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK_CAPTURE(everyLink, linksInProse,
                  "Some words about https://server.example/path?q=1, then example.com and "
                  "(name@example.com); nothing in this sentence. ");
BENCHMARK_CAPTURE(everyLink, prose, "Nothing but words, sentences, 3.14 and e.g. stops. ");
BENCHMARK_CAPTURE(everyLink, bareDomains, "a.com ");
BENCHMARK_CAPTURE(everyLink, dots, "a.");
BENCHMARK_CAPTURE(everyLink, hyphens, "a-");
BENCHMARK_CAPTURE(everyLink, numbers, "1.");
BENCHMARK_CAPTURE(everyLink, underscores, "www.a_");
BENCHMARK_CAPTURE(everyLink, ats, "@");
BENCHMARK_CAPTURE(everyLink, names, "a@");
BENCHMARK_CAPTURE(everyLink, schemes, "://");
BENCHMARK_CAPTURE(everyLink, brackets, "(");
BENCHMARK_CAPTURE(everyLink, unknownDomains, "a.zz ");
BENCHMARK_CAPTURE(everyLink, internationalDomains, "\u00fc.zz ");

void closingBrackets(benchmark::State& state) {
  const auto detector = makeLinkDetector();
  const std::u16string units = utf16("http://a.com/" + filled(")"));
  while (state.KeepRunning()) benchmark::DoNotOptimize(linksIn(units, *detector));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(units.size()));
}
BENCHMARK(closingBrackets);

void megabyteFloor(benchmark::State& state) {
  const std::string text = filled("words ");
  while (state.KeepRunning()) {
    benchmark::DoNotOptimize(text.find('\x01'));
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(megabyteFloor);

}  // namespace
}  // namespace launcher
