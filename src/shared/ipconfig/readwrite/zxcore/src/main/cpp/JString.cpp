#include "JString.h"

namespace qpe::constraints::json {

bool JString::isValid() const
{
  return getValue().IsString();
}

}  // namespace qpe::constraints::json
