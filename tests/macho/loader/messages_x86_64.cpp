#include <mutex>
#include <unordered_set>

#include "tests/macho/loader/messages.h"

// It is unknown which argument registers are in use, so all of them are saved while the method is
// looked up. The lookup may change those that are not for floating-point numbers, and may raise an
// exception: the first message to a class initialises it.
asm(R"(
  .macro send_by finder
    .cfi_startproc
    pushq %rbp
    .cfi_def_cfa_offset 16
    .cfi_offset %rbp, -16
    movq %rsp, %rbp
    .cfi_def_cfa_register %rbp
    subq $0xc0, %rsp
    movq %rdi, 0x00(%rsp)
    movq %rsi, 0x08(%rsp)
    movq %rdx, 0x10(%rsp)
    movq %rcx, 0x18(%rsp)
    movq %r8, 0x20(%rsp)
    movq %r9, 0x28(%rsp)
    movq %rax, 0x30(%rsp)
    movq %r10, 0x38(%rsp)
    movaps %xmm0, 0x40(%rsp)
    movaps %xmm1, 0x50(%rsp)
    movaps %xmm2, 0x60(%rsp)
    movaps %xmm3, 0x70(%rsp)
    movaps %xmm4, 0x80(%rsp)
    movaps %xmm5, 0x90(%rsp)
    movaps %xmm6, 0xa0(%rsp)
    movaps %xmm7, 0xb0(%rsp)
    movq %rsp, %rdi
    call \finder
    movq %rax, %r11
    movq 0x00(%rsp), %rdi
    movq 0x08(%rsp), %rsi
    movq 0x10(%rsp), %rdx
    movq 0x18(%rsp), %rcx
    movq 0x20(%rsp), %r8
    movq 0x28(%rsp), %r9
    movq 0x30(%rsp), %rax
    movq 0x38(%rsp), %r10
    movaps 0x40(%rsp), %xmm0
    movaps 0x50(%rsp), %xmm1
    movaps 0x60(%rsp), %xmm2
    movaps 0x70(%rsp), %xmm3
    movaps 0x80(%rsp), %xmm4
    movaps 0x90(%rsp), %xmm5
    movaps 0xa0(%rsp), %xmm6
    movaps 0xb0(%rsp), %xmm7
    leave
    .cfi_def_cfa %rsp, 8
    jmp *%r11
    .cfi_endproc
  .endm

  .macro function name
    .globl \name
    .hidden \name
    .type \name, @function
    .balign 16
    \name:
  .endm

  .text
  function phone_message
    send_by phone_method
  function phone_super_message
    send_by phone_super_method

  function phone_nil_in_registers
    xorl %eax, %eax
    xorl %edx, %edx
    xorps %xmm0, %xmm0
    xorps %xmm1, %xmm1
    ret
  function phone_nil_in_memory
    movq %rdi, %rax
    ret
)");

extern "C" {
void phone_nil_in_registers();
void phone_nil_in_memory();
}

namespace macho_tests {
namespace {

class KnownSelectors {
 public:
  void add(objc::Sel selector) {
    const std::lock_guard guard(lock_);
    known_.insert(selector);
  }
  bool has(const void* pointer) const {
    const std::lock_guard guard(lock_);
    return known_.count(pointer) != 0;
  }

 private:
  mutable std::mutex lock_;
  std::unordered_set<const void*> known_;
};

/// Made at the first use, which precedes the static initialisation of what is loaded.
KnownSelectors& selectors() {
  static KnownSelectors known;
  return known;
}

/// The first arguments of a message: possibly an address for the result, then the receiver, then
/// the selector. With an unknown selector it is assumed that there is no such address.
struct Message {
  explicit Message(void** registers)
      : has_place(!selectors().has(registers[1]) && selectors().has(registers[2])),
        target(registers[has_place]),
        selector(static_cast<objc::Sel>(registers[has_place + 1])) {}

  bool has_place;
  void*& target;
  objc::Sel selector;
};

}  // namespace

objc::Sel phone_selector(const char* name) {
  const objc::Sel selector = sel_registerName(name);
  selectors().add(selector);
  return selector;
}

extern "C" {

// A message to nil leaves the memory of the result unchanged, as on the phone.
[[gnu::used]] objc::Imp phone_method(void** registers) {
  const Message message(registers);
  const auto receiver = static_cast<objc::Id>(message.target);
  if (!receiver) return message.has_place ? &phone_nil_in_memory : &phone_nil_in_registers;
  return objc_msg_lookup(receiver, message.selector);
}

[[gnu::used]] objc::Imp phone_super_method(void** registers) {
  const Message message(registers);
  auto* super = static_cast<objc::SuperReceiver*>(message.target);
  message.target = super->receiver;
  return objc_msg_lookup_super(super, message.selector);
}
}

}  // namespace macho_tests
