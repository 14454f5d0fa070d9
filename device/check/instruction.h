#pragma once

#include <cstdint>

namespace sonavue::device {

/// The few properties of an instruction of the phone's processor that the checks need.
class Instruction {
 public:
  explicit Instruction(std::uint32_t code) : code_(code) {}

  /// Whether it writes to the lowest stack slot, where arguments go when the registers are full.
  bool stores_lowest() const { return touches_lowest() && !loads(); }
  /// Whether it reads that slot or takes its address; then the slot is a variable.
  bool uses_lowest() const { return (touches_lowest() && loads()) || takes_stack_address(); }

  /// Whether it writes to the last argument register, integer or floating-point.
  bool fills_last_register() const {
    if (is_branch() || (code_ & kLastRegisterMask) != kLastRegister) return false;
    return !is_load_or_store() || loads();
  }

  bool is_call() const { return is_direct_call() || (code_ & 0xfffffc1f) == 0xd63f0000; }
  bool is_direct_call() const { return code_ >> 26 == 0x25; }
  /// The target of a direct call at `address`.
  std::uint64_t target(std::uint64_t address) const {
    const auto words = static_cast<std::int32_t>(code_ << 6) >> 6;
    return address + static_cast<std::uint64_t>(static_cast<std::int64_t>(words) * 4);
  }

 private:
  static constexpr std::uint32_t kStack = 31;

  static constexpr std::uint32_t kLastRegister = 7;
  static constexpr std::uint32_t kLastRegisterMask = 31;

  bool is_branch() const { return (code_ >> 25 & 0xe) == 0xa; }
  bool is_load_or_store() const { return (code_ >> 25 & 0x5) == 0x4; }
  std::uint32_t base() const { return code_ >> 5 & 31; }
  bool is_single() const { return (code_ & 0x3b000000) == 0x39000000; }
  bool is_pair() const { return (code_ & 0x3b800000) == 0x29000000; }
  bool touches_lowest() const {
    if (base() != kStack) return false;
    return is_single() ? (code_ >> 10 & 0xfff) == 0 : is_pair() && (code_ >> 15 & 0x7f) == 0;
  }
  bool loads() const {
    return code_ >> 22 & 1 || (is_single() && !(code_ >> 26 & 1) && code_ >> 23 & 1);
  }
  bool takes_stack_address() const {
    return (code_ & 0xff800000) == 0x91000000 && base() == kStack && (code_ >> 10 & 0xfff) == 0 &&
           (code_ & 31) != kStack;
  }

  std::uint32_t code_;
};

}  // namespace sonavue::device
