// A library that needs a function that no process has.

extern "C" void a_function_that_nobody_has();

namespace {

[[gnu::constructor]] void load() {
  a_function_that_nobody_has();
}

}  // namespace
