#include "base/linux/Spawn.h"

#include <spawn.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <condition_variable>
#include <csignal>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace launcher {
namespace {

void throwIfFailed(int error) {
  if (error != 0) throw std::system_error(error, std::generic_category());
}

/// The descriptors that the child gets.
class FileActions {
 public:
  explicit FileActions(int output) {
    throwIfFailed(posix_spawn_file_actions_init(&actions_));
    if (output >= 0) {
      redirect(output, STDOUT_FILENO);
      redirect(output, STDERR_FILENO);
    }
    throwIfFailed(posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1));
  }
  FileActions(const FileActions&) = delete;
  FileActions& operator=(const FileActions&) = delete;
  ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }

  const posix_spawn_file_actions_t* get() const { return &actions_; }

 private:
  void redirect(int from, int to) {
    throwIfFailed(posix_spawn_file_actions_adddup2(&actions_, from, to));
  }

  posix_spawn_file_actions_t actions_{};
};

/// Lets the child start with no signal blocked and none ignored.
class SignalAttributes {
 public:
  SignalAttributes() {
    throwIfFailed(posix_spawnattr_init(&attributes_));
    sigset_t none;
    sigset_t all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_setsigmask(&attributes_, &none);
    posix_spawnattr_setsigdefault(&attributes_, &all);
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  }
  SignalAttributes(const SignalAttributes&) = delete;
  SignalAttributes& operator=(const SignalAttributes&) = delete;
  ~SignalAttributes() { posix_spawnattr_destroy(&attributes_); }

  const posix_spawnattr_t* get() const { return &attributes_; }

 private:
  posix_spawnattr_t attributes_{};
};

/// Everything that starting a program needs, allocated beforehand.
class Launch {
 public:
  explicit Launch(SpawnOptions& options) : path_(options.path), actions_(options.output) {
    argv_.reserve(options.arguments.size() + 2);
    argv_.push_back(options.path.data());
    for (std::string& argument : options.arguments) argv_.push_back(argument.data());
    argv_.push_back(nullptr);
  }

  bool run(pid_t& pid) const noexcept {
    return posix_spawn(&pid, path_.c_str(), actions_.get(), attributes_.get(), argv_.data(),
                       environ) == 0;
  }

 private:
  const std::string& path_;
  std::vector<char*> argv_;
  FileActions actions_;
  SignalAttributes attributes_;
};

class Child : public SpawnedChild {
 public:
  void terminate() override {
    const std::lock_guard lock(mutex_);
    if (state_ == State::running) kill(pid_, SIGTERM);
  }

  void waitUntilExit() override {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return state_ == State::ended; });
  }

  /// Starts the child and wakes the reaper. False if the start failed.
  bool start(const Launch& launch) noexcept {
    const std::lock_guard lock(mutex_);
    state_ = launch.run(pid_) ? State::running : State::failed;
    changed_.notify_all();
    return state_ == State::running;
  }

  /// The reaper's work. Returns after the child has ended; false if it was never started.
  bool reap() noexcept {
    if (!awaitStart()) return false;
    awaitEnd();
    const std::lock_guard lock(mutex_);
    waitid(P_PID, static_cast<id_t>(pid_), nullptr, WEXITED);
    state_ = State::ended;
    changed_.notify_all();
    return true;
  }

 private:
  enum class State { starting, failed, running, ended };

  bool awaitStart() noexcept {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return state_ != State::starting; });
    return state_ == State::running;
  }

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
  std::condition_variable changed_;
  State state_ = State::starting;
  pid_t pid_ = 0;
};

}  // namespace

std::shared_ptr<SpawnedChild> spawn(SpawnOptions options) try {
  const auto child = std::make_shared<Child>();
  const Launch launch(options);

  // Allocate everything, including the reaper thread, before starting the child, so that no child
  // is left unreaped.
  std::thread reaper([child, onExit = std::move(options.onExit)] {
    if (child->reap() && onExit) onExit();
  });
  if (!child->start(launch)) {
    reaper.join();
    return nullptr;
  }
  reaper.detach();
  return child;
} catch (const std::exception&) {
  return nullptr;
}

}  // namespace launcher
