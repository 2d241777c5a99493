#include "ObjectConstrs.h"

#include "ConstrUtils.h"

#include <algorithm>
#include <cctype>

namespace qpe::constraints {

namespace {

// Hash and equality of names without case, over views of the constraints'
// own names: the keys cost no copies.
struct CaseBlindHash {
  std::size_t operator()(std::string_view name) const
  {
    std::size_t hash = 14695981039346656037ull;
    for (const char c : name)
      hash = (hash ^ static_cast<unsigned char>(std::tolower(static_cast<unsigned char>(c)))) *
             1099511628211ull;
    return hash;
  }
};

struct CaseBlindEqual {
  bool operator()(std::string_view a, std::string_view b) const
  {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](unsigned char x, unsigned char y) {
             return std::tolower(x) == std::tolower(y);
           });
  }
};

}  // namespace

struct ObjectConstrs::Lookups {
  std::unordered_map<std::string_view, BaseConstraint*, CaseBlindHash, CaseBlindEqual> firstByName;
  std::unordered_map<int, BaseConstraint*> firstByType;
};

ObjectConstrs::ObjectConstrs() = default;
ObjectConstrs::ObjectConstrs(ObjectConstrs&&) noexcept = default;
ObjectConstrs& ObjectConstrs::operator=(ObjectConstrs&&) noexcept = default;
ObjectConstrs::~ObjectConstrs() = default;

template <typename Matches>
BaseConstraint* ObjectConstrs::firstFrom(Constrs::const_iterator from,
                                         const Matches& matches) const
{
  const auto found = std::find_if(from, constrs.end(), matches);
  return found == constrs.end() ? nullptr : *found;
}

void ObjectConstrs::add(BaseConstraint* constr)
{
  // One allocation for an object's first few constraints, not one for each.
  if (constrs.empty())
    constrs.reserve(firstCapacity);
  constrs.push_back(constr);
  if (lookups) {
    addToLookups(constr);
  } else if (constrs.size() > fewConstrs) {
    lookups = std::make_unique<Lookups>();
    for (BaseConstraint* each : constrs)
      addToLookups(each);
  }
}

// The name of a constraint does not change while it is filed: the view
// stays valid until it is removed.
void ObjectConstrs::addToLookups(BaseConstraint* constr)
{
  lookups->firstByName.emplace(constr->getConstrName(), constr);
  lookups->firstByType.emplace(constr->getConstrType(), constr);
}

bool ObjectConstrs::remove(const BaseConstraint* constr)
{
  const auto found = std::find(constrs.begin(), constrs.end(), constr);
  if (found == constrs.end())
    return false;
  const auto next = constrs.erase(found);
  if (!lookups)
    return true;

  const std::string& name = constr->getConstrName();
  const auto byName = lookups->firstByName.find(name);
  if (byName != lookups->firstByName.end() && byName->second == constr) {
    lookups->firstByName.erase(byName);
    if (BaseConstraint* other = firstFrom(next, [&name](const BaseConstraint* other) {
          return iequals(other->getConstrName(), name);
        }))
      lookups->firstByName.emplace(other->getConstrName(), other);
  }

  const auto byType = lookups->firstByType.find(constr->getConstrType());
  if (byType != lookups->firstByType.end() && byType->second == constr) {
    byType->second = firstFrom(next, [constr](const BaseConstraint* other) {
      return other->getConstrType() == constr->getConstrType();
    });
    if (!byType->second)
      lookups->firstByType.erase(byType);
  }
  return true;
}

BaseConstraint* ObjectConstrs::firstNamed(const std::string& constrName) const
{
  if (!lookups)
    return firstFrom(constrs.begin(), [&constrName](const BaseConstraint* constr) {
      return iequals(constr->getConstrName(), constrName);
    });
  const auto found = lookups->firstByName.find(constrName);
  return found == lookups->firstByName.end() ? nullptr : found->second;
}

BaseConstraint* ObjectConstrs::firstOfType(BaseConstraint::ConstrType constrType) const
{
  if (!lookups)
    return firstFrom(constrs.begin(), [constrType](const BaseConstraint* constr) {
      return constr->getConstrType() == constrType;
    });
  const auto found = lookups->firstByType.find(constrType);
  return found == lookups->firstByType.end() ? nullptr : found->second;
}

}  // namespace qpe::constraints
