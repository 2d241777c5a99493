#include "Component.h"

namespace DevHrdIP {

Component::Component(const std::string& name, Definitions::COMP_TYPE type, Role role)
  : name(name), type(type), role(role)
{
}

}  // namespace DevHrdIP
