#pragma once

#include <string>
#include <utility>
#include <vector>

#include "DOM/Shapes/DOM_Geometry.h"
#include "DOM/Shapes/DOM_Path.h"
#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasAdjustValues.h"
#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasFormulasMap.h"

namespace QN::DOM {

/// An outline that carries everything itself: numbers, formulas over them and over each other, and paths whose
/// coordinates refer to both by position. No reference is checked, and there may be no path. Copies are deep.
class DOM_API CustomGeometry final : public Reflectable<Geometry> {
public:
    CustomGeometry() = default;

    /// Any text: it is not checked.
    const std::string& getType() const { return _type; }
    void setType(std::string type) { _type = std::move(type); }

    const DrawingFormulas::AdjustValues& getAdjustValues() const { return _adjustValues; }
    DrawingFormulas::AdjustValues& getAdjustValues() { return _adjustValues; }

    const DrawingFormulas::FormulasMap& getFormulasMap() const { return _formulasMap; }
    DrawingFormulas::FormulasMap& getFormulasMap() { return _formulasMap; }

    const std::vector<DrawingCommands::Path>& getPaths() const { return _paths; }
    std::vector<DrawingCommands::Path>& getPaths() { return _paths; }

    QN_CONCRETE(Geometry)
    QN_VALUE(CustomGeometry)

private:
    std::string _type;
    DrawingFormulas::AdjustValues _adjustValues;
    DrawingFormulas::FormulasMap _formulasMap;
    std::vector<DrawingCommands::Path> _paths;

    BOOST_DESCRIBE_CLASS(CustomGeometry, (Geometry), (), (), (_type, _adjustValues, _formulasMap, _paths))
};

} // namespace QN::DOM
