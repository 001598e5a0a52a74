#import <AppKit/AppKit.h>

#include "app/PrepareToolkit.h"

int main(int argc, char** argv) {
  launcher::prepareToolkit();
  NSApplicationMain(argc, const_cast<const char**>(argv));
  return 0;
}
