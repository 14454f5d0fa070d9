#include <gmock/gmock.h>

#include <fstream>
#include <map>
#include <sstream>

#include "host/basics/program_identity.h"
#include "host/media/song_name.h"

namespace {

/// The keys of the entry itself, before those of its actions.
std::map<std::string, std::string> entry() {
  std::map<std::string, std::string> keys;
  std::ifstream file(DESKTOP_ENTRY);
  std::string line;
  std::getline(file, line);
  EXPECT_EQ(line, "[Desktop Entry]");
  while (std::getline(file, line) && !line.empty()) {
    const auto equals = line.find('=');
    keys[line.substr(0, equals)] = line.substr(equals + 1);
  }
  return keys;
}

TEST(DesktopEntry, HasTheNamesByWhichTheProgramIsKnown) {
  const auto keys = entry();
  EXPECT_EQ(keys.at("Name"), host::kProgramName);
  EXPECT_EQ(keys.at("Icon"), host::kDesktopEntry);
  EXPECT_EQ(keys.at("StartupWMClass"), host::kDesktopEntry);
}

TEST(DesktopEntry, OpensAllMusicThatIsPlayed) {
  std::vector<std::string> types;
  std::istringstream list(entry().at("MimeType"));
  for (std::string type; std::getline(list, type, ';');)
    types.push_back(type);
  EXPECT_THAT(types, testing::UnorderedElementsAreArray(host::media::audio_types));
}

}  // namespace
