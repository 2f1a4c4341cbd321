#pragma once

#include <boost/describe/class.hpp>

namespace QN::DOM {

/// A run of rows or of columns by their identifiers, both ends inclusive.
template <class T>
struct IDRange {
    T begin{};
    T last{};

    friend bool operator==(const IDRange&, const IDRange&) = default;

    BOOST_DESCRIBE_CLASS(IDRange, (), (begin, last), (), ())
};

} // namespace QN::DOM
