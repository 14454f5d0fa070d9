#pragma once

#include <new>
#include <type_traits>
#include <utility>

#include "objc/encoding.h"

namespace objc {

namespace block_abi {

enum Flags : int {
  kHasCopyDispose = 1 << 25,
  kHasSignature = 1 << 30,
};

struct Descriptor {
  unsigned long reserved;
  unsigned long size;
  void (*copy)(void* destination, const void* source);
  void (*dispose)(const void* block);
  const char* signature;
};

struct Header {
  void* isa;
  int flags;
  int reserved;
  void (*invoke)();
  const Descriptor* descriptor;
};

}  // namespace block_abi

/// A borrowed pointer to a block, or nil. To keep a block beyond the call, use `OwnedBlock`.
template <class Result, class... Arguments>
class Block<Result(Arguments...)> {
 public:
  constexpr Block() = default;
  constexpr Block(std::nullptr_t) {}
  explicit Block(const void* block) : block_(block) {}

  const void* get() const { return block_; }
  explicit operator bool() const { return block_ != nullptr; }

  /// Runs the block. On nil it does nothing and returns a zero value.
  Result operator()(Arguments... arguments) const {
    if (!block_) return Result();
    using Function = AbiType<Result> (*)(const void*, AbiType<Arguments>...);
    const auto* header = static_cast<const block_abi::Header*>(block_);
    const auto function = reinterpret_cast<Function>(header->invoke);
    if constexpr (std::is_void_v<Result>) {
      function(block_, to_abi(arguments)...);
    } else {
      return from_abi<Result>(function(block_, to_abi(arguments)...));
    }
  }

 private:
  const void* block_ = nullptr;
};

template <class Signature>
struct Abi<Block<Signature>> {
  using Type = const void*;
};

template <class Signature>
constexpr const void* to_abi(const Block<Signature>& block) {
  return block.get();
}

/// Keeps a heap copy of a block alive.
template <class Signature>
class OwnedBlock {
 public:
  OwnedBlock() = default;
  explicit OwnedBlock(Block<Signature> block)
      : block_(block ? _Block_copy(block.get()) : nullptr) {}
  OwnedBlock(const OwnedBlock& other) : OwnedBlock(other.get()) {}
  OwnedBlock(OwnedBlock&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
  OwnedBlock& operator=(OwnedBlock other) noexcept {
    std::swap(block_, other.block_);
    return *this;
  }
  ~OwnedBlock() {
    if (block_) _Block_release(block_);
  }

  Block<Signature> get() const { return Block<Signature>(block_); }
  explicit operator bool() const { return block_ != nullptr; }

 private:
  const void* block_ = nullptr;
};

/// A block on the stack made from a C++ callable. As a temporary it lives until the end of the full
/// expression. A receiver that keeps it copies it; the callable is copied and destroyed with it.
template <class Callable, class Signature>
class StackBlock;

template <class Callable, class Result, class... Arguments>
class StackBlock<Callable, Result(Arguments...)> {
 public:
  explicit StackBlock(Callable callable)
      : header_{_NSConcreteStackBlock, block_abi::kHasCopyDispose | block_abi::kHasSignature, 0,
                reinterpret_cast<void (*)()>(&invoke), &kDescriptor},
        callable_(std::move(callable)) {}
  StackBlock(const StackBlock&) = delete;
  StackBlock& operator=(const StackBlock&) = delete;

  operator Block<Result(Arguments...)>() const { return Block<Result(Arguments...)>(&header_); }

 private:
  static AbiType<Result> invoke(const void* block, AbiType<Arguments>... arguments) {
    const auto& callable = static_cast<const StackBlock*>(block)->callable_;
    if constexpr (std::is_void_v<Result>) {
      callable(from_abi<Arguments>(arguments)...);
    } else {
      return to_abi<Result>(callable(from_abi<Arguments>(arguments)...));
    }
  }

  static void copy(void* destination, const void* source) {
    auto* to = static_cast<StackBlock*>(destination);
    new (&to->callable_) Callable(static_cast<const StackBlock*>(source)->callable_);
  }

  static void dispose(const void* block) {
    static_cast<const StackBlock*>(block)->callable_.~Callable();
  }

  static constexpr auto kSignature =
      ((Encode<Result>::text + FixedString("@?")) + ... + Encode<Arguments>::text);
  static constexpr block_abi::Descriptor kDescriptor{
      0, sizeof(block_abi::Header) + sizeof(Callable), &copy, &dispose, kSignature.text};

  block_abi::Header header_;
  Callable callable_;
};

namespace block_abi {

template <class Member>
struct CallSignature;
template <class F, class R, class... A>
struct CallSignature<R (F::*)(A...) const> {
  using Type = R(std::remove_cvref_t<A>...);
};

}  // namespace block_abi

/// `block([=](BOOL finished) { … })`: makes a block from a lambda that is not `mutable`.
template <class Callable>
auto block(Callable callable) {
  using Signature = typename block_abi::CallSignature<decltype(&Callable::operator())>::Type;
  return StackBlock<Callable, Signature>(std::move(callable));
}

}  // namespace objc
