#include "HandOffDesign.h"

#include "HDARPartReader.h"
#include "HUTFile.h"
#include "NOCFindLogicalInstance.h"
#include "NOCJsonTrafficSpecReader.h"
#include "QPEShimPortBels.h"
#include "ZXCompilerSolutionReaderJSON.h"
#include "ZXLogicalArchReader.h"

namespace ipconfig_rw {

namespace fw = IPConfig::Frameworks;

namespace {

std::unique_ptr<HDARPart> readDevice(const std::string& device)
{
  return HUTFile(device).isFile() ? HDARPartReader::read(device)
                                  : HDARPartReader::readByName(device);
}

template <typename Visit>
void forEachShimPort(const fw::ZXLogicalArchModel& model, const Visit& visit)
{
  std::vector<fw::ZXLogicalZXIPInstance*> instances;
  model.getZXIPInstances(instances);
  for (fw::ZXLogicalZXIPInstance* instance : instances)
    for (const std::unique_ptr<fw::ZXLogicalPort>& port : instance->getPorts())
      visit(*instance, *port);
}

}  // namespace

HandOffDesign::HandOffDesign(const std::string& device, const std::string& logicalArch,
                             const std::string& traffic)
  : part(readDevice(device))
{
  fw::ZXLogicalArchReader().readFromJsonFile(logicalArch, model);
  NOC::NOCJsonTrafficSpecReader().readFromJsonFile(traffic, spec, status);
  solution = std::make_unique<fw::QPEShimInterfaceSolution>(*part);
  bindShimPorts_();
}

void HandOffDesign::readSolution(const std::string& path)
{
  fw::ZXCompilerSolutionReaderJSON().readFromJsonFile(path, *part, model, spec, *solution, status);
}

std::size_t HandOffDesign::countPlacedPorts() const
{
  std::size_t placed = 0;
  forEachShimPort(model, [&](const fw::ZXLogicalArchLInst&, const fw::ZXLogicalPort& port) {
    placed += !fw::getConstraintsForLogicalInstance(&port, spec, *solution).empty();
  });
  return placed;
}

std::size_t HandOffDesign::countPorts() const
{
  std::size_t ports = 0;
  forEachShimPort(model, [&](const fw::ZXLogicalArchLInst&, const fw::ZXLogicalPort&) { ++ports; });
  return ports;
}

void HandOffDesign::bindShimPorts_()
{
  forEachShimPort(model, [&](const fw::ZXLogicalArchLInst& instance, fw::ZXLogicalPort& port) {
    const std::string base = instance.name + "/" + port.name;
    for (const std::string& name : {base, base + "<0>_INST", base + "<1>_INST"})
      if (NOC::findLogicalInstance(spec, name))
        port.logicalInstNames.push_back(name);
  });
}

}  // namespace ipconfig_rw
