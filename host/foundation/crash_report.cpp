#include "host/foundation/crash_report.h"

#include <dlfcn.h>
#include <link.h>
#include <signal.h>
#include <sys/uio.h>
#include <ucontext.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

// The handler runs in a process whose memory may be damaged, possibly while it holds any lock. It
// therefore calls the system directly, allocates nothing, and reads only fixed tables, which are
// made after each load, and memory that the system copies for it.

namespace host::foundation {
namespace {

constexpr int kCrashSignals[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGSYS};
constexpr std::size_t kLongestReportedName = 64;
constexpr std::size_t kMostRanges = 256;
constexpr std::size_t kHandlerStack = 64 * 1024;
// How far up a stack the search goes.
constexpr std::size_t kSearchedStack = 64 * 1024;
constexpr std::size_t kStackPiece = 512;

struct ReportedName {
  char text[kLongestReportedName] = {};
  void set(std::string_view name) {
    const auto length = std::min(name.size(), kLongestReportedName - 1);
    // A file's name must not look like another line of the log.
    std::replace_copy_if(
        name.begin(), name.begin() + static_cast<std::ptrdiff_t>(length), text,
        [](unsigned char c) { return c < ' ' || c == 0x7f; }, '?');
    text[length] = 0;
  }
};

/// The addresses of one library's code.
struct CodeRange {
  std::uintptr_t begin;
  std::uintptr_t end;
  ReportedName library;
};

ReportedName reported_process;
ReportedName being_loaded;
CodeRange code_ranges[kMostRanges];
std::atomic<std::size_t> range_count = 0;
struct sigaction actions_before[NSIG];
alignas(16) char handler_stack[kHandlerStack];

struct Registers {
  std::uintptr_t code = 0;
  std::uintptr_t stack = 0;
};

Registers registers_of(const void* context) {
  const auto& machine = static_cast<const ucontext_t*>(context)->uc_mcontext;
#if defined(__x86_64__)
  return {static_cast<std::uintptr_t>(machine.gregs[REG_RIP]),
          static_cast<std::uintptr_t>(machine.gregs[REG_RSP])};
#elif defined(__aarch64__)
  return {machine.pc, machine.sp};
#else
  static_cast<void>(machine);
  return {};
#endif
}

/// Null when the address is in no library.
const char* library_at(std::uintptr_t address) {
  const std::size_t count = range_count.load(std::memory_order_acquire);
  for (std::size_t i = 0; i < count; ++i) {
    if (address >= code_ranges[i].begin && address < code_ranges[i].end)
      return code_ranges[i].library.text;
  }
  return nullptr;
}

/// The first library with an address on the stack, which is that of the innermost call unless the
/// stack still holds the address of a call that has returned.
const char* nearest_library(std::uintptr_t stack) {
  std::uintptr_t words[kStackPiece];
  stack &= ~(sizeof(std::uintptr_t) - 1);
  for (std::size_t searched = 0; searched < kSearchedStack; searched += sizeof words) {
    const iovec here{words, sizeof words};
    const iovec there{std::bit_cast<void*>(stack + searched), sizeof words};
    const auto copied = process_vm_readv(getpid(), &here, 1, &there, 1, 0);
    for (std::size_t i = 0; copied > 0 && i < static_cast<std::size_t>(copied) / sizeof *words;
         ++i) {
      if (const char* library = library_at(words[i])) return library;
    }
    if (copied != sizeof words) break;
  }
  return nullptr;
}

/// A line that is put together without allocating.
class CrashLine {
 public:
  CrashLine& operator<<(std::string_view text) {
    const auto length = std::min(text.size(), sizeof bytes_ - size_);
    std::memcpy(bytes_ + size_, text.data(), length);
    size_ += length;
    return *this;
  }
  CrashLine& operator<<(int number) {
    char digits[12];
    std::size_t at = sizeof digits;
    do {
      digits[--at] = static_cast<char>('0' + number % 10);
      number /= 10;
    } while (number > 0);
    return *this << std::string_view(digits + at, sizeof digits - at);
  }
  void write() const { static_cast<void>(!::write(STDERR_FILENO, bytes_, size_)); }

 private:
  char bytes_[512];
  std::size_t size_ = 0;
};

void write_report(int signal, const void* context) {
  const Registers registers = registers_of(context);
  CrashLine line;
  line << "[" << reported_process.text << "] error: signal " << signal;
  if (const char* library = library_at(registers.code)) {
    line << " in the code of " << library;
  } else if (being_loaded.text[0]) {
    line << " while " << being_loaded.text << " is being loaded";
  } else if (const char* nearest = nearest_library(registers.stack)) {
    line << "; the nearest extension on the stack is " << nearest;
  } else {
    line << ", with no extension on the stack";
  }
  (line << "\n").write();
}

void handle_crash(int signal, siginfo_t* information, void* context) {
  // A fault in here ends the process at once.
  sigaction(signal, &actions_before[signal], nullptr);
  write_report(signal, context);
  // The fault of an instruction happens again when the handler returns; others are sent again.
  if (information->si_code <= 0) raise(signal);
}

struct RangeSearch {
  const link_map* library;
  ReportedName name;
};

int add_ranges(dl_phdr_info* image, std::size_t, void* search_pointer) {
  const auto& search = *static_cast<const RangeSearch*>(search_pointer);
  if (image->dlpi_addr != search.library->l_addr) return 0;
  for (int i = 0; i < image->dlpi_phnum; ++i) {
    const auto& segment = image->dlpi_phdr[i];
    const std::size_t count = range_count.load(std::memory_order_relaxed);
    if (segment.p_type != PT_LOAD || !(segment.p_flags & PF_X) || count == kMostRanges) continue;
    const std::uintptr_t begin = image->dlpi_addr + segment.p_vaddr;
    code_ranges[count] = {begin, begin + segment.p_memsz, search.name};
    range_count.store(count + 1, std::memory_order_release);
  }
  return 1;
}

}  // namespace

void report_crashes(const char* process_name) {
  reported_process.set(process_name);
  stack_t stack{};
  stack.ss_sp = handler_stack;
  stack.ss_size = sizeof handler_stack;
  sigaltstack(&stack, nullptr);
  struct sigaction action {};
  action.sa_sigaction = &handle_crash;
  action.sa_flags = SA_SIGINFO | SA_ONSTACK;
  for (const int signal : kCrashSignals)
    sigaction(signal, &action, &actions_before[signal]);
}

void crash_report_begins_load(const std::string& library) {
  being_loaded.set(library);
}

void crash_report_ends_load(const std::string& library, void* handle) {
  being_loaded.set("");
  RangeSearch search{};
  if (!handle || dlinfo(handle, RTLD_DI_LINKMAP, &search.library) != 0) return;
  search.name.set(library);
  dl_iterate_phdr(&add_ranges, &search);
}

}  // namespace host::foundation
