#include "host/media/fetch_ahead.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "host/basics/descriptor.h"

namespace host::media {
namespace {

constexpr std::size_t kSize = 1U << 20;

/// Beside the test's program, which is on a disk: the folder for temporary files may be in memory,
/// where everything is fetched.
std::string place(const char* name) {
  return std::filesystem::current_path() / (name + std::to_string(getpid()));
}

/// A file on the disk and not in the system's cache.
void write_cold(const std::string& path) {
  const Descriptor file(open(path.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
  const std::string bytes(kSize, 'x');
  ASSERT_EQ(write(file.get(), bytes.data(), bytes.size()), static_cast<ssize_t>(kSize));
  ASSERT_EQ(fsync(file.get()), 0);
  ASSERT_EQ(posix_fadvise(file.get(), 0, 0, POSIX_FADV_DONTNEED), 0);
}

/// True if the page at that place of the file is in the cache.
bool is_cached(const std::string& path, std::size_t offset) {
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  void* const bytes = mmap(nullptr, kSize, PROT_READ, MAP_SHARED, file.get(), 0);
  const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  std::vector<unsigned char> present(kSize / page);
  mincore(bytes, kSize, present.data());
  munmap(bytes, kSize);
  return (present[offset / page] & 1) != 0;
}

TEST(FetchAhead, TheEndsOfAFileComeIntoTheCache) {
  const std::string path = place("fetched");
  write_cold(path);
  fetch_ahead(path, kSize);
  const auto is_there = [&] { return is_cached(path, 0) && is_cached(path, kSize - 1); };
  for (int i = 0; i < 1000 && !is_there(); ++i)
    usleep(10'000);
  EXPECT_TRUE(is_there());
  std::filesystem::remove(path);
}

TEST(FetchAhead, WhatIsNoFileDoesNotHoldItUp) {
  const std::string path = place("pipe");
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  fetch_ahead(path, 0);
  fetch_ahead(path + " that is missing", kSize);
  fetch_ahead(std::filesystem::current_path(), 0);
  std::filesystem::remove(path);
}

}  // namespace
}  // namespace host::media
