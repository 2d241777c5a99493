#pragma once

#include "ZXLogicalConnection.h"
#include "ZXLogicalNOCIPInstance.h"
#include "ZXLogicalPort.h"

#include <string>

namespace IPConfig::Frameworks {

// The texts of the enumerated values of the logical architecture file, in
// both directions. A value at or above the unset one that is written reads
// "unknown"; a text the table lacks reads as the unset value.
class ZXLogicalArchVocabulary {
public:
  static const char* portTypeText(ZXLogicalPort::PortType type);
  static ZXLogicalPort::PortType toPortType(const std::string& text);
  static const char* portDirectionText(ZXLogicalPort::Direction direction);
  static ZXLogicalPort::Direction toPortDirection(const std::string& text);
  // Written with the array's current abbreviation; the old one reads too.
  static const char* connectionDirectionText(ZXLogicalConnection::Direction direction);
  static ZXLogicalConnection::Direction toConnectionDirection(const std::string& text);
  static const char* memModeText(ZXLogicalConnection::MemMode mode);
  static ZXLogicalConnection::MemMode toMemMode(const std::string& text);
  static const char* addrTypeText(ZXLogicalConnection::AddrType type);
  static ZXLogicalConnection::AddrType toAddrType(const std::string& text);
  static const char* nocTypeText(ZXLogicalNOCIPInstance::NOCType type);
  static ZXLogicalNOCIPInstance::NOCType toNOCType(const std::string& text);
};

}  // namespace IPConfig::Frameworks
