#pragma once

#include "Component.h"
#include "Link.h"
#include "ipconfig_hrdip_export.h"

#include <deque>
#include <string>
#include <unordered_map>
#include <vector>

namespace DevHrdIP {

// The NoC of a device: its components and the links between them. Owns
// both; the pointers it hands out stay valid for its life. Components are
// looked up by name, links by their four ends, through hash maps. A device
// model is built from code with the add operations.
class IPCONFIG_HRDIP_EXPORT NOCModel {
public:
  NOCModel();
  NOCModel(const NOCModel&) = delete;
  NOCModel& operator=(const NOCModel&) = delete;
  ~NOCModel();

  // Component names are unique in the device, sub-components included; a
  // name given again gives null and adds nothing.
  Component* addComponent(const std::string& name, Definitions::COMP_TYPE type,
                          Component::Role role);
  // A port of a memory controller: found by name like any component, listed
  // in its parent's sub-components and not among the top-level ones.
  Component* addSubComponent(Component& parent, const std::string& name,
                             Definitions::COMP_TYPE type, Component::Role role);
  // A link from (first, firstPort) to (second, secondPort); found only in
  // that direction. The ends given again give the link already there.
  const Link* addLink(const Component& first, const std::string& firstPort,
                      const Component& second, const std::string& secondPort);

  // Null if none.
  Component* getComponent(const std::string& name) const;
  const Link* getLinkBetween(const std::string& component1, const std::string& port1,
                             const std::string& component2, const std::string& port2) const;
  const std::vector<Component*>& getAllTopLevelComponents() const { return topLevel; }

private:
  Component* create_(const std::string& name, Definitions::COMP_TYPE type, Component::Role role);
  static std::string linkKey_(const std::string& component1, const std::string& port1,
                              const std::string& component2, const std::string& port2);

  std::deque<Component> components;
  std::vector<Component*> topLevel;
  std::unordered_map<std::string, Component*> componentsByName;
  std::deque<Link> links;
  std::unordered_map<std::string, const Link*> linksByEnds;
};

}  // namespace DevHrdIP
