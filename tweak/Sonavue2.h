#pragma once

#include "objc/own_class.h"
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

/// The hits of a search. One of the extension's own classes.
struct SVHits : objc::Own<SVHits, "SVHits", NSMutableArray> {};

// The shared state of the extension: plain values, used on the main thread, made once and never
// freed. This list generates the declarations, the definitions and the table for the console.
//
// X(type, name, value at load)
#define SONAVUE_GLOBALS(X)                                                                       \
  /* The system's objects that the extension controls. */                                        \
  X(SpringBoard, Spring, {})                                                                     \
  X(SBMediaController, mc, {})                                                                   \
  X(MPMusicPlayerController, musicPlayer, {})                                                    \
  X(MPUNowPlayingController, nowPlayingController, {})                                           \
  /* The main screen's bounds; how many seconds a track change locks the controls; a layout      \
     allowance in points, 0 on the smallest screens. */                                          \
  X(CGRect, rect, {})                                                                            \
  X(float, time_wait, 1.0f)                                                                      \
  X(float, max, 60.0f)                                                                           \
  /* The colour of texts and controls. */                                                        \
  X(UIColor, newColor, {})                                                                       \
  /* Settings: whether the drag is on, and whether colours follow the artwork. */                \
  X(BOOL, enabled, YES)                                                                          \
  X(BOOL, legibility, NO)                                                                        \
  /* Flags: the layout is the compact one, for when nothing plays; the drag is on the icon; the  \
     panel is open; the banner is shown; the banner has been opened fully; a finger holds the    \
     grabber; search hits are listed; a track change is under way; the song has changed since it \
     was last shown. */                                                                          \
  X(BOOL, hide, YES)                                                                             \
  X(BOOL, added, NO)                                                                             \
  X(BOOL, isShow, NO)                                                                            \
  X(BOOL, isBanner, NO)                                                                          \
  X(BOOL, showed, NO)                                                                            \
  X(BOOL, isGrabbing, NO)                                                                        \
  X(BOOL, isSearching, NO)                                                                       \
  X(BOOL, changeTrack, NO)                                                                       \
  X(BOOL, did, NO)                                                                               \
  /* The playback state as last reported, and as last drawn (99: not drawn yet). Elapsed seconds \
     of the song, as counted and as last reported. Ticks of the track lock's timer. */           \
  X(int, playbackState, 0)                                                                       \
  X(int, lastState, 99)                                                                          \
  X(double, elapsed, 0)                                                                          \
  X(double, lastElapsed, 0)                                                                      \
  X(unsigned, p, 0)                                                                              \
  /* The icon's home frame; the finger's start and current points. Positions at the start of a   \
     drag or page turn: the twin; the banner; the controls and texts; the twin and the icon. */  \
  X(CGRect, saved, {})                                                                           \
  X(CGPoint, startPoint, {})                                                                     \
  X(CGPoint, endPoint, {})                                                                       \
  X(CGRect, firstPos, {})                                                                        \
  X(float, firstPosBanner, 0)                                                                    \
  X(float, firstPlay1, 0)                                                                        \
  X(float, firstBack1, 0)                                                                        \
  X(float, firstNext1, 0)                                                                        \
  X(float, firstContainer1, 0)                                                                   \
  X(CGRect, firstMusic, {})                                                                      \
  X(CGRect, firstMusicIcon, {})                                                                  \
  /* Where a zoomed album returns to: the frames of its tile, picture and title. */              \
  X(CGRect, oldPos, {})                                                                          \
  X(CGRect, oldPosIcon, {})                                                                      \
  X(CGRect, oldPosLbl, {})                                                                       \
  /* The view hierarchy. */                                                                      \
  X(UIWindow, window, {})                                                                        \
  X(UIWindow, locationWindow, {})                                                                \
  X(UIImageView, cover, {})                                                                      \
  X(_UIBackdropView, main, {})                                                                   \
  X(SBIconView, musicIcon, {})                                                                   \
  X(UIView, music, {})                                                                           \
  X(UIScrollView, container, {})                                                                 \
  X(UIImageView, art, {})                                                                        \
  X(_UIBackdropView, blurTable, {})                                                              \
  X(UITableView, tablev, {})                                                                     \
  X(UIView, container1, {})                                                                      \
  X(UILabel, title, {})                                                                          \
  X(UILabel, artist, {})                                                                         \
  X(UIButton, play, {})                                                                          \
  X(UIButton, back, {})                                                                          \
  X(UIButton, next, {})                                                                          \
  X(M13ProgressViewRing, ring, {})                                                               \
  X(UITableView, tableView, {})                                                                  \
  X(UIView, searchCont, {})                                                                      \
  X(UITextField, searchBar, {})                                                                  \
  X(UIImageView, search_icon, {})                                                                \
  X(UIView, top, {})                                                                             \
  X(UIView, bottom, {})                                                                          \
  X(UIView, top1, {})                                                                            \
  X(UIView, bottom1, {})                                                                         \
  X(UIView, top2, {})                                                                            \
  X(UIView, grabbers, {})                                                                        \
  X(UIImageView, grabs, {})                                                                      \
  X(UIScrollView, albums, {})                                                                    \
  /* The library: all songs, the listed songs, search hits, the current album's other songs. */  \
  X(MPMediaQuery, fullList, {})                                                                  \
  X(NSMutableArray, songItems, {})                                                               \
  X(SVHits, result, {})                                                                          \
  X(NSMutableArray, songArtist, {})

namespace sonavue {

#define SONAVUE_DECLARE(Type, name, initial) extern Type name;
SONAVUE_GLOBALS(SONAVUE_DECLARE)
#undef SONAVUE_DECLARE

}  // namespace sonavue
