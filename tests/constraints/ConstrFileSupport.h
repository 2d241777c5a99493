#pragma once

#include "TestSupport.h"

#include "BaseConstraint.h"
#include "ConstrHandler.h"

#include <string>

namespace constr_file_support {

const std::string schemaName = "qpetools_constr_schema.json";
const std::string oldSchemaName = "parts/tarnel/common/merrow/QPEConstrSchema.json";

// A data tree of its own at $KVR_ROOT, searched before the one the library
// ships. A directory under a schema's name hides the shipped file.
class DataTree {
public:
  DataTree() : kvrRoot_("KVR_ROOT", root_.path().string()) {}

  std::string path(const std::string& relative) const { return root_.file("data/" + relative); }
  std::string put(const std::string& relative, const std::string& text) const
  {
    testing_support::writeFile(path(relative), text);
    return path(relative);
  }
  void hide(const std::string& relative) const
  {
    boost::filesystem::create_directories(path(relative));
  }

private:
  testing_support::TempDir root_;
  testing_support::ScopedEnv kvrRoot_;
};

// The keys that a constraint adds to an empty object, as compact JSON.
inline std::string written(const qpe::constraints::BaseConstraint& constr,
                           const qpe::constraints::BaseNameResolver* resolver = nullptr)
{
  JDocument doc;
  doc.SetObject();
  constr.write(doc, doc, resolver);
  return testing_support::toText(doc);
}

// A child of a host's handler, holding the constraints of tool-generated files.
class ChildHandler : public qpe::constraints::ConstrHandler {
public:
  explicit ChildHandler(bool soft) : soft_(soft) {}
  bool isParent() const override { return false; }
  bool isToolGenerated() const override { return true; }
  bool isSoft() const override { return soft_; }

private:
  bool soft_;
};

}  // namespace constr_file_support
