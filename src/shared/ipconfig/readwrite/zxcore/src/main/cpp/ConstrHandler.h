#pragma once

#include "Address.h"
#include "AttrConstr.h"
#include "BaseConstraint.h"
#include "ConstrForward.h"
#include "HDPoint.h"
#include "FifoLocationsRecords.h"
#include "ObjectConstrs.h"
#include "PhysicalRange.h"
#include "PhysicalSpec.h"
#include "ipconfig_readwrite_export.h"

#include <cstddef>
#include <iosfwd>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

namespace qpe::constraints {

class BaseNameResolver;
class BaseVisitor;
class ConstBaseVisitor;

// The store of all constraints of one design, and the face of the framework:
// it creates and owns the constraints, indexes them by object name, answers
// what is constrained, and holds the FIFO records. Every public operation
// that is not marked plain is virtual, so that a host can derive a handler of
// its own; the parent and child operations are hooks for that.
class IPCONFIG_READWRITE_EXPORT ConstrHandler {
public:
  using ObjectType = BaseConstraint::ObjectType;
  using ConstrType = BaseConstraint::ConstrType;
  using Constrs = std::vector<BaseConstraint*>;

  ConstrHandler();
  ConstrHandler(const ConstrHandler&) = delete;
  ConstrHandler& operator=(const ConstrHandler&) = delete;

  // Lifecycle.

  // Deletes the constraints still held.
  virtual ~ConstrHandler();
  // Adds the constraints of a constraints file, validated against the
  // constraints schema. Failures throw; the result is always true.
  virtual bool read(std::istream& in, const std::string& path, const BaseNameResolver& resolver);
  virtual bool read(const std::string& path);
  // Writes the constraints file, validated; an empty handler removes the
  // file. Failures throw; the result is always true.
  virtual bool write(const std::string& path) const;
  virtual bool write(std::ostream& out, const std::string& path,
                     const BaseNameResolver& resolver) const;
  // The same for the groups alone.
  virtual bool writeAreaGroupConstrs(std::ostream& out, const std::string& path,
                                     const BaseNameResolver& resolver) const;
  // Deletes every constraint and record.
  virtual void clear();
  // No constraint; FIFO records do not count.
  virtual bool empty() const;
  virtual std::size_t size() const;
  // Deletes a constraint of this handler; its object keeps an empty index
  // entry. Null and constraints of other handlers are ignored.
  virtual void unload(const BaseConstraint* constr);

  // Queries. Unknown objects leave `out` as it was.

  // All constraints in creation order.
  virtual const Constrs& getConstrs() const;
  virtual void getConstrs(Constrs& out) const;
  // The object's constraints in creation order; an object without any leaves
  // `out` as it was.
  virtual void getConstrs(const std::string& objName, Constrs& out) const;
  virtual void getConstrs(ObjectType objType, Constrs& out) const;
  // The object's constraints of that constraint name, in any case.
  virtual void getConstrs(const std::string& objName, const std::string& constrName,
                          Constrs& out) const;
  virtual BaseConstraint* getConstr(const std::string& objName, ConstrType constrType) const;
  // By constraint name in any case, else by the canonical attribute name made
  // of it: "tile" finds "qpe.tile", "fifo_depth" finds "QPE.FIFO_DEPTH".
  virtual BaseConstraint* getConstr(const std::string& objName,
                                    const std::string& constrName) const;
  // Relations between objects, told from either side: `out` becomes the
  // object's own list of the kind, if it has one, and gains the name of each
  // other object whose list of the kind holds `name`, each name once.
  virtual void getColocatedNodes(const std::string& name, std::vector<std::string>& out) const;
  virtual void getNotColocatedNodes(const std::string& name,
                                    std::vector<std::string>& out) const;
  // Also the ports whose colocated nodes or memories hold `name`.
  virtual void getColocatedPorts(const std::string& name, std::vector<std::string>& out) const;
  virtual void getNotColocatedPorts(const std::string& name,
                                    std::vector<std::string>& out) const;
  virtual void getExclusiveColocatedPorts(const std::string& name,
                                          std::vector<std::string>& out) const;
  virtual void getColocatedDma(const std::string& name, std::vector<std::string>& out) const;
  virtual void getColocatedMemories(const std::string& name,
                                    std::vector<std::string>& out) const;
  virtual void getNotColocatedMemories(const std::string& name,
                                       std::vector<std::string>& out) const;
  // Plain. The object's constraints of that type.
  void getConstrs(const std::string& objName, ConstrType constrType, Constrs& out) const;
  // Plain. Every constraint of the kind, in creation order: for
  // ColocatedNodesConstr, ColocatedPortsConstr and ColocatedMemoriesConstr.
  template <typename Kind>
  void getConstrs(std::vector<Kind*>& out) const;

