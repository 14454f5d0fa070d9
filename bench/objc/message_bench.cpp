#include <cstdio>
#include <cstdlib>
#include <memory>

#include "bench/support/ratio.h"
#include "objc/bound.h"
#include "objc/class_builder.h"
#include "platform/Foundation/NSObject.h"

// Measures the cost of a message through the bridge, relative to a call of a C++ virtual function
// that does the same.

namespace {

constexpr int kCalls = 1'000'000;
constexpr int kRounds = 15;
constexpr double kAim = 4;

struct BenchCounter : objc::Bound<BenchCounter, "BenchCounter", NSObject> {
  long add(long amount) const { return call<"add:", long>(amount); }
};

class Counter : public objc::Implementation<Counter, BenchCounter> {
 public:
  using Implementation::Implementation;
  long add(long amount) { return total_ += amount; }

 private:
  long total_ = 0;
};

struct Adder {
  virtual ~Adder() = default;
  virtual long add(long amount) = 0;
};

struct VirtualCounter final : Adder {
  long add(long amount) override { return total += amount; }
  long total = 0;
};

// With only one class the compiler would devirtualise the call and inline the sum into the loop.
struct DecreasingCounter final : Adder {
  long add(long amount) override { return total -= amount; }
  long total = 0;
};

}  // namespace

int main(int argument_count, char**) {
  objc::ClassBuilder("BenchCounter", "NSObject")
      .state<Counter>()
      .method<&Counter::add>("add:")
      .finish();
  BenchCounter counter = BenchCounter::alloc().init();
  std::unique_ptr<Adder> adder = std::make_unique<VirtualCounter>();
  if (argument_count > 1) adder = std::make_unique<DecreasingCounter>();
  Adder* hidden = adder.get();

  const auto pair = bench::in_turns(
      kRounds,
      [&] {
        for (int i = 0; i < kCalls; ++i)
          counter.add(1);
      },
      [&] {
        for (int i = 0; i < kCalls; ++i) {
          bench::keep(hidden);
          hidden->add(1);
        }
      });
  constexpr long kExpected = static_cast<long>(kRounds + 1) * kCalls;
  if (counter.add(0) != kExpected || adder->add(0) != kExpected) {
    std::fputs("the counters disagree: this benchmark measured nothing\n", stderr);
    return EXIT_FAILURE;
  }
  bench::print_ratio("a message / a virtual call", pair.measured.median / kCalls,
                     pair.reference.median / kCalls, kAim);
  counter.release();
  return EXIT_SUCCESS;
}
