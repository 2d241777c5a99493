#pragma once

#include "ConstrForward.h"
#include "ConstrProperties.h"
#include "HCRapidJsonReadWriteUtils.h"
#include "SrcInfo.h"
#include "ipconfig_readwrite_export.h"

#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace qpe::constraints {

class Address;
class BaseNameResolver;

// What a design requires of one node, port or net of the compute array, or,
// for the group kinds, of the design as a whole. The store creates and owns
// every constraint.
class IPCONFIG_READWRITE_EXPORT BaseConstraint {
public:
  enum ObjectType : int {
    NODE = 0,
    PORT = 1,
    NET = 2,
    GLOBAL = 3,
  };

  // The numbers are stable: casts and visitors dispatch on them.
  enum ConstrType : int {
    Buffer = 0,
    ReservedMemory = 1,
    Tile = 2,
    Mem = 3,
    Shim = 4,
    PortLoc = 5,
    StreamChannel = 6,
    Attr = 7,
    ColocatedNodes = 8,
    RelativeNodes = 9,
    ColocatedPorts = 10,
    ColocatedDma = 11,
    ColocatedMemories = 12,
    FifoLocations = 13,
    AreaGroup = 14,
    InstGroup = 15,
    DependentRoutingGroup = 16,
    IsomorphicGraphGroup = 17,
  };

  // Texts of the enumerations; a value outside them gives "".
  static std::string getObjTypeAsStr(ObjectType objType);
  static std::string getConstrTypeAsStr(ConstrType constrType);
  // The canonical constraint name of a kind, such as "qpe.tile".
  static std::string getConstrNameFromType(ConstrType constrType);

  // For attributes, which are named by the attribute rather than the kind so
  // that one object can bear many.
  BaseConstraint(ConstrType constrType, const std::string& constrName, ObjectType objType,
                 const std::string& objName);
  // For the kinds on a node, port or net. Throws HEXAlgException for Attr.
  BaseConstraint(ConstrType constrType, ObjectType objType, const std::string& objName);
  // For the group kinds. Throws HEXAlgException for Attr.
  explicit BaseConstraint(ConstrType constrType);

  virtual ~BaseConstraint();
  virtual std::string getObjName() const;
  virtual ObjectType getObjType() const;
  virtual void setObjName(const std::string& name);
  // Creates the copy inside `target` through its set and add operations, with
  // every name passed through `resolver` unless it is null, then copies the
  // source location onto it.
  virtual void clone(ConstrHandler& target, const BaseNameResolver* resolver) const = 0;
  // Adds this constraint's keys and its source location to `objectValue`.
  virtual void write(JDocument& doc, JValue& objectValue,
                     const BaseNameResolver* resolver) const = 0;
  // Adds `key` + "_src_info" for a location in another source file.
  virtual void writeSrcInfo(JDocument& doc, JValue& parent, const std::string& key) const;
  virtual void offsetColumn(int delta) = 0;
  // The line of ConstrHandler::dump.
  virtual std::string str() const;
  virtual void renamePorts(const std::map<std::string, std::string>& oldToNew);
  // A null `other` is ignored.
  virtual void copySrcInfoFrom(const BaseConstraint* other);

  ConstrType getConstrType() const { return constrType; }
  const std::string& getConstrName() const { return constrName; }
  const SrcInfo& getSrcInfo() const { return srcInfo; }
  SrcInfo& getSrcInfo() { return srcInfo; }
  const ConstrPropertiesMap& getConstrObjectsProperties() const;

protected:
  // `constr`'s object name through the resolver operation of its object type.
  static std::string getResolvedName(const BaseConstraint* constr,
                                     const BaseNameResolver* resolver);
  // Forward to the resolver's operation of the same name; nothing without one.
  static void resolveNodeNames(std::vector<std::string>& names, const BaseNameResolver* resolver);
  static void resolvePortNames(std::vector<std::string>& names, const BaseNameResolver* resolver);
  static void resolveNetNames(std::vector<std::string>& names, const BaseNameResolver* resolver);
  static void resolveScopedNodeNames(std::vector<std::string>& names,
                                     const BaseNameResolver* resolver);
  static void resolveScopedPortNames(std::vector<std::string>& names,
                                     const BaseNameResolver* resolver);
  static void resolveScopedNetNames(std::vector<std::string>& names,
                                    const BaseNameResolver* resolver);
  // Re-key a properties map: each name that resolves is replaced by the names
  // it resolves to, each with its properties; one that does not stays.
  static void resolveNodeNames(ConstrPropertiesMap& properties, const BaseNameResolver* resolver);
  static void resolvePortNames(ConstrPropertiesMap& properties, const BaseNameResolver* resolver);
  static void resolveScopedNodeNames(ConstrPropertiesMap& properties,
                                     const BaseNameResolver* resolver);
  static void resolveScopedPortNames(ConstrPropertiesMap& properties,
                                     const BaseNameResolver* resolver);

  ConstrPropertiesMap& mutableConstrObjectsProperties();
  // Only soft properties are kept.
  void setConstrObjectProperties(const std::string& name, ConstrProperties props);
  void setConstrObjectsProperties(const ConstrPropertiesMap& props);
  static bool isSoftConstraintForObject(const std::string& name,
                                        const ConstrPropertiesMap& props);
  // An existing entry takes `isSoft`; a missing one is created only for true.
  static void setSoftConstraintForObject(const std::string& name, bool isSoft,
                                         ConstrPropertiesMap& props);

  // "issoft": true into `out` for a soft name.
  static void writePropertiesObject(const std::string& name, const ConstrPropertiesMap& props,
                                    JDocument& doc, JValue& out);
  // A list element: the plain name, or {name: {"issoft": true}} for a soft one.
  static void writeConstraintObjectWithProperties(const std::string& name,
                                                  const ConstrPropertiesMap& props,
                                                  JDocument& doc, JValue& out);
  // The list under `key`; nothing for an empty list.
  static void writeConstraintObjectsWithProperties(const std::vector<std::string>& names,
                                                   const ConstrPropertiesMap& props,
                                                   JDocument& doc, JValue& parent,
                                                   const char* key);
  // "column", "row", "bankId", "offset", each only if set.
  static void writeAddress(JDocument& doc, JValue& value, const Address& address);
  // An array under `key` of the addresses that have a field, in order; false,
  // and nothing written, when none has.
  static bool writeAddresses(JDocument& doc, JValue& parent, const char* key,
                             std::initializer_list<const Address*> addresses);
  // The names under `key` as by writeConstraintObjectsWithProperties, after
  // the names and the keys of `props` have passed the scoped resolver
  // operation of `namesType` (NODE or PORT). False when no name is left.
  static bool writeNamesWithProperties(JDocument& doc, JValue& parent, const char* key,
                                       std::vector<std::string> names, ConstrPropertiesMap props,
                                       ObjectType namesType, const BaseNameResolver* resolver);
  // `key` + "_src_info" for a location in another source file.
  static void writeSrcInfoObject(JDocument& doc, JValue& parent, const std::string& key,
                                 const SrcInfo& srcInfo);
  // A group's location in another source file, under "srcInfo".
  static void writeGroupSrcInfo(JDocument& doc, JValue& parent, const SrcInfo& srcInfo);

private:
  ConstrType constrType;
  std::string constrName;
  ObjectType objType;
  std::string objName;
  SrcInfo srcInfo;
  // Made at the first property: most constraints have none.
  std::unique_ptr<ConstrPropertiesMap> properties;
};

}  // namespace qpe::constraints
