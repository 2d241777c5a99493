#pragma once

#include "PhysicalSpec.h"
#include "ipconfig_readwrite_export.h"

namespace qpe::constraints::json {

// A shim location, as the constraints file reader fills it: its index is the
// channel.
class IPCONFIG_READWRITE_EXPORT ShimSpec : public PhysicalSpec {
public:
  ShimSpec();

  bool isChannelSet() const override;
  virtual int getChannel() const;
  virtual void setChannel(int channel);
};

}  // namespace qpe::constraints::json
