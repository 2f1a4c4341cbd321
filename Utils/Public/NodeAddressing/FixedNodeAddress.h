#pragma once

#include <cstddef>
#include <string>

namespace QN::NodeAddressing {

/// A step of a node address: a member, which has a name. The namespace of `NodeType` gives that name by
/// `getNodeTypeName(NodeType)`.
template <class NodeType>
class FixedNodeAddress {
public:
    FixedNodeAddress() = default;
    explicit FixedNodeAddress(NodeType nodeType) : _nodeType(nodeType) {}

    NodeType getNodeType() const { return _nodeType; }
    void setNodeType(NodeType nodeType) { _nodeType = nodeType; }

    friend bool operator==(const FixedNodeAddress&, const FixedNodeAddress&) = default;
    friend std::size_t hash_value(const FixedNodeAddress& address)
    {
        return static_cast<std::size_t>(address._nodeType);
    }

    std::string toString() const { return getNodeTypeName(_nodeType); }

private:
    NodeType _nodeType{};
};

} // namespace QN::NodeAddressing
