#pragma once

#include <boost/optional/optional.hpp>

#include <cstdint>
#include <utility>

#include "DOM/Properties/DOM_Color.h"
#include "DOM/Properties/DOM_LineProps.h"

namespace QN::DOM {

/// A line of the theme's `FormatScheme`. Its keys end in "Opt".
class DOM_API ThemeLineProps final : public Reflectable<LineProps> {
public:
    /// The place of the line in the scheme's list. Nothing checks that the list has it.
    boost::optional<std::uint64_t> getIndex() const { return _indexOpt; }
    void setIndex(boost::optional<std::uint64_t> index) { _indexOpt = index; }

    /// Takes the place of the placeholder in the colour of the referred line.
    const boost::optional<Color>& getColor() const { return _colorOpt; }
    void setColor(boost::optional<Color> color) { _colorOpt = std::move(color); }

    QN_ORDERED_VALUE(ThemeLineProps)
    QN_CONCRETE(LineProps)

private:
    boost::optional<std::uint64_t> _indexOpt;
    boost::optional<Color> _colorOpt;

    BOOST_DESCRIBE_CLASS(ThemeLineProps, (LineProps), (), (), (_indexOpt, _colorOpt))
};

} // namespace QN::DOM
