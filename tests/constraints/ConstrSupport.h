#pragma once

#include "TestSupport.h"

#include "Address.h"
#include "BaseConstraint.h"
#include "BaseNameResolver.h"
#include "BaseVisitor.h"
#include "ConstBaseVisitor.h"
#include "ConstrHandler.h"
#include "FifoLocationsRecords.h"
#include "HEXAlgException.h"
#include "MemSpec.h"
#include "ShimSpec.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

// What the tests of the constraint framework share; a test file takes it all
// with `using namespace constr_support`.
namespace constr_support {

using namespace qpe::constraints;
using testing_support::ExpectedMsg;
using testing_support::MessageLogTest;
using testing_support::readFile;
using testing_support::TempDir;
using testing_support::toText;
using testing_support::writeFile;
using Base = BaseConstraint;
using Mask = ComMsgMgr::MsgMask;
using Names = std::vector<std::string>;

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
    writeFile(path(relative), text);
    return path(relative);
  }
  void hide(const std::string& relative) const
  {
    boost::filesystem::create_directories(path(relative));
  }
  void hideSchemas() const
  {
    hide(schemaName);
    hide(oldSchemaName);
  }

private:
  TempDir root_;
  testing_support::ScopedEnv kvrRoot_;
};

// The keys that a constraint adds to an empty object, as compact JSON.
inline std::string written(const BaseConstraint& constr, const BaseNameResolver* resolver = nullptr)
{
  JDocument doc;
  doc.SetObject();
  constr.write(doc, doc, resolver);
  return toText(doc);
}

inline std::string written(const FifoLocationsRecords& records)
{
  JDocument doc;
  doc.SetObject();
  records.write(doc, doc);
  return toText(doc);
}

// `action` throws an HEXAlgException with exactly `text`.
inline void expectRefused(const std::function<void()>& action, const std::string& text)
{
  try {
    action();
    ADD_FAILURE() << "expected: " << text;
  } catch (const HEXAlgException& refusal) {
    EXPECT_EQ(refusal.what(), text);
  }
}

// "kind file line:column"
inline std::string where(const SrcInfo& info)
{
  return std::to_string(info.getKind()) + " " + info.getFile() + " " +
         std::to_string(info.getLine()) + ":" + std::to_string(info.getColumn());
}

// Puts `prefix` before every node, port and net name, plain or scoped,
// resolves the names in `dropped` to nothing, and expands a node or port
// pattern "x*" to "x0" and "x1".
class Resolver : public BaseNameResolver {
public:
  explicit Resolver(std::string prefix, std::set<std::string> dropped = {}, std::string scope = "")
      : prefix_(std::move(prefix)), dropped_(std::move(dropped)), scope_(std::move(scope))
  {
  }
  void silence() { quiet = true; }
  std::string getScopeName() const override { return scope_; }
  std::string resolveNodeName(const std::string& name) const override { return resolve_(name); }
  std::string resolvePortName(const std::string& name) const override { return resolve_(name); }
  std::string resolveNetName(const std::string& name) const override { return resolve_(name); }
  std::string resolveScopedNodeName(const std::string& n) const override { return resolve_(n); }
  std::string resolveScopedPortName(const std::string& n) const override { return resolve_(n); }
  std::string resolveScopedNetName(const std::string& n) const override { return resolve_(n); }
  void resolveNodePattern(const std::string& pattern, Names& out) const override
  {
    if (!expand_(pattern, out))
      BaseNameResolver::resolveNodePattern(pattern, out);
  }
  void resolvePortPattern(const std::string& pattern, Names& out) const override
  {
    if (!expand_(pattern, out))
      BaseNameResolver::resolvePortPattern(pattern, out);
  }

private:
  std::string resolve_(const std::string& name) const
  {
    return dropped_.count(name) ? "" : prefix_ + name;
  }
  static bool expand_(const std::string& pattern, Names& out)
  {
    if (pattern.empty() || pattern.back() != '*')
      return false;
    const std::string stem = pattern.substr(0, pattern.size() - 1);
    out.insert(out.end(), {stem + "0", stem + "1"});
    return true;
  }

  std::string prefix_;
  std::set<std::string> dropped_;
  std::string scope_;
};

// A child of a host's handler, holding the constraints of tool-generated files.
class ChildHandler : public ConstrHandler {
public:
  explicit ChildHandler(bool soft) : soft_(soft) {}
  bool isParent() const override { return false; }
  bool isToolGenerated() const override { return true; }
  bool isSoft() const override { return soft_; }

private:
  bool soft_;
};

template <typename T>
using Mutable = T*;
template <typename T>
using ReadOnly = const T*;

// Records the kind of each operation that a constraint reaches, then calls
// `onVisit`.
template <typename Visitor, template <typename> class Ptr>
class KindRecorder : public Visitor {
public:
  using Visitor::visit;
#define RECORD_KIND(Kind) \
  void visit(Ptr<Kind>) override { record_(#Kind); }
  RECORD_KIND(AttrConstr)
  RECORD_KIND(BufferConstr)
  RECORD_KIND(TileConstr)
  RECORD_KIND(MemConstr)
  RECORD_KIND(ReservedMemoryConstr)
  RECORD_KIND(ShimConstr)
  RECORD_KIND(PortLocConstr)
  RECORD_KIND(StreamChannelConstr)
  RECORD_KIND(ColocatedNodesConstr)
  RECORD_KIND(RelativeNodesConstr)
  RECORD_KIND(ColocatedPortsConstr)
  RECORD_KIND(ColocatedDmaConstr)
  RECORD_KIND(ColocatedMemoriesConstr)
  RECORD_KIND(AreaGroupConstr)
  RECORD_KIND(InstGroupConstr)
  RECORD_KIND(DependentRoutingGroupConstr)
  RECORD_KIND(FifoLocationsConstr)
#undef RECORD_KIND

  Names kinds;
  std::function<void()> onVisit = [] {};

private:
  void record_(const char* kind)
  {
    kinds.push_back(kind);
    onVisit();
  }
};

// Locations built in one expression: each builder applies one setter to a
// copy of the given location (a fresh core location by default) and returns
// it. Addresses too.
inline PhysicalSpec at(int x, int y, PhysicalSpec spec = {}) { spec.setXY(x, y); return spec; }
inline PhysicalSpec column(int x, PhysicalSpec spec = {}) { spec.setColumn(x); return spec; }
inline PhysicalSpec row(int y, PhysicalSpec spec = {}) { spec.setRow(y); return spec; }
inline PhysicalSpec named(const std::string& n, PhysicalSpec s = {}) { s.setName(n); return s; }
inline PhysicalSpec index(int i, PhysicalSpec spec = {}) { spec.setIndex(i); return spec; }
inline PhysicalSpec bank(int bankId, int offset, PhysicalSpec spec = {})
{
  spec.setBank(bankId);
  spec.setOffset(offset);
  return spec;
}
inline PhysicalSpec channelType(PhysicalSpec::ShimChannelType type, PhysicalSpec spec)
{
  spec.setShimChannelType(type);
  return spec;
}
inline PhysicalSpec after(void (PhysicalSpec::*operation)(), PhysicalSpec spec)
{
  (spec.*operation)();
  return spec;
}
inline PhysicalSpec shim(int x, int channel) { return index(channel, column(x, json::ShimSpec())); }

// An address whose fields of -1 are unset.
inline Address address(int column, int row, int bankId, int offset)
{
  Address made;
  made.column.setIntVal(column);
  made.row.setIntVal(row);
  made.bankId.setIntVal(bankId);
  made.offset.setIntVal(offset);
  return made;
}

}  // namespace constr_support
