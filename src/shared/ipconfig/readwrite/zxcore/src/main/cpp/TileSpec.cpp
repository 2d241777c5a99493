#include "TileSpec.h"

namespace qpe::constraints::json {

TileSpec::TileSpec() : PhysicalSpec(Core) {}

}  // namespace qpe::constraints::json
