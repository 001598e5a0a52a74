#include "controller/linux/WorkQueues.h"

#include <QCoreApplication>
#include <QEvent>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

namespace launcher {
namespace {

using Item = std::function<void()>;

/// Has a queue of its own: the event loop's would run further items while one shows an alert.
class MainQueue : public WorkQueue, private QObject {
 public:
  void add(Item item) override {
    {
      const std::lock_guard lock(mutex_);
      waiting_.push_back(std::move(item));
    }
    wake();
  }

 private:
  void wake() { QCoreApplication::postEvent(this, new QEvent(QEvent::User)); }

  void customEvent(QEvent*) override {
    if (running_) return;
    const Item item = takeNext();
    if (!item) return;
    running_ = true;
    item();
    running_ = false;
    wake();
  }

  Item takeNext() {
    const std::lock_guard lock(mutex_);
    if (waiting_.empty()) return nullptr;
    Item next = std::move(waiting_.front());
    waiting_.pop_front();
    return next;
  }

  bool running_ = false;  // main thread only
  std::mutex mutex_;
  std::deque<Item> waiting_;
};

}  // namespace

void BackgroundQueue::add(Item item) { std::thread(std::move(item)).detach(); }

std::unique_ptr<WorkQueue> makeMainQueue() { return std::make_unique<MainQueue>(); }

}  // namespace launcher
