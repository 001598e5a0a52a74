#pragma once

#import <AppKit/AppKit.h>

#include <memory>

namespace launcher {
class WindowLogic;
}  // namespace launcher

/// The controller of the launcher's window, as the toolkit and the layout resource reach it. It
/// decides nothing: every message is handed on to the logic. Main thread only, but for the messages
/// of the search and for `getIpAddressWithDomain:manualIP:`.
///
/// The outlets are connected by the layout resource. They are weak: one is not connected any more
/// when its control has gone. Reading one that is not connected stops the program.
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

/// The typed address if it is valid, else the host's first one, or nil. Blocks; not on the main
/// thread.
- (NSString*)getIpAddressWithDomain:(NSString*)domain manualIP:(NSString*)manualIP;

- (IBAction)launchButtonClick:(id)sender;

/// Evaluates the launch state and shows it.
- (void)updateState;

/// The server location recorded on a disk image file, or nil.
- (NSString*)extractWhereAreYouFromUrl:(NSURL*)url;

/// The server location that a listing of attached images leads to, or nil.
- (NSString*)processDMGDataWithPlist:(NSDictionary*)plist;

/// Queues, for the main thread, writing the location into its field and an evaluation.
- (void)updateSourceLocationWithSource:(NSString*)source;

/// Queues the search for the server location on the background queue.
- (void)searchDMGs;

/// The server location that the attached disk images lead to, or nil. Blocks; not on the main
/// thread.
- (NSString*)extractSourceFromDMG;

@end
