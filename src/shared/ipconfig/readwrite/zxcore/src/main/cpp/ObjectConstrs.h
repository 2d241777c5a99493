#pragma once

#include "BaseConstraint.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace qpe::constraints {

// The constraints filed under one object name, in creation order, with the
// first of each constraint name (compared without case) and of each type at
// hand: an object with many attributes is then read in linear time.
// It does not own the constraints.
//
// Most objects bear a few constraints, which a look along the list finds as
// fast as a hash: the hashed lookups are made only for an object with many,
// and cost nothing for the others.
class ObjectConstrs {
public:
  using Constrs = std::vector<BaseConstraint*>;

  ObjectConstrs();
  ObjectConstrs(ObjectConstrs&&) noexcept;
  ObjectConstrs& operator=(ObjectConstrs&&) noexcept;
  ~ObjectConstrs();

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
  // Beyond this many constraints the hashed lookups are kept.
  static constexpr std::size_t fewConstrs = 8;
  static constexpr std::size_t firstCapacity = 4;

  struct Lookups;

  // The constraint from `from` on that `matches`, or null.
  template <typename Matches>
  BaseConstraint* firstFrom(Constrs::const_iterator from, const Matches& matches) const;
  void addToLookups(BaseConstraint* constr);

  Constrs constrs;
  std::unique_ptr<Lookups> lookups;
};

}  // namespace qpe::constraints
