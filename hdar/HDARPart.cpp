#include "HDARPart.h"

HDARPart::HDARPart(std::string name, std::unique_ptr<HDDMOracle> oracle)
  : name(std::move(name)), oracle(std::move(oracle))
{
}

HDARPart::~HDARPart() = default;
