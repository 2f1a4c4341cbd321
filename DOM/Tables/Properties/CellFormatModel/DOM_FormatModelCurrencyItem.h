#pragma once

#include <boost/optional/optional.hpp>

#include <string>
#include <utility>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM::CellFormatModel {

/// A currency symbol and the locale that it was chosen with.
class DOM_API CurrencyItem {
public:
    CurrencyItem() = default;
    explicit CurrencyItem(std::string currencySymbol, boost::optional<unsigned int> language = boost::none)
        : _currencySymbol(std::move(currencySymbol)), _language(language)
    {
    }

    const std::string& getCurrencySymbol() const { return _currencySymbol; }
    void setCurrencySymbol(std::string currencySymbol) { _currencySymbol = std::move(currencySymbol); }

    const boost::optional<unsigned int>& getLanguage() const { return _language; }
    void setLanguage(boost::optional<unsigned int> language) { _language = language; }

    QN_ORDERED_VALUE(CurrencyItem)

private:
    std::string _currencySymbol;
    boost::optional<unsigned int> _language;

    BOOST_DESCRIBE_CLASS(CurrencyItem, (), (), (), (_currencySymbol, _language))
};

} // namespace QN::DOM::CellFormatModel
