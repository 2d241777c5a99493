#pragma once

#include "ipconfig_hrdip_export.h"

#include <string>

namespace DevHrdIP {

class Component;

// A wire of the NoC from a port of one component to a port of another.
// Made and owned by NOCModel.
class IPCONFIG_HRDIP_EXPORT Link {
public:
  Link(const Component* first, const std::string& firstPort, const Component* second,
       const std::string& secondPort);

  const Component* getFirstComponent() const { return first; }
  const std::string& getFirstPort() const { return firstPort; }
  const Component* getSecondComponent() const { return second; }
  const std::string& getSecondPort() const { return secondPort; }

private:
  const Component* first;
  std::string firstPort;
  const Component* second;
  std::string secondPort;
};

}  // namespace DevHrdIP
