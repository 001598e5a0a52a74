#pragma once

// GNUstep's AppKit together with those messages of the platform's that it lacks.

#include_next <AppKit/AppKit.h>

// This runtime has no weak references: an outlet whose control has gone dangles.
#undef __weak
#define __weak

// Newer names that GNUstep lacks.
#define NSEventMaskAny NSAnyEventMask
#define NSEventTypeKeyDown NSKeyDown

@class CALayer;

@interface NSView (LayerBacking)
/// A view that wants a layer gets one, unless it has one already.
- (void)setWantsLayer:(BOOL)wanted;
- (BOOL)wantsLayer;
- (void)setLayer:(CALayer*)layer;
- (CALayer*)layer;
@end

@interface NSViewController (Lifecycle)
- (void)viewDidLoad;
- (void)viewWillAppear;
@end

@interface NSWindow (ContentViewController)
- (void)setContentViewController:(NSViewController*)controller;
- (NSViewController*)contentViewController;
@end
