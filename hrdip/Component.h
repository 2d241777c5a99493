#pragma once

#include "Definitions.h"
#include "ipconfig_hrdip_export.h"

#include <string>
#include <vector>

namespace DevHrdIP {

// A block of the device's NoC. Made and owned by NOCModel.
class IPCONFIG_HRDIP_EXPORT Component {
public:
  // Which side of the traffic the component serves; a logical instance of
  // that side can be placed on it.
  enum Role { MASTER_SIDE = 0, SLAVE_SIDE = 1, NO_SIDE = 2 };

  Component(const std::string& name, Definitions::COMP_TYPE type, Role role);

  const std::string& getName() const { return name; }
  Definitions::COMP_TYPE getType() const { return type; }
  Role getRole() const { return role; }
  // The ports of a memory controller, by port index; empty for the others.
  const std::vector<const Component*>& getSubComponents() const { return subComponents; }
  void addSubComponent(const Component* sub) { subComponents.push_back(sub); }

private:
  std::string name;
  Definitions::COMP_TYPE type;
  Role role;
  std::vector<const Component*> subComponents;
};

}  // namespace DevHrdIP
