#pragma once

// The shapes that the handler's operations of every family share, for the
// files that the handler's operations are split into.

#include "ConstrHandler.h"
#include "HEXAlgException.h"

namespace qpe::constraints {

template <typename Kind>
Kind* ConstrHandler::firstOfKind_(const std::string& objName,
                                  Kind* (*cast)(BaseConstraint*)) const
{
  if (const ObjectConstrs* entry = entry_(objName))
    for (BaseConstraint* constr : *entry)
      if (Kind* kind = cast(constr))
        return kind;
  return nullptr;
}

template <typename Kind>
Kind* ConstrHandler::firstGroup_(ConstrType groupType, const std::string& name,
                                 Kind* (*cast)(BaseConstraint*)) const
{
  const auto entry = groups.find(name);
  return entry == groups.end() ? nullptr : cast(entry->second.firstOfType(groupType));
}

template <typename Find, typename Create>
auto ConstrHandler::findOrCreate_(const std::string& objName, Find find, Create create)
{
  decltype(find()) constr = nullptr;
  if (!objName.empty()) {
    constr = find();
    if (!constr)
      constr = create();
  }
  return constr;
}

template <typename Kind>
Kind* ConstrHandler::findOrCreateKind_(ConstrType constrType, ObjectType objType,
                                       const std::string& objName,
                                       Kind* (*cast)(BaseConstraint*))
{
  return findOrCreate_(
      objName, [&] { return firstOfKind_(objName, cast); },
      [&] { return cast(createConstr(constrType, objType, objName)); });
}

template <typename Kind>
Kind* ConstrHandler::findOrCreateGroup_(ConstrType groupType, const std::string& name,
                                        Kind* (*cast)(BaseConstraint*))
{
  return findOrCreate_(
      name, [&] { return firstGroup_(groupType, name, cast); },
      [&] { return cast(createGlobalConstr(groupType, name)); });
}

// The kinds on ports only refuse other objects, before any test of the name.
inline void requirePort(const char* operation, BaseConstraint::ObjectType objType)
{
  if (objType != BaseConstraint::PORT)
    throw HEXAlgException(std::string("ConstrHandler::") + operation +
                          "() - objType must be PORT");
}

template <typename Kind>
Kind* ConstrHandler::findOrCreatePortKind_(const char* operation, ConstrType constrType,
                                           ObjectType objType, const std::string& objName,
                                           Kind* (*cast)(BaseConstraint*))
{
  requirePort(operation, objType);
  return findOrCreateKind_(constrType, objType, objName, cast);
}

template <typename Kind, typename Add, typename Set>
void ConstrHandler::addOrSet_(const std::string& objName, Kind* (*cast)(BaseConstraint*), Add add,
                              Set set)
{
  if (objName.empty())
    return;
  if (Kind* existing = firstOfKind_(objName, cast))
    add(*existing);
  else
    set();
}

}  // namespace qpe::constraints
