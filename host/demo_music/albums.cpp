#include "host/demo_music/albums.h"

namespace host::media {
namespace {

constexpr const char* glass_harbour[] = {"First Light on the Quay", "Glass Harbour",
                                         "Salt and Signal",         "A Lamp for Every Window",
                                         "Low Tide Letters",        "Moorings"};
constexpr const char* night_ferries[] = {"Departure, 23:40", "Night Ferries", "Engine Room Lullaby",
                                         "Between Two Lighthouses", "Arrivals"};
constexpr const char* paper_planets[] = {"Fold Here",
                                         "Paper Planets",
                                         "Orbit of a Kite",
                                         "Cardboard Telescope",
                                         "String Theory (on a String)",
                                         "Return to Desk"};
constexpr const char* slow_weather[] = {"Barometer", "Slow Weather", "Seven Kinds of Drizzle",
                                        "The Long Cloud", "Clearing from the West"};
constexpr const char* copper_birds[] = {"Weathervane",    "Copper Birds",  "Verdigris",
                                        "Roofline Choir", "Wire and Wing", "Patina"};
constexpr const char* low_sun[] = {"Long Shadows", "Low Sun", "Orchard Gate", "Honey Hour",
                                   "Last Swim"};
constexpr const char* static_gardens[] = {"Carrier Wave",        "Static Gardens",
                                          "Moss on the Antenna", "Sixteen Greenhouses",
                                          "Phase Bloom",         "Compost Machine"};
constexpr const char* letters_to_nobody[] = {"Dear", "Letters to Nobody", "Postage Due",
                                             "The Blue Envelope", "Yours, Unsent"};

constexpr DemoAlbum albums[] = {
    {"Glass Harbour", "Mira Solen", "Ambient", ".flac", DemoMood::glassy,
     CoverPlace::inside_the_songs, 1, glass_harbour},
    {"Night Ferries", "Mira Solen", "Ambient", ".ogg", DemoMood::nocturnal,
     CoverPlace::inside_the_songs, 2, night_ferries},
    {"Paper Planets", "The Tin Observatory", "Indie", ".mp3", DemoMood::playful,
     CoverPlace::inside_the_songs, 3, paper_planets},
    {"Slow Weather", "Ansel & the Tides", "Folk", ".opus", DemoMood::slow,
     CoverPlace::in_the_folder, 4, slow_weather},
    {"Copper Birds", "Juniper Vale", "Pop", ".flac", DemoMood::bright, CoverPlace::inside_the_songs,
     5, copper_birds},
    {"Low Sun", "Juniper Vale", "Pop", ".flac", DemoMood::warm, CoverPlace::in_the_folder, 6,
     low_sun},
    {"Static Gardens", "Oktav", "Electronic", ".wav", DemoMood::electric, CoverPlace::in_the_folder,
     7, static_gardens},
    {"Letters to Nobody", "Hanne Wick", "Songwriter", ".opus", DemoMood::plain,
     CoverPlace::inside_the_songs, 8, letters_to_nobody},
};

}  // namespace

std::span<const DemoAlbum> demo_albums() {
  return albums;
}

int demo_song_count() {
  int count = 0;
  for (const DemoAlbum& album : albums)
    count += static_cast<int>(album.songs.size());
  return count;
}

}  // namespace host::media
