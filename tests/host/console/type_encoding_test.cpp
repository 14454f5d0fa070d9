#include "host/console/type_encoding.h"

#include <gtest/gtest.h>

namespace {

using namespace host::console;

std::string nested(int structures) {
  std::string encoding;
  for (int i = 0; i < structures; ++i)
    encoding += "{a=";
  encoding += 'c';
  return encoding.append(static_cast<std::size_t>(structures), '}');
}

TEST(TypeEncoding, StructuresAreLaidOut) {
  const auto type = parse_type("{CGRect=\"origin\"{CGPoint=dd}\"size\"{CGSize=dd}}");
  ASSERT_TRUE(type);
  EXPECT_EQ(type->structure, "CGRect");
  EXPECT_EQ(type->size, 32u);
  EXPECT_EQ(type->members[1].offset, 16u);
  EXPECT_EQ(parse_type("{?=ciq}")->size, 16u);
}

TEST(TypeEncoding, MethodsLoseTheirReceiverAndSelector) {
  const auto types = parse_method_types("v24@0:8@\"NSString\"16");
  ASSERT_TRUE(types);
  EXPECT_EQ(types->result.code, 'v');
  ASSERT_EQ(types->arguments.size(), 1u);
  EXPECT_EQ(types->arguments[0].code, '@');
  EXPECT_FALSE(parse_method_types("v8@0"));
}

TEST(TypeEncoding, WhatTheConsoleCannotHandleIsEmpty) {
  for (const char* encoding : {"", "(?=id)", "[4i]", "b3", "{", "{a", "{a=", "{a=i", "{a}", "{a=}",
                               "{a=v}", "^", "^{a=i", "v16@0:8(?=id)"}) {
    EXPECT_FALSE(parse_type(encoding) && parse_method_types(encoding)) << encoding;
  }
}

TEST(TypeEncoding, ExcessiveNestingIsRefused) {
  EXPECT_TRUE(parse_type(nested(8).c_str()));
  EXPECT_FALSE(parse_type(nested(1'000'000).c_str()));
}

}  // namespace
