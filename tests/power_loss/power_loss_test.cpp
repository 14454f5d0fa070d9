#include <gmock/gmock.h>

#include <functional>
#include <ostream>
#include <set>

#include "host/activator/assignment/assignment_store.h"
#include "host/foundation/device_paths.h"
#include "host/media/index.h"
#include "host/media_player/playback_memory.h"
#include "host/springboard/model/icon_state.h"
#include "objc/autorelease_pool.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSValue.h"
#include "settings/preferences.h"
#include "tests/host/launcher/temporary_folder.h"
#include "tests/power_loss/disk.h"
#include "tests/support/host_test.h"
#include "tweak/preferences/poll.h"

namespace {

using namespace power_loss;
using host::foundation::PropertyListFile;
namespace fs = std::filesystem;

constexpr const char* kPlayback = "/var/mobile/Media/playback.plist";
constexpr const char* kIndex = "/var/mobile/Media/library.sqlite";
constexpr const char* kIcons = "/var/mobile/Library/SpringBoard/IconState.plist";
constexpr host::springboard::HomeLayout::Capacity kCapacity{4, 2, 9};

/// Something that a device keeps in a file.
struct Kept {
  const char* name;
  std::function<void(int version)> write;
  std::function<std::string()> read;  // as the next start does; "none" without the file
  bool is_lasting = true;             // whether a write that has returned is on the disk
};

void PrintTo(const Kept& kept, std::ostream* out) {
  *out << kept.name;
}

std::string description_of(objc::Object object) {
  return object ? objc::cast<NSObject>(object).description().UTF8String() : "none";
}

std::string read_preferences() {
  return description_of(NSDictionary::dictionaryWithContentsOfFile(
      "/var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist"_ns));
}

void assign(int version) {
  host::activator::AssignmentStore().assign("shake", "springboard", std::to_string(version));
}

std::string read_assignments() {
  host::activator::AssignmentStore store;
  std::string names = "none";
  for (const std::string& name : store.current().listeners("shake", "springboard"))
    names += " " + name;
  return names;
}

host::media_player::PlaybackFile playback_file() {
  return {kPlayback, host::media_player::PlaybackFile::Pace::kWaits};
}

void write_playback(int version) {
  host::media_player::RememberedPlayback playback;
  playback.song = static_cast<std::uint64_t>(version);
  playback_file().write(playback);
}

std::string read_playback() {
  const auto song = playback_file().read().song;
  return song ? std::to_string(song) : "none";
}

void write_icons(int version) {
  host::springboard::HomeLayout layout(kCapacity);
  layout.append({std::to_string(version), false, {}, {}});
  write_icon_state(layout, PropertyListFile(kIcons));
}

std::string read_icons() {
  PropertyListFile file(kIcons);
  const auto layout = read_icon_state(file, kCapacity);
  return layout ? layout->applications().at(0) : "none";
}

std::string index_path() {
  return host::foundation::path_on_this_machine(kIndex);
}

void write_index(int version) {
  host::media::IndexChanges changes;
  for (int number = 0; number < 20; ++number) {
    host::media::SongRecord song;
    song.id = static_cast<std::uint64_t>(number + 1);
    song.path = "/" + std::to_string(number) + "/" + std::string(500, 'p');
    song.tags.title = std::to_string(version);
    changes.songs.push_back(song);
  }
  host::media::Index(index_path()).apply(changes);
}

/// The title, when it is the same in every song and all of them are there.
std::string read_index() {
  host::media::Index index(index_path());
  const auto songs = index.load().songs;
  if (index.store() != host::media::IndexStore::on_disk) return "not on the disk";
  if (fs::exists(index_path() + ".damaged")) return "damaged";
  std::set<std::string> titles;
  for (const auto& song : songs)
    titles.insert(song.tags.title);
  if (songs.empty()) return "none";
  return titles.size() == 1 && songs.size() == 20 ? *titles.begin() : "some of the songs";
}

const Kept kKept[] = {
    {"PreferencesOfThePane",
     [](int version) {
       sonavue::store(NSNumber::numberWithInteger(version), sonavue::preference::tint());
     },
     read_preferences},
    {"PreferencesOfThePoll",
     [](int version) {
       if (version % 2 == 0) return sonavue::changePreferences(nil);
       sonavue::store("red"_ns, sonavue::preference::tint());
     },
     read_preferences},
    {"Assignments", assign, read_assignments},
    {"Playback", write_playback, read_playback},
    {"Icons", write_icons, read_icons},
    // An index can be made again from the music, so its last change need not last.
    {"Index", write_index, read_index, false},
};

class PowerLoss : public host::test::HostTest, public testing::WithParamInterface<Kept> {
 protected:
  PowerLoss() {
    for (const char* folder : {"Library/Preferences", "Library/SpringBoard", "Media"})
      fs::create_directories(device_.path() / "var/mobile" / folder);
    host::foundation::set_device_root(device_.path());
  }
  ~PowerLoss() override { host::foundation::set_device_root(""); }

