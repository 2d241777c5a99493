#pragma once

#include "JBaseValue.h"
#include "ipconfig_readwrite_export.h"

#include <cstdint>
#include <string>

namespace qpe::constraints::json {

// A location in a source file: {"file": ..., "line": ..., "column": ...}.
class IPCONFIG_READWRITE_EXPORT JSrcInfoValue : public JBaseValue {
public:
  using JBaseValue::JBaseValue;

  // A file is given.
  bool isValid() const override;
  // Takes "file" if it is a string, "line" and "column" if they are unsigned
  // integers; members of other types are passed over.
  void parse();

  const std::string& getFile() const { return file; }
  std::uint32_t getLine() const { return line; }
  std::uint32_t getColumn() const { return column; }

private:
  std::string file;
  std::uint32_t line = 0;
  std::uint32_t column = 0;
};

}  // namespace qpe::constraints::json
