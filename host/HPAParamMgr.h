#pragma once

#include "ipconfig_host_export.h"

#include <map>
#include <shared_mutex>
#include <string>

// The process's store of named host parameters. Only booleans are asked for;
// an unknown name reads as false.
class IPCONFIG_HOST_EXPORT HPAParamMgr {
public:
  static HPAParamMgr& getParamMgr();

  bool getValueAsBool(const std::string& name) const;
  void setValueAsBool(const std::string& name, bool value);
  void reset();

private:
  HPAParamMgr() = default;

  mutable std::shared_mutex mutex_;
  std::map<std::string, bool> bools_;
};
