#import "controller/mac/ViewController.h"

#import <CoreGraphics/CoreGraphics.h>
#import <QuartzCore/QuartzCore.h>

#include "base/FatalError.h"
#import "base/mac/Conversions.h"
#include "controller/LauncherController.h"
#import "controller/mac/OperationQueues.h"
#import "controller/mac/WindowBridge.h"
#import "discovery/mac/ListConversions.h"

namespace launcher {

/// The logic of one window, with the bridge and the queue that it uses.
class WindowLogic {
 public:
  WindowLogic(ViewController* controller, NSOperationQueue* background)
      : window_(controller),
        background_(makeWorkQueue(background)),
        controller_(window_, *background_, controllerServices()) {}

  LauncherController* operator->() { return &controller_; }

 private:
  WindowBridge window_;
  std::unique_ptr<WorkQueue> background_;
  LauncherController controller_;
};

namespace {

template <class Control>
Control* connected(Control* outlet, unsigned line) {
  if (outlet == nil) fatalError("outlet not connected", "ViewController", line);
  return outlet;
}

void giveLayer(NSTextField* field) {
  [field setWantsLayer:YES];
  [field setLayer:[CALayer layer]];
  [[field layer] setBorderWidth:1.0];
  [[field layer] setCornerRadius:5.0];
}

}  // namespace
}  // namespace launcher

using launcher::connected;
using launcher::toDictionary;
using launcher::toNSStringOrNil;
using launcher::toStdString;
using launcher::toUrl;

@implementation ViewController

/// Call this before the base class's initialiser, which may already load the view. It is a
/// function, so that the class answers no message beyond its header and its base class.
static void prepare(ViewController* self) {
  self->_backgroundQueue = [[NSOperationQueue alloc] init];
  self->_logic = std::make_unique<launcher::WindowLogic>(self, self->_backgroundQueue);
}

- (NSButton*)launchButton {
  return connected(_launchButton, __LINE__);
}

- (void)setLaunchButton:(NSButton*)button {
  _launchButton = button;
}

- (NSTextField*)infoLabel {
  return connected(_infoLabel, __LINE__);
}

- (void)setInfoLabel:(NSTextField*)label {
  _infoLabel = label;
}

- (NSTextField*)vorxLocation {
  return connected(_vorxLocation, __LINE__);
}

- (void)setVorxLocation:(NSTextField*)field {
  _vorxLocation = field;
}

- (NSTextField*)ipAddress {
  return connected(_ipAddress, __LINE__);
}

- (void)setIpAddress:(NSTextField*)field {
  _ipAddress = field;
}

- (NSOperationQueue*)backgroundQueue {
  return _backgroundQueue;
}

/// Sets only the location field's colour; the first evaluation sets the IP field's.
- (void)viewDidLoad {
  [super viewDidLoad];
  launcher::giveLayer([self vorxLocation]);
  [[[self vorxLocation] layer] setBackgroundColor:[[NSColor whiteColor] CGColor]];
  launcher::giveLayer([self ipAddress]);
  (*_logic)->viewDidLoad();
}

- (void)viewWillAppear {
  [super viewWillAppear];
  [[[self view] window] setLevel:CGWindowLevelForKey(kCGFloatingWindowLevelKey)];
}

- (id)representedObject {
  return [super representedObject];
}

- (void)setRepresentedObject:(id)object {
  [super setRepresentedObject:object];
}

- (NSString*)getIpAddressWithDomain:(NSString*)domain manualIP:(NSString*)manualIP {
  return toNSStringOrNil((*_logic)->getIpAddress(toStdString(domain), toStdString(manualIP)));
}

- (IBAction)launchButtonClick:(id)sender {
  (*_logic)->launchButtonClick();
}

- (void)updateState {
  (*_logic)->updateState();
}

- (NSString*)extractWhereAreYouFromUrl:(NSURL*)url {
  const auto file = toUrl(url);
  return file ? toNSStringOrNil((*_logic)->extractWhereAreYouFrom(*file)) : nil;
}

- (NSString*)processDMGDataWithPlist:(NSDictionary*)plist {
  return toNSStringOrNil((*_logic)->processDMGData(toDictionary(plist)));
}

- (void)updateSourceLocationWithSource:(NSString*)source {
  (*_logic)->updateSourceLocation(toStdString(source));
}

- (void)searchDMGs {
  (*_logic)->searchDMGs();
}

- (NSString*)extractSourceFromDMG {
  return toNSStringOrNil((*_logic)->extractSourceFromDMG());
}

- (void)controlTextDidChange:(NSNotification*)notification {
  if ([[notification object] isKindOfClass:[NSTextField class]]) [self updateState];
}

- (instancetype)initWithNibName:(NSString*)name bundle:(NSBundle*)bundle {
  prepare(self);
  return [super initWithNibName:name bundle:bundle];
}

- (instancetype)initWithCoder:(NSCoder*)coder {
  prepare(self);
  return [super initWithCoder:coder];
}

- (void)dealloc {
  _logic.reset();
  [_backgroundQueue release];
  [super dealloc];
}

@end
