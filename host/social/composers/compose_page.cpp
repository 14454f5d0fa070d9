#include "host/social/composers/compose_page.h"

#include <cmath>
#include <utility>

#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIScreen.h"

namespace host::social {
namespace {

constexpr CGFloat kMargin = 15;
constexpr CGFloat kRowHeight = 44;
constexpr CGFloat kFontSize = 16;
constexpr CGFloat kNameGap = 6;
constexpr CGFloat kLineGrey = 200.0 / 255;
constexpr CGFloat kNameGrey = 142.0 / 255;
/// The padding that a text view adds beside its lines.
constexpr CGFloat kLinePadding = 5;
constexpr CGFloat kTextTop = 12;

NSString to_ns(const std::string& text) {
  return NSString::stringWithUTF8String(text.c_str());
}

std::string to_string(NSString text) {
  const char* bytes = text.UTF8String();
  return bytes ? bytes : "";
}

objc::Ref<UILabel> make_label(NSString text, UIColor color) {
  const auto label = objc::Ref<UILabel>::adopt(UILabel::alloc().initWithFrame({}));
  label->setFont(UIFont::systemFontOfSize(kFontSize));
  label->setTextColor(color);
  label->setText(text);
  return label;
}

std::string in_one_line(const std::vector<std::string>& parts) {
  std::string line;
  for (const std::string& part : parts)
    line += (line.empty() ? "" : ", ") + part;
  return line;
}

}  // namespace

objc::Ref<MFComposePage> ComposePage::make(LetterKind kind, std::function<void(End)> on_end) {
  const auto page = objc::Ref<MFComposePage>::adopt(MFComposePage::alloc().init());
  ComposePage& state = objc::state_of<ComposePage>(page.get());
  state.letter_.kind = kind;
  state.on_end_ = std::move(on_end);
  return page;
}

void ComposePage::view_did_load() {
  super<>("viewDidLoad"_sel);
  self.view().setBackgroundColor(UIColor::whiteColor());
  // The page itself places the text, below the rows.
  self.setAutomaticallyAdjustsScrollViewInsets(NO);
  const bool is_mail = letter_.kind == LetterKind::Mail;
  const auto cancel = UIBarButtonItem::alloc().initWithTitle("Cancel"_ns, UIBarButtonItemStylePlain,
                                                             self, "cancelPressed"_sel);
  const auto send = UIBarButtonItem::alloc().initWithTitle("Send"_ns, UIBarButtonItemStyleDone,
                                                           self, "sendPressed"_sel);
  self.navigationItem().setLeftBarButtonItem(cancel.autorelease());
  self.navigationItem().setRightBarButtonItem(send.autorelease());
  self.setTitle(is_mail && !letter_.subject.empty() ? to_ns(letter_.subject) : "New Message"_ns);

  CGFloat top = CGRect(self.navigationController().navigationBar().frame()).max_y();
  const auto recipients = make_label(to_ns(in_one_line(letter_.recipients)), UIColor::blackColor());
  top = add_row(top, "To:"_ns, recipients.get());
  if (is_mail) {
    subject_ = objc::Ref<UITextField>::adopt(
        objc::cast<UITextField>(UITextField::alloc().initWithFrame({})));
    subject_->setFont(UIFont::systemFontOfSize(kFontSize));
    subject_->setText(to_ns(letter_.subject));
    top = add_row(top, "Subject:"_ns, subject_.get());
  }
  body_top_ = top;
  body_ =
      objc::Ref<UITextView>::adopt(objc::cast<UITextView>(UITextView::alloc().initWithFrame({})));
  body_->setFont(UIFont::systemFontOfSize(kFontSize));
  body_->setTextContainerInset(
      {kTextTop, kMargin - kLinePadding, kTextTop, kMargin - kLinePadding});
  body_->setText(to_ns(letter_.body));
  self.view().addSubview(body_.get());
}

/// Returns the bottom of the row.
CGFloat ComposePage::add_row(CGFloat top, NSString name, UIView contents) {
  const CGFloat width = self.view().bounds().size.width;
  const auto label = make_label(name, UIColor::colorWithWhite(kNameGrey, 1));
  const CGFloat name_width = std::ceil(label->sizeThatFits({width, kRowHeight}).width);
  label->setFrame({kMargin, top, name_width, kRowHeight});
  const CGFloat left = kMargin + name_width + kNameGap;
  contents.setFrame({left, top, width - left - kMargin, kRowHeight});
  contents.setAutoresizingMask(UIViewAutoresizingFlexibleWidth);
  self.view().addSubview(label.get());
  self.view().addSubview(contents);
  add_line(top + kRowHeight);
  return top + kRowHeight;
}

void ComposePage::add_line(CGFloat top) {
  const CGFloat hairline = 1 / UIScreen::mainScreen().scale();
  const auto line = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame(
      {kMargin, top - hairline, self.view().bounds().size.width - kMargin, hairline}));
  line->setBackgroundColor(UIColor::colorWithWhite(kLineGrey, 1));
  line->setAutoresizingMask(UIViewAutoresizingFlexibleWidth);
  self.view().addSubview(line.get());
}

void ComposePage::view_did_layout_subviews() {
  super<>("viewDidLayoutSubviews"_sel);
  const CGSize size = self.view().bounds().size;
  body_->setFrame({0, body_top_, size.width, size.height - body_top_});
}

void ComposePage::cancel() {
  end(End::Cancelled);
}

void ComposePage::send() {
  if (subject_) letter_.subject = to_string(subject_->text());
  letter_.body = to_string(body_->text());
  end(send_letter(letter_) == HandedTo::Failed ? End::Failed : End::Sent);
}

// The handler may dismiss the page at once, and is called only once.
void ComposePage::end(End end) {
  const auto kept = objc::Ref<MFComposePage>::retain(self);
  subject_->resignFirstResponder();
  body_->resignFirstResponder();
  if (const auto told = std::exchange(on_end_, {})) told(end);
}

void export_compose_page() {
  objc::ClassBuilder("MFComposePage", "UIViewController")
      .state<ComposePage>()
      .method<&ComposePage::view_did_load>("viewDidLoad")
      .method<&ComposePage::view_did_layout_subviews>("viewDidLayoutSubviews")
      .method<&ComposePage::cancel>("cancelPressed")
      .method<&ComposePage::send>("sendPressed")
      .finish();
}

}  // namespace host::social
