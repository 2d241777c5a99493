#include "MemSpec.h"

namespace qpe::constraints::json {

MemSpec::MemSpec() : PhysicalSpec(Mem) {}

}  // namespace qpe::constraints::json