  // Plain. The object's first constraint of the kind, or null. Declared for
  // every kind at once, since they need only the kind's cast: each gives null
  // until its kind's cast is completed in ConstrCast.
  BufferConstr* getBufferConstr(const std::string& objName) const;
  ColocatedNodesConstr* getColocatedNodesConstr(const std::string& objName) const;
  RelativeNodesConstr* getRelativeNodesConstr(const std::string& objName) const;
  ColocatedPortsConstr* getColocatedPortsConstr(const std::string& objName) const;
  ColocatedDmaConstr* getColocatedDmaConstr(const std::string& objName) const;
  ColocatedMemoriesConstr* getColocatedMemoriesConstr(const std::string& objName) const;
  ReservedMemoryConstr* getReservedMemoryConstr(const std::string& objName) const;
  FifoLocationsConstr* getFifoLocationsConstr(const std::string& objName) const;
  TileConstr* getTileConstr(const std::string& objName) const;
  MemConstr* getMemConstr(const std::string& objName) const;
  ShimConstr* getShimConstr(const std::string& objName) const;
  PortLocConstr* getPortLocConstr(const std::string& objName) const;
  StreamChannelConstr* getStreamChannelConstr(const std::string& objName) const;
  // Plain. Throws HEXAlgException for an empty `attrName`.
  AttrConstr* getAttrConstr(const std::string& objName, const std::string& attrName) const;
  // Plain. The first group of the kind created under exactly that name.
  AreaGroupConstr* getAreaGroupConstr(const std::string& name) const;
  InstGroupConstr* getInstGroupConstr(const std::string& name) const;
  DependentRoutingGroupConstr* getDependentRoutingGroupConstr(const std::string& name) const;
  IsomorphicGraphGroupConstr* getIsomorphicGraphGroupConstr(const std::string& name) const;
  // Plain. The FIFO records.
  const FifoLocationsRecord* getFifoLocationsRecord(const std::string& name) const;
  const FifoLocationsRecords& getFifoLocationsRecords() const;
  const FifoLocationsRecords& getRecords() const;
  FifoLocationsRecords& getRecords();

  // Attributes: nothing for an empty object or attribute name. The attribute
  // is created with the type of the value if the object has none of that name.
  virtual void setAttrConstr(ObjectType objType, const std::string& objName,
                             const std::string& attrName, bool value);
  virtual void setAttrConstr(ObjectType objType, const std::string& objName,
                             const std::string& attrName, int value);
  virtual void setAttrConstr(ObjectType objType, const std::string& objName,
                             const std::string& attrName, double value);
  virtual void setAttrConstr(ObjectType objType, const std::string& objName,
                             const std::string& attrName, const std::string& value);
  // Plain. A text literal is a string, not a bool.
  void setAttrConstr(ObjectType objType, const std::string& objName, const std::string& attrName,
                     const char* value);

