#include "HPAParamMgr.h"

#include <mutex>

HPAParamMgr& HPAParamMgr::getParamMgr()
{
  static HPAParamMgr instance;
  return instance;
}

bool HPAParamMgr::getValueAsBool(const std::string& name) const
{
  std::shared_lock<std::shared_mutex> lock(mutex_);
  const auto found = bools_.find(name);
  return found != bools_.end() && found->second;
}

void HPAParamMgr::setValueAsBool(const std::string& name, bool value)
{
  std::unique_lock<std::shared_mutex> lock(mutex_);
  bools_[name] = value;
}

void HPAParamMgr::reset()
{
  std::unique_lock<std::shared_mutex> lock(mutex_);
  bools_.clear();
}
