#pragma once

#include <string>

namespace IPConfig::Frameworks {

// The name that every logical instance carries.
class _Named {
public:
  explicit _Named(const std::string& name) : name(name) {}

  std::string name;
};

}  // namespace IPConfig::Frameworks
