// Starts a program, drives its window and says when what it shows has changed.
//
// Usage: window-clock PROGRAM [ARGUMENT...]
//
// Reads a command a line, answers a line each; times are nanoseconds of the monotonic clock:
//
//   (the start)   → started T PID mapped T painted T WINDOW
//   key NAME      → pressed T painted T     a key, as X names it
//   await         → painted T               whatever is painted next
//   click X Y     → pressed T               the left button, let go of at T, in the window
//   close         → asked T gone T          as a window manager closes a window
//
// "ended" is the answer where the program has ended before. At the end of the commands it is asked
// to end. Painted means that for a while nothing more was.

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>

extern "C" {  // which the header does without before glibc 2.37
#include <sys/pidfd.h>
}

#include "bench/stage/Clock.h"
#include "bench/stage/WindowWatch.h"

namespace launcher {
namespace {

constexpr std::int64_t kQuiet = 250'000'000;  // a caret blinks more slowly
constexpr std::int64_t kPatience = 20'000'000'000;

class WindowClock {
 public:
  explicit WindowClock(Display* display) : display_(display), watch_(display) {}

  bool start(char** command) {
    posix_spawn_file_actions_t silence{};
    posix_spawn_file_actions_init(&silence);
    posix_spawn_file_actions_addopen(&silence, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&silence, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    started_ = monotonicNow();
    const int error = posix_spawnp(&pid_, command[0], &silence, nullptr, command, environ);
    posix_spawn_file_actions_destroy(&silence);
    if (error != 0) return false;
    pidDescriptor_ = pidfd_open(pid_, 0);
    if (!awaitQuiet([this] { return isShown(); })) return false;
    std::cout << "started " << started_ << ' ' << pid_ << " mapped "
              << watch_.mappedAt(window_).value_or(0) << " painted "
              << watch_.paintedAt(window_).value_or(0) << ' ' << window_ << '\n';
    return true;
  }

  bool obey(const std::string& line) {
    std::istringstream words(line);
    std::string command;
    words >> command;
    if (command == "key") return key(words);
    if (command == "click") return click(words);
    if (command == "await") return awaitPainting();
    return command == "close" && close();
  }

  void end() const {
    if (ended_) return;
    kill(pid_, SIGTERM);
    waitpid(pid_, nullptr, 0);
  }

 private:
  bool isShown() {
    const auto window = watch_.window();
    if (!window) return false;
    window_ = *window;
    return watch_.paintedAt(window_) >= watch_.mappedAt(window_);
  }

  bool key(std::istream& words) {
    std::string name;
    words >> name;
    const KeyCode code = XKeysymToKeycode(display_, XStringToKeysym(name.c_str()));
    watch_.forgetPainting();
    const std::int64_t pressed = monotonicNow();
    XTestFakeKeyEvent(display_, code, True, CurrentTime);
    XTestFakeKeyEvent(display_, code, False, CurrentTime);
    XFlush(display_);
    if (!awaitQuiet([this] { return watch_.paintedAt(window_); })) return false;
    std::cout << "pressed " << pressed << " painted " << *watch_.paintedAt(window_) << '\n';
    return true;
  }

  bool awaitPainting() {
    watch_.takeEvents();
    watch_.forgetPainting();
    if (!awaitQuiet([this] { return watch_.paintedAt(window_); })) return false;
    std::cout << "painted " << *watch_.paintedAt(window_) << '\n';
    return true;
  }

  bool click(std::istream& words) {
    int x = 0;
    int y = 0;
    words >> x >> y;
    int left = 0;
    int top = 0;
    Window child = None;
    XTranslateCoordinates(display_, window_, DefaultRootWindow(display_), x, y, &left, &top,
                          &child);
    XTestFakeMotionEvent(display_, -1, left, top, CurrentTime);
    XTestFakeButtonEvent(display_, Button1, True, CurrentTime);
    XSync(display_, False);
    awaitQuiet([] { return std::optional(0); });  // the button is shown pressed
    const std::int64_t pressed = monotonicNow();
    XTestFakeButtonEvent(display_, Button1, False, CurrentTime);
    XFlush(display_);
    std::cout << "pressed " << pressed << '\n';
    return true;
  }

  bool close() {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window_;
    event.xclient.message_type = XInternAtom(display_, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display_, "WM_DELETE_WINDOW", False));
    const std::int64_t asked = monotonicNow();
    XSendEvent(display_, window_, False, NoEventMask, &event);
    XFlush(display_);
    if (waitpid(pid_, nullptr, 0) != pid_) return false;
    const std::int64_t gone = monotonicNow();
    ended_ = true;
    std::cout << "asked " << asked << " gone " << gone << '\n';
    return true;
  }

  /// Waits until the condition holds and nothing has been painted for a while. False where the
  /// program ends meanwhile, or patience does.
  template <class Condition>
  bool awaitQuiet(Condition condition) {
    const std::int64_t begun = monotonicNow();
    while (monotonicNow() - begun < kPatience) {
      const std::int64_t since = std::max(begun, watch_.anyPaintedAt().value_or(begun));
      const std::int64_t left = since + kQuiet - monotonicNow();
      if (left <= 0 && condition()) return true;
      if (!awaitEvents(left > 0 ? left : kQuiet)) return false;
    }
    return false;
  }

  /// False where the program has ended.
  bool awaitEvents(std::int64_t nanoseconds) {
    std::array<pollfd, 2> descriptors{
        {{watch_.descriptor(), POLLIN, 0}, {pidDescriptor_, POLLIN, 0}}};
    const auto milliseconds = static_cast<int>(nanoseconds / 1'000'000 + 1);
    poll(descriptors.data(), descriptors.size(), milliseconds);
    watch_.takeEvents();
    return descriptors[1].revents == 0;
  }

  Display* display_;
  WindowWatch watch_;
  std::int64_t started_ = 0;
  pid_t pid_ = 0;
  int pidDescriptor_ = -1;
  Window window_ = None;
  bool ended_ = false;
};

int run(char** command) {
  Display* display = XOpenDisplay(nullptr);
  if (display == nullptr) return EXIT_FAILURE;
  WindowClock clock(display);
  bool goesOn = clock.start(command);
  std::string line;
  while (goesOn && std::cout.flush() && std::getline(std::cin, line)) goesOn = clock.obey(line);
  if (!goesOn) std::cout << "ended" << std::endl;
  clock.end();
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace launcher

int main(int argc, char** argv) {
  if (argc < 2) return EXIT_FAILURE;
  return launcher::run(argv + 1);
}
