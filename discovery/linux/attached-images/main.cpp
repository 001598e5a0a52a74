#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <exception>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "discovery/linux/attached-images/AttachedImageList.h"
#include "discovery/linux/attached-images/KernelFile.h"
#include "discovery/linux/attached-images/ListingText.h"
#include "discovery/linux/attached-images/LoopDevices.h"
#include "discovery/linux/attached-images/MountTable.h"

namespace {

using launcher::AttachedImage;
using Arguments = std::vector<std::string_view>;

constexpr int kSucceeded = 0;
constexpr int kFailed = 1;
constexpr int kWronglyCalled = 2;

constexpr std::string_view kHelp =
    "Lists the disk images that are attached to loop devices, and where they are mounted.\n"
    "\n"
    "Usage: attached-images info           as a text for reading\n"
    "       attached-images info -plist    as a property list\n"
    "       attached-images --help         this help\n";

std::vector<AttachedImage> attachedImages() {
  const std::optional<std::string> mounts = launcher::readKernelFile("/proc/self/mountinfo");
  if (!mounts) throw std::runtime_error("cannot read the mount table");
  return launcher::attachedImages(launcher::readLoopDevices("/sys/class/block"),
                                  launcher::parseMountTable(*mounts));
}

void print(std::string_view text) {
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() || std::fflush(stdout) != 0) {
    throw std::system_error(errno, std::generic_category(), "the output");
  }
}

int run(const Arguments& arguments) {
  if (arguments == Arguments{"info"}) {
    print(tableOf(attachedImages()));
  } else if (arguments == Arguments{"info", "-plist"}) {
    print(propertyListOf(attachedImages()));
  } else if (arguments == Arguments{"--help"}) {
    print(kHelp);
  } else {
    std::fprintf(stderr, "attached-images: missing or unknown arguments\n\n%s", kHelp.data());
    return kWronglyCalled;
  }
  return kSucceeded;
}

}  // namespace

int main(int argc, char** argv) try {
  // Without the signal, writing to a closed pipe fails and is reported like any other failure.
  std::signal(SIGPIPE, SIG_IGN);
  return run({argv + std::min(argc, 1), argv + argc});
} catch (const std::exception& error) {
  std::fprintf(stderr, "attached-images: %s\n", error.what());
  return kFailed;
}
