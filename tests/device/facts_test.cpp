#include "device/check/facts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "device/check/fact_lists.h"
#include "device/macho/bytes.h"
#include "tests/device/facts_folder.h"

namespace sonavue::device {
namespace {

using testing::EndsWith;

class FactFiles : public testing::Test {
 protected:
  /// The error, with file and line, for facts with these rows after the systems and the image.
  std::string refusal_of(const std::string& rows) {
    return refusal("systems 8.0 8.2 8.4\nimage /one\n" + rows);
  }

  std::string refusal(const std::string& text) {
    folder_.write("one.facts", text);
    try {
      read_facts(folder_.path());
      return "none";
    } catch (const FormatError& problem) {
      return problem.what();
    }
  }

  std::string list_refusal(const std::string& file, const std::string& text) {
    folder_.write(file, text);
    try {
      read_fact_lists(folder_.path());
      return "none";
    } catch (const FormatError& problem) {
      return problem.what();
    }
  }

  FactsFolder folder_;
};

TEST_F(FactFiles, AreReadRowByRow) {
  folder_.write("one.facts", R"(# What one has.
systems 8.0 8.2 8.4
image /one home-screen

class Base - yyy
  -name @@: y?y
  -invented - nnn

class Derived Base ?yy

end 4
)");
  const Facts facts = read_facts(folder_.path());
  EXPECT_TRUE(facts.is_in_program("/one"));
  ASSERT_TRUE(facts.class_named("Derived"));
  EXPECT_EQ(facts.class_named("Derived")->superclass, "Base");
  const ClassFact& base = *facts.class_named("Base");
  EXPECT_EQ(base.image, "/one");
  EXPECT_EQ(base.messages.at("-name").types, "@@:");
  EXPECT_EQ(base.messages.at("-name").presences[1], Presence::kUnknown);
  EXPECT_EQ(base.messages.at("-invented").presences[2], Presence::kNo);
}

TEST_F(FactFiles, TruncatedFilesAreRejected) {
  EXPECT_THAT(refusal_of("class A - yyy\n"),
              EndsWith("one.facts:3: it is truncated: it has no end row"));
  EXPECT_THAT(refusal_of("class A - yyy\nend 2\n"),
              EndsWith("one.facts:4: it is truncated: it has 1 rows instead of 2"));
  EXPECT_THAT(refusal_of("end 0\nclass A - yyy\n"),
              EndsWith("one.facts:4: something follows the end row"));
  EXPECT_THAT(refusal_of("class A - yyy\n  -name @@:\nend 2\n"),
              EndsWith("one.facts:4: 2 columns instead of 3"));
}

TEST_F(FactFiles, ContradictoryFilesAreRejected) {
  EXPECT_THAT(refusal_of("class A - yyy\n  -b v@: yyy\n  -b @@: yyy\nend 3\n"),
              EndsWith("one.facts:5: -b is listed twice"));
  EXPECT_THAT(refusal_of("class A - yyy\nclass A - yyy\nend 2\n"),
              EndsWith("one.facts:4: A is listed twice"));
  EXPECT_THAT(refusal_of("class A - yyn\n  -b v@: yyy\nend 2\n"),
              EndsWith("one.facts:4: -b exists in 8.4, where its class does not"));
  EXPECT_THAT(refusal_of("class A - yny\nclass B A yyy\nend 2\n"),
              EndsWith(": B exists in 8.2, where its superclass A does not"));
  EXPECT_THAT(refusal_of("class A - yyy\n  -b - yyy\nend 2\n"),
              EndsWith("one.facts:4: -b has types without a system, or the reverse"));
  EXPECT_THAT(refusal_of("class A - yyy\n  -b v@: nnn\nend 2\n"),
              EndsWith("one.facts:4: -b has types without a system, or the reverse"));
}

TEST_F(FactFiles, InvalidRowsAreRejected) {
  EXPECT_THAT(refusal_of("clas A - yyy\n"), EndsWith("one.facts:3: 'clas' is not a kind of row"));
  EXPECT_THAT(refusal_of("class A - yy\n"), EndsWith("one.facts:3: 2 signs for 3 systems"));
  EXPECT_THAT(refusal_of("class A - yyx\n"),
              EndsWith("one.facts:3: a sign is not one of y, n and ?"));
  EXPECT_THAT(refusal_of("class A yyy\n"), EndsWith("one.facts:3: 3 columns instead of 4"));
  EXPECT_THAT(refusal_of("  -b v@: yyy\n"), EndsWith("one.facts:3: a message before a class"));
  EXPECT_THAT(refusal_of("class A - yyy\n  -b void yyy\n"),
              EndsWith("one.facts:4: 'void' are not the types of a message"));
  EXPECT_THAT(refusal_of("image /two\n"), EndsWith("one.facts:3: a second image"));
  EXPECT_THAT(refusal("systems 8.0\nimage one\n"),
              EndsWith("one.facts:2: the image is not a path on the device"));
  EXPECT_THAT(refusal("image /one\nclass A - y\n"),
              EndsWith("one.facts:2: a class before the systems and the image"));
}

TEST_F(FactFiles, InvalidSystemsAreRejected) {
  EXPECT_THAT(refusal("systems 8.0 later\n"),
              EndsWith("one.facts:1: 'later' is not a system version"));
  EXPECT_THAT(refusal("systems 8.4 8.0\n"), EndsWith("one.facts:1: the systems are out of order"));
  EXPECT_THAT(refusal("systems 8.0\nsystems 8.0\n"),
              EndsWith("one.facts:2: the systems are listed twice"));
  folder_.write("a.facts", "systems 8.0 8.2\nimage /a\nend 0\n");
  EXPECT_THAT(refusal("systems 8.0 8.3\nimage /one\nend 0\n"),
              EndsWith("one.facts:1: different systems than in the previous files"));
}

TEST_F(FactFiles, AFolderWithoutFactsIsRejected) {
  EXPECT_THROW(read_facts(folder_.path()), FormatError);
  EXPECT_THROW(read_facts(folder_.path() / "nowhere"), FormatError);
}

TEST_F(FactFiles, ListsContainNamesOfMessages) {
  folder_.write("guarded", "# Why.\n-[A b:]: asked first\n");
  folder_.write("uncovered", "+[A c]\n\n");
  const FactLists lists = read_fact_lists(folder_.path());
  EXPECT_EQ(lists.guarded.at("-[A b:]"), "asked first");
  EXPECT_EQ(lists.uncovered.count("+[A c]"), 1u);
}

TEST_F(FactFiles, AnInvalidRowOfAListIsRejected) {
  EXPECT_THAT(list_refusal("uncovered", "A c\n"), EndsWith("uncovered:1: 'A c' is not a message"));
  EXPECT_THAT(list_refusal("uncovered", "+[A c]\n+[A c]\n"),
              EndsWith("uncovered:2: '+[A c]' is listed twice"));
  folder_.write("uncovered", "");
  EXPECT_THAT(list_refusal("guarded", "-[A b]\n"), EndsWith("guarded:1: '-[A b]' gives no reason"));
}

/// The presence on a system according to `row`. `cls` is the row of the class, which says which
/// dumps cover it.
Presence presence(std::size_t system, const char* cls, const char* row) {
  const auto presences = [](const std::string& signs) {
    Presences each;
    for (const char sign : signs)
      each.push_back(static_cast<Presence>(sign));
    return each;
  };
  const ClassFact fact = {"", "/one", presences(cls), {}};
  return presence_on(system, presences(row), fact);
}

TEST(Presence, IsWhatTheDumpSays) {
  EXPECT_EQ(presence(1, "yyy", "nyn"), Presence::kYes);
  EXPECT_EQ(presence(1, "yyy", "yny"), Presence::kNo);
}

TEST(Presence, BetweenTwoDumpsThatAgreeIsTheirs) {
  EXPECT_EQ(presence(1, "y?y", "y?y"), Presence::kYes);
  EXPECT_EQ(presence(1, "y?y", "n?n"), Presence::kNo);
  EXPECT_EQ(presence(1, "y?y", "y?n"), Presence::kUnknown);
  EXPECT_EQ(presence(2, "y???y", "y???y"), Presence::kYes);
}

TEST(Presence, BeforeTheFirstDumpOfTheClassIsThatDumps) {
  EXPECT_EQ(presence(0, "?yy", "?yy"), Presence::kYes);
  EXPECT_EQ(presence(0, "?yy", "?ny"), Presence::kNo);
}

TEST(Presence, AfterTheLastDumpNothingIsKnown) {
  EXPECT_EQ(presence(2, "yy?", "yy?"), Presence::kUnknown);
  EXPECT_EQ(presence(1, "???", "???"), Presence::kUnknown);
}

TEST(Presence, ADumpThatLeavesTheMessageOpenProvesNothing) {
  EXPECT_EQ(presence(0, "yyy", "?yy"), Presence::kUnknown);
  EXPECT_EQ(presence(1, "y?y", "??y"), Presence::kUnknown);
}

}  // namespace
}  // namespace sonavue::device
