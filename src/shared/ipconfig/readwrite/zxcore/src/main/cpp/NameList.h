#pragma once

#include "ConstrProperties.h"
#include "ipconfig_readwrite_export.h"

#include <string>
#include <unordered_set>
#include <vector>

namespace qpe::constraints {

// An ordered list of names, each once; an empty list counts as unset. The
// names are also kept in a hash set, so that adding to a long list, one name
// at a time or many, and asking for a name cost no walk or copy of it.
class IPCONFIG_READWRITE_EXPORT NameList {
public:
  const std::vector<std::string>& get() const { return list; }
  // Appends the names that the list does not hold yet, in order.
  void add(const std::vector<std::string>& names);
  // Replaces the list; a name given twice is kept once.
  void set(const std::vector<std::string>& names);
  bool isSet() const { return !list.empty(); }
  bool contains(const std::string& name) const { return members.count(name) > 0; }
  // The names that are soft in `properties`, in list order.
  std::vector<std::string> softNames(const ConstrPropertiesMap& properties) const;
  // The list's part of a relation's text: " rel(" `objName` `text`, each name
  // followed by ",", and ")"; "" for an unset list.
  std::string relationText(const std::string& objName, const char* text) const;

private:
  std::vector<std::string> list;
  std::unordered_set<std::string> members;
};

}  // namespace qpe::constraints
