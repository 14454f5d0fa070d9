#include <gtest/gtest.h>

#include "objc/block.h"
#include "objc/class_builder.h"
#include "platform/Foundation/NSString.h"

// The phone's compiler reads the whole word of a small integer argument or result. Here functions
// that do so play the part of its code, and the host has to extend the integers to words.

namespace {

using objc::Id;
using objc::Object;
using objc::Sel;

/// A word whose lowest byte is `byte`, with something else above it.
constexpr long above(unsigned char byte) {
  return 0x5a5a5a00L | byte;
}

constexpr long kNo = above(0);
constexpr long kMinusOne = above(0xff);

BOOL low_byte(Object, long word) {
  return static_cast<BOOL>(word);
}

unichar low_half(Object, long word) {
  return static_cast<unichar>(word);
}

long rubbish_over_no(Id, Sel) {
  return kNo;
}

int word_of_argument(Id, Sel, int word) {
  return word;
}

[[gnu::noipa]] int word_of_block_argument(const void*, int word) {
  return word;
}

template <class Function>
objc::Imp imp(Function* function) {
  return reinterpret_cast<objc::Imp>(function);
}

objc::Class words() {
  static const objc::Class made = [] {
    const objc::Class cls = objc::ClassBuilder("WholeWords", "NSObject")
                                .method<&low_byte>("lowByte:")
                                .method<&low_half>("lowHalf:")
                                .finish();
    class_addMethod(cls, sel_registerName("isRubbish"), imp(&rubbish_over_no), "c@:");
    class_addMethod(cls, sel_registerName("take:"), imp(&word_of_argument), "i@:c");
    return cls;
  }();
  return made;
}

class WholeWords : public testing::Test {
 protected:
  WholeWords() : object_(objc::send<Object>(Object(words()), "new"_sel)) {}
  ~WholeWords() override { objc::send<>(object_, "release"_sel); }

  int word_of(Sel selector, long argument) const {
    using Function = int (*)(Id, Sel, long);
    const auto method = objc::message_function(object_.id(), selector);
    return reinterpret_cast<Function>(method)(object_.id(), selector, argument);
  }

  Object object_;
};

TEST_F(WholeWords, AHostMethodExtendsItsResultToAWord) {
  EXPECT_EQ(word_of("lowByte:"_sel, kNo), 0);
  EXPECT_EQ(word_of("lowByte:"_sel, kMinusOne), -1);
  EXPECT_EQ(word_of("lowHalf:"_sel, 0x7654'fedcL), 0xfedc);
}

TEST_F(WholeWords, AMessageExtendsItsArgumentsToWords) {
  volatile long word = kNo;
  EXPECT_EQ(objc::send<int>(object_, "take:"_sel, static_cast<BOOL>(word)), 0);
  word = kMinusOne;
  EXPECT_EQ(objc::send<int>(object_, "take:"_sel, static_cast<BOOL>(word)), -1);
}

TEST_F(WholeWords, GarbageAboveAForeignResultIsIgnored) {
  EXPECT_EQ(objc::send<BOOL>(object_, "isRubbish"_sel), NO);
  EXPECT_FALSE(objc::from_abi<bool>(static_cast<int>(kNo)));
}

TEST(WholeWordsOfBlocks, ABlockExtendsItsResultToAWord) {
  const auto made = objc::block([](long word) { return static_cast<BOOL>(word); });
  const objc::Block<BOOL(long)> block = made;
  const auto* header = static_cast<const objc::block_abi::Header*>(block.get());
  const auto invoke = reinterpret_cast<int (*)(const void*, long)>(header->invoke);
  EXPECT_EQ(invoke(block.get(), kNo), 0);
  EXPECT_EQ(invoke(block.get(), kMinusOne), -1);
}

TEST(WholeWordsOfBlocks, CallingABlockExtendsItsArgumentsToWords) {
  const objc::block_abi::Header header{_NSConcreteStackBlock, 0, 0, imp(&word_of_block_argument),
                                       nullptr};
  const objc::Block<int(BOOL)> block(&header);
  volatile long word = kNo;
  EXPECT_EQ(block(static_cast<BOOL>(word)), 0);
}

}  // namespace
