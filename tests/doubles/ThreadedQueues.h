#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "controller/WorkQueue.h"

namespace launcher {

/// A background queue that runs every item at once on a thread of its own.
class ThreadPerItem : public WorkQueue {
 public:
  ~ThreadPerItem() override { waitForAll(); }

  void add(std::function<void()> item) override {
    const std::lock_guard lock(mutex_);
    threads_.emplace_back(std::move(item));
  }

  void waitForAll() {
    for (std::thread& thread : taken()) thread.join();
  }

 private:
  std::vector<std::thread> taken() {
    const std::lock_guard lock(mutex_);
    return std::exchange(threads_, {});
  }

  std::mutex mutex_;
  std::vector<std::thread> threads_;
};

/// A main queue: items come from any thread and run one after another where the test waits.
class WaitingQueue : public WorkQueue {
 public:
  void add(std::function<void()> item) override {
    const std::lock_guard lock(mutex_);
    items_.push_back(std::move(item));
    added_.notify_all();
  }

  /// Blocks until there is an item, without running it.
  void waitForItem() {
    std::unique_lock lock(mutex_);
    added_.wait(lock, [this] { return !items_.empty(); });
  }

  /// Runs the next items, waiting for each.
  void run(int count) {
    for (int i = 0; i < count; ++i) next()();
  }

 private:
  std::function<void()> next() {
    waitForItem();
    const std::lock_guard lock(mutex_);
    auto item = std::move(items_.front());
    items_.pop_front();
    return item;
  }

  std::mutex mutex_;
  std::condition_variable added_;
  std::deque<std::function<void()>> items_;
};

}  // namespace launcher
