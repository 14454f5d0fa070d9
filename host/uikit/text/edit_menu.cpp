#include "host/uikit/text/edit_menu.h"

#include "host/uikit/view/responder.h"

// Which menu is shown, and for which target.

namespace host::uikit {
namespace {

struct Shown {
  objc::Ref<UITextEffectsWindow> window;
  objc::Ref<UICalloutBar> bar;
};

Shown& shown() {
  // Never destroyed: its objects must not be released after the runtime is gone.
  static Shown& menu = *new Shown;
  return menu;
}

std::vector<EditMenuItem> items_for(NSObject target) {
  std::vector<EditMenuItem> items{{"Cut", "cut:"_sel},
                                  {"Copy", "copy:"_sel},
                                  {"Paste", "paste:"_sel},
                                  {"Select", "select:"_sel},
                                  {"Select All", "selectAll:"_sel}};
  std::erase_if(items, [target](const EditMenuItem& item) {
    return !objc::send<BOOL>(target, "canPerformAction:withSender:"_sel, item.action,
                             objc::Object());
  });
  return items;
}

}  // namespace

void show_edit_menu(NSObject target, CGRect text_on_screen) {
  hide_edit_menu();
  auto items = items_for(target);
  if (items.empty()) return;
  Shown& menu = shown();
  menu.window = objc::Ref<UITextEffectsWindow>::adopt(make_effects_window(kTextMenuWindowLevel));
  objc::state_of<EffectsWindow>(menu.window.get()).on_touch_beside = &hide_edit_menu;
  menu.bar = objc::Ref<UICalloutBar>::adopt(UICalloutBar::alloc().init());
  objc::state_of<CalloutBar>(menu.bar.get())
      .show(std::move(items), text_on_screen, menu.window->bounds());
  menu.window->addSubview(menu.bar.get());
  menu.window->setHidden(NO);
}

void hide_edit_menu() {
  Shown& menu = shown();
  if (!menu.bar) return;
  // The touched view may be removed here: it is kept until this turn is over.
  const auto window = std::move(menu.window);
  const auto bar = std::move(menu.bar);
  menu = {};
  bar->removeFromSuperview();
  window->setHidden(YES);
  window->retain().autorelease();
  bar->retain().autorelease();
}

CalloutBar* shown_edit_menu() {
  return shown().bar ? &objc::state_of<CalloutBar>(shown().bar.get()) : nullptr;
}

}  // namespace host::uikit
