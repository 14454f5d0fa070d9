#pragma once

#include <optional>

#include "host/quartzcore/service/exports.h"
#include "host/quartzcore/service/layer_service.h"
#include "host/uikit/application/exports.h"
#include "host/uikit/drawing/exports.h"
#include "host/uikit/text/exports.h"
#include "tests/settings/settings_device.h"
#include "tests/support/host_test.h"

namespace sonavue::test {

/// A process with the platform's views, on such a device.
class SettingsTest : public host::test::HostTest, public SettingsDevice {
 public:
  SettingsTest() {
    host::quartzcore::export_quartzcore();
    host::uikit::export_drawing();
    host::uikit::export_application();
    host::uikit::export_text();
    service_.emplace(loop);
  }
  ~SettingsTest() override { service_.reset(); }

 private:
  std::optional<host::quartzcore::LayerService> service_;
};

}  // namespace sonavue::test