  static std::string text() {
    const objc::AutoreleasePool pool;
    return GetParam().read();
  }
  /// What the next start finds on this disk.
  std::string text_on(const Files& files) const {
    const TemporaryFolder other;
    for (const char* folder : {"Library/Preferences", "Library/SpringBoard", "Media"})
      fs::create_directories(other.path() / "var/mobile" / folder);
    lay_out(files, other.path());
    host::foundation::set_device_root(other.path());
    std::string found = text();
    host::foundation::set_device_root(device_.path());
    return found;
  }

  /// Makes one change and looks at every disk that may result. `careless` is what to forget of it.
  void change(int version, Careless careless = {}) {
    old_ = text();
    {
      const Recorder recorder(device_.path());
      GetParam().write(version);
      before_ = recorder.before();
      operations_ = recorder.operations();
    }
    new_ = text();
    ASSERT_NE(old_, new_);
    for (std::size_t count = 0; count <= operations_.size(); ++count) {
      visit_disks(before_, operations_, count, careless, [&](const Files& files) {
        const std::string found = text_on(files);
        ++disks_;
        if (found != old_ && found != new_) lost_.insert(found);
        if (count == operations_.size() && found != new_) undone_.insert(found);
      });
    }
  }

  void expect_nothing_lost() {
    for (const int version : {1, 2}) {
      change(version);
      EXPECT_THAT(lost_, testing::IsEmpty()) << "instead of " << old_ << " or " << new_;
      EXPECT_TRUE(undone_.empty() || !GetParam().is_lasting) << "the new one may be gone again";
    }
    EXPECT_GE(disks_, 4);
  }

  TemporaryFolder device_;
  std::string old_;
  std::string new_;
  Snapshot before_;
  std::vector<Operation> operations_;
  int disks_ = 0;
  std::set<std::string> lost_;    // what is neither the old nor the new
  std::set<std::string> undone_;  // what is not the new, though the write had returned
};

TEST_P(PowerLoss, LeavesTheOldOrTheNewAtAnyMoment) {
  expect_nothing_lost();
}

TEST_P(PowerLoss, LosesNothingWithoutUnnamedFiles) {
  const NoUnnamedFiles none;
  expect_nothing_lost();
}

// Otherwise the other tests would see nothing.
TEST_P(PowerLoss, IsRecordedCompletely) {
  change(1);
  Files expected;
  const Snapshot now = snapshot_of(device_.path());
  for (const auto& [name, file] : now.names)
    expected[name] = now.contents.at(file);
  EXPECT_EQ(files_after(before_, operations_), expected);
}

TEST_P(PowerLoss, WouldShowAMissingFlush) {
  change(1);
  change(2, {.of_contents = true});
  EXPECT_THAT(lost_, testing::Not(testing::IsEmpty()));
  change(3, {.of_names = true});
  EXPECT_TRUE(!undone_.empty() || !GetParam().is_lasting);
}

INSTANTIATE_TEST_SUITE_P(, PowerLoss, testing::ValuesIn(kKept),
                         [](const auto& each) { return std::string(each.param.name); });

}  // namespace
