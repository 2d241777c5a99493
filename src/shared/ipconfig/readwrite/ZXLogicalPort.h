#pragma once

#include "ZXLogicalArchForward.h"
#include "ipconfig_readwrite_export.h"

#include <cstdint>
#include <string>
#include <vector>

namespace IPConfig::Frameworks {

// A named port of a logical instance. The instance owns it; `owner` and
// `connection` only point into the same model.
class IPCONFIG_READWRITE_EXPORT ZXLogicalPort {
public:
  // Any value fits the field; texts exist for those below the unset one.
  enum PortType : std::uint32_t { STREAM = 0, MEM = 1, EVENT = 2, UNSET_PORT_TYPE = 3 };
  enum Direction : std::uint32_t { MASTER = 0, SLAVE = 1, UNSET_DIRECTION = 2 };

  explicit ZXLogicalPort(const std::string& name);
  // Copies every field but `owner` and `connection`, which stay null.
  ZXLogicalPort(const ZXLogicalPort& other);
  ZXLogicalPort& operator=(const ZXLogicalPort&) = delete;

  // A heap copy through the copy constructor, owned by the caller.
  ZXLogicalPort* clone() const;
  void accept(const ZXLogicalArchModelVisitorInterface& visitor);
  void rename(ZXLogicalArchModelRenameInterface& renamer);

  std::string getSDFIONameFirst() const;
  std::string getAnnotationFirst() const;
  // The first software annotation; the hardware annotation plays no part.
  std::string getHWAnnotationORAnnotationFirst() const;
  // The non-empty entries joined by ";".
  std::string getSDFIONamesAsString() const;
  std::string getAnnotationsAsString() const;
  // False for an empty argument or list.
  bool matchSWAnnotation(const std::string& annotation) const;
  bool matchSWAnnotation(const std::vector<std::string>& annotations) const;
  bool matchHWAnnotation(const std::string& annotation) const;

  // The owner's name maps are keyed by it: change it only through rename.
  std::string name;
  double clkFreq = 0.0;
  std::uint32_t dataWidth = 0;
  std::uint32_t busWidth = 0;
  std::uint32_t parameterIndex = 0;
  std::string traceFile;
  std::string qpechannel;
  // The traffic model's logical instances behind the port, one per channel.
  std::vector<std::string> logicalInstNames;
  std::vector<std::string> annotation;
  std::string hw_annotation;
  std::vector<std::string> sdfioName;
  std::string vlnvName;
  ZXLogicalArchLInst* owner = nullptr;
  // Of several connections that use the port, the one set last.
  ZXLogicalConnection* connection = nullptr;
  PortType portType = UNSET_PORT_TYPE;
  Direction direction = UNSET_DIRECTION;
  bool registeredInterface = false;
  bool tracedInterface = false;
};

}  // namespace IPConfig::Frameworks
