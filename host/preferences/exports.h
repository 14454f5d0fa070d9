#pragma once

namespace host::preferences {

/// Registers the pages of settings and what they are made of; stacks of pages come first.
void export_preferences();

}  // namespace host::preferences
