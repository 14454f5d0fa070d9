#pragma once

#include <mpv/client.h>

namespace host::media {

// The functions of libmpv that are used.
struct MpvLibrary {
  decltype(&mpv_create) create;
  decltype(&mpv_initialize) initialize;
  decltype(&mpv_terminate_destroy) terminate_destroy;
  decltype(&mpv_set_wakeup_callback) set_wakeup_callback;
  decltype(&mpv_set_option_string) set_option_string;
  decltype(&mpv_set_property_string) set_property_string;
  decltype(&mpv_get_property) get_property;
  decltype(&mpv_get_property_string) get_property_string;
  decltype(&mpv_command) command;
  decltype(&mpv_command_ret) command_ret;
  decltype(&mpv_wait_event) wait_event;
  decltype(&mpv_error_string) error_string;
  decltype(&mpv_free) free;
  decltype(&mpv_free_node_contents) free_node_contents;
};

// Loads the library at the first call, which takes a tenth of a second or more; null when it is not
// there. For any thread.
const MpvLibrary* mpv();

}  // namespace host::media
