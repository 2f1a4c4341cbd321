#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasAdjustValues.h"

#include <algorithm>

#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::DrawingFormulas {

QN_DEFINE_VALUE(AdjustValues)
QN_DEFINE_DEEP_COPY(AdjustValues)

unsigned long AdjustValues::add(std::string name, double value)
{
    QN_CONTRACT(_values.size() == _valueNames.size(),
                "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasAdjustValues", 27,
                "_values.size() == _valueNames.size()");
    _values.push_back(value);
    try {
        _valueNames.push_back(std::move(name));
    } catch (...) {
        _values.pop_back();
        throw;
    }
    return _values.size() - 1;
}

boost::optional<double> AdjustValues::get(unsigned long index) const
{
    return index < _values.size() ? boost::make_optional(_values[index]) : boost::none;
}

const std::string* AdjustValues::getName(unsigned long index) const
{
    return index < _valueNames.size() ? &_valueNames[index] : nullptr;
}

boost::optional<double> AdjustValues::find(const std::string& name) const
{
    // When no name matches, the search ends before the first one: position -1, which is out of range.
    const auto found = std::find(_valueNames.rbegin(), _valueNames.rend(), name);
    return get(static_cast<unsigned long>(_valueNames.rend() - found) - 1);
}

} // namespace QN::DOM::DrawingFormulas
