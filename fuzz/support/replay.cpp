#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace fs = std::filesystem;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
// A target that prepares the process has it.
extern "C" __attribute__((weak)) int LLVMFuzzerInitialize(int* count, char*** names);

namespace {

bool replay(const fs::path& path) {
  std::ifstream file{path, std::ios::binary};
  const std::vector<char> bytes{std::istreambuf_iterator<char>{file}, {}};
  if (!file) return false;
  // A crash is told by the last name.
  std::puts(path.c_str());
  std::fflush(stdout);
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  return true;
}

bool replay_folder(const fs::path& folder) {
  std::error_code error;
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(folder, error))
    files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return !files.empty() && std::all_of(files.begin(), files.end(), replay);
}

}  // namespace

// Runs a fuzz target over the files of the folders named on the command line, with any compiler.
// Exits with status 0 if no file crashes it, and 2 if a folder is empty or a file cannot be read.
int main(int count, char** names) {
  if (LLVMFuzzerInitialize) LLVMFuzzerInitialize(&count, &names);
  return count > 1 && std::all_of(names + 1, names + count, replay_folder) ? 0 : 2;
}
