#include "host/launcher/test_report.h"

#include <glib.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace host::launcher;
using testing::HasSubstr;
using testing::Not;

class TestReports : public testing::Test {
 protected:
  TestReports() : script_(std::filesystem::current_path() / "tests/home screen.scn") {}

  void wait(double seconds) { clock_.move_to(clock_.now() + seconds); }
  void answer(std::size_t number, const std::string& text, const std::string& failure = {}) {
    report_.answered({text, script_, number}, failure);
  }

  host::SteppedClock clock_;
  TestReport report_{clock_};
  std::string script_;
};

/// The character data of a document that GLib reads, or why it does not.
std::string text_of(const std::string& xml) {
  std::string text;
  const auto take = [](GMarkupParseContext*, const char* bytes, gsize length, void* all, GError**) {
    static_cast<std::string*>(all)->append(bytes, length);
  };
  const GMarkupParser parser{nullptr, nullptr, take, nullptr, nullptr};
  auto* context = g_markup_parse_context_new(&parser, GMarkupParseFlags{}, &text, nullptr);
  GError* error = nullptr;
  const bool is_read =
      g_markup_parse_context_parse(context, xml.data(), static_cast<gssize>(xml.size()), &error) &&
      g_markup_parse_context_end_parse(context, &error);
  g_markup_parse_context_free(context);
  if (is_read) return text;
  std::string reason = std::string("not well-formed: ") + error->message;
  g_error_free(error);
  return reason;
}

TEST_F(TestReports, HaveACaseForEachCheckWithTheTimeSinceTheOneBefore) {
  report_.begin(script_);
  answer(1, "# A comment.");
  answer(2, "advance 1");
  wait(0.5);
  answer(3, "expect isShow == NO");
  wait(0.25);
  answer(4, "tap 1 2");
  answer(5, " rest");
  report_.printed("3 < 4\n");
  wait(1);
  report_.end(0);
  EXPECT_EQ(report_.xml(),
            R"(<?xml version="1.0" encoding="UTF-8"?>
<testsuites tests="2" failures="0" errors="0" skipped="0" time="1.750">
  <testsuite name="tests/home screen.scn" tests="2" failures="0" errors="0" skipped="0" time="1.750">
    <testcase classname="tests.home screen" name="3: expect isShow == NO" file="tests/home screen.scn" line="3" time="0.500"/>
    <testcase classname="tests.home screen" name="5:  rest" file="tests/home screen.scn" line="5" time="0.250"/>
    <system-out>3 &lt; 4
</system-out>
  </testsuite>
</testsuites>
)");
}

TEST_F(TestReports, ShowTheLineThatFailedAndSkipTheChecksAfterIt) {
  report_.begin(script_);
  answer(1, "tap on [play \"x\"]", "unknown name: play (column 9)");
  report_.left_out({"advance 1", script_, 2});
  report_.left_out({"expect 1 == 1", script_, 3});
  report_.end(1);
  const std::string xml = report_.xml();
  EXPECT_THAT(xml, HasSubstr(R"(tests="2" failures="1" errors="0" skipped="1")"));
  EXPECT_THAT(xml, HasSubstr(R"(name="1: tap on [play &quot;x&quot;]")"));
  EXPECT_THAT(xml, HasSubstr("<failure message=\"unknown name: play (column 9)\">" + script_ +
                             ":1: tap on [play \"x\"]\nunknown name: play (column 9)</failure>"));
  EXPECT_THAT(xml, HasSubstr(R"(name="3: expect 1 == 1")"));
  EXPECT_THAT(xml, HasSubstr(R"(<skipped message="a line before it failed"/>)"));
}

TEST_F(TestReports, NameThePlayedScriptThatALineIsFrom) {
  report_.begin(script_);
  report_.answered({"rest", "/elsewhere/b.scn", 7}, "an alert is open");
  report_.end(1);
  EXPECT_THAT(report_.xml(), HasSubstr(R"(classname="tests.home screen" name="/elsewhere/b.scn 7: )"
                                       R"(rest" file="/elsewhere/b.scn" line="7")"));
}

TEST_F(TestReports, HaveACaseForAScriptThatChecksNothing) {
  report_.begin("/elsewhere/v1.2/quiet.scn");
  report_.end(0);
  EXPECT_THAT(report_.xml(),
              HasSubstr(R"(classname="elsewhere.v1_2.quiet" name="plays to its end")"));
  EXPECT_THAT(report_.xml(), HasSubstr(R"(tests="1" failures="0" errors="0")"));
}

TEST_F(TestReports, TellOfAPhoneThatDidNotStart) {
  report_.begin(script_);
  report_.end(2);
  EXPECT_THAT(report_.xml(), HasSubstr(R"(tests="1" failures="0" errors="1")"));
  EXPECT_THAT(report_.xml(), HasSubstr("<error message=\"the phone ended with status 2; "));
}

TEST_F(TestReports, TellOfAPhoneThatEndedAfterItsChecks) {
  report_.begin(script_);
  answer(1, "rest");
  report_.end(3);
  EXPECT_THAT(report_.xml(), HasSubstr(R"(tests="2" failures="0" errors="1")"));
}

TEST_F(TestReports, AddUpAllScripts) {
  for (const char* script : {"/a.scn", "/b.scn"}) {
    report_.begin(script);
    wait(1);
    report_.answered({"rest", script, 1}, "");
    report_.end(0);
  }
  EXPECT_THAT(
      report_.xml(),
      HasSubstr(R"(<testsuites tests="2" failures="0" errors="0" skipped="0" time="2.000">)"));
  EXPECT_THAT(report_.xml(), HasSubstr(R"(<testsuite name="/b.scn" tests="1")"));
}

TEST_F(TestReports, AreWellFormedWithAnyText) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte)
    all += static_cast<char>(byte);
  all += "]]>\xEF\xBF\xBE&amp;\"'";
  report_.begin("/" + all + ".scn");
  report_.printed(all);
  report_.answered({"expect " + all, "/" + all, 1}, all);
  report_.left_out({"expect " + all, "/" + all, 2});
  report_.end(1);
  const std::string text = text_of(report_.xml());
  EXPECT_THAT(text, Not(HasSubstr("not well-formed")));
  EXPECT_THAT(text, HasSubstr("ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`"));
  EXPECT_THAT(text, HasSubstr("]]>\uFFFD&amp;\"'"));
}

}  // namespace
