#include "device/check/calls.h"

#include <fmt/core.h>

#include <set>

#include "device/check/instruction.h"

namespace sonavue::device {
namespace {

constexpr std::size_t kInstructionSize = 4;

std::set<std::uint64_t> message_stubs(const Image& library) {
  std::set<std::uint64_t> addresses;
  const Section* stubs = library.section("__TEXT", "__stubs");
  const LoadCommand* table = library.command(kDynamicSymbolTable);
  if (!stubs || !table || stubs->stub_size == 0) return addresses;
  const std::size_t indirect = little_32(library.bytes(), table->offset + 56);
  const std::vector<Symbol> symbols = library.symbols();
  for (std::size_t i = 0; i < stubs->size / stubs->stub_size; ++i) {
    const std::size_t place = indirect + (stubs->first_indirect + i) * sizeof(std::uint32_t);
    const std::size_t symbol = little_32(library.bytes(), place);
    if (symbol < symbols.size() && symbols[symbol].name.rfind("_objc_msgSend", 0) == 0)
      addresses.insert(stubs->address + i * stubs->stub_size);
  }
  return addresses;
}

class Reader {
 public:
  Reader(const Image& library, const Section& code)
      : library_(library), code_(code), stubs_(message_stubs(library)) {}

  bool knows_stubs() const { return !stubs_.empty(); }

  /// Finds the calls between two addresses that send a message with an argument on the stack while
  /// an argument register was still free: a method with many arguments fills the registers first.
  void check(std::uint64_t begin, std::uint64_t end, Findings& findings) const {
    for (std::uint64_t at = begin; at < end; at += kInstructionSize)
      if (instruction(at).uses_lowest()) return;
    bool passed = false;
    bool filled = false;
    for (std::uint64_t at = begin; at < end; at += kInstructionSize) {
      const Instruction here = instruction(at);
      if (here.stores_lowest()) passed = true;
      if (here.fills_last_register()) filled = true;
      if (!here.is_call()) continue;
      if (passed && !filled && here.is_direct_call() && stubs_.count(here.target(at)) != 0)
        findings.push_back(fmt::format("library: {:#x} sends a message with stack arguments", at));
      passed = filled = false;
    }
  }

 private:
  Instruction instruction(std::uint64_t address) const {
    return Instruction(little_32(library_.bytes(), code_.offset + (address - code_.address)));
  }

  const Image& library_;
  const Section& code_;
  std::set<std::uint64_t> stubs_;
};

}  // namespace

void check_calls(const Image& library, Findings& findings) {
  const Section* code = library.section("__TEXT", "__text");
  if (!code) {
    findings.push_back("library: has no code");
    return;
  }
  const Reader reader(library, *code);
  if (!reader.knows_stubs()) findings.push_back("library: sends no messages");
  const std::uint64_t end = code->address + code->size;
  std::vector<std::uint64_t> starts = library.function_starts();
  std::erase_if(starts, [&](std::uint64_t each) { return each < code->address || each >= end; });
  starts.push_back(end);
  for (std::size_t i = 0; i + 1 < starts.size(); ++i)
    reader.check(starts[i], starts[i + 1], findings);
}

}  // namespace sonavue::device
