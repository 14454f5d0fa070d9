#include "device/check/platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "device/check/phone_page.h"
#include "device/macho/bytes.h"
#include "tests/device/facts_folder.h"
#include "tests/device/library_bytes.h"

namespace sonavue::device {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kFacts = R"(systems 8.0 8.4 9.3
image /linked
class Label View yyy
  -setText: v@:@ yyy
  -shown B@: yyy
  -moved v@: yyn
  -added q@:I nyy
  +maker @@: ??y
class View - yyy
  -frame {CGRect={CGPoint=dd}{CGSize=dd}}@: yyy
  -alpha d@: y?y
end 9
)";

/// A library whose use of the platform the facts prove. Each test breaks something.
class PlatformRules : public testing::Test {
 protected:
  PlatformRules() {
    folder_.write("linked.facts", kFacts);
    folder_.write("other.facts",
                  "systems 8.0 8.4 9.3\nimage /other\nclass Page - yyy\nclass Open - ???\nend 2\n");
    known_ = {read_facts(folder_.path()), {}, {"Ours", "doOurs:"}};
    use_.classes = {"Label", "Ours"};
    use_.linked = {"/linked"};
    use_.selectors = {"setText:", "doOurs:"};
    use_.texts = std::string("\0word\0", 6);
    send("-[Label setText:] v@:@");
    send("-[Ours anything] v@:");
  }

  void send(const char* message) { use_.messages.insert(message_in(message)); }

  Findings findings() const {
    Findings found;
    check_platform(use_, known_, promised_, found);
    return found;
  }

  FactsFolder folder_;
  Knowledge known_;
  PlatformUse use_;
  SystemRange promised_ = {{8, 0}, {10, 0}};
};

TEST_F(PlatformRules, AProvenLibraryIsFine) {
  EXPECT_THAT(findings(), IsEmpty());
}

TEST_F(PlatformRules, AClassOfAFrameworkThatNothingLoadsIsFound) {
  use_.classes.insert("Page");
  EXPECT_THAT(findings(),
              ElementsAre("library: Page is in /other, which is neither linked nor loaded"));
  use_.texts += std::string("\x40/other\0", 8);
  EXPECT_THAT(findings(), IsEmpty());
}

TEST_F(PlatformRules, AFrameworkOfTheProgramOrALinkedOneIsAvailable) {
  use_.classes.insert("Page");
  use_.linked.insert("/other");
  EXPECT_THAT(findings(), IsEmpty());
  use_.linked.erase("/other");
  known_.facts.program_images = {"/other"};
  EXPECT_THAT(findings(), IsEmpty());
}

TEST_F(PlatformRules, AClassNamedByAStringIsCheckedToo) {
  use_.texts += std::string("Page\0", 5);
  EXPECT_THAT(findings(),
              ElementsAre("library: Page is in /other, which is neither linked nor loaded"));
}

TEST_F(PlatformRules, APathInsideALongerStringLoadsNothing) {
  use_.classes.insert("Page");
  use_.texts += std::string("/other.plist\0/an/other\0", 23);
  EXPECT_THAT(findings(), Contains(HasSubstr("neither linked nor loaded")));
}

TEST_F(PlatformRules, AnUnknownClassIsFound) {
  use_.classes.insert("Lable");
  EXPECT_THAT(findings(), ElementsAre("library: the facts have no class Lable"));
}

TEST_F(PlatformRules, TypesMustAgree) {
  send("-[Label shown] c@:");
  EXPECT_THAT(findings(), IsEmpty()) << "one-byte types are equivalent";
  send("-[Label alpha] f@:");
  EXPECT_THAT(findings(), Contains("library: -[Label alpha] is bound as f@: but defined as d@:"));
}

TEST_F(PlatformRules, IntegersOfDifferentSizeOrSignednessDiffer) {
  promised_ = {{8, 0}, {8, 1}};
  known_.facts.classes["Label"].messages["-added"].presences[0] = Presence::kYes;
  for (const char* types : {"q@:Q", "q@:i", "Q@:I", "i@:I"}) {
    const Message message = {"Label", "-added", types};
    EXPECT_THAT(contradiction(known_, message), HasSubstr("but defined as q@:I")) << types;
  }
  EXPECT_EQ(contradiction(known_, {"Label", "-added", "q@:I"}), "");
  EXPECT_EQ(contradiction(known_, {"Label", "-frame", "{_R={P=dd}{S=dd}}@:"}), "");
}

TEST_F(PlatformRules, AMessageOfASuperclassIsInherited) {
  send("-[Label frame] {CGRect={CGPoint=dd}{CGSize=dd}}@:");
  EXPECT_THAT(findings(), IsEmpty());
}

TEST_F(PlatformRules, AnInventedMessageIsFound) {
  send("-[Label invented] v@:");
  EXPECT_THAT(findings(), Contains("library: -[Label invented] is a message that no system has"));
}

TEST_F(PlatformRules, AMessageThatIsMissingOnASystemIsFound) {
  send("-[Label moved] v@:");
  EXPECT_THAT(
      findings(),
      Contains("library: -[Label moved] is missing on a system, and not listed as guarded"));
  promised_ = {{8, 0}, {9, 0}};
  EXPECT_THAT(findings(), IsEmpty());
}

