#include "JTileValue.h"

namespace qpe::constraints::json {

JTileValue::JTileValue(const JValue& value) : JLocationValue(value) {}

}  // namespace qpe::constraints::json
