// The layers that the controller gives to its fields.

#import <QuartzCore/QuartzCore.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#import "tests/window/mac/Stage.h"

/// Notes what is done to its layer, and keeps no layer if told so.
@interface LayerNotingField : NSTextField {
 @public
  std::vector<std::string> _notes;
  BOOL _withoutLayer;
}
@end

@implementation LayerNotingField

- (void)setWantsLayer:(BOOL)wanted {
  _notes.push_back(wanted ? "wants layer" : "wants none");
  if (!_withoutLayer) [super setWantsLayer:wanted];
}

- (void)setLayer:(CALayer*)layer {
  _notes.push_back("layer");
  if (!_withoutLayer) [super setLayer:layer];
}

- (CALayer*)layer {
  return _withoutLayer ? nil : [super layer];
}

@end

namespace launcher {
namespace {

class LayersTest : public testing::Test {
 protected:
  void SetUp() override {
    clearStage();
    [controller_ setVorxLocation:location_];
    [controller_ setIpAddress:ip_];
    [controller_ setLaunchButton:button_];
    [controller_ setInfoLabel:label_];
  }

  void load() {
    for (LayerNotingField* field in @[ location_, ip_ ]) field->_notes.clear();
    [controller_ viewDidLoad];
    finishWork(controller_);
  }

  static LayerNotingField* newField() { return [[[LayerNotingField alloc] init] autorelease]; }

  LayerNotingField* location_ = newField();
  LayerNotingField* ip_ = newField();
  NSButton* button_ = [[[NSButton alloc] init] autorelease];
  NSTextField* label_ = [[[NSTextField alloc] init] autorelease];
  ViewController* controller_ = [[[ViewController alloc] initWithNibName:@"ViewController"
                                                                  bundle:nil] autorelease];
};

TEST_F(LayersTest, AFieldIsLayerBackedBeforeItIsGivenItsLayer) {
  load();
  // AppKit and its stand-in may set a layer of their own in between.
  for (LayerNotingField* field in @[ location_, ip_ ]) {
    ASSERT_FALSE(field->_notes.empty());
    EXPECT_EQ(field->_notes.front(), "wants layer");
    EXPECT_EQ(field->_notes.back(), "layer");
    EXPECT_TRUE([field wantsLayer]);
  }
}

TEST_F(LayersTest, ALayerIsNewAndPlain) {
  CALayer* before = [CALayer layer];
  [location_ setLayer:before];
  [ip_ setLayer:before];
  load();
  EXPECT_NE([location_ layer], before);
  EXPECT_NE([ip_ layer], before);
  EXPECT_NE([location_ layer], [ip_ layer]);
  EXPECT_EQ([[location_ layer] class], [CALayer class]);
  EXPECT_EQ([[ip_ layer] class], [CALayer class]);
}

TEST_F(LayersTest, AFieldWithoutALayerIsSkipped) {
  for (LayerNotingField* field in @[ location_, ip_ ]) field->_withoutLayer = YES;
  load();
  [ip_ setStringValue:@"10.0.0.5"];
  [controller_ updateState];
  EXPECT_EQ([location_ layer], nil);
  EXPECT_EQ([ip_ layer], nil);
}

}  // namespace
}  // namespace launcher
