#pragma once

#include <functional>

#include "platform/UIKit/_UIBackdropView.h"
#include "tests/tweak/coloured_panel.h"
#include "tests/tweak/receiver_spy.h"

namespace host::test {

using Steps = std::vector<std::string>;

/// Records the messages to the panel's parts.
class PanelSteps : public ColouredPanel {
 protected:
  Steps steps_of(const std::function<void()>& act) {
    Steps steps;
    const auto note = [&](objc::Object receiver, const std::string& message) {
      const std::string name = name_of(receiver);
      if (!name.empty()) steps.push_back(name + " " + message);
    };
    const auto noting = [&](const char* message) {
      return [&, message](objc::Object receiver, auto...) { note(receiver, message); };
    };
    const auto ring = objc::class_of(view("ring").id());
    const ReceiverSpy<UITableView, "reloadData"> reload(noting("reload"));
    const ReceiverSpy<SBIconView, "removeGestureRecognizer:", objc::Object> lost(noting("loses"));
    const ReceiverSpy<SBIconView, "addGestureRecognizer:", objc::Object> gained(noting("gets"));
    const ReceiverSpy<CALayer, "setCornerRadius:", CGFloat> corner(noting("corner"));
    const ReceiverSpy<CALayer, "setBorderColor:", CGColorRef> border(noting("border"));
    const ReceiverSpy<UIView, "setTintColor:", UIColor> tint(noting("tint"));
    const ReceiverSpy<UILabel, "setTextColor:", UIColor> label(noting("text"));
    const ReceiverSpy<UITextField, "setTextColor:", UIColor> field(noting("text"));
    const ReceiverSpy<UITextField, "setAttributedPlaceholder:", objc::Object> placeholder(
        [&](objc::Object receiver, auto) {
          note(receiver, is("legibility") ? "placeholder, legible" : "placeholder");
        });
    const ReceiverSpy<UITableView, "setSeparatorColor:", UIColor> separators(noting("separators"));
    const ReceiverSpy<UIView, "setBackgroundColor:", UIColor> line(noting("colour"));
    const ReceiverSpy<UIView, "setPrimaryColor:", UIColor> arc(noting("arc"), ring);
    const ReceiverSpy<UIView, "setSecondaryColor:", UIColor> circle(noting("circle"), ring);
    const ReceiverSpy<_UIBackdropView, "setStyle:", NSInteger> style(noting("style"));
    const ReceiverSpy<_UIBackdropView, "setInputSettings:", objc::Object> input(noting("input"));
    const ReceiverSpy<_UIBackdropView, "applySettings:", objc::Object> applied(noting("apply"));
    act();
    return steps;
  }

 private:
  std::string name_of(objc::Object receiver) const {
    for (const char* name : {"musicIcon", "back", "play", "next", "search_icon", "searchBar",
                             "title", "artist", "tableView", "tablev", "top", "bottom", "top1",
                             "top2", "bottom1", "ring", "grabs", "main", "blurTable"})
      if (view(name) == receiver) return name;
    if (view("art").layer() == receiver) return "art";
    for (const auto part : tile_parts<UIImageView>())
      if (part.layer() == receiver) return "tile";
    for (const auto part : tile_parts<UILabel>())
      if (part == receiver) return "tile";
    return "";
  }
};

}  // namespace host::test
