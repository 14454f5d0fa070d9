#pragma once

namespace host::social {

/// The classes of the Twitter framework, and of MessageUI; views and text views must have been
/// made. A second call does nothing.
void export_twitter();
void export_message_ui();

/// Every process opens addresses in the ways that texts leave the phone.
void open_addresses();

}  // namespace host::social
