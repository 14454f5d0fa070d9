#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/MessageUI/MFMessageComposeViewController.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "tests/settings/credits_page_test.h"
#include "tests/settings/replaced_method.h"

namespace sonavue::test {
namespace {

/// The URL schemes that an application on this machine handles, and the URLs that were opened.
std::vector<std::string>& known_schemes() {
  static std::vector<std::string> schemes;
  return schemes;
}
std::vector<std::string>& opened() {
  static std::vector<std::string> addresses;
  return addresses;
}
BOOL can_open(UIApplication, NSURL url) {
  const NSString text = url.absoluteString();
  const std::string address = text ? text.UTF8String() : "";
  const std::string scheme = address.substr(0, address.find(':'));
  return std::find(known_schemes().begin(), known_schemes().end(), scheme) != known_schemes().end();
}
BOOL open_address(UIApplication, NSURL url) {
  opened().emplace_back(url.absoluteString().UTF8String());
  return YES;
}
BOOL cannot_send(objc::Object) {
  return NO;
}

TEST_F(Credits, TwoAuthorsHaveARowEach) {
  open_credits();
  photograph("credits");
  EXPECT_EQ(settings::where, page);
  for (const char* class_name : {"developerCell", "designerCell"}) {
    const UIView row = author(class_name);
    ASSERT_TRUE(row) << class_name;
    EXPECT_EQ(objc::cast<PSHeaderViewDelegate>(row).preferredHeightForWidth(320), 94);
    const auto photo = objc::cast<UIImageView>(row.subviews().lastObject());
    EXPECT_TRUE(photo.isKindOfClass(UIImageView::cls()));
    EXPECT_EQ(row.backgroundColor(), UIColor::whiteColor());
  }
  EXPECT_TRUE(find(author("developerCell"), "Developer"));
  EXPECT_TRUE(find(author("designerCell"), "Designer"));
}

TEST_F(Credits, TheDevelopersCardHasFourPackagesAndThreeContacts) {
  open_card("developerCell");
  photograph("credits-developer");
  EXPECT_THAT(tiles(), testing::ElementsAre("Tidepool", "Nightshelf", "Lanterns", "Sonavue",
                                            "Message", "Mail", "Follow"));
}

TEST_F(Credits, TheDesignersCardHasThreePackages) {
  open_card("designerCell");
  photograph("credits-designer");
  EXPECT_THAT(tiles(), testing::ElementsAre("Fernglyphs", "Paperdock", "Sonavue", "Message", "Mail",
                                            "Follow"));
}

TEST_F(Credits, TilesAreInARow) {
  open_card("developerCell");
  const UIView strip = UIView::alloc().initWithFrame({0, 0, 300, 130}).autorelease();
  for (int i = 0; i < 3; ++i) {
    objc::send<>(cell, "addObjectIn:withName:image:action:"_sel, strip, "Tile"_ns, "/none.png"_ns,
                 "Sonavue"_sel);
  }
  for (NSUInteger k = 0; k < 3; ++k) {
    const auto tile = objc::cast<UIView>(strip.subviews().objectAtIndex(k));
    EXPECT_EQ(tile.frame(), (CGRect{15.0 + 90 * static_cast<CGFloat>(k), 10, 90, 110}));
    EXPECT_EQ(objc::cast<UIView>(tile.subviews().objectAtIndex(0)).frame(),
              (CGRect{10, 10, 70, 70}));
    const auto tap = objc::cast<UITapGestureRecognizer>(tile.gestureRecognizers().firstObject());
    EXPECT_TRUE(tap.cancelsTouchesInView());
  }
}

TEST_F(Credits, AStripIsAsWideAsItsTiles) {
  open_card("developerCell");
  std::vector<CGFloat> widths;
  for (const UIView part : card.view().subviews().of<UIView>()) {
    if (part.isKindOfClass(UIScrollView::cls()))
      widths.push_back(objc::cast<UIScrollView>(part).contentSize().width);
  }
  EXPECT_THAT(widths, testing::ElementsAre(15 + 4 * 90 + 15, 15 + 3 * 90 + 15));
}

TEST_F(Credits, CloseClosesTheCard) {
  open_card("developerCell");
  ASSERT_TRUE(tap_text("Close"));
  advance(1);
  EXPECT_FALSE(presented());
}

TEST_F(Credits, WithoutAPackageManagerAPackageOnlyClosesTheCard) {
  open_card("developerCell");
  ASSERT_TRUE(tap_text("Tidepool"));
  advance(1);
  EXPECT_FALSE(presented());
  EXPECT_FALSE(fs::exists(device / "var/mobile/Library/Outbox"));
}

TEST_F(Credits, WithoutAReaderFollowOpensTheWeb) {
  open_card("developerCell");
  ASSERT_TRUE(tap_text("Follow"));
  advance(1);
  EXPECT_FALSE(presented());
  std::string sent;
  for (const auto& entry : fs::directory_iterator(device / "var/mobile/Library/Outbox")) {
    std::ifstream file(entry.path());
    sent.append(std::istreambuf_iterator<char>(file), {});
  }
  EXPECT_THAT(sent, testing::HasSubstr("/intent/follow?screen_name=plumcode"));
}

/// A machine with other applications installed.
class CreditsAmongApplications : public Credits {
 protected:
  std::vector<std::string> opened_by(const char* tile, std::vector<std::string> schemes,
                                     const char* class_name = "developerCell") {
    known_schemes() = std::move(schemes);
    opened().clear();
    open_card(class_name);
    EXPECT_TRUE(tap_text(tile));
    advance(1);
    EXPECT_FALSE(presented());
    return opened();
  }

