#include "host/social/exports.h"

#include "host/social/tweet_composer.h"

namespace host::social {

void export_social() {
  if (TWTweetComposeViewController::cls()) return;
  export_tweet_composer();
}

}  // namespace host::social
