#pragma once

#include "ZXLogicalArchLInst.h"
#include "ZXLogicalConnection.h"
#include "ZXLogicalNOCIPInstance.h"
#include "ZXLogicalPLIPInstance.h"
#include "ZXLogicalPort.h"
#include "ZXLogicalZXIPInstance.h"
#include "ipconfig_readwrite_export.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace IPConfig::Frameworks {

// The logical architecture of a design: instances of three kinds with their
// ports, and connections from one source port to any number of destination
// ports. The model owns its instances and connections, each instance its
// ports; every pointer handed out stays valid until clear or destruction.
//
// The name maps are current except for connections added by
// addLogicalConnection, which enter the connection map only at the next
// rename: until then hasLogicalConnection does not find them, and a second
// addLogicalConnection of the same name adds a second connection.
class IPCONFIG_READWRITE_EXPORT ZXLogicalArchModel {
public:
  using InstanceMap = std::map<std::string, ZXLogicalArchLInst*>;
  using ConnectionMap = std::map<std::string, ZXLogicalConnection*>;

  ZXLogicalArchModel();
  ZXLogicalArchModel(const ZXLogicalArchModel&) = delete;
  ZXLogicalArchModel& operator=(const ZXLogicalArchModel&) = delete;
  ~ZXLogicalArchModel();

  // The four strings do not count.
  bool isEmpty() const;
  // Deletes every instance and connection; the four strings stay.
  void clear();

  // Null when an instance of the name exists.
  ZXLogicalPLIPInstance* addPLIPInstance(const std::string& name);
  ZXLogicalZXIPInstance* addZXIPInstance(const std::string& name);
  ZXLogicalNOCIPInstance* addNOCIPInstance(const std::string& name);
  // Null when the instance has a port of the name.
  ZXLogicalPort* addPLPort(const std::string& name, ZXLogicalPLIPInstance* instance);
  ZXLogicalPort* addShimPort(const std::string& name, ZXLogicalZXIPInstance* instance);
  ZXLogicalPort* addNOCPort(const std::string& name, ZXLogicalNOCIPInstance* instance);
  // Null when the connection map has the name; the new connection is not
  // entered in it.
  ZXLogicalConnection* addLogicalConnection(const std::string& name);

  bool hasLogicalInstance(const std::string& name) const;
  ZXLogicalArchLInst* getLogicalInstance(const std::string& name) const;
  // getInstanceMap().end() when there is none.
  InstanceMap::const_iterator findLogicalInstance(const std::string& name) const;
  const InstanceMap& getInstanceMap() const { return instanceMap; }
  bool hasLogicalConnection(const std::string& name) const;
  ZXLogicalConnection* getLogicalConnection(const std::string& name) const;
  // getConnectionMap().end() when there is none.
  ConnectionMap::const_iterator findLogicalConnection(const std::string& name) const;
  const ConnectionMap& getConnectionMap() const { return connectionMap; }

  // False for null; else by the instance's kind.
  bool isZXIPInstance(const ZXLogicalArchLInst* instance) const;
  bool isPLIPInstance(const ZXLogicalArchLInst* instance) const;
  bool isNOCIPInstance(const ZXLogicalArchLInst* instance) const;

  // Each appends in order of addition and gives the new size of `out`.
  std::size_t getPLIPInstances(std::vector<ZXLogicalPLIPInstance*>& out) const;
  std::size_t getZXIPInstances(std::vector<ZXLogicalZXIPInstance*>& out) const;
  std::size_t getNOCIPInstances(std::vector<ZXLogicalNOCIPInstance*>& out) const;
  std::size_t getPLIPLogicalPorts(std::vector<ZXLogicalPort*>& out) const;
  std::size_t getZXIPLogicalPorts(std::vector<ZXLogicalPort*>& out) const;
  std::size_t getNOCIPLogicalPorts(std::vector<ZXLogicalPort*>& out) const;
  std::size_t getLogicalConnections(std::vector<ZXLogicalConnection*>& out) const;

  // Over the instances of `kind` in order, the first that finds a port.
  ZXLogicalPort* getLogicalPortByName(const std::string& name, ZXLogicalInstanceType kind) const;
  ZXLogicalPort* getLogicalPortBySWOrHWAnnotation(const std::string& annotation,
                                                  ZXLogicalInstanceType kind) const;
  ZXLogicalPort* getEquivalentPortBySWOrHWAnnotation(const ZXLogicalPort* port,
                                                     ZXLogicalInstanceType kind) const;

  // Every instance, every connection (with its ports), then the model.
  void accept(const ZXLogicalArchModelVisitorInterface& visitor);
  // Renames instances with their ports, then connections, and rebuilds
  // every name map from the lists.
  void rename(ZXLogicalArchModelRenameInterface& renamer);
  // Gives every port a regular name (LogicalArchWriterModelRenamer).
  void renameLogicalArchPortNames(bool useAxiPortNames);

  // False when an instance or connection name of `other` is known here.
  bool canCopy(const ZXLogicalArchModel& other) const;
  // Adds copies of everything `other` holds and takes its four strings;
  // changes nothing and gives false when canCopy does.
  bool copy(const ZXLogicalArchModel& other);

  const std::string& getAppId() const { return appId; }
  void setAppId(const std::string& value) { appId = value; }
  const std::string& getDevice() const { return device; }
  void setDevice(const std::string& value) { device = value; }
  const std::string& getSchema() const { return schema; }
  void setSchema(const std::string& value) { schema = value; }
  const std::string& getPlatform() const { return platform; }
  void setPlatform(const std::string& value) { platform = value; }

private:
  template <typename Instance>
  Instance* addInstance_(const std::string& name, ZXLogicalInstanceType kind);
  ZXLogicalArchLInst* addInst_(std::unique_ptr<ZXLogicalArchLInst> instance);
  ZXLogicalPort* addInstPort_(const std::string& name, ZXLogicalArchLInst& instance);
  ZXLogicalConnection* addConnection_(std::unique_ptr<ZXLogicalConnection> connection);
  ZXLogicalPort* getLogicalPort_(const std::string& instName, const std::string& portName) const;
  template <typename Instance>
  std::size_t getInstances_(ZXLogicalInstanceType kind, std::vector<Instance*>& out) const;
  std::size_t getLogicalPorts_(ZXLogicalInstanceType kind, std::vector<ZXLogicalPort*>& out) const;
  // The first port that `find` gives over the instances of `kind`.
  template <typename Find>
  ZXLogicalPort* findPort_(ZXLogicalInstanceType kind, const Find& find) const;
  std::unique_ptr<ZXLogicalConnection> cloneLogicalConnection_(
      const ZXLogicalConnection& connection);
  void resetNameToObjectMaps_();
  void rebuildNameToObjectMaps_();

  InstanceMap instanceMap;
  ConnectionMap connectionMap;
  std::vector<std::unique_ptr<ZXLogicalArchLInst>> instances;
  std::vector<std::unique_ptr<ZXLogicalConnection>> connections;
  std::string appId;
  std::string device;
  std::string schema;
  std::string platform;
};

}  // namespace IPConfig::Frameworks