  // Placement: nothing for an empty object name. The object's constraint of
  // the kind, made if it has none, takes the place given.
  virtual void setBufferConstr(const std::string& objName, const Address& ping, const Address& pong,
                               const Address& rtpSelector);
  virtual void setTileConstr(const std::string& objName, int column, int row,
                             PhysicalSpec::PhysicalType tileType);
  // By the tile's name; the tile type stays.
  virtual void setTileConstr(const std::string& objName, const std::string& name);
  virtual void setMemConstr(const std::string& objName, const Address& ping, const Address& pong);
  virtual void setReservedMemoryConstr(const std::string& objName, const Address& address);
  virtual void setShimConstr(const std::string& objName, const std::string& name);
  virtual void setShimConstr(const std::string& objName, int column, int channel);
  // Port locations; the forms without a shim channel type give it Unset.
  virtual void setPortLocConstr(const std::string& objName, const std::string& name, int channel);
  virtual void setPortLocConstr(const std::string& objName, const std::string& name, int channel,
                                PhysicalSpec::ShimChannelType channelType);
  virtual void setPortLocConstr(const std::string& objName, PhysicalSpec::PhysicalType tileType,
                                int column, int row, int channel);
  virtual void setPortLocConstr(const std::string& objName, PhysicalSpec::PhysicalType tileType,
                                int column, int row, int channel,
                                PhysicalSpec::ShimChannelType channelType);
  // Stream channels, absolute and relative; the direction is a text.
  virtual void setStreamChannelConstr(const std::string& objName, int column, int row,
                                      int channel, const std::string& direction);
  virtual void setStreamChannelConstr(const std::string& objName, int offset, int channel,
                                      const std::string& direction);
  // Colocation: the list of things to place with the object, or with
  // `isNot` the list of those to keep apart from it, is replaced. The kinds
  // of ports, DMA and FIFO locations throw HEXAlgException unless `objType`
  // is PORT, also for an empty name.
  virtual void setColocatedNodesConstr(ObjectType objType, const std::string& objName,
                                       const std::vector<std::string>& names, bool isNot);
  // Offsets of other nodes from the object, by name; replaced.
  virtual void setRelativeNodesConstr(ObjectType objType, const std::string& objName,
                                      const std::map<std::string, HDPoint<int>>& offsets);
  virtual void setColocatedPortsConstr(ObjectType objType, const std::string& objName,
                                       const std::vector<std::string>& names, bool isNot);
  virtual void setExclusiveColocatedPortsConstr(ObjectType objType, const std::string& objName,
                                                const std::vector<std::string>& names);
  virtual void setColocatedDmaConstr(ObjectType objType, const std::string& objName,
                                     const std::vector<std::string>& names);
  // The record names that the port's FIFO locations refer to.
  virtual void setFifoLocationsConstr(ObjectType objType, const std::string& objName,
                                      const std::vector<std::string>& recordNames);
  // The port's FIFO location becomes the record of these contents, which is
  // made under a generated name if there is none.
  virtual void setDmaFifoLocationConstr(ObjectType objType, const std::string& objName,
                                        PhysicalSpec::PhysicalType tileType, int column, int row,
                                        int size, int offset, int bankId);
  virtual void setStreamFifoLocationConstr(ObjectType objType, const std::string& objName,
                                           PhysicalSpec::PhysicalType tileType, int column,
                                           int row, int channel);
  virtual void setColocatedMemoriesConstr(ObjectType objType, const std::string& objName,
                                          const std::vector<std::string>& names, bool isNot);
  // Area groups: nothing for an empty name. The group of that name, made if
  // there is none, takes the nodes, ranges and flags given.
  virtual void setAreaGroupConstr(const std::string& name, const std::vector<std::string>& nodes,
                                  const std::vector<PhysicalRange>& ranges, bool exclude,
                                  bool isSoft, bool containRouting, bool exclusiveRouting,
                                  bool exclusivePlacement);
  // The other groups, in the same way: the group of that name takes the
  // nodes and the flag, or the reference graph and the stamped graphs.
  virtual void setInstGroupConstr(const std::string& name, const std::vector<std::string>& nodes,
                                  bool isIsomorphic);
  virtual void setDependentRoutingGroupConstr(const std::string& name,
                                              const std::vector<std::string>& nodes);
  virtual void setIsomorphicGraphGroupConstr(const std::string& name,
                                             const std::string& referenceGraph,
                                             const std::vector<std::string>& stampedGraphs);

