#include "ObjectConstrs.h"

#include "ConstrUtils.h"

#include <algorithm>
#include <cctype>

namespace qpe::constraints {

std::string ObjectConstrs::nameKey(const std::string& constrName)
{
  std::string key = constrName;
  std::transform(key.begin(), key.end(), key.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return key;
}

template <typename Matches>
BaseConstraint* ObjectConstrs::nextAfter(Constrs::const_iterator from,
                                         const Matches& matches) const
{
  const auto found = std::find_if(from, constrs.end(), matches);
  return found == constrs.end() ? nullptr : *found;
}

void ObjectConstrs::add(BaseConstraint* constr)
{
  constrs.push_back(constr);
  firstByName.emplace(nameKey(constr->getConstrName()), constr);
  firstByType.emplace(constr->getConstrType(), constr);
}

bool ObjectConstrs::remove(const BaseConstraint* constr)
{
  const auto found = std::find(constrs.begin(), constrs.end(), constr);
  if (found == constrs.end())
    return false;
  const auto next = constrs.erase(found);

  const std::string key = nameKey(constr->getConstrName());
  const auto byName = firstByName.find(key);
  if (byName != firstByName.end() && byName->second == constr) {
    byName->second = nextAfter(next, [&key](const BaseConstraint* other) {
      return iequals(other->getConstrName(), key);
    });
    if (!byName->second)
      firstByName.erase(byName);
  }

  const auto byType = firstByType.find(constr->getConstrType());
  if (byType != firstByType.end() && byType->second == constr) {
    byType->second = nextAfter(next, [constr](const BaseConstraint* other) {
      return other->getConstrType() == constr->getConstrType();
    });
    if (!byType->second)
      firstByType.erase(byType);
  }
  return true;
}

BaseConstraint* ObjectConstrs::firstNamed(const std::string& constrName) const
{
  const auto found = firstByName.find(nameKey(constrName));
  return found == firstByName.end() ? nullptr : found->second;
}

BaseConstraint* ObjectConstrs::firstOfType(BaseConstraint::ConstrType constrType) const
{
  const auto found = firstByType.find(constrType);
  return found == firstByType.end() ? nullptr : found->second;
}

}  // namespace qpe::constraints
