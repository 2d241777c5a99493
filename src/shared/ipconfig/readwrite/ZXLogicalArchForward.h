#pragma once

// The logical architecture classes, for the headers that only pass pointers
// to them around.
namespace IPConfig::Frameworks {

class ZXLogicalArchLInst;
class ZXLogicalArchModel;
class ZXLogicalArchModelRenameInterface;
class ZXLogicalArchModelVisitorInterface;
class ZXLogicalConnection;
class ZXLogicalPort;

}  // namespace IPConfig::Frameworks
