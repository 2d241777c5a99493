#pragma once

#include "BaseConstraint.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace qpe::constraints {

// The constraints filed under one object name, in creation order, with the
// first of each constraint name (compared without case) and of each type at
// hand: an object with many attributes is then read in linear time.
// It does not own the constraints.
class ObjectConstrs {
public:
  using Constrs = std::vector<BaseConstraint*>;

  void add(BaseConstraint* constr);
  // Removes the first occurrence; false when there is none.
  bool remove(const BaseConstraint* constr);

  const Constrs& all() const { return constrs; }
  bool empty() const { return constrs.empty(); }
  Constrs::const_iterator begin() const { return constrs.begin(); }
  Constrs::const_iterator end() const { return constrs.end(); }

  // The first constraint of that name or type, or null.
  BaseConstraint* firstNamed(const std::string& constrName) const;
  BaseConstraint* firstOfType(BaseConstraint::ConstrType constrType) const;

private:
  static std::string nameKey(const std::string& constrName);
  // The constraint after `from` that `matches`, or null.
  template <typename Matches>
  BaseConstraint* nextAfter(Constrs::const_iterator from, const Matches& matches) const;

  Constrs constrs;
  std::unordered_map<std::string, BaseConstraint*> firstByName;
  std::unordered_map<int, BaseConstraint*> firstByType;
};

}  // namespace qpe::constraints
