#include "host/social/delivery/mail_lines.h"

#include <gtest/gtest.h>

namespace {

using host::social::with_mail_line_ends;

TEST(MailLineEnds, AreNormalisedToReturnAndLineFeed) {
  EXPECT_EQ(with_mail_line_ends("a\nb\r\nc\rd\n\n"), "a\r\nb\r\nc\r\nd\r\n\r\n");
}

}  // namespace
