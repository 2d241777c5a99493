#include "NOCModel.h"

namespace DevHrdIP {

NOCModel::NOCModel() = default;
NOCModel::~NOCModel() = default;

Component* NOCModel::addComponent(const std::string& name, Definitions::COMP_TYPE type,
                                  Component::Role role)
{
  Component* component = create_(name, type, role);
  if (component)
    topLevel.push_back(component);
  return component;
}

Component* NOCModel::addSubComponent(Component& parent, const std::string& name,
                                     Definitions::COMP_TYPE type, Component::Role role)
{
  Component* component = create_(name, type, role);
  if (component)
    parent.addSubComponent(component);
  return component;
}

const Link* NOCModel::addLink(const Component& first, const std::string& firstPort,
                              const Component& second, const std::string& secondPort)
{
  const auto [entry, added] =
      linksByEnds.emplace(linkKey_(first.getName(), firstPort, second.getName(), secondPort),
                          nullptr);
  if (added)
    entry->second = &links.emplace_back(&first, firstPort, &second, secondPort);
  return entry->second;
}

Component* NOCModel::getComponent(const std::string& name) const
{
  const auto found = componentsByName.find(name);
  return found == componentsByName.end() ? nullptr : found->second;
}

const Link* NOCModel::getLinkBetween(const std::string& component1, const std::string& port1,
                                     const std::string& component2,
                                     const std::string& port2) const
{
  const auto found = linksByEnds.find(linkKey_(component1, port1, component2, port2));
  return found == linksByEnds.end() ? nullptr : found->second;
}

Component* NOCModel::create_(const std::string& name, Definitions::COMP_TYPE type,
                             Component::Role role)
{
  const auto [entry, added] = componentsByName.emplace(name, nullptr);
  if (added)
    entry->second = &components.emplace_back(name, type, role);
  return added ? entry->second : nullptr;
}

std::string NOCModel::linkKey_(const std::string& component1, const std::string& port1,
                               const std::string& component2, const std::string& port2)
{
  // Names hold no NUL, so the joined text tells the four ends apart.
  std::string key;
  key.reserve(component1.size() + port1.size() + component2.size() + port2.size() + 3);
  key.append(component1).append(1, '\0').append(port1).append(1, '\0');
  key.append(component2).append(1, '\0').append(port2);
  return key;
}

}  // namespace DevHrdIP
