// A program that the contract tests start. Its first argument says what it does. An alarm ends it
// if a test has lost it.

#include <fcntl.h>
#include <pthread.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <thread>

namespace {

int printArguments(int argc, char** argv) {
  for (int i = 2; i < argc; ++i) std::cout << '[' << argv[i] << "]\n";
  return 0;
}

int printToBoth() {
  std::cout << "out\n" << std::flush;
  std::cerr << "err\n" << std::flush;
  std::cout << "out again\n";
  return 0;
}

int printDescriptors() {
  for (int descriptor = 0; descriptor < 4096; ++descriptor) {
    if (fcntl(descriptor, F_GETFD) != -1) std::cout << descriptor << ' ';
  }
  return 0;
}

int printSignals() {
  sigset_t blocked;
  sigprocmask(SIG_SETMASK, nullptr, &blocked);
  for (int number = 1; number < NSIG; ++number) {
    struct sigaction action = {};
    if (sigismember(&blocked, number) == 1) std::cout << "blocked " << number << '\n';
    if (sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN) {
      std::cout << "ignored " << number << '\n';
    }
  }
  return 0;
}

/// Writes this process's identifier and arguments to a file. The file appears once it is complete.
void announce(int argc, char** argv) {
  const std::string file = argv[2];
  std::ofstream draft(file + ".draft");
  draft << getpid() << '\n';
  for (int i = 3; i < argc; ++i) draft << '[' << argv[i] << "]\n";
  draft.close();
  std::rename((file + ".draft").c_str(), file.c_str());
}

int announceAndWait(int argc, char** argv) {
  announce(argc, argv);
  pause();
  return 0;
}

/// Announces itself and waits in a second thread, while the first one ends.
int announceWithoutFirstThread(int argc, char** argv) {
  std::thread([=] { announceAndWait(argc, argv); }).detach();
  pthread_exit(nullptr);
}

int printVariable(int argc, char** argv) {
  const char* value = argc > 2 ? std::getenv(argv[2]) : nullptr;
  std::cout << (value == nullptr ? "" : value);
  return 0;
}

int repeatInput() {
  std::cout << std::cin.rdbuf();
  return 0;
}

int waitForSignal() {
  std::cout << getpid() << '\n' << std::flush;
  pause();
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  alarm(300);
  const std::string_view verb = argc > 1 ? argv[1] : "exit";
  if (verb == "announce") return announceAndWait(argc, argv);
  if (verb == "announce-without-first-thread") return announceWithoutFirstThread(argc, argv);
  if (verb == "arguments") return printArguments(argc, argv);
  if (verb == "both") return printToBoth();
  if (verb == "descriptors") return printDescriptors();
  if (verb == "signals") return printSignals();
  if (verb == "repeat") return repeatInput();
  if (verb == "variable") return printVariable(argc, argv);
  if (verb == "wait") return waitForSignal();
  return 0;
}
