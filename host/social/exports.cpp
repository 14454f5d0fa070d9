#include "host/social/exports.h"

#include "host/social/addresses.h"
#include "host/social/letter_composers.h"
#include "host/social/tweet_composer.h"
#include "host/uikit/application/address_opener.h"

namespace host::social {

void export_social() {
  uikit::set_address_opener({&can_open_address, &open_address});
  if (TWTweetComposeViewController::cls()) return;
  export_tweet_composer();
  export_compose_page();
  export_letter_composers();
}

}  // namespace host::social
