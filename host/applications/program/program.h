#pragma once

#include <string>

namespace host::application {

/// What makes a program of an application: who it is, and how it comes to life.
struct Program {
  const char* bundle;             ///< Its identifier.
  const char* name;               ///< Of its process.
  const char* application_class;  ///< Of its application object.
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
