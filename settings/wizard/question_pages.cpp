#include "settings/wizard/question_pages.h"

#include "objc/ref.h"
#include "settings/texts.h"
#include "settings/wizard/choice_pickers.h"
#include "settings/wizard/page_parts.h"
#include "settings/wizard/switcher.h"
#include "tweak/preferences/preference_key.h"
#include "ui/assets.h"

namespace sonavue {
namespace {

constexpr CGFloat kQuestionRowHeight = 45;

/// Makes the question pages in order.
class Questions {
 public:
  Questions(NSMutableArray pages, CGSize size, styleController target)
      : pages_(pages), size_(size), target_(target) {}

  void ask_switch(NSString text, PreferenceKey key, NSString picture) const {
    const UIView page = add_text_page(pages_, {text, whole_text()});
    const auto row = objc::adopt(Switcher::alloc().initWithFrame(
        row_frame(), Translator(key.text()), UIImage::imageWithContentsOfFile(picture), YES));
    if (row) page.addSubview(row);
  }
  void ask_gesture(NSString text) const {
    add_linker(add_text_page(pages_, {text, whole_text()}), row_frame(), "Activator"_ns,
               asset_path<"Activator.png">(), target_, "showActivatorPage"_sel);
  }
  /// `source` is the wheel's data source and delegate. It must outlive the wheel.
  void ask_choice(NSString text, objc::Object source) const {
    const UIView page = add_text_page(pages_, {text, {0, 50, size_.width, 210}});
    const auto wheel =
        objc::adopt(UIPickerView::alloc().initWithFrame({0, 300, size_.width, size_.height - 180}));
    wheel->setDataSource(source);
    wheel->setDelegate(source);
    page.addSubview(wheel);
  }
  void offer_tutorial(NSString text) const {
    add_linker(add_text_page(pages_, {text, {0, 100, size_.width, 210}}),
               {0, size_.height / 2 + 100, size_.width, kQuestionRowHeight}, "Tutorial"_ns,
               asset_path<"Finish@2x.png">(), target_, "showTutorial"_sel);
  }

 private:
  CGRect whole_text() const { return {0, 30, size_.width, size_.height - 150}; }
  CGRect row_frame() const { return {0, 0.75 * size_.height, size_.width, kQuestionRowHeight}; }

  NSMutableArray pages_;
  CGSize size_;
  styleController target_;
};

/// Sources are never released: a wheel does not retain its source, and its page may come back at
/// any time.
template <class Source>
objc::Object source_for(PreferenceKey key) {
  const Source source = Source::alloc().init();
  source.setKey(key.text());
  return source;
}

}  // namespace

void add_question_pages(NSMutableArray pages, CGRect bounds, styleController target) {
  const Questions questions(pages, bounds.size, target);
  questions.ask_switch(
      "Sonavue reinvents the way of listening to your Music adding a lot of new features to your iPhone. Do you want to enable Sonavue?"_ns,
      preference::enable(), asset_path<"attivo@2x.png">());
  questions.ask_switch(
      "Sonavue can recognize if your Music is in your iPhone or if it is from cloud. Do you want to use your Cloud's Music?"_ns,
      preference::cloud(), asset_path<"Cloud.png">());
  questions.ask_switch(
      "Sonavue brings to your Iphone a new interface that let you to interact with Music. This interface can be modified every time the current now playing song changes by blurring the Artwork of the Music. Do you want this property on?"_ns,
      preference::cover(), asset_path<"Cover.png">());
  questions.ask_switch(
      "The Artwork in the middle of Sonavue's interface has, by default, rounded corners. Do you want squared corners?"_ns,
      preference::square(), asset_path<"Squared.png">());
  questions.ask_switch(
      "Do you want to use automatic color in order to make Sonavue2 interface more legible?"_ns,
      preference::legibility(), asset_path<"auto.png">());
  questions.ask_gesture("Set an Activator Gesture to invoke Sonavue from anywhere"_ns);
  questions.ask_choice(
      "Sonavue offers a lot of ways to customize it, for example you can choose what type of blur you want in Sonavue's interface. Which one?"_ns,
      target);
  questions.ask_choice("What do you want around the play/pause button?"_ns,
                       source_for<Play>(preference::play()));
  questions.ask_choice("Which tint color you want to use for Sonavue's interface?"_ns,
                       source_for<Tint>(preference::tint()));
  questions.ask_choice("Which Font tint color you want to use for Sonavue's interface?"_ns,
                       source_for<Tint>(preference::font_tint()));
  questions.offer_tutorial(
      "You are now ready to do a small tutorial to learn how Sonavue works.\nThis will be easy!"_ns);
}

}  // namespace sonavue
