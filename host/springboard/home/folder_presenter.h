#pragma once

#include <memory>
#include <optional>
#include <string>

#include "host/springboard/home/home_screen.h"

namespace host::springboard {

enum class Motion { kAnimated, kAtOnce };

/// Opens one folder at a time over the home screen and closes it again.
class FolderPresenter {
 public:
  /// A tap outside the open folder sends `folderBackgroundTapped:` to `background_target`, which is
  /// not retained.
  FolderPresenter(HomeScreen& home, objc::Object background_target);
  ~FolderPresenter();

  void open(const std::string& folder, NSString title, SBIconView icon_view);
  void close(Motion motion);
  bool is_open() const { return panel_ && !closing_; }
  /// The open folder's identifier in the layout; empty when none is open.
  const std::string& folder() const { return folder_; }
  const FolderMetrics& metrics() const { return metrics_; }

 private:
  void build(NSString title);
  void add_background();
  void add_title(NSString title);
  /// Shrinks the panel to the icon's size and moves it over the icon.
  CGAffineTransform transform_onto_icon() const;
  void take_down();

  HomeScreen& home_;
  objc::Object background_target_;
  FolderMetrics metrics_;
  std::string folder_;
  CGRect icon_frame_;
  bool closing_ = false;
  /// Expires with this object, which an animation may outlive.
  std::shared_ptr<void> life_ = std::make_shared<char>();
  objc::Ref<UIView> overlay_;
  objc::Ref<UIView> panel_;
  objc::Ref<UIView> list_;
};

}  // namespace host::springboard
