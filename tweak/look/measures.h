#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

// The measures of the look, in points. Values that depend on the screen are computed where they are
// used.

namespace sonavue {

// The song page, from top to bottom: artwork, texts, controls.
inline constexpr CGFloat kArtworkTop = 11;
inline constexpr CGFloat kArtworkCorner = 50;
inline constexpr CGFloat kArtworkBorder = 4;
inline constexpr CGFloat kTextsGap = 10;  // Between the artwork and the texts.
inline constexpr CGFloat kTextsHeight = 45;
inline constexpr CGFloat kTitleLine = 20;
inline constexpr CGFloat kArtistTop = kTitleLine + 5;
inline constexpr CGFloat kTitleSize = 15;
inline constexpr CGFloat kArtistSize = 13;
inline constexpr CGFloat kPlayGap = 10;  // Between the texts and the play button.
inline constexpr CGFloat kSkipGap = 20;  // Between the texts and the back and next buttons.
inline constexpr CGFloat kPlaySide = 50;
inline constexpr CGSize kSkipSize{40, 30};

/// How much higher the controls are while nothing plays, when the texts are hidden.
inline constexpr CGFloat kLift = 45;

// The banner: the play button, the space around it, and the texts if there are any.
inline constexpr CGFloat kBannerAroundPlay = 25 + 15;
inline constexpr CGFloat kBannerTexts = 60;
inline constexpr CGFloat kBannerLessOnSmallScreens = 15;
inline constexpr CGFloat kBannerTextsGap = 5;  // Between the texts and the play button.
inline constexpr CGFloat kGrabberHeight = 20;
inline constexpr CGSize kGrabSize{40, 15};
inline constexpr CGFloat kGrabberLine = 0.5;

// The list of all songs and its search field.
inline constexpr CGFloat kSongRowHeight = 35;
inline constexpr CGFloat kSearchHeaderHeight = 31;
inline constexpr CGFloat kSearchFieldTop = 3;
inline constexpr CGFloat kSearchFieldHeight = 25;
inline constexpr CGFloat kSearchFieldCorner = 5;
inline constexpr CGFloat kSearchIconInset = 5;
inline constexpr CGFloat kListLine = 1;

// The album tiles.
inline constexpr CGFloat kTileGap = 10;
inline constexpr CGFloat kCoverCorner = 15;
inline constexpr CGFloat kCoverInset = 8;
inline constexpr CGFloat kCoverBorder = 2.5;
inline constexpr CGFloat kTileTitleHeight = 16;
inline constexpr CGFloat kTileTitleSize = 12;
inline constexpr CGFloat kZoomedCoverCorner = 30;
inline constexpr CGFloat kZoomedTitleHeight = 40;
inline constexpr CGFloat kZoomedTitleSize = 28;
inline constexpr CGFloat kSongPictureCorner = 10;
inline constexpr CGFloat kSongPictureBorder = 1.5;

// The drag. A page of icons begins below the status bar. In the frame of the release only, the twin
// is beside the icon.
inline constexpr CGFloat kStatusBarHeight = 20;
inline constexpr CGFloat kReleaseAside = 5;

}  // namespace sonavue
