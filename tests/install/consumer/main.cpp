// Links the installed library: saves and reloads metadata, and finds the
// installed data directory without any environment variable.

#include "InitLib.h"
#include "NOCJsonReadWriteUtils.h"
#include "QPEPrjMetaDataModel.h"

#include <cstdlib>
#include <iostream>
#include <string>

int main(int argc, char** argv)
{
  if (argc != 3) {
    std::cerr << "usage: consumer PREFIX FILE\n";
    return 2;
  }
  const std::string prefix = argv[1];
  init_lib();

  IPConfig::Frameworks::QPEPrjMetaDataModel model;
  model.setQPEPLIntfID(42);
  model.writeToJSONFile(argv[2]);
  IPConfig::Frameworks::QPEPrjMetaDataModel back;
  back.readFromJSONFile(argv[2]);
  if (back.getQPEPLIntfID() != 42) {
    std::cerr << "metadata did not round-trip\n";
    return 1;
  }

  const std::string schema = NOC::NOCJsonReadWriteUtils::getTrafficJsonSchemaFile();
  if (schema.rfind(prefix + "/share/ipconfig_readwrite/data/", 0) != 0) {
    std::cerr << "schema not looked for in the installed data directory: " << schema << '\n';
    return 1;
  }
  std::cout << "consumer ok: " << schema << '\n';
  return 0;
}
