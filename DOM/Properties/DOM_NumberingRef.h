#pragma once

#include <boost/optional/optional.hpp>

#include <memory>

#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/TaggedValue.h"
#include "Utils/Public/UUID.h"

namespace QN::DOM {

struct ListTagUUIDTag {};
struct NumListUUIDTag {};

/// Names the one run of a list through the document that a paragraph belongs to.
using ListTagUUID = TaggedValue<UUID, ListTagUUIDTag>;

/// Names a `NumberedList`.
using NumListUUID = TaggedValue<UUID, NumListUUIDTag>;

/// By which a paragraph or a named text style joins a numbered list. Each member may be absent.
class DOM_API NumberingRef {
public:
    const boost::optional<ListTagUUID>& getListTagUUID() const { return _listTagUUID; }
    void setListTagUUID(boost::optional<ListTagUUID> uuid) { _listTagUUID = uuid; }

    const boost::optional<NumListUUID>& getNumListUUID() const { return _numListUUID; }
    void setNumListUUID(boost::optional<NumListUUID> uuid) { _numListUUID = uuid; }

    /// An index into the levels of the list.
    boost::optional<unsigned long> getLevel() const { return _level; }
    void setLevel(boost::optional<unsigned long> level) { _level = level; }

    QN_VALUE(NumberingRef)

private:
    boost::optional<ListTagUUID> _listTagUUID;
    boost::optional<NumListUUID> _numListUUID;
    boost::optional<unsigned long> _level;

    BOOST_DESCRIBE_CLASS(NumberingRef, (), (), (), (_listTagUUID, _numListUUID, _level))
};

QN_DECLARE_ALGEBRA(NumberingRef)

/// Whether a reference joins no list: it is null or lacks either UUID, whatever its level.
DOM_API bool isEmpty(const std::unique_ptr<NumberingRef>& ref);

} // namespace QN::DOM
