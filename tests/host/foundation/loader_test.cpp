#include "host/foundation/loader.h"

#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "host/foundation/device_paths.h"
#include "host/foundation/load_guard.h"
#include "platform/Foundation/NSString.h"
#include "tests/support/host_test.h"

namespace {

namespace fs = std::filesystem;
using host::foundation::load_libraries;
using host::foundation::LoadGuard;

constexpr const char* kForSpringBoard = R"({ Filter = { Bundles = ("com.apple.springboard"); }; })";
constexpr const char* kForOthers = R"({ Filter = { Bundles = ("com.apple.Other"); }; })";

struct LoaderTest : host::test::HostTest {
  LoaderTest() : root(fs::temp_directory_path() / fs::path("loader-" + std::to_string(getpid()))) {
    fs::remove_all(root);
    fs::create_directories(folder());
    host::foundation::set_device_root(root.string());
  }
  ~LoaderTest() override {
    host::foundation::set_device_root("");
    fs::remove_all(root);
  }

  fs::path folder() const { return root / "Library/MobileSubstrate/DynamicLibraries"; }

  void install(const std::string& name, const char* built, const char* filter) {
    fs::copy_file(built, folder() / (name + ".so"), fs::copy_options::overwrite_existing);
    if (filter) std::ofstream(folder() / (name + ".plist")) << filter;
  }

  static std::vector<std::string> load() {
    std::vector<std::string> names;
    for (const auto& library : load_libraries("com.apple.springboard", "SpringBoard"))
      names.push_back(library.name);
    return names;
  }

  /// Loads in a separate process; true when that process survived.
  static bool survives_loading() {
    const pid_t child = fork();
    if (child == 0) {
      load();
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
  }

  fs::path root;
};

TEST_F(LoaderTest, LoadsTheAdmittedLibrariesInTheOrderOfNames) {
  install("Zebra", TEST_EXTENSION, kForSpringBoard);
  install("Antelope", TEST_EXTENSION, kForSpringBoard);
  install("Foreign", TEST_EXTENSION, kForOthers);
  EXPECT_EQ(load(), (std::vector<std::string>{"Antelope", "Zebra"}));
}

TEST_F(LoaderTest, EveryKindOfFilterThatIsPresentMustMatch) {
  install("ByName", TEST_EXTENSION, R"({ Filter = { Executables = ("SpringBoard"); }; })");
  install("ByClass", TEST_EXTENSION, R"({ Filter = { Classes = ("NSString"); }; })");
  install("ByMissingClass", TEST_EXTENSION, R"({ Filter = { Classes = ("NoSuchClass"); }; })");
  install("Mixed", TEST_EXTENSION,
          R"({ Filter = { Bundles = ("com.apple.springboard"); Executables = ("Other"); }; })");
  EXPECT_EQ(load(), (std::vector<std::string>{"ByClass", "ByName"}));
}

TEST_F(LoaderTest, ALibraryWithoutAFilterIsLeftOut) {
  install("NoList", TEST_EXTENSION, nullptr);
  install("EmptyFilter", TEST_EXTENSION, "{ Filter = { }; }");
  install("BrokenList", TEST_EXTENSION, "{ Filter = ");
  install("OddFilter", TEST_EXTENSION, R"({ Filter = "all"; })");
  EXPECT_TRUE(load().empty());
}

TEST_F(LoaderTest, AnInvalidLibraryIsLeftOutAndTheOthersLoad) {
  std::ofstream(folder() / "Broken.so") << "this is not a library";
  std::ofstream(folder() / "Broken.plist") << kForSpringBoard;
  install("Good", TEST_EXTENSION, kForSpringBoard);
  EXPECT_EQ(load(), std::vector<std::string>{"Good"});
}

TEST_F(LoaderTest, APhoneWithoutTheFolderHasNoExtensions) {
  fs::remove_all(folder());
  EXPECT_TRUE(load().empty());
}

TEST_F(LoaderTest, ASecondExtensionReplacesADifferentMethod) {
  install("Whisper", TEST_EXTENSION, kForSpringBoard);
  // Libraries loaded by other tests whisper as well: a library is never unloaded.
  const NSString before = "Hello"_ns.uppercaseString();
  ASSERT_EQ(load(), std::vector<std::string>{"Whisper"});
  EXPECT_TRUE("Hello"_ns.uppercaseString().isEqualToString(
      before.stringByAppendingString(" (whispered)"_ns)));
}

TEST_F(LoaderTest, ALibraryThatCrashesFiveTimesIsLeftOutUntilItChanges) {
  install("Crasher", TEST_CRASHING_EXTENSION, kForSpringBoard);
  for (int i = 0; i < LoadGuard::kMostCrashes; ++i)
    EXPECT_FALSE(survives_loading()) << i;
  EXPECT_TRUE(survives_loading());
  EXPECT_TRUE(load().empty());

  install("Crasher", TEST_EXTENSION, kForSpringBoard);
  EXPECT_EQ(load(), std::vector<std::string>{"Crasher"});
}

TEST_F(LoaderTest, ASuccessfulLoadResetsTheCrashCount) {
  const fs::path library = folder() / "Shaky.so";
  install("Shaky", TEST_EXTENSION, kForSpringBoard);
  const fs::path marks = root / "marks";
  LoadGuard(library, marks).will_load();
  LoadGuard second(library, marks);
  EXPECT_EQ(second.crashes(), 1);
  second.will_load();
  second.did_load();
  EXPECT_EQ(LoadGuard(library, marks).crashes(), 0);
}

}  // namespace
