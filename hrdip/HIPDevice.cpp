#include "HIPDevice.h"

namespace DevHrdIP {

HIPDevice::HIPDevice(const NOCModel* nocModel) : nocModel(nocModel) {}

}  // namespace DevHrdIP
