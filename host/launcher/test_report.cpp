#include "host/launcher/test_report.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>

#include "host/basics/xml.h"

namespace host::launcher {
namespace {

constexpr std::string_view kChecks[] = {"expect", "compare", "rest"};

std::string attribute(std::string_view text) {
  return xml::attribute(xml::as_text(text));
}

std::string content(std::string_view text) {
  return xml::escaped(xml::as_text(text));
}

bool is_check(const ScriptLine& line) {
  const auto start = std::min(line.text.find_first_not_of(" \t"), line.text.size());
  const auto word = std::string_view(line.text).substr(start);
  const auto name = word.substr(0, word.find_first_of(" \t\r"));
  return std::find(std::begin(kChecks), std::end(kChecks), name) != std::end(kChecks);
}

/// How a script is called: from the current folder on, where it is below that.
std::string shown_name(const std::string& script) {
  std::error_code error;
  const auto here = std::filesystem::current_path(error);
  const std::string from_here = std::filesystem::path(script).lexically_relative(here);
  return error || from_here.empty() || from_here.starts_with("..") ? script : from_here;
}

/// Readers take what stands before dots for packages.
std::string class_name(const std::string& script) {
  std::string name = shown_name(script);
  if (name.ends_with(".scn")) name.resize(name.size() - 4);
  name.erase(0, name.find_first_not_of('/'));
  std::replace(name.begin(), name.end(), '.', '_');
  std::replace(name.begin(), name.end(), '/', '.');
  return name;
}

}  // namespace

void TestReport::begin(const std::string& script) {
  suites_.push_back({script, {}, {}, 0});
  began_ = last_ = clock_.now();
}

void TestReport::printed(std::string_view text) {
  suites_.back().printed += text;
}

void TestReport::answered(const ScriptLine& line, std::string_view failure) {
  if (!failure.empty()) {
    add(line, Outcome::Failed, failure);
  } else if (is_check(line)) {
    add(line, Outcome::Passed, {});
  }
}

void TestReport::left_out(const ScriptLine& line) {
  if (is_check(line)) add(line, Outcome::Skipped, "a line before it failed");
}

void TestReport::end(int status) {
  Suite& suite = suites_.back();
  if (status != 0 && suite.count(Outcome::Failed) == 0) {
    add({"the phone", suite.script, 0, 0}, Outcome::Error,
        fmt::format("the phone ended with status {}; standard error says why", status));
  } else if (suite.cases.empty()) {
    add({"plays to its end", suite.script, 0, 0}, Outcome::Passed, {});
  }
  suite.seconds = clock_.now() - began_;
}

void TestReport::add(const ScriptLine& line, Outcome outcome, std::string_view message) {
  const double now = clock_.now();
  suites_.back().cases.push_back({line, outcome, std::string(message), now - last_});
  last_ = now;
}

std::size_t TestReport::Suite::count(Outcome outcome) const {
  return static_cast<std::size_t>(std::count_if(
      cases.begin(), cases.end(), [outcome](const Case& one) { return one.outcome == outcome; }));
}

std::string TestReport::Suite::counts() const {
  return fmt::format(R"(tests="{}" failures="{}" errors="{}" skipped="{}" time="{:.3f}")",
                     cases.size(), count(Outcome::Failed), count(Outcome::Error),
                     count(Outcome::Skipped), seconds);
}

std::string TestReport::Suite::xml(const Case& one) const {
  const ScriptLine& line = one.line;
  // A script that plays others has lines of theirs.
  const std::string other = line.script == script ? "" : shown_name(line.script) + " ";
  const std::string number = line.number > 0 ? fmt::format("{}: ", line.number) : "";
  std::string made = fmt::format(R"(    <testcase classname="{}" name="{}{}{}" file="{}")",
                                 attribute(class_name(script)), attribute(other), number,
                                 attribute(line.text), attribute(shown_name(line.script)));
  if (line.number > 0) made += fmt::format(R"( line="{}")", line.number);
  made += fmt::format(R"( time="{:.3f}")", one.seconds);
  if (one.outcome == Outcome::Passed) return made + "/>\n";
  if (one.outcome == Outcome::Skipped)
    return made + fmt::format("><skipped message=\"{}\"/></testcase>\n", attribute(one.message));
  const char* element = one.outcome == Outcome::Failed ? "failure" : "error";
  const std::string whole = fmt::format("{}: {}\n{}", line.place(), line.text, one.message);
  return made + fmt::format("><{0} message=\"{1}\">{2}</{0}></testcase>\n", element,
                            attribute(one.message), content(whole));
}

std::string TestReport::Suite::xml() const {
  std::string made =
      fmt::format("  <testsuite name=\"{}\" {}>\n", attribute(shown_name(script)), counts());
  for (const Case& one : cases)
    made += xml(one);
  if (!printed.empty()) made += fmt::format("    <system-out>{}</system-out>\n", content(printed));
  return made + "  </testsuite>\n";
}

std::string TestReport::xml() const {
  Suite all;
  std::string made;
  for (const Suite& suite : suites_) {
    made += suite.xml();
    all.cases.insert(all.cases.end(), suite.cases.begin(), suite.cases.end());
    all.seconds += suite.seconds;
  }
  return fmt::format(
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites {}>\n{}</testsuites>\n",
      all.counts(), made);
}

}  // namespace host::launcher
