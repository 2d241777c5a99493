#include "JMemValue.h"

namespace qpe::constraints::json {

JMemValue::JMemValue(const JValue& value) : JLocationValue(value) {}

}  // namespace qpe::constraints::json
