#include "controller/linux/WorkQueues.h"

#include <QObject>
#include <deque>
#include <thread>
#include <utility>

namespace launcher {
namespace {

using Item = std::function<void()>;

class MainQueue : public WorkQueue, private QObject {
 public:
  void add(Item item) override {
    const auto run = [this, item = std::move(item)] { runInTurn(item); };
    QMetaObject::invokeMethod(this, run, Qt::QueuedConnection);
  }

 private:
  /// The event loop would run further items while one shows an alert. They wait behind it.
  void runInTurn(const Item& item) {
    inTurn_.push_back(item);
    if (inTurn_.size() > 1) return;
    for (; !inTurn_.empty(); inTurn_.pop_front()) inTurn_.front()();
  }

  std::deque<Item> inTurn_;  // the one that runs comes first; main thread only
};

}  // namespace

void BackgroundQueue::add(Item item) { std::thread(std::move(item)).detach(); }

std::unique_ptr<WorkQueue> makeMainQueue() { return std::make_unique<MainQueue>(); }

}  // namespace launcher
