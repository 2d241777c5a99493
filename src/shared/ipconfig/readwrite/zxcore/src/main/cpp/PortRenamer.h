#pragma once

#include "ConstrProperties.h"
#include "ipconfig_readwrite_export.h"

#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace qpe::constraints {

class BaseConstraint;

// Applies a map of old to new port names to constraints.
//
// Each operation also comes as a static form over a map that the caller
// keeps: a store renames every constraint with one map, and must not copy it
// once per constraint.
class IPCONFIG_READWRITE_EXPORT PortRenamer {
public:
  using RenameMap = std::map<std::string, std::string>;

  explicit PortRenamer(const RenameMap& oldToNew);

  // The mapped name, or `oldName` itself.
  std::string getNewPortName(const std::string& oldName) const;
  // `newNames` gets the renamed list only if a name changed; otherwise it is
  // left as it was, and an empty `newNames` tells the caller there is nothing to do.
  void getNewPortNames(const std::vector<std::string>& oldNames,
                       std::vector<std::string>& newNames) const;
  // Renames the object of a constraint on a port; other constraints stay.
  void renamePortObject(BaseConstraint* constr) const;
  // Moves each renamed entry to its new name, in the order of the old names,
  // overwriting what stands there.
  void renameConstrObjectProperties(ConstrPropertiesMap& properties) const;

  static std::string getNewPortName(const RenameMap& oldToNew, const std::string& oldName);
  static void getNewPortNames(const RenameMap& oldToNew, const std::vector<std::string>& oldNames,
                              std::vector<std::string>& newNames);
  static void renamePortObject(const RenameMap& oldToNew, BaseConstraint* constr);
  static void renameConstrObjectProperties(const RenameMap& oldToNew,
                                           ConstrPropertiesMap& properties);
  // The new name of `oldName`, or null when the map does not rename it.
  static const std::string* findNewName(const RenameMap& oldToNew, std::string_view oldName);

  // While one lives on a thread, the static forms there find the names of
  // its map by hash rather than by a search of the map: a store renames all
  // of its constraints with one map, through their own renamePorts, which
  // take nothing but the map.
  class IPCONFIG_READWRITE_EXPORT HashedScope {
  public:
    explicit HashedScope(const RenameMap& oldToNew);
    ~HashedScope();
    HashedScope(const HashedScope&) = delete;
    HashedScope& operator=(const HashedScope&) = delete;

  private:
    friend class PortRenamer;

    const RenameMap& oldToNew;
    std::unordered_map<std::string_view, const std::string*> newNames;
    HashedScope* outer;
  };

private:
  RenameMap oldToNew;
};

}  // namespace qpe::constraints
