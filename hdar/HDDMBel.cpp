#include "HDDMBel.h"

#include "HDDMRecords.h"

#include <functional>

namespace {

template <typename T>
bool before(const T* a, const T* b)
{
  return std::less<const T*>()(a, b);
}

}  // namespace

const std::string& HDDMBel::getHierarchicalName1() const
{
  static const std::string none;
  return isValid() ? bel->hierarchicalName : none;
}

int HDDMBel::getElementId() const
{
  return isValid() ? bel->elementId : -1;
}

bool HDDMBel::operator<(const HDDMBel& other) const
{
  // Invalid handles first, valid ones in device order. Handles that hold no
  // ordinal to compare (invalid ones, or two devices' bels of one ordinal)
  // fall back on their words, so that the order stays strict.
  if (isValid() != other.isValid())
    return !isValid();
  if (isValid() && bel->ordinal != other.bel->ordinal)
    return bel->ordinal < other.bel->ordinal;
  if (site != other.site)
    return before(site, other.site);
  return before(bel, other.bel);
}
