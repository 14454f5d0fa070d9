#include <gmock/gmock.h>

#include <algorithm>
#include <regex>
#include <string>
#include <vector>

#include "host/browser/page/page_files.h"
#include "host/browser/phone/messages.h"

// The page's script has the messages once more.

namespace {

using namespace host::browser;
using testing::ElementsAreArray;

/// Writes the fields of a message as the script names their types.
class TypeNames {
 public:
  template <class... Values>
  void operator()(const Values&... values) {
    (names.push_back(name_of(values)), ...);
  }

  std::vector<std::string> names;

 private:
  static std::string name_of(const std::string&) { return "text"; }
  static std::string name_of(double) { return "double"; }
  static std::string name_of(bool) { return "bool"; }
  static std::string name_of(std::int32_t) { return "int"; }
  static std::string name_of(std::uint32_t) { return "unsigned"; }
  template <class Enumeration>
  static std::string name_of(Enumeration) {
    static_assert(sizeof(Enumeration) == 1);
    return "byte";
  }
};

template <class Fields>
std::string types_of_fields(Fields message) {
  TypeNames types;
  message.list(types);
  std::string line;
  for (const std::string& name : types.names)
    line += name + " ";
  return line;
}

/// The types of all messages in the order of their kinds, with a line for each.
template <class Messages, std::size_t... Kinds>
std::vector<std::string> types_of(std::index_sequence<Kinds...>) {
  std::vector<std::string> lines;
  (lines.push_back(types_of_fields(std::variant_alternative_t<Kinds, Messages>())), ...);
  return lines;
}

template <class Messages>
std::vector<std::string> types_of() {
  return types_of<Messages>(std::make_index_sequence<std::variant_size_v<Messages>>());
}

/// A constant of the script, from its opening bracket to the line that closes it.
std::string constant(const std::string& name) {
  const auto files = page_files();
  const auto file = std::ranges::find(files, "/wire.js", &PageFile::target);
  const std::string script(file->bytes);
  const auto start = script.find("const " + name);
  return script.substr(start, script.find(";\n", start) - start);
}

std::vector<std::string> matches(const std::string& text, const std::regex& pattern) {
  std::vector<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), pattern), end; at != end; ++at)
    found.push_back((*at)[1]);
  return found;
}

std::string words(const std::string& text, const std::regex& pattern) {
  std::string line;
  for (const std::string& word : matches(text, pattern))
    line += (word == "bytes" ? "text" : word) + " ";
  return line;
}

TEST(Wire, ThePageWritesWhatThePhoneReads) {
  std::vector<std::string> lines;
  for (const std::string& fields :
       matches(constant("FROM_PAGE"), std::regex(R"(\w+: \[(\d+[^\]]*)\])"))) {
    EXPECT_EQ(std::stoul(fields), lines.size()) << "a kind is a place in the list";
    lines.push_back(words(fields, std::regex("\"(\\w+)\"")));
  }
  EXPECT_THAT(lines, ElementsAreArray(types_of<FromPage>()));
}

TEST(Wire, ThePageReadsWhatThePhoneWrites) {
  std::vector<std::string> lines;
  for (const std::string& fields :
       matches(constant("TO_PAGE"), std::regex(R"(\["\w+", \{([^}]*)\}\])")))
    lines.push_back(words(fields, std::regex(": \"(\\w+)\"")));
  EXPECT_THAT(lines, ElementsAreArray(types_of<ToPage>()));
}

TEST(Wire, ThePageReadsTheRowsOfViews) {
  EXPECT_EQ(words(constant("VIEW_ROW"), std::regex(": \"(\\w+)\"")), types_of_fields(ViewRow()));
}

}  // namespace
