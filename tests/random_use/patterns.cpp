#include "tests/random_use/patterns.h"

namespace random_use {
namespace {

constexpr Pattern kBeginnings[] = {
    {6, "advance <pause>"},
    {8, "<panel>"},
    {3, "<panel>\ntap on play\nadvance <settling>"},
    {4, "<panel>\ntap on play\nadvance 1.2\ntap on music\nadvance <pause>"},
    {2, "<panel>\ndrag 340 500 100 500 0.2\nadvance <pause>\ntap on searchBar"},
    {2, "<panel>\ndrag 340 500 100 500 0.2\nadvance 0.6\ndrag 340 420 100 420 0.2\nadvance 1"},
    {5, "gesture shake\nadvance <settling>"},
    {4, "gesture shake\nadvance 0.6\ndrag on grabs 187 600 0.3\nadvance <settling>"},
    {2, "system open <application>\nadvance <settling>\ngesture shake\nadvance <settling>"},
    {2, "system open com.apple.Preferences\nadvance 1\ntap 100 293\nadvance <settling>"},
    {2, "button lock\nadvance 0.5\nbutton home\nadvance <pause>\ngesture shake\nadvance 0.6"},
    {1, "system edit on\nadvance <pause>"},
    {1, "system folder in com.apple.Music\nadvance <pause>"},
    {2,
     "system dock out com.apple.mobilephone\nsystem dock in com.apple.Music\nadvance 0.4\n"
     "drag on musicIcon 187 200 0.3\nadvance <settling>"},
};

constexpr Pattern kActions[] = {
    // Fingers, including a second tap during the transition of the first.
    {6, "tap <point>"},
    {12, "tap on <control>"},
    {6, "tap on <control>\nadvance <short>\ntap on <control>"},
    {3, "tap <point>\nadvance <short>\ntap <point>"},
    {4, "tap on <control> 2"},
    {6, "drag <point> <point> <time>"},
    {3, "drag <edge> <time>"},
    {3, "drag 340 500 100 500 0.2"},
    {2, "drag 60 500 320 500 0.2"},
    {8, "drag on musicIcon <point> <time>"},
    {5, "drag on music <point> <time>"},
    {6, "drag on grabs <point> <time>"},
    {3, "drag on musicIcon <point> <time>\nadvance <short>\n<interruption>"},
    {3, "drag on grabs <point> <time>\nadvance <short>\n<interruption>"},
    {3, "drag on music <point> <time>\nadvance <short>\n<interruption>"},
    // Up to three fingers that stay down while something else happens.
    {14,
     "touch began on <handle>\nadvance <short>\ntouch moved <point>\nadvance <short>\n"
     "<interruption>\nadvance <short>\ntouch <end> <point>"},
    {4,
     "touch began on <handle>\nadvance <short>\ntouch moved <point>\nadvance <short>\n"
     "<interruption>\nadvance <short>\ntouch moved <point>"},
    {5, "touch <finger>began on <handle>"},
    {3, "touch <finger>began <point>"},
    {6, "touch <finger>moved <point>"},
    {6, "touch <finger><end> <point>"},
    {3,
     "touch began on <handle>\nadvance 0.1\ntouch 2 began on <handle>\ntouch moved <point>\n"
     "advance <short>\ntouch 2 moved <point>\nadvance <short>\ntouch <end> <point>\n"
     "touch 2 <end> <point>"},
    // Buttons.
    {5, "button <button>"},
    {3, "button home\nadvance <short>\nbutton home\nadvance <short>\nbutton home"},
    {1, "button <held> down"},
    {2, "button <held> up"},
    // Actions of the system and the gesture service.
    {7, "gesture <gesture>"},
    {9, "<interruption>"},
    // Icons.
    {2, "system folder in com.apple.Music\nadvance <pause>"},
    {2, "system folder out com.apple.Music"},
    {1, "system dock out com.apple.mobilephone\nsystem dock in com.apple.Music"},
    {1, "system dock out com.apple.Music"},
    {2, "system edit off"},
    {2,
     "touch began on musicIcon\nadvance 1\ntouch moved <point>\nadvance <pause>\n"
     "touch ended <point>"},
    // The two ways to leave the sharing card.
    {3, "tap on music\nadvance <settling>\ntap 62 106"},
    {2, "tap on music\nadvance <settling>\ntap 321 106"},
    // Lists.
    {2, "tap on [[albums subviews] objectAtIndex:<index>]\nadvance <pause>"},
    {2, "tap on [[tableView visibleCells] objectAtIndex:<index>]"},
    {2, "tap on art 2\nadvance <pause>\ntap on art 2"},
    // Text, settings, songs, applications.
    {2, "tap on searchBar\nadvance <pause>\ntype <text>"},
    {2, "type <text>"},
    {2, "key <key>"},
    {3, "key <key>\nkey <key>\nkey return\nadvance <pause>"},
    {3, "<settings>"},
    {1, "<damage>"},
    {2, "<song>"},
    {2, "system kill <application>"},
    {3, "system open <application>\nadvance <settling>"},
    {6, "advance <pause>"},
};

constexpr Pattern kInterruptions[] = {
    {4, "button lock"},
    {4, "button home"},
    {2, "button home-double"},
    {1, "button home-touch"},
    {1, "button volume-up"},
    {2, "system lock"},
    {2, "system unlock"},
    {3, "system open <application>"},
    {3, "<alert>"},
    {2, "system banner Anna: Are you coming?"},
    {2, "system notification-centre"},
    {2, "system control-centre"},
    {2, "system reachability"},
    {2, "system edit on"},
    {1, "system folder in com.apple.Music"},
    {1, "system dock in com.apple.Music"},
    {1, "system kill <application>"},
    {3, "gesture <gesture>"},
    {2, "<settings>"},
    {1, "print [[SBReachabilityManager sharedInstance] _handleSignificantTimeChanged]"},
    {1, "print [[SBReachabilityManager sharedInstance] _keepAliveTimerFired:nil]"},
    {1, "print [[SBMediaController sharedInstance] togglePlayPause]"},
    {1, "print [[SBMediaController sharedInstance] changeTrack:1]"},
};

}  // namespace

std::span<const Pattern> beginnings() {
  return kBeginnings;
}

std::span<const Pattern> actions() {
  return kActions;
}

std::span<const Pattern> interruptions() {
  return kInterruptions;
}

}  // namespace random_use
