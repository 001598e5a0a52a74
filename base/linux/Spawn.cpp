#include "base/linux/Spawn.h"

#include <spawn.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <condition_variable>
#include <csignal>
#include <exception>
#include <future>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace launcher {
namespace {

void throwIfFailed(int error) {
  if (error != 0) throw std::system_error(error, std::generic_category());
}

/// Everything that starting a program needs, allocated beforehand.
class Launch {
 public:
  explicit Launch(SpawnOptions& options) : Launch() {
    argv_.reserve(options.arguments.size() + 2);
    argv_.push_back(options.path.data());
    for (std::string& argument : options.arguments) argv_.push_back(argument.data());
    argv_.push_back(nullptr);
    passDescriptors(options.output);
    resetSignals();
  }
  Launch(const Launch&) = delete;
  Launch& operator=(const Launch&) = delete;
  ~Launch() {
    posix_spawn_file_actions_destroy(&actions_);
    posix_spawnattr_destroy(&attributes_);
  }

  bool run(pid_t& pid) const noexcept {
    return posix_spawn(&pid, argv_[0], &actions_, &attributes_, argv_.data(), environ) == 0;
  }

 private:
  Launch() {
    throwIfFailed(posix_spawn_file_actions_init(&actions_));
    throwIfFailed(posix_spawnattr_init(&attributes_));
  }

  void passDescriptors(int output) {
    if (output >= 0) {
      throwIfFailed(posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO));
      throwIfFailed(posix_spawn_file_actions_adddup2(&actions_, output, STDERR_FILENO));
    }
    throwIfFailed(posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1));
  }

  /// Lets the child start with no signal blocked and none ignored.
  void resetSignals() {
    sigset_t none;
    sigset_t all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_setsigmask(&attributes_, &none);
    posix_spawnattr_setsigdefault(&attributes_, &all);
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  }

  std::vector<char*> argv_;
  posix_spawn_file_actions_t actions_{};
  posix_spawnattr_t attributes_{};
};

class Child : public SpawnedChild {
 public:
  void terminate() override {
    const std::lock_guard lock(mutex_);
    if (isRunning_) kill(pid_, SIGTERM);
  }

  void waitUntilExit() override {
    std::unique_lock lock(mutex_);
    ended_.wait(lock, [this] { return !isRunning_; });
  }

  /// False if the start failed. Nobody else may use the child yet.
  bool start(const Launch& launch) noexcept { return isRunning_ = launch.run(pid_); }

  /// Returns after the child has ended and been reaped.
  void reap() noexcept {
    awaitEnd();
    const std::lock_guard lock(mutex_);
    waitid(P_PID, static_cast<id_t>(pid_), nullptr, WEXITED);
    isRunning_ = false;
    ended_.notify_all();
  }

 private:
  /// Waits without reaping, so that the caller reaps under the lock: the kernel reuses the
  /// identifier only after that, and `terminate` cannot hit another process. Any failure but an
  /// interruption means that the child is gone already.
  void awaitEnd() const noexcept {
    siginfo_t info;
    while (waitid(P_PID, static_cast<id_t>(pid_), &info, WEXITED | WNOWAIT) == -1 &&
           errno == EINTR) {
    }
  }

  std::mutex mutex_;
  std::condition_variable ended_;
  bool isRunning_ = false;
  pid_t pid_ = 0;
};

}  // namespace

std::shared_ptr<SpawnedChild> spawn(SpawnOptions options) try {
  const auto child = std::make_shared<Child>();
  const Launch launch(options);
  std::promise<bool> started;
  std::future<bool> isStarted = started.get_future();

  // The thread that reaps the child also starts it, so that no child is left unreaped.
  std::thread reaper(
      [child, &launch, started = std::move(started), onExit = std::move(options.onExit)]() mutable {
        const bool isRunning = child->start(launch);
        started.set_value(isRunning);
        if (!isRunning) return;
        child->reap();
        if (onExit) onExit();
      });
  if (isStarted.get()) {
    reaper.detach();
    return child;
  }
  reaper.join();
  return nullptr;
} catch (const std::exception&) {
  return nullptr;
}

}  // namespace launcher
