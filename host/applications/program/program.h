#pragma once

#include <string>

#include "host/process/device_images.h"

namespace host::application {

/// What makes a program of an application: who it is, and how it comes to life.
struct Program {
  const char* bundle;                        ///< Its identifier.
  const char* folder;                        ///< Its bundle on the device.
  const char* name;                          ///< Of its process.
  std::span<const std::string_view> images;  ///< What it is linked with.
  const char* application_class;             ///< Of its application object.
  /// Makes the classes of its own, when those of the platform are there. May be nullptr.
  void (*export_classes)();
  /// Starts what the application stands on, when there is a run loop. May be nullptr.
  void (*prepare)(bool is_stepped);
};

/// The body of an application's `main`: waits for a home screen, comes to life, and serves until
/// its supervisor ends it. Extensions that are meant for it are loaded before its application
/// object is made.
int run_program(int count, char** arguments, const Program& program);

}  // namespace host::application
