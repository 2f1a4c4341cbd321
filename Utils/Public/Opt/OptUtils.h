#pragma once

#include <boost/optional/optional.hpp>

#include <utility>

#include "Utils/Public/Assert.h"

namespace QN {

namespace OptUtilsDetails {

template <class Opt>
void checkIsSet(const Opt& opt)
{
    QN_CONTRACT(opt, "Utils/Public/Opt/OptUtils", 73, "opt");
}

} // namespace OptUtilsDetails

/// The value of an optional that must hold one. An empty one fails the contract "opt".
template <class T>
const T& getRequired(const boost::optional<T>& opt)
{
    OptUtilsDetails::checkIsSet(opt);
    return *opt;
}

template <class T>
T& getRequired(boost::optional<T>& opt)
{
    OptUtilsDetails::checkIsSet(opt);
    return *opt;
}

template <class T>
T getRequired(boost::optional<T>&& opt)
{
    OptUtilsDetails::checkIsSet(opt);
    return *std::move(opt);
}

} // namespace QN
