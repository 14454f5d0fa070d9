#pragma once

// The names of the classes that each framework registers, as SONAVUE_X_CLASSES(MACRO). Libraries
// that a compiler of Objective-C made refer to a class by a symbol, which must exist before the
// class does: `class_symbols.cpp` makes the symbols of these names.

// clang-format off
#define SONAVUE_QUARTZCORE_CLASSES(CLASS) \
  CLASS(CAAnimation) CLASS(CABackdropLayer) CLASS(CABasicAnimation) CLASS(CADisplayLink) \
  CLASS(CAGeometryValue) CLASS(CAGradientLayer) CLASS(CAKeyframeAnimation) CLASS(CALayer) \
  CLASS(CAMediaTimingFunction) CLASS(CAPropertyAnimation) CLASS(CAShapeLayer) \
  CLASS(CATransaction) CLASS(CGColor) CLASS(CGImage) CLASS(CGPath)

#define SONAVUE_UIKIT_CLASSES(CLASS) \
  CLASS(SonavueTextCanvas) CLASS(UIAlertView) CLASS(UIAlertViewButton) CLASS(UIApplication) \
  CLASS(UIBarButtonItem) CLASS(UIBezierPath) CLASS(UIButton) CLASS(UICalloutBar) CLASS(UIColor) \
  CLASS(UIControl) CLASS(UIDevice) CLASS(UIEvent) CLASS(UIFont) CLASS(UIGestureRecognizer) \
  CLASS(UIImage) CLASS(UIImageView) CLASS(UIKBKeyPopupView) CLASS(UIKBKeyView) \
  CLASS(UIKBKeyplaneView) CLASS(UILabel) CLASS(UILongPressGestureRecognizer) \
  CLASS(UINavigationBar) CLASS(UINavigationBarBackButton) CLASS(UINavigationController) \
  CLASS(UINavigationItem) CLASS(UIPageControl) CLASS(UIPageViewController) \
  CLASS(UIPanGestureRecognizer) CLASS(UIPasteboard) CLASS(UIPickerView) CLASS(UIPickerWheel) \
  CLASS(UIResponder) CLASS(UIScreen) CLASS(UIScrollView) \
  CLASS(UIScrollViewDelayedTouchesBeganGestureRecognizer) \
  CLASS(UIScrollViewPanGestureRecognizer) CLASS(UISelectionGrabber) CLASS(UISlider) CLASS(UISwitch) \
  CLASS(UITableView) CLASS(UITableViewCell) CLASS(UITapGestureRecognizer) \
  CLASS(UITextEffectsWindow) CLASS(UITextField) CLASS(UITextView) CLASS(UITouch) CLASS(UIView) \
  CLASS(UIViewController) CLASS(UIWindow) CLASS(_UIBackdropView) CLASS(_UIBackdropViewSettings) \
  CLASS(_UIBackdropViewSettingsAdaptiveLight) CLASS(_UIBackdropViewSettingsColored) \
  CLASS(_UIBackdropViewSettingsDark) CLASS(_UIBackdropViewSettingsDarkLow) \
  CLASS(_UIBackdropViewSettingsFlatSemiLight) CLASS(_UIBackdropViewSettingsLight) \
  CLASS(_UIBackdropViewSettingsLightKeyboard) CLASS(_UIBackdropViewSettingsLightLow) \
  CLASS(_UIBackdropViewSettingsPasscodePaddle) CLASS(_UIBackdropViewSettingsSemiLight) \
  CLASS(_UIBackdropViewSettingsUltraColored) CLASS(_UIBackdropViewSettingsUltraDark) \
  CLASS(_UIBackdropViewSettingsUltraLight) CLASS(_UIViewAnimationAction)

#define SONAVUE_MEDIA_PLAYER_CLASSES(CLASS) \
  CLASS(MPLibraryText) CLASS(MPMediaItem) CLASS(MPMediaItemArtwork) CLASS(MPMediaItemList) \
  CLASS(MPMediaPropertyPredicate) CLASS(MPMediaQuery) CLASS(MPMusicPlayerController)

#define SONAVUE_MEDIA_PLAYER_UI_CLASSES(CLASS) \
  CLASS(MPUNowPlayingController)

#define SONAVUE_MESSAGE_UI_CLASSES(CLASS) \
  CLASS(MFComposePage) CLASS(MFMailComposeViewController) CLASS(MFMessageComposeViewController)

#define SONAVUE_TWITTER_CLASSES(CLASS) \
  CLASS(TWTweetComposeViewController)

#define SONAVUE_PREFERENCES_CLASSES(CLASS) \
  CLASS(PSControlTableCell) CLASS(PSEditableTableCell) CLASS(PSListController) CLASS(PSListItemsController) \
  CLASS(PSSliderTableCell) CLASS(PSSpecifier) CLASS(PSSwitchTableCell) CLASS(PSTableCell)

#define SONAVUE_GESTURE_SERVICE_CLASSES(CLASS) \
  CLASS(LAActivator) CLASS(LAEvent) CLASS(LAListenerListViewController) \
  CLASS(LAListenerSettingsViewController)

#define SONAVUE_HOME_SCREEN_CLASSES(CLASS) \
  CLASS(SBAppSwitcherController) CLASS(SBApplication) CLASS(SBApplicationController) \
  CLASS(SBApplicationIcon) CLASS(SBBannerController) CLASS(SBControlCenterContainerView) \
  CLASS(SBControlCenterController) CLASS(SBDockIconListView) CLASS(SBFolderIcon) \
  CLASS(SBFolderIconListView) CLASS(SBHostedApplicationView) CLASS(SBIcon) \
  CLASS(SBIconController) CLASS(SBIconListView) CLASS(SBIconModel) CLASS(SBIconView) \
  CLASS(SBIconViewMap) CLASS(SBLockScreenViewController) CLASS(SBMediaController) \
  CLASS(SBNotificationCenterController) CLASS(SBNotificationCenterViewController) \
  CLASS(SBReachabilityManager) CLASS(SBSurfaceAction) CLASS(SBSurfaceSlider) \
  CLASS(SBSurfaceWindow) CLASS(SBUIController) CLASS(SpringBoard)
// clang-format on
