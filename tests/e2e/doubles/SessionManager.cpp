// A double of a desktop's session manager: prints its address, takes one program into its session
// and records that, and ends the session at SIGTERM.

#include <X11/SM/SMlib.h>
#include <poll.h>
#include <sys/signalfd.h>

#include <csignal>
#include <cstdio>
#include <vector>

#include "Recording.h"

namespace {

SmsConn program = nullptr;
bool isEnding = false;

int allow(char* /*host*/) { return True; }

int onRegister(SmsConn connection, SmPointer, char* previous) {
  if (previous != nullptr) return 0;
  program = connection;
  SmsRegisterClientReply(connection, SmsGenerateClientID(connection));
  SmsSaveYourself(connection, SmSaveLocal, False, SmInteractStyleNone, False);
  return 1;
}

void onSaved(SmsConn connection, SmPointer, int /*succeeded*/) {
  if (isEnding) {
    SmsDie(connection);
  } else {
    SmsSaveComplete(connection);
    record("member");
  }
}

void onClose(SmsConn connection, SmPointer, int, char**) {
  IceConn line = SmsGetIceConnection(connection);
  SmsCleanUp(connection);
  IceCloseConnection(line);
  std::exit(EXIT_SUCCESS);
}

int onNewClient(SmsConn, SmPointer, unsigned long* mask, SmsCallbacks* callbacks, char**) {
  *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
          SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask |
          SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask | SmsSetPropertiesProcMask |
          SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
  callbacks->register_client.callback = onRegister;
  callbacks->interact_request.callback = [](SmsConn connection, SmPointer, int) {
    SmsInteract(connection);
  };
  callbacks->interact_done.callback = [](SmsConn, SmPointer, int) {};
  callbacks->save_yourself_request.callback = [](SmsConn, SmPointer, int, int, int, int, int) {};
  callbacks->save_yourself_phase2_request.callback = [](SmsConn connection, SmPointer) {
    SmsSaveYourselfPhase2(connection);
  };
  callbacks->save_yourself_done.callback = onSaved;
  callbacks->close_connection.callback = onClose;
  callbacks->set_properties.callback = [](SmsConn, SmPointer, int, SmProp**) {};
  callbacks->delete_properties.callback = [](SmsConn, SmPointer, int, char**) {};
  callbacks->get_properties.callback = [](SmsConn connection, SmPointer) {
    SmsReturnProperties(connection, 0, nullptr);
  };
  return 1;
}

IceConn accept(IceListenObj place) {
  IceAcceptStatus status{};
  IceConn line = IceAcceptConnection(place, &status);
  if (line == nullptr) std::exit(EXIT_FAILURE);
  while (IceConnectionStatus(line) == IceConnectPending) IceProcessMessages(line, nullptr, nullptr);
  return line;
}

int signalDescriptor() {
  sigset_t terminate;
  sigemptyset(&terminate);
  sigaddset(&terminate, SIGTERM);
  sigprocmask(SIG_BLOCK, &terminate, nullptr);
  return signalfd(-1, &terminate, SFD_CLOEXEC);
}

}  // namespace

int main() {
  const int signals = signalDescriptor();
  char vendor[] = "double";
  char release[] = "1";
  int count = 0;
  IceListenObj* places = nullptr;
  if (SmsInitialize(vendor, release, onNewClient, nullptr, allow, 0, nullptr) == 0 ||
      IceListenForConnections(&count, &places, 0, nullptr) == 0) {
    return EXIT_FAILURE;
  }

  std::vector<pollfd> watched{{signals, POLLIN, 0}};
  for (int place = 0; place < count; ++place) {
    IceSetHostBasedAuthProc(places[place], allow);
    watched.push_back({IceGetListenConnectionNumber(places[place]), POLLIN, 0});
  }
  std::puts(IceComposeNetworkIdList(count, places));
  std::fflush(stdout);

  IceConn line = nullptr;
  while (poll(watched.data(), watched.size(), -1) > 0) {
    for (int place = 0; place < count && line == nullptr; ++place) {
      if (watched[static_cast<std::size_t>(place) + 1].revents == 0) continue;
      line = accept(places[place]);
      watched.push_back({IceConnectionNumber(line), POLLIN, 0});
    }
    if (line != nullptr && watched.back().revents != 0) IceProcessMessages(line, nullptr, nullptr);
    if (watched.front().revents != 0 && !isEnding) {
      isEnding = true;
      SmsSaveYourself(program, SmSaveBoth, True, SmInteractStyleAny, False);
      watched.front().fd = -1;
    }
  }
}
