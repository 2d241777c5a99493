#include "Link.h"

namespace DevHrdIP {

Link::Link(const Component* first, const std::string& firstPort, const Component* second,
           const std::string& secondPort)
  : first(first), firstPort(firstPort), second(second), secondPort(secondPort)
{
}

}  // namespace DevHrdIP
