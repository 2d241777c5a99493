#pragma once

#include "ipconfig_readwrite_export.h"

#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace qpe::constraints {

// Exact comparison.
IPCONFIG_READWRITE_EXPORT bool contains(const std::vector<std::string>& values,
                                        const std::string& value);
// Appends `value` unless it is empty or already there.
IPCONFIG_READWRITE_EXPORT void addIfUnique(const std::string& value,
                                           std::vector<std::string>& values);
// The strings joined by one blank.
IPCONFIG_READWRITE_EXPORT std::string to_str(const std::vector<std::string>& values);
// Comparisons of names that ignore the case of ASCII letters.
IPCONFIG_READWRITE_EXPORT bool iequals(const std::string& a, const std::string& b);
IPCONFIG_READWRITE_EXPORT bool istartsWith(const std::string& text, const std::string& prefix);
// The case of ASCII letters changed in place, the same way.
IPCONFIG_READWRITE_EXPORT void toLower(std::string& text);
IPCONFIG_READWRITE_EXPORT void toUpper(std::string& text);
// Numeric fields read from elsewhere use negative values for "not given".
IPCONFIG_READWRITE_EXPORT bool isValSet(int value);
IPCONFIG_READWRITE_EXPORT bool isValSet(double value);

// `out` becomes getObjName() of each constraint in [first, last), each name
// once, in the order of first appearance.
template <typename ConstrIterator>
void getUniqueObjNames(ConstrIterator first, ConstrIterator last, std::vector<std::string>& out)
{
  std::vector<std::string> names;
  std::unordered_set<std::string> seen;
  for (; first != last; ++first) {
    std::string name = (*first)->getObjName();
    // An object's constraints are mostly made one after another.
    if ((names.empty() || name != names.back()) && seen.insert(name).second)
      names.push_back(std::move(name));
  }
  out = std::move(names);
}

}  // namespace qpe::constraints
