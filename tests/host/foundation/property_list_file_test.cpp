#include "host/foundation/property_list_file.h"

#include <gmock/gmock.h>

#include "tests/host/launcher/temporary_folder.h"
#include "tests/support/host_test.h"
#include "tests/support/no_descriptors.h"
#include "tests/support/ordinary_user.h"

namespace {

namespace fs = std::filesystem;
using host::foundation::PropertyListFile;
using testing::ElementsAre;

class PropertyListFiles : public host::test::HostTest {
 protected:
  PropertyListFiles() : file((place.path() / "list").string()) {}

  static NSDictionary list(NSString value) {
    return NSDictionary::dictionaryWithObject(value, "key"_ns);
  }
  std::string value() {
    const auto found = objc::cast<NSString>(file.read().objectForKey("key"_ns));
    return found ? found.UTF8String() : "";
  }

  TemporaryFolder place;
  PropertyListFile file;
};

TEST_F(PropertyListFiles, AreReadBack) {
  EXPECT_TRUE(file.write(list("K\u00e4se \U0001F600"_ns)));
  EXPECT_EQ(value(), "K\u00e4se \U0001F600");
}

TEST_F(PropertyListFiles, AreReadInEveryForm) {
  for (const char* text :
       {"{ key = value; }",
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>key</key>"
        "<string>value</string></dict></plist>"}) {
    write_file(file.path(), text);
    EXPECT_EQ(value(), "value") << text;
  }
}

TEST_F(PropertyListFiles, ThatAreDamagedBehindALinkAreSetAsideThere) {
  write_file(place.path() / "elsewhere/real", "damage <");
  fs::create_symlink("elsewhere/real", file.path());
  EXPECT_FALSE(file.read());
  EXPECT_THAT(lines_of(place.path() / "elsewhere/real.damaged"), ElementsAre("damage <"));
  EXPECT_TRUE(file.write(list("new"_ns)));
  EXPECT_TRUE(fs::is_symlink(file.path()));
  EXPECT_EQ(value(), "new");
}

TEST_F(PropertyListFiles, AreNotWrittenUntilTheyHaveBeenRead) {
  ASSERT_TRUE(file.write(list("old"_ns)));
  {
    const NoDescriptors none;
    EXPECT_FALSE(file.read());
  }
  EXPECT_TRUE(file.is_unread());
  EXPECT_FALSE(file.write(list("new"_ns)));
  EXPECT_EQ(value(), "old");
  EXPECT_FALSE(file.is_unread());
  EXPECT_TRUE(file.write(list("new"_ns)));
  EXPECT_EQ(value(), "new");
}

TEST_F(PropertyListFiles, HaveAVersionEvenWhenTheyCannotBeLookedAt) {
  EXPECT_FALSE(file.stamp());
  fs::create_symlink("list", file.path());
  EXPECT_TRUE(file.stamp());
  EXPECT_FALSE(file.read());
  EXPECT_TRUE(file.is_unread());
}

}  // namespace
