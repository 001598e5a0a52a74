#include "discovery/ListingTool.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <exception>
#include <optional>
#include <thread>
#include <utility>

#include "base/linux/Descriptor.h"
#include "base/linux/Spawn.h"

namespace launcher {
namespace {

/// A thread that passes on a pipe's output until the pipe ends or the thread is told to stop. The
/// pipe ends only after every program that inherited it has ended, including the tool's children.
class OutputReader {
 public:
  OutputReader(Descriptor pipe, ListingTool::OutputHandler handler)
      : pipe_(std::move(pipe)), handler_(std::move(handler)), thread_([this] { run(); }) {}
  OutputReader(const OutputReader&) = delete;
  OutputReader& operator=(const OutputReader&) = delete;

  /// Once this returns, no call of the handler is under way and none follows.
  ~OutputReader() {
    eventfd_write(stop_.number(), 1);
    thread_.join();
  }

 private:
  void run() {
    std::array<char, 65536> buffer{};
    std::array<pollfd, 2> events{{{pipe_.number(), POLLIN, 0}, {stop_.number(), POLLIN, 0}}};
    while (true) {
      if (poll(events.data(), events.size(), -1) == -1 && errno == EINTR) continue;
      if (events[1].revents != 0) return;
      const ssize_t size = read(pipe_.number(), buffer.data(), buffer.size());
      if (size <= 0) return;
      handler_({buffer.data(), static_cast<std::size_t>(size)});
    }
  }

  Descriptor pipe_;
  Descriptor stop_ = opened(eventfd(0, EFD_CLOEXEC));
  ListingTool::OutputHandler handler_;
  std::thread thread_;
};

class SpawnedTool : public ListingTool {
 public:
  explicit SpawnedTool(std::string path) : path_(std::move(path)) {}

  void setOutputHandler(OutputHandler handler) override {
    if (!handler) reader_.reset();
    outputHandler_ = std::move(handler);
  }

  void setExitHandler(ExitHandler handler) override { exitHandler_ = std::move(handler); }

  bool launch() override try {
    PipeEnds pipe = PipeEnds::make();
    if (outputHandler_) {
      reader_ = std::make_unique<OutputReader>(std::move(pipe.readEnd), std::move(outputHandler_));
    }
    child_ = spawn({.path = path_,
                    .arguments = {"info", "-plist"},
                    .output = pipe.writeEnd.number(),
                    .onExit = std::move(exitHandler_)});
    if (child_ == nullptr) reader_.reset();
    return child_ != nullptr;
  } catch (const std::exception&) {
    return false;
  }

  void waitUntilExit() override { child_->waitUntilExit(); }

 private:
  std::string path_;
  OutputHandler outputHandler_;
  ExitHandler exitHandler_;
  std::shared_ptr<SpawnedChild> child_;
  std::unique_ptr<OutputReader> reader_;
};

}  // namespace

std::shared_ptr<ListingTool> makeListingToolAt(const std::string& path) {
  return std::make_shared<SpawnedTool>(path);
}

ListingToolMaker makeListingToolMaker(const ApplicationBundle& bundle) {
  return [&bundle] {
    const std::optional<std::string> resources = bundle.resourcePath();
    return makeListingToolAt(resources ? *resources + "/bin/attached-images" : "");
  };
}

}  // namespace launcher
