#pragma once

// The phone's runtime sends a message by a function that finds the method and goes on there, with
// everything in its place that the method is called with. These do so with the desktop's runtime.
// They have no C type: call them as the method that is meant.
extern "C" {
void phone_message();
void phone_message_in_memory();
void phone_super_message();
void phone_super_message_in_memory();
}
