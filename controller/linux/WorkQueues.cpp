#include "controller/linux/WorkQueues.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <chrono>
#include <deque>
#include <system_error>
#include <thread>
#include <utility>

namespace launcher {
namespace {

using Item = std::function<void()>;

constexpr std::chrono::seconds untilNextTry{1};

struct ItemEvent : QEvent {
  explicit ItemEvent(Item added) : QEvent(User), item(std::move(added)) {}

  Item item;
};

class MainQueue : public WorkQueue, private QObject {
 public:
  void add(Item item) override {
    QCoreApplication::postEvent(this, new ItemEvent(std::move(item)));
  }

 private:
  /// The event loop would run further items while one shows an alert. They wait behind it.
  void customEvent(QEvent* event) override {
    inTurn_.push_back(std::move(dynamic_cast<ItemEvent&>(*event).item));
    if (inTurn_.size() > 1) return;
    for (; !inTurn_.empty(); inTurn_.pop_front()) inTurn_.front()();
  }

  std::deque<Item> inTurn_;  // the one that runs comes first; main thread only
};

}  // namespace

void BackgroundQueue::add(Item item) {
  try {
    std::thread(item).detach();
  } catch (const std::system_error&) {
    const auto again = [item = std::move(item)] { BackgroundQueue().add(item); };
    QTimer::singleShot(untilNextTry, qApp, again);
  }
}

std::unique_ptr<WorkQueue> makeMainQueue() { return std::make_unique<MainQueue>(); }

}  // namespace launcher
