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

/// What a search has found. A class of the extension's own.
struct SVHits : objc::Own<SVHits, "SVHits", NSMutableArray> {};

// The shared state of the extension: plain values of the main thread, made once and never freed.
// One list makes the declarations, the definitions and the table that developers' tools read.
//
// X(type, name, value at load)
#define SONAVUE_GLOBALS(X)                                                                       \
  /* The system's objects that everything acts on. */                                            \
  X(SpringBoard, Spring, {})                                                                     \
  X(SBMediaController, mc, {})                                                                   \
  X(MPMusicPlayerController, musicPlayer, {})                                                    \
  X(MPUNowPlayingController, nowPlayingController, {})                                           \
  /* The main screen's bounds; seconds that a track change locks the controls; points of layout  \
     allowance, 0 on the smallest screens. */                                                    \
  X(CGRect, rect, {})                                                                            \
  X(float, time_wait, 1.0f)                                                                      \
  X(float, max, 60.0f)                                                                           \
  /* The colour of texts and controls. */                                                        \
  X(UIColor, newColor, {})                                                                       \
  /* Switches of the settings: the drag, and colours after the artwork. */                       \
  X(BOOL, enabled, YES)                                                                          \
  X(BOOL, legibility, NO)                                                                        \
  /* Whether the layout is the compact one, in force while nothing plays; the drag is on the     \
     icon; the panel is open; the banner is there; the banner has been opened fully; a finger    \
     holds the grabber; hits are listed; a track change is under way; the song has changed since \
     it was last shown. */                                                                       \
  X(BOOL, hide, YES)                                                                             \
  X(BOOL, added, NO)                                                                             \
  X(BOOL, isShow, NO)                                                                            \
  X(BOOL, isBanner, NO)                                                                          \
  X(BOOL, showed, NO)                                                                            \
  X(BOOL, isGrabbing, NO)                                                                        \
  X(BOOL, isSearching, NO)                                                                       \
  X(BOOL, changeTrack, NO)                                                                       \
  X(BOOL, did, NO)                                                                               \
  /* The state of playback as last reported, and as last drawn: 99 is no state. Seconds of the   \
     song, counted on and as last reported. Ticks of the timer of the track lock. */             \
  X(int, playbackState, 0)                                                                       \
  X(int, lastState, 99)                                                                          \
  X(double, elapsed, 0)                                                                          \
  X(double, lastElapsed, 0)                                                                      \
  X(unsigned, p, 0)                                                                              \
  /* The icon's home frame; the finger's places. Where each was when a drag or a turn of the     \
     pages began: the twin, the banner, the controls and the texts, the twin and the icon. */    \
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
  /* Where a zoomed album goes back to: its tile, picture and title. */                          \
  X(CGRect, oldPos, {})                                                                          \
  X(CGRect, oldPosIcon, {})                                                                      \
  X(CGRect, oldPosLbl, {})                                                                       \
  /* The view tree. */                                                                           \
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
  /* The library: all of it, the songs listed, search hits, the rest of the current album. */    \
  X(MPMediaQuery, fullList, {})                                                                  \
  X(NSMutableArray, songItems, {})                                                               \
  X(SVHits, result, {})                                                                          \
  X(NSMutableArray, songArtist, {})

namespace sonavue {

#define SONAVUE_DECLARE(Type, name, initial) extern Type name;
SONAVUE_GLOBALS(SONAVUE_DECLARE)
#undef SONAVUE_DECLARE

}  // namespace sonavue
