#pragma once

#include "HEXAll.h"
#include "ipconfig_host_export.h"

class IPCONFIG_HOST_EXPORT HEXError : public HEXAll {
public:
  using HEXAll::HEXAll;
  ~HEXError() override;
};
