// A text is a valid IP address exactly where the system reads one, up to the text's first NUL.
#include <arpa/inet.h>

#include <array>
#include <string>

#include "net/AddressChecks.h"
#include "tests/fuzz/Fuzzing.h"

using namespace launcher;
using namespace launcher::fuzzing;

static bool systemReads(int family, const char* text) {
  std::array<std::byte, sizeof(in6_addr)> address{};
  return inet_pton(family, text, address.data()) == 1;
}

FUZZ_TARGET(text) {
  const std::string ended(text);
  const bool expected = systemReads(AF_INET6, ended.c_str()) || systemReads(AF_INET, ended.c_str());
  require(validIPAddress(text) == expected, "the check agrees with the system");
}
