#pragma once

#include <string>
#include <utility>

#include "DOM/Shapes/DOM_Geometry.h"
#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasAdjustValues.h"

namespace QN::DOM {

/// An outline by its name in a list that the drawing side knows, with the numbers that the user has changed. The name is
/// any text: it is not checked.
class DOM_API PresetGeometry final : public Reflectable<Geometry> {
public:
    PresetGeometry() = default;
    explicit PresetGeometry(std::string type) : _type(std::move(type)) {}

    const std::string& getType() const { return _type; }
    void setType(std::string type) { _type = std::move(type); }

    bool hasAdjustValues() const { return !_adjustValues.isEmpty(); }
    const DrawingFormulas::AdjustValues& getAdjustValues() const { return _adjustValues; }
    DrawingFormulas::AdjustValues& getAdjustValues() { return _adjustValues; }

    QN_CONCRETE(Geometry)
    QN_VALUE(PresetGeometry)

private:
    std::string _type;
    DrawingFormulas::AdjustValues _adjustValues;

    BOOST_DESCRIBE_CLASS(PresetGeometry, (Geometry), (), (), (_type, _adjustValues))
};

} // namespace QN::DOM
