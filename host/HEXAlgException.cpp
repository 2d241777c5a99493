#include "HEXAlgException.h"

HEXAlgException::HEXAlgException(const std::string& text) : HEXError(text) {}

HEXAlgException::~HEXAlgException() = default;
