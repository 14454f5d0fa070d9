#pragma once

#include <string>

#include "host/process/device_images.h"

namespace host::application {

/// Describes an application's program: its identity, and how it starts.
struct Program {
  const char* bundle;                        ///< Its identifier.
  const char* folder;                        ///< Its bundle on the device.
  const char* name;                          ///< The name of its process.
  std::span<const std::string_view> images;  ///< The frameworks that it is linked with.
  const char* application_class;             ///< The class of its application object.
  /// Registers its own classes, after those of the platform. May be nullptr.
  void (*export_classes)();
  /// Starts the services that the application uses, after the run loop exists. May be nullptr.
  void (*prepare)(bool is_stepped);
};

/// The body of an application's `main`: waits for a home screen, starts, and serves until its
/// supervisor ends it. Extensions whose filter admits it are loaded before its application object
/// is made.
int run_program(int count, char** arguments, const Program& program);

}  // namespace host::application
