#include "app/linux/QuitSignals.h"

#include <sys/signalfd.h>

#include <QCoreApplication>
#include <csignal>

namespace launcher {

QuitSignals::QuitSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&signals, signal);
  descriptor_ = signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
  if (descriptor_ != -1) pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

void QuitSignals::watch() {
  if (descriptor_ == -1) return;
  notifier_.emplace(descriptor_, QSocketNotifier::Read);
  // Exit rather than quit: quitting would first ask each window whether it may be closed.
  QObject::connect(&*notifier_, &QSocketNotifier::activated, [] { QCoreApplication::exit(); });
}

}  // namespace launcher
