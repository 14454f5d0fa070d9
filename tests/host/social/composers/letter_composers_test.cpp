#include <gmock/gmock.h>

#include "host/social/composers/exports.h"
#include "host/social/delivery/configuration.h"
#include "host/uikit/application/application.h"
#include "host/uikit/text/key_input.h"
#include "host/uikit/text_view/text_view.h"
#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/MessageUI/MFMessageComposeViewController.h"
#include "tests/host/uikit/support/page_test.h"
#include "tests/support/media_fixtures.h"

namespace host::test {
namespace {

struct TestComposerListener : objc::Bound<TestComposerListener, "TestComposerListener", NSObject> {
};

class ComposerListener : public objc::Implementation<ComposerListener, TestComposerListener> {
 public:
  using Implementation::Implementation;

  void mail(MFMailComposeViewController composer, MFMailComposeResult result, objc::Object) {
    end("mail", composer, result);
  }
  void message(MFMessageComposeViewController composer, MessageComposeResult result) {
    end("message", composer, result);
  }

 private:
  static void end(const char* kind, UIViewController composer, int result) {
    UIKitTest::events().push_back(kind + (" ended with " + std::to_string(result)));
    composer.presentingViewController().dismissViewControllerAnimated(
        YES, objc::block([] { UIKitTest::events().push_back("gone"); }));
  }
};

class LetterComposers : public PageTest {
 protected:
  LetterComposers() {
    uikit::export_text_view();
    social::export_message_ui();
    social::open_addresses();
    if (!TestComposerListener::cls()) {
      objc::ClassBuilder("TestComposerListener", "NSObject")
          .state<ComposerListener>()
          .method<&ComposerListener::mail>("mailComposeController:didFinishWithResult:error:")
          .method<&ComposerListener::message>("messageComposeViewController:didFinishWithResult:")
          .finish();
    }
    social::Configuration configuration;
    configuration.outbox = folder / "Outbox";
    social::configure(configuration);
    listener = objc::Ref<TestComposerListener>::adopt(TestComposerListener::alloc().init());
    window.setRootViewController(ToldPage::make("Behind"));
    advance(0.1);
  }
  ~LetterComposers() override { social::configure({}); }

  void show(UIViewController composer) {
    window.rootViewController().presentViewController(composer, YES, nullptr);
    composer.release();
    advance(1);
    told();
  }
  void show_mail() {
    const auto composer = MFMailComposeViewController::alloc().init();
    composer.setMailComposeDelegate(listener.get());
    composer.setSubject("Sonavue"_ns);
    composer.setMessageBody(""_ns, NO);
    composer.setToRecipients(NSArray::arrayWithObject("a@example.org"_ns));
    show(composer);
  }
  std::string sent(const char* name) const {
    return media_tests::read_bytes(folder / (std::string("Outbox/") + name));
  }

  const CGPoint cancel{40, 42};
  const CGPoint send{340, 42};
  media_tests::TemporaryFolder folder;
  objc::Ref<TestComposerListener> listener;
};

TEST_F(LetterComposers, AMailIsShownChangedAndSent) {
  EXPECT_TRUE(MFMailComposeViewController::canSendMail());
  show_mail();
  const UIView view = window.rootViewController().presentedViewController().view();
  EXPECT_TRUE(shows(view, "a@example.org"_ns));
  EXPECT_TRUE(shows(view, "Sonavue"_ns));
  tap({100, 300});
  uikit::type_text("Hello"_ns);
  advance(0.5);
  photograph("mail", clock.now());
  tap(send);
  advance(1);
  EXPECT_EQ(told(),
            (Events{"mail ended with 2", "Behind will appear", "Behind did appear", "gone"}));
  EXPECT_EQ(sent("mail-1.txt"), "To: a@example.org\nSubject: Sonavue\n\nHello\n");
  EXPECT_FALSE(window.rootViewController().presentedViewController());
}

TEST_F(LetterComposers, AMailThatIsCancelledIsSentNowhere) {
  show_mail();
  tap(cancel);
  tap(send);
  advance(1);
  EXPECT_EQ(told().front(), "mail ended with 0");
  EXPECT_FALSE(std::filesystem::exists(folder / "Outbox"));
}

TEST_F(LetterComposers, TheSubjectMayBeChanged) {
  show_mail();
  tap({250, 64 + 44 + 22});
  uikit::type_text("!"_ns);
  advance(0.5);
  tap(send);
  advance(1);
  EXPECT_THAT(sent("mail-1.txt"), testing::HasSubstr("\nSubject: Sonavue!\n"));
}

TEST_F(LetterComposers, TheEndIsReportedOnce) {
  show_mail();
  const auto composer = objc::cast<UINavigationController>(
      objc::cast<NSObject>(window.rootViewController().presentedViewController()));
  const auto page = objc::Ref<UIViewController>::retain(composer.topViewController());
  objc::send<>(*page, "cancelPressed"_sel);
  objc::send<>(*page, "sendPressed"_sel);
  objc::send<>(*page, "cancelPressed"_sel);
  advance(1);
  EXPECT_EQ(told(),
            (Events{"mail ended with 0", "Behind will appear", "Behind did appear", "gone"}));
}

TEST_F(LetterComposers, AMailThatCannotBeDeliveredHasFailed) {
  media_tests::write_bytes(folder / "Outbox", "a file where the folder would be");
  show_mail();
  tap(send);
  advance(1);
  EXPECT_EQ(told().front(), "mail ended with 3");
}

TEST_F(LetterComposers, AMessageHasNoSubject) {
  EXPECT_TRUE(MFMessageComposeViewController::canSendText());
  const auto composer = MFMessageComposeViewController::alloc().init();
  composer.setMessageComposeDelegate(listener.get());
  composer.setRecipients(NSArray::arrayWithObject("+123"_ns));
  composer.setBody("I'm here"_ns);
  show(composer);
  EXPECT_FALSE(shows(composer.view(), "Subject:"_ns));
  tap(send);
  advance(1);
  EXPECT_EQ(told().front(), "message ended with 1");
  EXPECT_EQ(sent("message-1.txt"), "To: +123\n\nI'm here\n");
}

TEST_F(LetterComposers, WithoutADelegateItDismissesItself) {
  show(MFMailComposeViewController::alloc().init());
  tap(cancel);
  advance(1);
  EXPECT_FALSE(window.rootViewController().presentedViewController());
}

TEST_F(LetterComposers, TheApplicationOpensAddressesTheSameWay) {
  const UIApplication application = UIApplication::alloc().init();
  EXPECT_TRUE(application.canOpenURL(NSURL::URLWithString("https://example.org/x"_ns)));
  EXPECT_FALSE(application.canOpenURL(NSURL::URLWithString("other://x"_ns)));
  EXPECT_FALSE(application.canOpenURL(nil));
  EXPECT_TRUE(application.openURL(NSURL::URLWithString("https://example.org/x"_ns)));
  EXPECT_EQ(sent("link-1.txt"), "https://example.org/x\n");
  EXPECT_FALSE(application.openURL(NSURL::URLWithString("other://x"_ns)));
  application.release();
}

}  // namespace
}  // namespace host::test
