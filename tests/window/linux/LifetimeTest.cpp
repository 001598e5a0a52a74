// How long a window lives.

#include <thread>

#include "tests/window/linux/WindowTest.h"

namespace launcher {
namespace {

class LifetimeTest : public WindowTest {
 protected:
  LifetimeTest() {
    open();
    QObject::connect(window_.get(), &QObject::destroyed, [this] {
      ended_ = true;
      endedOnMainThread_ = QThread::currentThread() == qApp->thread();
    });
  }

  bool ended_ = false;
  bool endedOnMainThread_ = false;
};

TEST_F(LifetimeTest, EndsWithItsLastOwner) {
  window_.reset();
  EXPECT_TRUE(eventually([this] { return ended_; }));
}

TEST_F(LifetimeTest, ATokenDroppedOnAnotherThreadReleasesOnTheMainOne) {
  std::shared_ptr<void> token = window_->keepAlive();
  window_.reset();
  settle(*world_.mainQueue);
  EXPECT_FALSE(ended_);
  std::thread([&] { token.reset(); }).join();
  EXPECT_FALSE(ended_);
  EXPECT_TRUE(eventually([this] { return ended_; }));
  EXPECT_TRUE(endedOnMainThread_);
}

TEST_F(LifetimeTest, TheWorkOfAPressKeepsItAlive) {
  world_.resolver.gated = true;
  world_.resolver.answer = {{ipv4("10.1.2.3")}};
  enterLocation();
  press(Qt::Key_Return);
  window_.reset();
  settle(*world_.mainQueue);
  EXPECT_FALSE(ended_);
  world_.resolver.gate.release();
  EXPECT_TRUE(eventually([this] { return ended_; }));
  EXPECT_TRUE(endedOnMainThread_);
  EXPECT_EQ(world_.starter.starts.size(), 1);
}

}  // namespace
}  // namespace launcher
