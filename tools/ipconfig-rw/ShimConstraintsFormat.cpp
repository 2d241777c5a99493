#include "Format.h"

#include "HandOffDesign.h"
#include "ZXCompilerShimConstraintsWriterJSON.h"

#include <ostream>

namespace ipconfig_rw {

namespace {

using Writer = IPConfig::Frameworks::ZXCompilerShimConstraintsWriterJSON;

int write(const std::vector<std::string>& args, std::ostream& out)
{
  HandOffDesign design(args[0], args[1], args[2]);
  design.readSolution(args[3]);
  const std::string& instance = args[4];
  if (!design.model.isZXIPInstance(design.model.getLogicalInstance(instance))) {
    out << "shimconstraints: " << args[1] << " has no array instance " << instance << '\n';
    return exitBadInput;
  }
  if (!Writer().writeToJsonFile(args[5], design.model, design.spec, *design.solution,
                                *design.part, instance, design.status)) {
    out << "shimconstraints: cannot write " << args[5] << '\n';
    return exitBadInput;
  }
  out << "shimconstraints " << instance << " -> " << args[5] << '\n';
  return exitOk;
}

int interfaceId(const std::vector<std::string>& args, std::ostream& out)
{
  HandOffDesign design(args[0], args[1], args[2]);
  design.readSolution(args[3]);
  std::string id;
  Writer::computeQPEPLIntefaceID(design.model, design.spec, *design.solution, *design.part,
                                 args[4], id, design.status);
  out << id << '\n';
  return exitOk;
}

}  // namespace

Format shimConstraintsFormat()
{
  return {"shimconstraints",
          "shim constraints file (write; schema constraints.json): the placement of a "
          "compiler solution as firm constraints of one array instance; inputs as for "
          "compilersolution",
          {
              {"write", {"DEVICE", "LOGICAL_ARCH", "TRAFFIC", "SOLUTION", "INSTANCE", "OUT"},
               "write the constraints of array instance INSTANCE to OUT", write},
              {"interfaceid", {"DEVICE", "LOGICAL_ARCH", "TRAFFIC", "SOLUTION", "INSTANCE"},
               "print the identifier of INSTANCE's interface to the PL", interfaceId},
          }};
}

}  // namespace ipconfig_rw
