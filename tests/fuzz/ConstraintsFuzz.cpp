// Reads the input as a constraints file; a file that reads into a non-empty
// store is written and read again.

#include "FuzzInput.h"

#include "BaseNameResolver.h"
#include "ConstrHandler.h"
#include "HEXAll.h"

#include <sstream>

using qpe::constraints::BaseNameResolver;
using qpe::constraints::ConstrHandler;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  const ipconfig_rw_fuzz::FuzzInput input(data, size, "constraints");
  ConstrHandler handler;
  try {
    handler.read(input.path());
  } catch (const HEXAll&) {
    return 0;
  }
  // A store without constraints writes nothing, so there is nothing to read back.
  if (handler.empty())
    return 0;
  const BaseNameResolver resolver;
  std::ostringstream written;
  handler.write(written, input.path(), resolver);
  std::istringstream text(written.str());
  ConstrHandler reread;
  try {
    reread.read(text, input.path(), resolver);
  } catch (const HEXAll& failure) {
    ipconfig_rw_fuzz::writtenFileRefused("constraints", written.str() + '\n' + failure.what());
  }
  return 0;
}
