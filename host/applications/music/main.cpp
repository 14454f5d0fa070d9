#include "host/applications/music/music_application.h"
#include "host/applications/program/program.h"

int main(int count, char** arguments) {
  return host::application::run_program(count, arguments, host::music::kProgram);
}
