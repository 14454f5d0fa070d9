#include "tests/macho/loader/messages.h"

// Nobody knows here which of the registers that carry arguments are in use, so all of them are kept
// while the method is looked up. A result in memory has its place in the first register, which
// moves receiver and selector one further; nil leaves such a place as it was, as on the phone.
asm(R"(
  .macro find_method receiver, selector, lookup
    pushq %rbp
    movq %rsp, %rbp
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
    movq \receiver, %rax
    movq \selector, %rsi
    movq %rax, %rdi
    call \lookup@PLT
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
    testq %rdi, %rdi
    jz 1f
    find_method %rdi, %rsi, objc_msg_lookup
    jmp *%r11
  1:
    xorl %eax, %eax
    xorl %edx, %edx
    xorps %xmm0, %xmm0
    xorps %xmm1, %xmm1
    ret

  function phone_message_in_memory
    testq %rsi, %rsi
    jz 1f
    find_method %rsi, %rdx, objc_msg_lookup
    jmp *%r11
  1:
    movq %rdi, %rax
    ret

  function phone_super_message
    find_method %rdi, %rsi, objc_msg_lookup_super
    movq (%rdi), %rdi
    jmp *%r11

  function phone_super_message_in_memory
    find_method %rsi, %rdx, objc_msg_lookup_super
    movq (%rsi), %rsi
    jmp *%r11
)");
