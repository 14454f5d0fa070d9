#pragma once

namespace host::social {

/// Register the classes of the Twitter framework and of MessageUI, after those of views and text
/// views. Idempotent.
void export_twitter();
void export_message_ui();

/// Makes this process open addresses through the same delivery as texts.
void open_addresses();

}  // namespace host::social