  // The add family: the names join those of the object's constraint of the
  // kind, or the set operation makes it. Nothing for an empty name, after the
  // test of the object type.
  virtual void addFifoLocationsConstr(ObjectType objType, const std::string& objName,
                                      const std::vector<std::string>& recordNames);
  virtual void addDmaFifoLocationConstr(ObjectType objType, const std::string& objName,
                                        PhysicalSpec::PhysicalType tileType, int column, int row,
                                        int size, int offset, int bankId);
  virtual void addStreamFifoLocationConstr(ObjectType objType, const std::string& objName,
                                           PhysicalSpec::PhysicalType tileType, int column,
                                           int row, int channel);
  virtual void addColocatedNodesConstr(ObjectType objType, const std::string& objName,
                                       const std::vector<std::string>& names, bool isNot);
  // The offsets join the object's, a name given again taking its new offset.
  virtual void addRelativeNodesConstr(ObjectType objType, const std::string& objName,
                                      const std::map<std::string, HDPoint<int>>& offsets);
  virtual void addColocatedPortsConstr(ObjectType objType, const std::string& objName,
                                       const std::vector<std::string>& names, bool isNot);
  virtual void addExclusiveColocatedPortsConstr(ObjectType objType, const std::string& objName,
                                                const std::vector<std::string>& names);
  // FIFO records, forwarded to the table.
  virtual const DmaFifoRecord* addDmaFifoRecord(const std::string& name,
                                                PhysicalSpec::PhysicalType tileType, int column,
                                                int row, int size, int offset, int bankId);
  virtual const StreamFifoRecord* addStreamFifoRecord(const std::string& name,
                                                      PhysicalSpec::PhysicalType tileType,
                                                      int column, int row, int channel);
  virtual void addColocatedDmaConstr(ObjectType objType, const std::string& objName,
                                     const std::vector<std::string>& names);
  virtual void addColocatedMemoriesConstr(ObjectType objType, const std::string& objName,
                                          const std::vector<std::string>& names, bool isNot);
  // The nodes and ranges join those of an existing group, whose flags stay;
  // a new group is made as by setAreaGroupConstr.
  virtual void addAreaGroupConstr(const std::string& name, const std::vector<std::string>& nodes,
                                  const std::vector<PhysicalRange>& ranges, bool exclude,
                                  bool isSoft, bool containRouting, bool exclusiveRouting,
                                  bool exclusivePlacement);
  // The nodes join those of an existing group, whose flag stays.
  virtual void addInstGroupConstr(const std::string& name, const std::vector<std::string>& nodes,
                                  bool isIsomorphic);
  virtual void addDependentRoutingGroupConstr(const std::string& name,
                                              const std::vector<std::string>& nodes);
  // The reference graph is replaced; the stamped graphs join the group's.
  virtual void addIsomorphicGraphGroupConstr(const std::string& name,
                                             const std::string& referenceGraph,
                                             const std::vector<std::string>& stampedGraphs);

  // Clones every constraint of `from` into this handler through the set and
  // add operations, so that they merge into what is here, then copies the
  // FIFO records. Names pass through `resolver`.
  virtual void copy(const ConstrHandler& from, const BaseNameResolver& resolver);
  virtual void copy(const ConstrHandler& from);
  // visit() on each constraint in creation order.
  virtual void accept(BaseVisitor& visitor) const;
  virtual void accept(ConstBaseVisitor& visitor) const;
  // Names of constrained objects of the type, each once, in order of first appearance.
  virtual void getAllConstrainedNodes(std::vector<std::string>& out) const;
  virtual void getAllConstrainedPorts(std::vector<std::string>& out) const;
  virtual void getAllConstrainedNets(std::vector<std::string>& out) const;
  // Appends to `out` each FIFO locations constraint that names the record,
  // in creation order.
  virtual void getFifoLocationsConstrs(const std::string& recordName,
                                       std::vector<FifoLocationsConstr*>& out) const;
  // Takes ownership of `constr` and files it under its object name; null is ignored.
  virtual void addConstraint(BaseConstraint* constr);
  // A new constraint of a kind on a node, port or net, owned by this handler.
  // Throws HEXAlgException for the kinds that it does not create.
  virtual BaseConstraint* createConstr(ConstrType constrType, ObjectType objType,
                                       const std::string& objName);
  // A new, empty group. Throws HEXAlgException for the kinds that it does not create.
  virtual BaseConstraint* createGlobalConstr(ConstrType constrType, const std::string& name);
  // A new, unset attribute under its canonical name; null for an empty name.
  virtual AttrConstr* createAttrConstr(ObjectType objType, const std::string& objName,
                                       AttrConstr::AttrType type, const std::string& attrName);
  // A base handler is a parent with no children; a host's handler overrides these.
  virtual bool isParent() const;
  virtual bool isToolGenerated() const;
  virtual bool isSoft() const;
  virtual void isParent(bool parent);
  virtual void isToolGenerated(bool toolGenerated);
  virtual void isSoft(bool soft);
  // The child that holds tool-generated constraints, hard or soft; null here.
  virtual ConstrHandler* getChildCstHandler(bool soft) const;

