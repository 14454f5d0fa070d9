#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/MediaPlayer/MPMusicPlayerController.h"
#include "platform/MediaPlayerUI/MPUNowPlayingController.h"
#include "platform/SpringBoard/SBIconView.h"
#include "platform/SpringBoard/SBMediaController.h"
#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UITextField.h"
#include "platform/UIKit/UIWindow.h"
#include "platform/UIKit/_UIBackdropView.h"
#include "ui/M13ProgressViewRing.h"

// The shared state of the extension: plain values of the main thread, made once and never freed.
// One list makes the declarations, the definitions and the table that developers' tools read.
//
// X(type, name, value at load)
#define SONAVUE_GLOBALS(X)                                                                      \
  /* The system's objects that everything acts on. */                                           \
  X(SpringBoard, Spring, {})                                                                    \
  X(SBMediaController, mc, {})                                                                  \
  X(MPMusicPlayerController, musicPlayer, {})                                                   \
  X(MPUNowPlayingController, nowPlayingController, {})                                          \
  /* The main screen's bounds; seconds that a track change locks the controls; points of layout \
     allowance, 0 on the smallest screens. */                                                   \
  X(CGRect, rect, {})                                                                           \
  X(float, time_wait, 1.0f)                                                                     \
  X(float, max, 60.0f)                                                                          \
  /* The colour of texts and controls. */                                                       \
  X(UIColor, newColor, {})                                                                      \
  /* Switches and states. `hide` is the compact layout, in force while nothing plays. */        \
  X(BOOL, enabled, YES)                                                                         \
  X(BOOL, legibility, NO)                                                                       \
  X(BOOL, hide, YES)                                                                            \
  X(BOOL, added, NO)                                                                            \
  X(BOOL, isShow, NO)                                                                           \
  X(BOOL, isBanner, NO)                                                                         \
  X(BOOL, showed, NO)                                                                           \
  X(BOOL, isGrabbing, NO)                                                                       \
  X(BOOL, isSearching, NO)                                                                      \
  X(BOOL, changeTrack, NO)                                                                      \
  X(BOOL, did, NO)                                                                              \
  /* Playback as last reported, and as last drawn: 99 is drawn by nobody. */                    \
  X(int, playbackState, 0)                                                                      \
  X(int, lastState, 99)                                                                         \
  X(double, elapsed, 0)                                                                         \
  X(double, lastElapsed, 0)                                                                     \
  X(unsigned, p, 0)                                                                             \
  /* The icon's home frame, the finger's places, and where a drag back began. */                \
  X(CGRect, saved, {})                                                                          \
  X(CGPoint, startPoint, {})                                                                    \
  X(CGPoint, endPoint, {})                                                                      \
  X(CGRect, firstPos, {})                                                                       \
  X(float, firstPosBanner, 0)                                                                   \
  X(float, firstPlay1, 0)                                                                       \
  X(float, firstBack1, 0)                                                                       \
  X(float, firstNext1, 0)                                                                       \
  X(float, firstContainer1, 0)                                                                  \
  X(CGRect, firstMusic, {})                                                                     \
  X(CGRect, firstMusicIcon, {})                                                                 \
  /* Where a zoomed album goes back to: its tile, picture and title. */                         \
  X(CGRect, oldPos, {})                                                                         \
  X(CGRect, oldPosIcon, {})                                                                     \
  X(CGRect, oldPosLbl, {})                                                                      \
  /* The view tree. */                                                                          \
  X(UIWindow, window, {})                                                                       \
  X(UIWindow, locationWindow, {})                                                               \
  X(UIImageView, cover, {})                                                                     \
  X(_UIBackdropView, main, {})                                                                  \
  X(SBIconView, musicIcon, {})                                                                  \
  X(UIView, music, {})                                                                          \
  X(UIScrollView, container, {})                                                                \
  X(UIImageView, art, {})                                                                       \
  X(_UIBackdropView, blurTable, {})                                                             \
  X(UITableView, tablev, {})                                                                    \
  X(UIView, container1, {})                                                                     \
  X(UILabel, title, {})                                                                         \
  X(UILabel, artist, {})                                                                        \
  X(UIButton, play, {})                                                                         \
  X(UIButton, back, {})                                                                         \
  X(UIButton, next, {})                                                                         \
  X(M13ProgressViewRing, ring, {})                                                              \
  X(UITableView, tableView, {})                                                                 \
  X(UIView, searchCont, {})                                                                     \
  X(UITextField, searchBar, {})                                                                 \
  X(UIImageView, search_icon, {})                                                               \
  X(UIView, top, {})                                                                            \
  X(UIView, bottom, {})                                                                         \
  X(UIView, top1, {})                                                                           \
  X(UIView, bottom1, {})                                                                        \
  X(UIView, top2, {})                                                                           \
  X(UIView, grabbers, {})                                                                       \
  X(UIImageView, grabs, {})                                                                     \
  X(UIScrollView, albums, {})                                                                   \
  /* The library: all of it, the songs listed, search hits, the rest of the current album. */   \
  X(MPMediaQuery, fullList, {})                                                                 \
  X(NSMutableArray, songItems, {})                                                              \
  X(NSMutableArray, result, {})                                                                 \
  X(NSMutableArray, songArtist, {})

namespace sonavue {

#define SONAVUE_DECLARE(Type, name, initial) extern Type name;
SONAVUE_GLOBALS(SONAVUE_DECLARE)
#undef SONAVUE_DECLARE

/// Fills those that are ready before the home screen launches: `mc`, `rect`, `result`,
/// `musicPlayer`.
void fill_globals();

}  // namespace sonavue
