#import <AppKit/AppKit.h>

int main(int argc, const char** argv) {
  NSApplicationMain(argc, argv);
  return 0;
}
