#pragma once

#include "ipconfig_hrdip_export.h"

namespace DevHrdIP {

class NOCModel;

// The device a NoC solution is for. Borrows its NoC model, which may be
// absent (null).
class IPCONFIG_HRDIP_EXPORT HIPDevice {
public:
  explicit HIPDevice(const NOCModel* nocModel = nullptr);

  const NOCModel* getNOCModel() const { return nocModel; }

private:
  const NOCModel* nocModel;
};

}  // namespace DevHrdIP