TEST_F(PlatformRules, AGuardedMessageMustBeCheckedForFirst) {
  send("-[Label moved] v@:");
  known_.lists.guarded["-[Label moved]"] = "why";
  EXPECT_THAT(findings(), ElementsAre("guarded: -[Label moved] is sent unguarded"));
  use_.asked = {"-[Label moved]"};
  EXPECT_THAT(findings(), IsEmpty());
}

TEST_F(PlatformRules, AGuardThatNothingNeedsIsFound) {
  known_.lists.guarded["-[Label setText:]"] = "why";
  use_.asked = {"-[Label setText:]"};
  EXPECT_THAT(findings(),
              ElementsAre("guarded: -[Label setText:] is not used, or every system has it"));
}

TEST_F(PlatformRules, ExactlyTheUncoveredMessagesAreListed) {
  use_.linked.insert("/other");
  send("-[Open go] v@:");
  send("+[Label maker] @@:");
  EXPECT_THAT(findings(), testing::IsSupersetOf(
                              {"library: -[Open go] is in no dump, and not listed as uncovered",
                               "library: +[Label maker] is in no dump, and not listed as "
                               "uncovered"}));
  known_.lists.uncovered = {"-[Open go]", "+[Label maker]"};
  EXPECT_THAT(findings(), IsEmpty());
  known_.lists.uncovered.insert("-[Label setText:]");
  EXPECT_THAT(findings(),
              ElementsAre("uncovered: -[Label setText:] is not used, or the facts cover it"));
}

TEST_F(PlatformRules, ASelectorWithoutAClassMustBelongToSomeClass) {
  use_.selectors.insert("frame");
  EXPECT_THAT(findings(), IsEmpty());
  use_.selectors.insert("setTxet:");
  EXPECT_THAT(findings(), ElementsAre("library: the facts have no selector setTxet:"));
  known_.lists.uncovered = {"-[Open setTxet:]"};
  EXPECT_THAT(findings(), IsEmpty());
}

TEST_F(PlatformRules, ALibraryWithoutSymbolsIsNotProven) {
  EXPECT_THAT(platform_use(Image(library_bytes())).silent,
              ElementsAre("__ZN4objc12cached_class", "__ZN4objc9own_class",
                          "__ZN4objc15cached_selector", "__ZN4objc14cached_message",
                          "__ZN4objc16replaced_message", "__ZN4objc13asked_message"));
  use_.silent = {"__ZN4objc12cached_class"};
  EXPECT_THAT(findings(), ElementsAre("library: has no symbol __ZN4objc12cached_class…"));
}

TEST_F(PlatformRules, TheRangeIsWhatTheFactsProve) {
  EXPECT_EQ(proven_range(use_, known_).text(), "8.0 up to and without 10.0");
  send("-[Label moved] v@:");
  EXPECT_EQ(proven_range(use_, known_).text(), "8.0 up to and without 9.0");
  promised_ = {{8, 0}, {8, 4}};
  EXPECT_THAT(findings(),
              ElementsAre("control: promises the systems from 8.0 up to and without 8.4,"
                          " the facts prove them from 8.0 up to and without 9.0"));
  promised_ = {{8, 0}, {9, 3}};
  EXPECT_THAT(findings(), Contains(HasSubstr("up to and without 9.3, the facts prove")));
  promised_ = {{7, 0}, {9, 0}};
  EXPECT_THAT(findings(), Contains(HasSubstr("from 7.0 up to and without 9.0, the facts prove")));
  send("+[Label maker] @@:");
  EXPECT_EQ(proven_range(use_, known_).text(), "8.0 up to and without 8.0");
}

TEST(PromisedRange, HasTwoEnds) {
  EXPECT_EQ(promised_range("Package: a\nDepends: other, firmware (>= 8.0), firmware (<< 9.0)\n"),
            (SystemRange{{8, 0}, {9, 0}}));
  for (const char* depends :
       {"firmware (>= 8.0)", "firmware (<< 9.0)", "firmware",
        "myfirmware (>= 8.0), firmware (<< 9)", "firmware (>= 8), firmware (<< 9.0)"})
    EXPECT_THROW(promised_range("Depends: " + std::string(depends) + "\n"), FormatError) << depends;
  EXPECT_THROW(promised_range("Description: firmware (>= 8.0), firmware (<< 9.0)\n"), FormatError);
}

TEST(PhonePage, NamesTheSamePhonesAndSystems) {
  const FactsFolder folder;
  const SystemRange range = {{8, 0}, {9, 0}};
  const auto findings = [&] {
    Findings found;
    check_phone_page(folder.path(), range, found);
    return found;
  };
  const std::string phones = "\n| phones | arm64, without pointer authentication: three |";
  folder.write("docs/phone.md", phones + "\n| systems | 8.0 up to and without 9.0 |\n");
  EXPECT_THAT(findings(), IsEmpty());
  folder.write("docs/phone.md", phones + "\n| systems | 8.0 up to and without 9.3 |\n");
  EXPECT_THAT(findings(),
              ElementsAre("docs/phone.md: its table has no row `| systems | 8.0 up to and "
                          "without 9.0 |`"));
  folder.write("docs/phone.md", "\n| systems | 8.0 up to and without 9.0 |\n");
  EXPECT_THAT(findings(), ElementsAre(HasSubstr("| phones | arm64")));
}

}  // namespace
}  // namespace sonavue::device
