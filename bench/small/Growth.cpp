// How the time grows with what there is to look at: attached images, processes, characters.

#include <benchmark/benchmark.h>

#include <cstring>
#include <string>
#include <vector>

#include "bench/small/Listing.h"
#include "discovery/ImageRecords.h"
#include "discovery/PropertyList.h"
#include "net/AddressChecks.h"
#include "process/ProcessHelpers.h"
#include "process/ProcessTable.h"

namespace launcher {
namespace {

class FarBundle : public ApplicationBundle {
 public:
  std::string path() const override { return "/Volumes/none/VorxLauncher.app"; }
  std::optional<std::string> resourcePath() const override { return std::nullopt; }
};

/// From the tool's output to the answer that no image is the application's.
void images(benchmark::State& state) {
  const std::string text = listingOf(static_cast<int>(state.range()));
  const FarBundle bundle;
  const OriginReader none = [](const Url&) { return std::nullopt; };
  while (state.KeepRunning()) {
    const PropertyListReading reading = readPropertyList(text);
    benchmark::DoNotOptimize(processDMGData(*reading.value->dictionary(), bundle, none));
  }
}
BENCHMARK(images)->Name("growth/images")->RangeMultiplier(10)->Range(10, 10'000);

/// A table of processes that are none.
class MadeUpTable : public ProcessTable {
 public:
  explicit MadeUpTable(std::size_t count) : records_(count) {
    for (std::size_t i = 0; i < count; ++i) {
      const std::string name = "process" + std::to_string(i);
      records_[i] = {static_cast<ProcessId>(i + 1), {}};
      name.copy(records_[i].command.data(), records_[i].command.size() - 1);
    }
  }

  std::size_t recordSize() const override { return sizeof(ProcessRecord); }

  int probeSize(std::size_t& length) const override {
    length = records_.size() * sizeof(ProcessRecord);
    return 0;
  }

  int fetch(std::byte* buffer, std::size_t& length) const override {
    std::memcpy(buffer, records_.data(), length);
    return 0;
  }

  ProcessRecord read(const std::byte* record) const override {
    ProcessRecord result{};
    std::memcpy(&result, record, sizeof result);
    return result;
  }

 private:
  std::vector<ProcessRecord> records_;
};

void processes(benchmark::State& state) {
  const MadeUpTable table(static_cast<std::size_t>(state.range()));
  while (state.KeepRunning()) {
    benchmark::DoNotOptimize(ProcessHelpers::getRunningProcess("vexlink", table));
  }
}
BENCHMARK(processes)->Name("growth/processes")->Arg(100)->Arg(1'000)->Arg(10'000)->Arg(50'000);

void location(benchmark::State& state) {
  std::string text = "https://server.example/";
  text.resize(static_cast<std::size_t>(state.range()) + text.size(), 'a');
  const auto detector = makeLinkDetector();
  while (state.KeepRunning()) benchmark::DoNotOptimize(isValidURLAddress(text, *detector));
}
BENCHMARK(location)->Name("growth/characters")->RangeMultiplier(10)->Range(10, 1'000'000);

}  // namespace
}  // namespace launcher
