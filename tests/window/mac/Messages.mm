#import "tests/window/mac/Messages.h"

#import <objc/runtime.h>

#include <cstdlib>

namespace launcher {
namespace {

bool isHousekeeping(const std::string& name) { return name == "dealloc" || name[0] == '.'; }

}  // namespace

std::vector<std::string> controllerMessages() {
  return {
      "launchButton",
      "setLaunchButton:",
      "infoLabel",
      "setInfoLabel:",
      "vorxLocation",
      "setVorxLocation:",
      "ipAddress",
      "setIpAddress:",
      "backgroundQueue",
      "viewDidLoad",
      "viewWillAppear",
      "representedObject",
      "setRepresentedObject:",
      "getIpAddressWithDomain:manualIP:",
      "launchButtonClick:",
      "updateState",
      "extractWhereAreYouFromUrl:",
      "processDMGDataWithPlist:",
      "updateSourceLocationWithSource:",
      "searchDMGs",
      "extractSourceFromDMG",
      "controlTextDidChange:",
      "initWithNibName:bundle:",
      "initWithCoder:",
  };
}

std::vector<std::string> messagesOf(Class type) {
  unsigned count = 0;
  Method* methods = class_copyMethodList(type, &count);
  std::vector<std::string> names;
  for (unsigned i = 0; i < count; ++i) {
    const std::string name = sel_getName(method_getName(methods[i]));
    if (!isHousekeeping(name)) names.push_back(name);
  }
  std::free(methods);
  return names;
}

}  // namespace launcher
