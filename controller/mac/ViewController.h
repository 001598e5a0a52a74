#pragma once

#import <AppKit/AppKit.h>

#include <memory>

namespace launcher {
class WindowLogic;
}  // namespace launcher

/// The controller of the launcher's window for the toolkit and the layout resource. It decides
/// nothing: it passes every message on to the logic. Main thread only, except the messages of the
/// search and `getIpAddressWithDomain:manualIP:`.
///
/// The layout resource connects the outlets. They are weak: an outlet disconnects when its control
/// is destroyed. Reading one that is not connected ends the program.
@interface ViewController : NSViewController <NSTextFieldDelegate> {
 @private
  __weak NSButton* _launchButton;
  __weak NSTextField* _infoLabel;
  __weak NSTextField* _vorxLocation;
  __weak NSTextField* _ipAddress;
  NSOperationQueue* _backgroundQueue;
  std::unique_ptr<launcher::WindowLogic> _logic;
}

- (NSButton*)launchButton;
- (void)setLaunchButton:(NSButton*)button;
- (NSTextField*)infoLabel;
- (void)setInfoLabel:(NSTextField*)label;
- (NSTextField*)vorxLocation;
- (void)setVorxLocation:(NSTextField*)field;
- (NSTextField*)ipAddress;
- (void)setIpAddress:(NSTextField*)field;

/// Where slow work runs; not serial.
- (NSOperationQueue*)backgroundQueue;

/// The typed address if it is valid, else the host's first address, or nil. Blocks; any thread but
/// the main one.
- (NSString*)getIpAddressWithDomain:(NSString*)domain manualIP:(NSString*)manualIP;

- (IBAction)launchButtonClick:(id)sender;

/// Evaluates the launch state and shows it.
- (void)updateState;

/// The server location recorded on a disk image file, or nil.
- (NSString*)extractWhereAreYouFromUrl:(NSURL*)url;

/// The server location that a listing of attached images leads to, or nil.
- (NSString*)processDMGDataWithPlist:(NSDictionary*)plist;

/// Queues an item for the main thread that writes the location into its field and evaluates the
/// state.
- (void)updateSourceLocationWithSource:(NSString*)source;

/// Queues the search for the server location on the background queue.
- (void)searchDMGs;

/// The server location that the attached disk images lead to, or nil. Blocks; any thread but the
/// main one.
- (NSString*)extractSourceFromDMG;

@end
