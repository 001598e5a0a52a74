#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <exception>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "discovery/linux/XmlText.h"
#include "discovery/linux/attached-images/MountedImages.h"

namespace {

using launcher::MountedImage;
using Arguments = std::vector<std::string_view>;

constexpr int kSucceeded = 0;
constexpr int kFailed = 1;
constexpr int kWronglyCalled = 2;

constexpr std::string_view kHelp =
    "Lists the disk images that are attached to loop devices and mounted.\n"
    "\n"
    "Usage: attached-images info -plist    as a property list\n"
    "       attached-images --help         this help\n";

std::string entry(std::string_view key, std::string_view text) {
  return "<key>" + std::string(key) + "</key><string>" + launcher::xmlText(text) + "</string>\n";
}

std::string record(const MountedImage& image) {
  return "<dict>\n" + entry("image-path", image.path) +
         "<key>system-entities</key><array><dict>\n" + entry("dev-entry", image.device) +
         entry("mount-point", image.mountPoint) + "</dict></array>\n</dict>\n";
}

std::string listing() {
  std::string records;
  for (const MountedImage& image : launcher::mountedImages()) records += record(image);
  return launcher::xmlPropertyList("<dict><key>images</key><array>\n" + records +
                                   "</array></dict>");
}

void print(std::string_view text) {
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() || std::fflush(stdout) != 0) {
    throw std::system_error(errno, std::generic_category(), "the output");
  }
}

int run(const Arguments& arguments) {
  if (arguments == Arguments{"info", "-plist"}) {
    print(listing());
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