 private:
  ReplacedMethod<&can_open> can_open_{UIApplication::cls(), "canOpenURL:"};
  ReplacedMethod<&open_address> open_{UIApplication::cls(), "openURL:"};
};

TEST_F(CreditsAmongApplications, APackageIsShownByItsManagerAlone) {
  EXPECT_THAT(opened_by("Tidepool", {}), testing::IsEmpty());
  EXPECT_THAT(opened_by("Tidepool", {"cydia"}),
              testing::ElementsAre(testing::StartsWith("cydia://package/")));
}

TEST_F(CreditsAmongApplications, EveryTileShowsItsOwnPackage) {
  const std::pair<const char*, const char*> packages[] = {{"Tidepool", "org.example.tidepool"},
                                                          {"Nightshelf", "org.example.nightshelf"},
                                                          {"Lanterns", "org.example.lanterns"},
                                                          {"Sonavue", "org.plumvane.sonavue2"}};
  for (const auto& [title, identifier] : packages) {
    EXPECT_THAT(opened_by(title, {"cydia"}),
                testing::ElementsAre(std::string("cydia://package/") + identifier));
  }
}

TEST_F(CreditsAmongApplications, FollowTriesTheReadersInOrder) {
  EXPECT_THAT(opened_by("Follow", {"twitter", "tweetings", "tweetbot"}),
              testing::ElementsAre("tweetbot:///user_profile/plumcode"));
  EXPECT_THAT(opened_by("Follow", {"twitter", "tweetings"}),
              testing::ElementsAre("tweetings:///user?screen_name=plumcode"));
  EXPECT_THAT(opened_by("Follow", {"twitter"}),
              testing::ElementsAre("twitter://user?screen_name=plumcode"));
  EXPECT_THAT(opened_by("Follow", {}),
              testing::ElementsAre(testing::EndsWith("/intent/follow?screen_name=plumcode")));
}

TEST_F(CreditsAmongApplications, FollowMeansTheAuthorOfTheCard) {
  EXPECT_THAT(opened_by("Follow", {"twitter"}, "designerCell"),
              testing::ElementsAre("twitter://user?screen_name=vanedraws"));
}

TEST_F(Credits, WithoutTextMessagesTheMessageTileDoesNothing) {
  ASSERT_TRUE(MFMessageComposeViewController::cls());
  const ReplacedMethod<&cannot_send> without(objc_getMetaClass("MFMessageComposeViewController"),
                                             "canSendText");
  open_card("developerCell");
  ASSERT_TRUE(tap_text("Message"));
  advance(1);
  EXPECT_FALSE(card.presentedViewController());
  EXPECT_EQ(presented(), card);
}

TEST_F(Credits, MailIsComposedOverTheCardAndClosesItAtTheEnd) {
  open_card("designerCell");
  ASSERT_TRUE(tap_text("Mail"));
  advance(1);
  const auto composer = objc::cast<MFMailComposeViewController>(card.presentedViewController());
  ASSERT_TRUE(composer.isKindOfClass(MFMailComposeViewController::cls()));
  photograph("credits-mail");
  EXPECT_TRUE(says(composer.view(), "Sonavue"));
  EXPECT_TRUE(says(composer.view(), "vane@example.org"));
  EXPECT_EQ(composer.mailComposeDelegate(), objc::Object(cell));
  objc::send<>(cell, "mailComposeController:didFinishWithResult:error:"_sel, composer,
               MFMailComposeResultCancelled, objc::Object());
  advance(3);
  EXPECT_FALSE(presented());
}

TEST_F(Credits, WithoutTheFrameworkNothingIsComposedAndTheCardStays) {
  host::set_device_images({});
  open_card("developerCell");
  for (const char* contact : {"Mail", "Message"}) {
    ASSERT_TRUE(tap_text(contact));
    advance(1);
    EXPECT_FALSE(card.presentedViewController()) << contact;
    EXPECT_TRUE(presented()) << contact;
  }
}

TEST_F(Credits, TheFrameworkIsLoadedWithTheFirstMail) {
  open_card("developerCell");
  EXPECT_FALSE(objc_getClass("MFMailComposeViewController"));
  ASSERT_TRUE(tap_text("Mail"));
  EXPECT_TRUE(objc_getClass("MFMailComposeViewController"));
}

TEST_F(Credits, AMessageIsComposedOverTheCardAndClosesItAtTheEnd) {
  open_card("developerCell");
  ASSERT_TRUE(tap_text("Message"));
  advance(1);
  photograph("credits-message");
  const auto composer = objc::cast<MFMessageComposeViewController>(card.presentedViewController());
  ASSERT_TRUE(composer.isKindOfClass(MFMessageComposeViewController::cls()));
  EXPECT_TRUE(says(composer.view(), "I'm using Sonavue"));
  EXPECT_TRUE(says(composer.view(), "plum@example.org"));
  EXPECT_EQ(composer.messageComposeDelegate(), objc::Object(cell));
  ASSERT_TRUE(tap_text("Cancel"));
  advance(3);
  EXPECT_FALSE(presented());
}

}  // namespace
}  // namespace sonavue::test
