#pragma once

#include "BaseConstraint.h"
#include "ColocationList.h"
#include "NameList.h"
#include "ipconfig_readwrite_export.h"

#include <string>
#include <vector>

namespace qpe::constraints {

// What the colocation kinds of nodes and of reserved memories share: a list
// of things to place with the object and a list of things to keep apart from
// it, each name with a soft flag. The object is a node or a port. The first
// list's soft flags and source location are the constraint's own; the
// second list keeps its own.
class IPCONFIG_READWRITE_EXPORT NodeColocationConstr : public BaseConstraint {
public:
  // The words that tell the kinds apart.
  struct Vocabulary {
    const char* key;         // file key of the first list
    const char* notKey;      // file key of the second list
    const char* text;        // text of the first list in str()
    const char* notText;     // text of the second list in str()
    // The handler's set operation of the kind.
    void (ConstrHandler::*set)(ObjectType, const std::string&, const std::vector<std::string>&,
                               bool);
  };

  // Names pass the resolver, soft flags go with them.
  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // Each list that has names, with its soft names in object form and its
  // source location.
  void write(JDocument& doc, JValue& objectValue, const BaseNameResolver* resolver) const override;
  // A relation between objects does not depend on a column.
  void offsetColumn(int delta) override;
  // " rel(object,<list>)=(a,b,)" for each list that has names.
  std::string str() const override;
  // Also the second list's location, from a constraint of the same kind.
  void copySrcInfoFrom(const BaseConstraint* other) override;

  virtual void getNodeNames(std::vector<std::string>& out) const;
  virtual const std::vector<std::string>& getNodeNames() const;
  virtual void getNotColocatedNodeNames(std::vector<std::string>& out) const;
  virtual const std::vector<std::string>& getNotColocatedNodeNames() const;
  // Appends the names not listed yet.
  virtual void addNodeNames(const std::vector<std::string>& names);
  virtual void setNodeNames(const std::vector<std::string>& names);
  virtual void addNotColocatedNodeNames(const std::vector<std::string>& names);
  virtual void setNotColocatedNodeNames(const std::vector<std::string>& names);
  virtual bool isSet() const;
  virtual bool hasColocatedNodes() const;
  virtual bool hasNotColocatedNodes() const;
  virtual bool containsColocatedNode(const std::string& name) const;
  virtual bool containsNotColocatedNode(const std::string& name) const;
  virtual void setColocatedSoftNode(const std::string& name, bool soft);
  virtual bool isColocatedSoftNode(const std::string& name) const;
  // The listed names that are soft, in list order.
  virtual std::vector<std::string> getColocatedSoftNodes() const;
  virtual bool isNotColocatedSoftNode(const std::string& name) const;
  virtual std::vector<std::string> getNotColocatedSoftNodes() const;

  void setNotColocatedSoftNode(const std::string& name, bool soft);
  // Soft properties of a name of the first list; default ones are not kept.
  using BaseConstraint::setConstrObjectProperties;
  // The same for the second list.
  void setNotColocatedConstrObjectProperties(const std::string& name, ConstrProperties props);
  // This constraint's soft flags of a list become those of `source`, with the
  // names resolved.
  void cloneColocatedNodeProps(const NodeColocationConstr* source,
                               const BaseNameResolver* resolver);
  void cloneNotColocatedNodeProps(const NodeColocationConstr* source,
                                  const BaseNameResolver* resolver);
  const SrcInfo& getNotColocatedSrcInfo() const { return notColocated.srcInfo; }
  SrcInfo& getNotColocatedSrcInfo() { return notColocated.srcInfo; }
  const ConstrPropertiesMap& getNotColocatedProperties() const { return notColocated.properties; }

protected:
  NodeColocationConstr(ConstrType constrType, ObjectType objType, const std::string& objName,
                       const Vocabulary& vocabulary);

private:
  void writeNotConstrSrcInfo(JDocument& doc, JValue& parent, const std::string& key) const;

  NameList colocated;
  ColocationList notColocated;
  const Vocabulary& vocabulary;
};

}  // namespace qpe::constraints
