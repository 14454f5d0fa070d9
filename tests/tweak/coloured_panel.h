#pragma once

#include <map>

#include "platform/UIKit/NSAttributedStringAdditions.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UITextField.h"
#include "tests/tweak/colours.h"
#include "tests/tweak/panel_test.h"

namespace host::test {

/// The colours of the panel's parts, by the parts' names.
using Colours = std::map<std::string, Rgba>;

class ColouredPanel : public PanelTest {
 protected:
  /// Writes the settings and waits until the next poll has applied them.
  void change_settings(const std::string& entries) {
    write_preferences(entries + "<key>checked</key><false/>");
    advance(0.1 + RunLoop::kFrame);
  }
  static std::string text_entry(const std::string& key, const std::string& value) {
    return "<key>" + key + "</key><string>" + value + "</string>";
  }
  static std::string switch_entry(const std::string& key, bool on) {
    return "<key>" + key + "</key>" + (on ? "<true/>" : "<false/>");
  }

  /// The parts of one class from every album tile.
  template <class Part>
  std::vector<Part> tile_parts() const {
    std::vector<Part> found;
    for (const auto tile : view("albums").subviews().of<UIView>()) {
      for (const auto part : tile.subviews().of<UIView>())
        if (part.isKindOfClass(Part::cls())) found.push_back(objc::cast<Part>(part));
    }
    return found;
  }

  /// The colours that the setting "tint" controls.
  Colours control_colours() const {
    Colours found;
    found["border of the artwork"] = rgba(view("art").layer().borderColor());
    for (const auto picture : tile_parts<UIImageView>())
      found["border of tile " + std::to_string(found.size())] = rgba(picture.layer().borderColor());
    for (const char* name : {"back", "play", "next", "search_icon", "grabs"})
      found[name] = rgba(view(name).tintColor());
    for (const char* name : {"tableView", "tablev"})
      found[std::string("separators of ") + name] =
          rgba(global<UITableView>(name).separatorColor());
    for (const char* name : {"top", "bottom", "top1", "top2", "bottom1"})
      found[std::string("line ") + name] = rgba(view(name).backgroundColor());
    found["arc of the ring"] = rgba(objc::send<UIColor>(view("ring"), "primaryColor"_sel));
    found["ring"] = rgba(objc::send<UIColor>(view("ring"), "secondaryColor"_sel));
    return found;
  }

  /// The colours that the setting "font_tint" controls.
  Colours text_colours() const {
    Colours found;
    for (const auto label : tile_parts<UILabel>())
      found["title of tile " + std::to_string(found.size())] = rgba(label.textColor());
    found["searchBar"] = rgba(global<UITextField>("searchBar").textColor());
    for (const char* name : {"title", "artist"})
      found[name] = rgba(global<UILabel>(name).textColor());
    found["placeholder"] =
        rgba(objc::cast<UIColor>(global<UITextField>("searchBar")
                                     .attributedPlaceholder()
                                     .attribute(NSForegroundColorAttributeName, 0, nullptr)));
    return found;
  }
};

/// Three tiles and fifteen other parts; three titles and four other texts.
inline constexpr std::size_t kColouredControls = 18;
inline constexpr std::size_t kColouredTexts = 7;

MATCHER_P(AreAll, colour, "") {
  for (const auto& [part, its_colour] : arg) {
    if (its_colour == colour) continue;
    *result_listener << part << " is ";
    std::ostringstream shown;
    PrintTo(its_colour, &shown);
    *result_listener << shown.str();
    return false;
  }
  return true;
}

}  // namespace host::test
