#pragma once

namespace host::launcher {

/// Precedes the number of the lifeline's descriptor: the home screen's end of its connection to the
/// supervisor, on which each byte is a message.
inline constexpr const char* kLifelineArgument = "--lifeline-descriptor";

/// What the home screen says. An end of the process that it has not announced is a crash, whatever
/// its exit status: anything in the process can call `exit`.
enum class LifeSign : char {
  Started = 's',      // the run loop begins to turn
  Alive = 'a',        // the answer to a question; the first one asks for questions
  SwitchedOff = 'o',  // the phone ends because its user wants it to
  CannotStart = 'c',  // the phone ends because no home screen could start; the log says why
};

/// What the supervisor says.
enum class Care : char {
  Question = '?',
  ShowWindow = 'w',
  PlayFiles = 'p',  // there are lists of files in the folder of the control socket
};

}  // namespace host::launcher
