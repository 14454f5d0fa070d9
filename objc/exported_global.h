#pragma once

namespace objc {

/// A variable that scripts and the console may read. A library that has some exports a list of
/// them, with an empty one at its end:
/// `extern "C" const objc::ExportedGlobal exported_globals[] = {{"label", "@", &label}, {}};`
struct ExportedGlobal {
  const char* name = nullptr;
  const char* encoding = nullptr;
  void* address = nullptr;
};

}  // namespace objc
