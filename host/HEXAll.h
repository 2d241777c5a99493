#pragma once

#include "ComMsgMgrInstance.h"
#include "ipconfig_host_export.h"

#include <exception>
#include <optional>
#include <string>

// The host's exception: carries a message to whoever catches it, who reports
// it. A thrown message is recorded in ComMsgLog but not sent.
class IPCONFIG_HOST_EXPORT HEXAll : public std::exception {
public:
  explicit HEXAll(const ComMsgMgrInstance& message);
  ~HEXAll() override;

  // The console line of the message, or the plain text of a logic error.
  const char* what() const noexcept override;
  // Writes what() to the host's console.
  virtual void print() const;

  // The carried message; null for an exception built from a plain text.
  const ComMsgMgrInstance* getMessage() const { return message_ ? &*message_ : nullptr; }

protected:
  explicit HEXAll(std::string text);

private:
  std::optional<ComMsgMgrInstance> message_;
  std::string text_;
};
