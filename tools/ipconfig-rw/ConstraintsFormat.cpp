#include "Format.h"

#include "ArrayPlacements.h"
#include "ConstrHandler.h"
#include "ConstrReader.h"
#include "ConstrWriter.h"
#include "ConstraintsSvgWriter.h"
#include "HDARPartReader.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <ostream>

namespace ipconfig_rw {

namespace {

using qpe::constraints::BaseConstraint;
using qpe::constraints::ConstrHandler;
using qpe::constraints::ConstrReader;
using qpe::constraints::ConstrWriter;

// A tool-generated file goes to the child that its root keys name.
class ChildHandler : public ConstrHandler {
public:
  explicit ChildHandler(bool soft) : soft(soft) {}
  bool isParent() const override { return false; }
  bool isToolGenerated() const override { return true; }
  bool isSoft() const override { return soft; }

private:
  bool soft;
};

class ParentHandler : public ConstrHandler {
public:
  ConstrHandler* getChildCstHandler(bool soft) const override
  {
    return soft ? &softChild : &hardChild;
  }

  // The handler that a read filled: a child for a tool-generated file.
  const ConstrHandler& filled() const
  {
    if (!hardChild.empty())
      return hardChild;
    if (!softChild.empty())
      return softChild;
    return *this;
  }

private:
  mutable ChildHandler hardChild{false};
  mutable ChildHandler softChild{true};
};

std::size_t countOf(const ConstrHandler& handler, BaseConstraint::ObjectType objType)
{
  ConstrHandler::Constrs constrs;
  handler.getConstrs(objType, constrs);
  return constrs.size();
}

int check(const std::vector<std::string>& args, std::ostream& out)
{
  ParentHandler parent;
  parent.read(args[0]);
  const ConstrHandler& handler = parent.filled();
  const qpe::constraints::FifoLocationsRecords& records = handler.getFifoLocationsRecords();
  out << "constraints " << args[0];
  if (handler.isToolGenerated())
    out << " (tool generated, " << (handler.isSoft() ? "soft" : "hard") << ")";
  out << ": " << handler.size() << " constraints (" << countOf(handler, BaseConstraint::NODE)
      << " node, " << countOf(handler, BaseConstraint::PORT) << " port, "
      << countOf(handler, BaseConstraint::NET) << " net, "
      << countOf(handler, BaseConstraint::GLOBAL) << " global), "
      << records.getRecords().size() << " FIFO records (" << records.getDmaFifoRecordSize()
      << " DMA, " << records.getStreamFifoRecordSize() << " stream)\n";
  return exitOk;
}

int roundtrip(const std::vector<std::string>& args, std::ostream& out)
{
  ParentHandler parent;
  parent.read(args[0]);
  const ConstrHandler& handler = parent.filled();
  handler.write(args[1]);
  out << "constraints " << args[0] << " -> " << args[1] << ": " << handler.size()
      << " constraints\n";
  return exitOk;
}

// The groups of IN alone, written alone: the other sections are not read.
int areagroups(const std::vector<std::string>& args, std::ostream& out)
{
  ConstrHandler handler;
  ConstrReader(handler).readAreaGroupConstrs(args[0], true);
  ConstrWriter(handler).writeAreaGroupConstrs(args[1], true);
  out << "constraints " << args[0] << " -> " << args[1] << ": " << handler.size() << " groups\n";
  return exitOk;
}

int dump(const std::vector<std::string>& args, std::ostream&)
{
  ParentHandler parent;
  parent.read(args[0]);
  parent.filled().dump();
  return exitOk;
}

// The placements of FILE as an SVG picture of the array, titled with the
// file's name; --device widens the grid to that array device.
int draw(const std::vector<std::string>& args, std::ostream& out)
{
  ParentHandler parent;
  parent.read(args[0]);
  std::unique_ptr<HDARPart> device;
  if (!args[2].empty())
    device = HDARPartReader::readByName(args[2]);
  const qpe::constraints::ArrayPlacements placements(parent.filled(), device.get());
  std::ofstream picture(args[1], std::ios::binary);
  qpe::constraints::ConstraintsSvgWriter(
      placements, "Constraints of " + std::filesystem::path(args[0]).filename().string())
      .write(picture);
  picture.close();
  if (!picture) {
    out << "constraints: cannot write " << args[1] << '\n';
    return exitBadInput;
  }
  out << "constraints " << args[0] << " -> " << args[1] << ": " << placements.getColumns()
      << " columns, " << placements.getRows() << " rows, " << placements.getGroups().size()
      << " area groups, " << placements.getOffGrid().size() << " off the grid\n";
  return exitOk;
}

}  // namespace

Format constraintsFormat()
{
  return {"constraints",
          "compute array constraints file (attributes, placement, port locations, FIFO "
          "locations, colocation, relative placement and groups: read, write; schema "
          "qpetools_constr_schema.json)",
          {
              {"check", {"FILE"}, "read FILE and count its constraints and FIFO records", check},
              {"roundtrip", {"IN", "OUT"}, "read IN and write it back to OUT", roundtrip},
              {"dump", {"FILE"}, "read FILE and print each constraint on a line", dump},
              {"areagroups", {"IN", "OUT"}, "read the groups of IN and write them alone to OUT",
               areagroups},
              {"draw",
               {"FILE", "OUT.svg"},
               "draw the placements, area groups and ties of FILE on the array as an SVG "
               "picture",
               draw,
               {{"device", "NAME", "shipped array device whose columns and channels to show", ""}}},
          }};
}

}  // namespace ipconfig_rw
