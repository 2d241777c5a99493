#pragma once

// The store, the root and the eighteen constraint kinds, for the headers that
// only pass pointers to them around.
namespace qpe::constraints {

class ConstrHandler;
class BaseConstraint;

class BufferConstr;
class ReservedMemoryConstr;
class TileConstr;
class MemConstr;
class ShimConstr;
class PortLocConstr;
class StreamChannelConstr;
class AttrConstr;
class ColocatedNodesConstr;
class RelativeNodesConstr;
class ColocatedPortsConstr;
class ColocatedDmaConstr;
class ColocatedMemoriesConstr;
class FifoLocationsConstr;
class AreaGroupConstr;
class InstGroupConstr;
class DependentRoutingGroupConstr;
class IsomorphicGraphGroupConstr;

}  // namespace qpe::constraints
