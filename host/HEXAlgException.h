#pragma once

#include "HEXError.h"
#include "ipconfig_host_export.h"

#include <string>

// Misuse of an interface: a plain English text, no catalogue message.
class IPCONFIG_HOST_EXPORT HEXAlgException : public HEXError {
public:
  explicit HEXAlgException(const std::string& text);
  ~HEXAlgException() override;
};