  // Plain. str() of each constraint on a line of standard output.
  void dump() const;
  // Plain. Renames the port objects of the constraints, then moves each old
  // name's index entry to the new name.
  void renamePorts(const std::map<std::string, std::string>& oldToNew);

private:
  using Index = std::unordered_map<std::string, ObjectConstrs>;

  // The only places where constraints are made and deleted.
  template <typename Kind, typename... Args>
  Kind* make_(Args&&... args);
  static void destroy_(BaseConstraint* constr);

  const ObjectConstrs* entry_(const std::string& objName) const;
  ObjectConstrs& fileUnder_(const std::string& objName);
  template <typename Kind>
  Kind* firstOfKind_(const std::string& objName, Kind* (*cast)(BaseConstraint*)) const;
  template <typename Kind>
  Kind* firstGroup_(ConstrType groupType, const std::string& name,
                    Kind* (*cast)(BaseConstraint*)) const;
  // The set shape: nothing for an empty name; the constraint that `find`
  // gives, else the one that `create` makes.
  template <typename Find, typename Create>
  static auto findOrCreate_(const std::string& objName, Find find, Create create);
  // The set shape for a kind on a node, port or net, and for a group kind.
  template <typename Kind>
  Kind* findOrCreateKind_(ConstrType constrType, ObjectType objType, const std::string& objName,
                          Kind* (*cast)(BaseConstraint*));
  template <typename Kind>
  Kind* findOrCreateGroup_(ConstrType groupType, const std::string& name,
                           Kind* (*cast)(BaseConstraint*));
  // The set and add shapes of the kinds on ports only.
  template <typename Kind>
  Kind* findOrCreatePortKind_(const char* operation, ConstrType constrType, ObjectType objType,
                              const std::string& objName, Kind* (*cast)(BaseConstraint*));
  template <typename Kind, typename Add, typename Set>
  void addOrSet_(const std::string& objName, Kind* (*cast)(BaseConstraint*), Add add, Set set);
  template <typename Value>
  void setAttr_(ObjectType objType, const std::string& objName, const std::string& attrName,
                AttrConstr::AttrType type, Value value);
  void getAllConstrained_(ObjectType objType, std::vector<std::string>& out) const;
  void copy_(const ConstrHandler& from, const BaseNameResolver* resolver);
  static void unfile_(Index& index, const std::string& name, const BaseConstraint* constr);

  // The constraints of objects of a type, in creation order.
  template <typename Visit>
  void forEachOfType_(ObjectType objType, const Visit& visit) const;

  FifoLocationsRecords records;
  Constrs constrs;
  // The object type of each constraint, beside it: a type never changes, and
  // the walks by type then touch only the constraints they keep.
  std::vector<ObjectType> objTypes;
  Index objects;
  // The entry of `objects` found last, by its name: a reader asks for one
  // object's entry several times in a row. Forgotten wherever an entry of
  // `objects` is erased.
  mutable const std::string* lastName = nullptr;
  mutable ObjectConstrs* lastEntry = nullptr;
  // The groups by their own name, which renamePorts leaves alone.
  Index groups;
};

}  // namespace qpe::constraints
