#pragma once

#include <boost/optional/optional.hpp>

#include <cstdint>

#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/UUID.h"

namespace QN::DOM {

/// Where a section begins. Any other number passes through unchanged.
enum class SectionBreakType : std::int32_t {
    NextPage = 0,
    NextColumn = 1,
    Continuous = 2,
    EvenPage = 3,
    OddPage = 4,
};

/// What a section says of itself. Its pages are told by its headers and footers.
class DOM_API SectionProps {
public:
    /// The first `HeaderFooterPair` of the section; nil for none.
    const UUID& getHeaderFooterUUID() const { return _headerFooterUUID; }
    void setHeaderFooterUUID(const UUID& uuid) { _headerFooterUUID = uuid; }

    /// What the binding adds to the inner margin.
    boost::optional<float> getGutter() const { return _gutter; }
    void setGutter(boost::optional<float> gutter) { _gutter = gutter; }

    boost::optional<SectionBreakType> getBreakType() const { return _breakType; }
    void setBreakType(boost::optional<SectionBreakType> type) { _breakType = type; }

    boost::optional<unsigned int> getStartingPageNumber() const { return _startingPageNumber; }
    void setStartingPageNumber(boost::optional<unsigned int> number) { _startingPageNumber = number; }

    QN_VALUE(SectionProps)

private:
    UUID _headerFooterUUID;
    boost::optional<float> _gutter;
    boost::optional<SectionBreakType> _breakType;
    boost::optional<unsigned int> _startingPageNumber;

    BOOST_DESCRIBE_CLASS(SectionProps, (), (), (),
                         (_headerFooterUUID, _gutter, _breakType, _startingPageNumber))
};

} // namespace QN::DOM
