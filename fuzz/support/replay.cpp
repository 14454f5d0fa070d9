#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// Runs a fuzz target over the files named on the command line, with any compiler. Exits with status
// 0 if none of them crashes it, and 2 if a file cannot be read.
int main(int count, char** names) {
  for (int i = 1; i < count; ++i) {
    std::ifstream file{names[i], std::ios::binary};
    if (!file) return 2;
    const std::vector<char> bytes{std::istreambuf_iterator<char>{file}, {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  }
  return 0;
}
