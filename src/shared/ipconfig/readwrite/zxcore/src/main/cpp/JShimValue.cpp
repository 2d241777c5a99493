#include "JShimValue.h"

namespace qpe::constraints::json {

JShimValue::JShimValue(const JValue& value) : JLocationValue(value) {}

}  // namespace qpe::constraints::json
