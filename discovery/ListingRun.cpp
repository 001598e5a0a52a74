#include "discovery/ListingRun.h"

#include <memory>
#include <string_view>

#include "base/FatalError.h"
#include "base/SDLog.h"
#include "base/Unicode.h"
#include "discovery/Semaphore.h"

namespace launcher {
namespace {

template <class Message>
void log(const Message& message) {
  SDLog(message, "ViewController", "extractSourceFromDMG()");
}

/// Shared by the calling thread and the tool's two handlers. The last of them destroys it.
struct Search {
  std::string output;
  std::optional<std::string> location;
  Semaphore done;
};

/// The bytes as a text, or absent if they are not UTF-8.
std::optional<std::string_view> asText(std::string_view bytes) {
  return isUtf8(bytes) ? std::optional(bytes) : std::nullopt;
}

const PropertyList::Dictionary& asDictionary(const PropertyList& listing) {
  const PropertyList::Dictionary* dictionary = listing.dictionary();
  if (dictionary == nullptr) {
    fatalError("the listing is not a dictionary with text keys", "ListingRun", __LINE__);
  }
  return *dictionary;
}

std::optional<std::string> judged(std::string_view output, const ListingJudge& judge) {
  const PropertyListReading reading = readPropertyList(output);
  if (reading.value) return judge(asDictionary(*reading.value));
  log(reading.error);
  log(asText(output));
  return std::nullopt;
}

/// Runs after the tool has ended. The pause lets its last output arrive. The output handler must be
/// gone before the output is read.
void toolEnded(ListingTool& tool, Search& search, Sleeper& sleeper, const ListingJudge& judge) {
  constexpr double kSecondsForLastOutput = 1.0;
  log("the listing tool has ended");
  sleeper.sleep(kSecondsForLastOutput);
  tool.setOutputHandler({});
  search.location = judged(search.output, judge);
  search.done.signal();
}

}  // namespace

std::optional<std::string> extractSourceFromDMG(const ListingToolMaker& makeTool, Sleeper& sleeper,
                                                const ListingJudge& judge) {
  const auto search = std::make_shared<Search>();
  const std::shared_ptr<ListingTool> tool = makeTool();

  // The exit handler may refer to this thread's variables, since this thread waits for its signal.
  // It co-owns the semaphore: it may still be inside `signal()` when this thread returns.
  tool->setExitHandler(
      [search, &tool = *tool, &sleeper, &judge] { toolEnded(tool, *search, sleeper, judge); });
  tool->setOutputHandler([search](std::string_view bytes) { search->output += bytes; });

  if (!tool->launch()) return std::nullopt;
  tool->waitUntilExit();
  log("waited for the listing tool");
  search->done.wait();
  log(search->location);
  return search->location;
}

}  // namespace launcher
