#include "host/launcher/control_request.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace host::launcher;
using Kind = ControlRequest::Kind;

TEST(ControlRequests, RoundTrip) {
  for (const ControlRequest& request :
       {ControlRequest{Kind::Show, {}, {}}, ControlRequest{Kind::Play, {}, {}},
        ControlRequest{Kind::Kill, {}, "SpringBoard"}, ControlRequest{Kind::Find, {}, "Music"},
        ControlRequest{Kind::Open, "com.apple.Music", "Music"},
        ControlRequest{Kind::Close, "com.apple.Music", {}}})
    EXPECT_EQ(read_request(line_of(request)), request);
}

TEST(ControlRequests, MustFillTheWholeLine) {
  for (const char* line :
       {"", "\n", "kill SpringBoard", "kill\n", "kill \n", "kill SpringBoard now\n", "open\n",
        "show me\n", "play /music/a.mp3\n", "show \n", "open com.apple.Music\n",
        "open com.apple.Music Music more\n", "close\n", "close com.apple.Music Music\n",
        "shut com.apple.Music\n", "open  com.apple.Music Music\n"})
    EXPECT_EQ(read_request(line), std::nullopt) << line;
}

TEST(ControlRequests, CannotNameFilesOutsideTheirFolders) {
  const std::vector<std::string> names = {"../Music", "/bin/sh", "..", ".hidden",           "a/b",
                                          "a b",      "a\nb",    "ü",  std::string(65, 'a')};
  for (const std::string& name : names) {
    EXPECT_EQ(read_request("open com.apple.Music " + name + "\n"), std::nullopt) << name;
    EXPECT_EQ(read_request("open " + name + " Music\n"), std::nullopt) << name;
    EXPECT_EQ(read_request("close " + name + "\n"), std::nullopt) << name;
  }
}

}  // namespace
