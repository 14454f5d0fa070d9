#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "objc/ref.h"
#include "platform/UIKit/UITableViewCell.h"

namespace host::uikit {

/// Cells that have scrolled out of sight and wait to be reused, by identifier.
class CellPool {
 public:
  /// A cell without an identifier is discarded.
  void keep(UITableViewCell cell) {
    const NSString identifier = cell.reuseIdentifier();
    if (!identifier) return;
    auto& waiting = waiting_[identifier.UTF8String()];
    if (waiting.size() < kMost) waiting.push_back(objc::Ref<UITableViewCell>::retain(cell));
  }

  /// Returns a waiting cell, autoreleased so that it stays alive until the caller has shown it; nil
  /// when none waits.
  UITableViewCell take(NSString identifier) {
    if (!identifier) return nil;
    const auto found = waiting_.find(identifier.UTF8String());
    if (found == waiting_.end() || found->second.empty()) return nil;
    const UITableViewCell cell = found->second.back().leak().autorelease();
    found->second.pop_back();
    return cell;
  }

 private:
  /// More cells than a screen ever shows are useless.
  static constexpr std::size_t kMost = 64;
  std::unordered_map<std::string, std::vector<objc::Ref<UITableViewCell>>> waiting_;
};

}  // namespace host::uikit
