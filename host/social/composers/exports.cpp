#include "host/social/composers/exports.h"

#include "host/social/composers/compose_page.h"
#include "host/social/composers/letter_composers.h"
#include "host/social/composers/tweet_composer.h"
#include "host/social/delivery/addresses.h"
#include "host/uikit/application/address_opener.h"

namespace host::social {

void export_twitter() {
  if (!objc_getClass("TWTweetComposeViewController")) export_tweet_composer();
}

void export_message_ui() {
  if (objc_getClass("MFMailComposeViewController")) return;
  export_compose_page();
  export_letter_composers();
}

void open_addresses() {
  uikit::set_address_opener({&can_open_address, &open_address});
}

}  // namespace host::social
