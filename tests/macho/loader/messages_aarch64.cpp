#include <mutex>
#include <unordered_map>

#include "tests/macho/loader/messages.h"

// It is unknown which argument registers are in use, so all of them are saved while the method is
// looked up: the integer registers, the address of a result in memory, the floating-point
// registers.
//
// A method whose result is smaller than a word is called instead of jumped to: the phone's code
// reads the whole word of such a result, but the desktop's compilers only set its lowest part. For
// the call the caller's stack arguments are copied, as many as any such message has.
asm(R"(
  .macro keep_frame size
    stp x29, x30, [sp, #-\size]!
    .cfi_def_cfa_offset \size
    .cfi_offset x29, -\size
    .cfi_offset x30, -\size + 8
    mov x29, sp
    .cfi_def_cfa_register x29
  .endm
  .macro leave_frame size
    mov sp, x29
    .cfi_def_cfa_register sp
    ldp x29, x30, [sp], #\size
    .cfi_def_cfa_offset 0
    .cfi_restore x29
    .cfi_restore x30
  .endm

  .macro arguments pairs one
    \pairs x0, x1, [sp, #0x10]
    \pairs x2, x3, [sp, #0x20]
    \pairs x4, x5, [sp, #0x30]
    \pairs x6, x7, [sp, #0x40]
    \one x8, [sp, #0x50]
    \pairs q0, q1, [sp, #0x60]
    \pairs q2, q3, [sp, #0x80]
    \pairs q4, q5, [sp, #0xa0]
    \pairs q6, q7, [sp, #0xc0]
  .endm

  .macro send_by finder
    keep_frame 0xe0
    arguments stp, str
    add x0, sp, #0x10
    bl \finder
    mov x16, x0
    mov x17, x1
    arguments ldp, ldr
    leave_frame 0xe0
    cbnz x17, phone_call_and_fill
    br x16
  .endm

  .macro function name
    .globl \name
    .hidden \name
    .type \name, %function
    .balign 16
    \name:
    .cfi_startproc
  .endm
  .macro end_of name
    .cfi_endproc
    .size \name, . - \name
  .endm

  .text
  function phone_message
    send_by phone_method
  end_of phone_message
  function phone_super_message
    send_by phone_super_method
  end_of phone_super_message

  function phone_call_and_fill
    keep_frame 0x20
    str x17, [sp, #0x10]
    sub sp, sp, #0x40
    ldp x9, x10, [x29, #0x20]
    stp x9, x10, [sp]
    ldp x9, x10, [x29, #0x30]
    stp x9, x10, [sp, #0x10]
    ldp x9, x10, [x29, #0x40]
    stp x9, x10, [sp, #0x20]
    ldp x9, x10, [x29, #0x50]
    stp x9, x10, [sp, #0x30]
    blr x16
    ldr x17, [x29, #0x10]
    leave_frame 0x20
    br x17
  end_of phone_call_and_fill

  function phone_fill_signed_byte
    sxtb w0, w0
    ret
  end_of phone_fill_signed_byte
  function phone_fill_byte
    uxtb w0, w0
    ret
  end_of phone_fill_byte
  function phone_fill_signed_half
    sxth w0, w0
    ret
  end_of phone_fill_signed_half
  function phone_fill_half
    uxth w0, w0
    ret
  end_of phone_fill_half

  function phone_nil
    mov x0, #0
    mov x1, #0
    movi d0, #0
    movi d1, #0
    movi d2, #0
    movi d3, #0
    ret
  end_of phone_nil
)");

extern "C" {
void phone_fill_signed_byte();
void phone_fill_byte();
void phone_fill_signed_half();
void phone_fill_half();
void phone_nil();
}

namespace macho_tests {
namespace {

/// The method to call, and the function that then extends its result to a word; null if the result
/// needs no extension.
struct Answer {
  objc::Imp method;
  objc::Imp fill;
};

objc::Imp fill_for(const char* encoding) {
  switch (*encoding) {
    case 'c':
      return &phone_fill_signed_byte;
    case 'B':
    case 'C':
      return &phone_fill_byte;
    case 's':
      return &phone_fill_signed_half;
    case 'S':
      return &phone_fill_half;
    default:
      return nullptr;
  }
}

/// Caches the result types of methods. A method is only ever replaced by one of the same type.
class Answers {
 public:
  Answer of(objc::Imp method, objc::Class cls, objc::Sel selector) {
    const std::lock_guard guard(lock_);
    const auto [place, is_new] = fills_.try_emplace(method);
    if (is_new) {
      const objc::Method found = class_getInstanceMethod(cls, selector);
      place->second = found ? fill_for(method_getTypeEncoding(found)) : nullptr;
    }
    return {method, place->second};
  }

 private:
  std::mutex lock_;
  std::unordered_map<objc::Imp, objc::Imp> fills_;
};

/// Made at the first use, which precedes the static initialisation of what is loaded.
Answers& answers() {
  static Answers known;
  return known;
}

}  // namespace

objc::Sel phone_selector(const char* name) {
  return sel_registerName(name);
}

extern "C" {

// The first two registers hold the receiver and the selector.
[[gnu::used]] Answer phone_method(void** registers) {
  const auto receiver = static_cast<objc::Id>(registers[0]);
  const auto selector = static_cast<objc::Sel>(registers[1]);
  if (!receiver) return {&phone_nil, nullptr};
  return answers().of(objc_msg_lookup(receiver, selector), objc::class_of(receiver), selector);
}

[[gnu::used]] Answer phone_super_method(void** registers) {
  auto* super = static_cast<objc::SuperReceiver*>(registers[0]);
  const auto selector = static_cast<objc::Sel>(registers[1]);
  registers[0] = super->receiver;
  return answers().of(objc_msg_lookup_super(super, selector), super->first_searched, selector);
}
}

}  // namespace macho_tests
