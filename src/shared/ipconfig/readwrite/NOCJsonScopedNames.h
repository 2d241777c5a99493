#pragma once

#include "ipconfig_readwrite_export.h"

#include <string>

class HIPLogicalObjectNameResolverInterface;

namespace HrdIPToolCntr {
class TrafficLInst;
}  // namespace HrdIPToolCntr

namespace NOC {

// The names under which the NoC writers write an instance of the model when
// the resolver has a scope: the model's names become the names of the block
// being written, and an instance outside the block is known by the first of
// its outside connections that lies inside.
class IPCONFIG_READWRITE_EXPORT NOCJsonScopedNames {
public:
  // The error slave keeps its name as a property value; any other instance
  // takes its scoped name.
  static std::string instanceName(const HIPLogicalObjectNameResolverInterface& resolver,
                                  const HrdIPToolCntr::TrafficLInst& instance);

  struct ExternalConn {
    // The "ExternalConn" text: lists joined by ",", names by " ". Every name
    // but the first of the whole text has a blank before it, also just after
    // a comma, so {{a, b}, {c}} gives "a b, c".
    std::string text;
    // The first name of the text; empty when no name lies in scope.
    std::string firstName;
  };

  // The connections that lie in scope, under their scoped property values;
  // names that resolve to nothing are left out.
  static ExternalConn externalConn(const HIPLogicalObjectNameResolverInterface& resolver,
                                   const HrdIPToolCntr::TrafficLInst& instance);
};

}  // namespace NOC
