#pragma once

#include "ZXLogicalPort.h"
#include "_Named.h"
#include "ipconfig_readwrite_export.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace IPConfig::Frameworks {

// The kind of a logical instance; a bare ZXLogicalArchLInst that no add
// operation of the model made keeps UNSET_INSTANCE.
enum ZXLogicalInstanceType : std::uint32_t {
  ZX_INSTANCE = 0,
  NOC_INSTANCE = 1,
  PL_INSTANCE = 2,
  UNSET_INSTANCE = 3,
};

// A named logical instance with its ports, which it owns. Every pointer it
// hands out stays valid until the instance is cleared or destroyed.
class IPCONFIG_READWRITE_EXPORT ZXLogicalArchLInst : public _Named {
public:
  using PortMap = std::map<std::string, ZXLogicalPort*>;
  using Ports = std::vector<std::unique_ptr<ZXLogicalPort>>;

  explicit ZXLogicalArchLInst(const std::string& name);
  // Copies the name, the hardware annotation and the kind; no ports.
  ZXLogicalArchLInst(const ZXLogicalArchLInst& other);
  ZXLogicalArchLInst& operator=(const ZXLogicalArchLInst&) = delete;

  // A heap copy of the dynamic type with copies of the ports, owned by the caller.
  virtual ZXLogicalArchLInst* clone() const;
  virtual ~ZXLogicalArchLInst();

  ZXLogicalInstanceType getKind() const { return kind; }
  // In order of addition.
  const Ports& getPorts() const { return ports; }
  // The last port added under each name.
  const PortMap& getPortMap() const { return portMap; }

  // Always adds a new port, even under a name the instance already has.
  ZXLogicalPort* addPort(const std::string& name);
  // Takes ownership, sets the port's owner and enters it under its name,
  // replacing an older port of that name in the map. Null adds nothing.
  ZXLogicalPort* addPort(ZXLogicalPort* port);

  bool hasLogicalPort(const std::string& name) const;
  ZXLogicalPort* getLogicalPort(const std::string& name) const;
  // The first port in order that now has the name.
  ZXLogicalPort* getLogicalPortByName(const std::string& name) const;
  // The first port in order whose annotation matches.
  ZXLogicalPort* getLogicalPortBySWAnnotation(const std::string& annotation) const;
  ZXLogicalPort* getLogicalPortByHWAnnotation(const std::string& annotation) const;
  // The software search over all ports first, then the hardware search.
  ZXLogicalPort* getLogicalPortBySWOrHWAnnotation(const std::string& annotation) const;
  // The port of this instance that an annotation of `port` (software or
  // hardware) names; the lexically smallest annotation that finds one wins.
  ZXLogicalPort* getEquivalentPortBySWOrHWAnnotation(const ZXLogicalPort* port) const;

  // Visits the instance only, not its ports.
  void accept(const ZXLogicalArchModelVisitorInterface& visitor);
  // Renames the instance, then each port in order.
  void rename(ZXLogicalArchModelRenameInterface& renamer);

  std::string hw_annotation;

protected:
  // A copy of the derived type `Instance`, with copies of the ports.
  template <typename Instance>
  Instance* cloneAs_() const
  {
    auto copy = std::make_unique<Instance>(static_cast<const Instance&>(*this));
    cloneInstPorts_(*copy);
    return copy.release();
  }
  void cloneInstPorts_(ZXLogicalArchLInst& target) const;

private:
  friend class ZXLogicalArchModel;
  friend class ZXLogicalPort;
  friend class ZXLogicalConnection;

  void clear_();
  void resetNameToObjectMaps_();
  void rebuildNameToObjectMaps_();
  // A port's name changed: the first-port index is rebuilt on the next lookup.
  void portRenamed_() { firstPortByNameStale = true; }

  ZXLogicalInstanceType kind = UNSET_INSTANCE;
  PortMap portMap;
  Ports ports;
  mutable std::unordered_map<std::string, ZXLogicalPort*> firstPortByName;
  // Built on the first lookup by name: a reader that adds ports never asks.
  mutable bool firstPortByNameStale = true;
};

}  // namespace IPConfig::Frameworks
