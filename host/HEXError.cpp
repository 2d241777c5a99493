#include "HEXError.h"

HEXError::~HEXError() = default;
