#include "Format.h"

#include "QPEPrjMetaDataModel.h"

#include <boost/any.hpp>

#include <fstream>
#include <ostream>

namespace ipconfig_rw {

namespace {

using IPConfig::Frameworks::QPEPrjMetaDataModel;

const std::size_t listedProperties = 8;

const char* typeName(const boost::any& value)
{
  if (value.type() == typeid(bool))
    return "bool";
  if (value.type() == typeid(int))
    return "int";
  if (value.type() == typeid(unsigned long))
    return "unsigned long";
  if (value.type() == typeid(double))
    return "double";
  if (value.type() == typeid(std::string))
    return "string";
  if (value.type() == typeid(std::vector<std::string>))
    return "string list";
  return "unknown";
}

int check(const std::vector<std::string>& args, std::ostream& out)
{
  QPEPrjMetaDataModel model;
  model.readFromJSONFile(args[0]);
  const QPEPrjMetaDataModel::Properties& properties = model.getProperties();
  out << "metadata " << args[0] << ": " << properties.size() << " properties";
  std::size_t listed = 0;
  for (const auto& [key, value] : properties) {
    if (listed == listedProperties) {
      out << ", ...";
      break;
    }
    out << (listed++ == 0 ? ": " : ", ") << key << " (" << typeName(value) << ")";
  }
  out << '\n';
  return exitOk;
}

int roundtrip(const std::vector<std::string>& args, std::ostream& out)
{
  QPEPrjMetaDataModel model;
  model.readFromJSONFile(args[0]);
  std::ofstream file(args[1]);
  if (file)
    model.writeToJSONStream(file);
  file.close();
  if (!file) {
    out << "metadata: cannot write " << args[1] << '\n';
    return exitBadInput;
  }
  out << "metadata " << args[0] << " -> " << args[1] << ": " << model.getProperties().size()
      << " properties\n";
  return exitOk;
}

}  // namespace

Format metadataFormat()
{
  return {"metadata",
          "project metadata (read, write; no schema)",
          {
              {"check", {"FILE"}, "read FILE and list its properties", check},
              {"roundtrip", {"IN", "OUT"}, "read IN and write it back to OUT", roundtrip},
          }};
}

}  // namespace ipconfig_rw
