#include "objc/send.h"

#include <gtest/gtest.h>

#include "objc/autorelease_pool.h"
#include "objc/ref.h"
#include "objc/repeated_send.h"
#include "platform/Foundation/NSString.h"
#include "platform/Foundation/NSValue.h"

namespace {

TEST(Send, NilReturnsZeroForEveryKindOfMessage) {
  const objc::Object nil;
  EXPECT_EQ(objc::send<long>(nil, "integerValue"_sel), 0);
  EXPECT_EQ(objc::send<double>(nil, "doubleValue"_sel), 0.0);
  EXPECT_FALSE(objc::send<objc::Object>(nil, "description"_sel));
  const NSRange range = objc::send<NSRange>(nil, "rangeValue"_sel);
  EXPECT_EQ(range.location, 0u);
  EXPECT_EQ(range.length, 0u);
  objc::send<>(nil, "release"_sel);
}

TEST(Send, StructuresAreReturnedIntact) {
  objc::AutoreleasePool pool;
  const NSRange range = "an owl at night"_ns.rangeOfString("owl"_ns);
  EXPECT_EQ(range.location, 3u);
  EXPECT_EQ(range.length, 3u);
}

TEST(Send, FloatingPointArgumentsAndResultsKeepTheirWidth) {
  objc::AutoreleasePool pool;
  EXPECT_EQ(NSNumber::numberWithFloat(0.1f).floatValue(), 0.1f);
  EXPECT_EQ(NSNumber::numberWithDouble(0.1).doubleValue(), 0.1);
}

TEST(RepeatedSend, ReturnsWhatSendingEachTimeReturns) {
  objc::AutoreleasePool pool;
  const NSString text = "an owl"_ns;
  const objc::RepeatedSend<unichar, NSUInteger> letter_at(text, "characterAtIndex:"_sel);
  EXPECT_EQ(letter_at(0), u'a');
  EXPECT_EQ(letter_at(3), u'o');
}

TEST(Selector, IsRegisteredOnceAndCached) {
  const objc::Sel first = "anUncommonSelector:ofOurs:"_sel;
  EXPECT_EQ(first, "anUncommonSelector:ofOurs:"_sel);
  EXPECT_EQ(first, objc::cached_selector<"anUncommonSelector:ofOurs:">);
  EXPECT_STREQ(sel_getName(first), "anUncommonSelector:ofOurs:");
}

#ifdef SONAVUE_CHECKS
TEST(SendDeathTest, AWrongSignaturePrintsBothAndAborts) {
  EXPECT_DEATH(objc::send<double>("text"_ns, "length"_sel),
               "length.*called as d@:.*implemented as");
}
#endif

TEST(Ref, HoldsOneReferenceAndReleasesIt) {
  NSObject object = NSObject::alloc().init();
  {
    auto kept = objc::Ref<NSObject>::retain(object);
    EXPECT_EQ(object.retainCount(), 2u);
    auto another = kept;
    EXPECT_EQ(object.retainCount(), 3u);
    kept = std::move(another);
    EXPECT_EQ(object.retainCount(), 2u);
  }
  EXPECT_EQ(object.retainCount(), 1u);
  auto adopted = objc::Ref<NSObject>::adopt(object);
  EXPECT_EQ(adopted->retainCount(), 1u);
}

}  // namespace
