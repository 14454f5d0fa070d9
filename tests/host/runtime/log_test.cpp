#include "host/runtime/log.h"

#include <gtest/gtest.h>

#include "host/runtime/log_line.h"
#include "host/runtime/progress_line.h"

namespace {

using namespace host;
using testing::internal::CaptureStderr;
using testing::internal::GetCapturedStderr;

TEST(LogLine, KeepsTextOfAnyLanguage) {
  const std::string_view text = "42 songs: Füür, 東京, 🎵, \"C:\\Music\"";
  EXPECT_EQ(on_one_line(text), text);
}

TEST(LogLine, EscapesWhatBreaksOrHidesALine) {
  EXPECT_EQ(on_one_line("a\nb\r\tc\x1b[2Kd\x7f"), "a\\nb\\r\\tc\\x1b[2Kd\\x7f");
  EXPECT_EQ(on_one_line(std::string_view("a\0b", 3)), "a\\x00b");
  EXPECT_EQ(on_one_line("next\xc2\x85line\xe2\x80\xa8line\xe2\x80\xa9"),
            "next\\u0085line\\u2028line\\u2029");
  EXPECT_EQ(on_one_line("\xe2\x80\xae"
                        "3pm.exe\xe2\x81\xa6"),
            "\\u202e3pm.exe\\u2066");
}

TEST(LogLine, EscapesBytesThatAreNotText) {
  EXPECT_EQ(on_one_line("caf\xe9 \xff\xfe"), "caf\\xe9 \\xff\\xfe");
  EXPECT_EQ(on_one_line("cut \xe2\x80"), "cut \\xe2\\x80");
  EXPECT_EQ(on_one_line("\xed\xa0\x80"), "\\xed\\xa0\\x80");
}

TEST(Log, AMessageIsOneLine) {
  const auto before = spdlog::default_logger();
  CaptureStderr();
  start_log("a process");
  spdlog::warn("the song {} is skipped", "x\n[a process] error: forged");
  const std::string written = GetCapturedStderr();
  spdlog::set_default_logger(before);
  EXPECT_EQ(written, "[a process] warning: the song x\\n[a process] error: forged is skipped\n");
}

TEST(Log, AMessageTakesThePlaceOfTheProgressLine) {
  const auto before = spdlog::default_logger();
  CaptureStderr();
  start_log("another process");
  show_progress_line("half of\nit");
  spdlog::warn("one");
  spdlog::warn("two");
  end_progress_line();
  const std::string written = GetCapturedStderr();
  spdlog::set_default_logger(before);
  EXPECT_EQ(written,
            "\r\x1b[Khalf of\\nit\r\x1b[K[another process] warning: one\n"
            "[another process] warning: two\n");
}

}  // namespace
