#pragma once

#include <boost/optional/optional.hpp>

#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// What can be said of a table as a whole.
class DOM_API TableProps {
public:
    /// Has no absent state: `override` always takes it over, and `intersect` of two that differ ends the process.
    bool isVisible() const { return _isVisible; }
    void setVisible(bool isVisible) { _isVisible = isVisible; }

    const boost::optional<float>& getLeadingIndent() const { return _leadingIndent; }
    void setLeadingIndent(const boost::optional<float>& indent) { _leadingIndent = indent; }

    QN_ORDERED_VALUE(TableProps)

private:
    bool _isVisible = true;
    boost::optional<float> _leadingIndent;

    BOOST_DESCRIBE_CLASS(TableProps, (), (), (), (_isVisible, _leadingIndent))
};

QN_DECLARE_ALGEBRA(TableProps)

} // namespace QN::DOM
