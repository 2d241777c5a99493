#pragma once

#include "ipconfig_readwrite_export.h"

#include <cstdint>
#include <memory>
#include <string>

namespace qpe::constraints {

// Where a constraint came from. Only a SourceFile location is ever written
// back: locations found by scanning the constraints file are not persisted.
class IPCONFIG_READWRITE_EXPORT SrcInfo {
public:
  enum SrcKind : int {
    UserJson = 0,    // the place of the constraint's key in the constraints file
    SourceFile = 1,  // a place in another source file, given in the constraints file
    Unset = 2,
  };

  virtual ~SrcInfo();

  SrcKind getKind() const { return kind; }
  const std::string& getFile() const;
  // Line and column are 1-based; 0 when unknown.
  std::uint32_t getLine() const { return line; }
  std::uint32_t getColumn() const { return column; }

  void set(SrcKind newKind, const std::string& newFile, std::uint32_t newLine,
           std::uint32_t newColumn);
  // The same with a file name that many locations share, such as the path
  // of the constraints file for all of its keys.
  void set(SrcKind newKind, std::shared_ptr<const std::string> newFile, std::uint32_t newLine,
           std::uint32_t newColumn);

private:
  SrcKind kind = Unset;
  // Null for an empty name.
  std::shared_ptr<const std::string> file;
  std::uint32_t line = 0;
  std::uint32_t column = 0;
};

}  // namespace qpe::constraints
