#include <cstring>

#include "bench/screen/page.h"
#include "bench/support/require.h"
#include "host/browser/access/loopback.h"
#include "host/browser/phone/phone_page.h"
#include "host/runtime/device_model.h"

namespace bench {
namespace {

using namespace host;

class PageServer final : public ScreenServer {
 public:
  explicit PageServer(screen::Input& input) : page_(make(input)) {}

  screen::Screen& screen() override { return page_->screen(); }
  Address address() const override {
    const auto link = browser::link_to(listener_.get(), access_token());
    require(link.has_value(), "a link to the page");
    Address address;
    address.port = std::atoi(link->c_str() + link->rfind(':') + 1);
    access_token().copy(address.key.data(), address.key.size() - 1);
    return address;
  }

 private:
  std::string access_token() const { return browser::Access::open(memory_.get())->token(); }
  std::unique_ptr<browser::PhonePage> make(screen::Input& input) {
    require(listener_ && memory_, "a page");
    return std::make_unique<browser::PhonePage>(
        RunLoop::main(), listener_.get(), browser::Access::open(memory_.get()), body_,
        current_device().scale, input, [](const std::string&) {});
  }

  const Descriptor listener_ = browser::listen_on_loopback();
  const Descriptor memory_ = browser::Access::make();
  const screen::PhoneBody body_{{current_device().width, current_device().height}};
  std::unique_ptr<browser::PhonePage> page_;
};

}  // namespace

std::unique_ptr<ScreenServer> serve_page(screen::Input& input) {
  return std::make_unique<PageServer>(input);
}

}  // namespace bench
