#import <AppKit/AppKit.h>

#include "app/mac/PrepareToolkit.h"

int main(int argc, const char** argv) {
  launcher::prepareToolkit();
  NSApplicationMain(argc, argv);
  return 0;
}
