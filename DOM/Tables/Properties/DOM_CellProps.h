#pragma once

#include <boost/blank.hpp>
#include <boost/optional/optional.hpp>
#include <boost/variant/variant.hpp>

#include <cstdint>
#include <memory>
#include <utility>

#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/TaggedEmpty.h"

namespace QN::DOM {

class BordersProps;
class Fill;
class Insets;

/// Where the content of a cell stands between its upper and its lower edge. Other numbers pass through uninterpreted.
enum class VerticalAlignment : std::int32_t { Bottom = 0, Center = 1, Top = 2, Justify = 3, Distributed = 4 };

/// What becomes of text that is wider than its cell. Other numbers pass through uninterpreted.
enum class TextLayout : std::int32_t { SingleLine = 0, Wrap = 1, ShrinkToFit = 2 };

struct StackedCharsTag;

/// What can be said of a cell apart from its text. Each member may be absent.
class DOM_API CellProps {
public:
    /// Nothing, characters stacked upright one below the other, or an angle.
    using TextOrientation = boost::variant<boost::blank, TaggedEmpty<StackedCharsTag>, double>;

    const std::shared_ptr<const BordersProps>& getBorders() const { return _borders; }
    void setBorders(std::shared_ptr<const BordersProps> borders) { _borders = std::move(borders); }

    const std::shared_ptr<const Insets>& getMargins() const { return _margins; }
    void setMargins(std::shared_ptr<const Insets> margins) { _margins = std::move(margins); }

    const std::shared_ptr<const Fill>& getFill() const { return _fill; }
    void setFill(std::shared_ptr<const Fill> fill) { _fill = std::move(fill); }

    const boost::optional<VerticalAlignment>& getVerticalAlignment() const { return _verticalAlignment; }
    void setVerticalAlignment(const boost::optional<VerticalAlignment>& alignment)
    {
        _verticalAlignment = alignment;
    }

    const boost::optional<float>& getWidth() const { return _width; }
    void setWidth(const boost::optional<float>& width) { _width = width; }

    const boost::optional<TextLayout>& getTextLayout() const { return _textLayout; }
    void setTextLayout(const boost::optional<TextLayout>& layout) { _textLayout = layout; }

    const TextOrientation& getTextOrientation() const { return _textOrientation; }
    void setTextOrientation(const TextOrientation& orientation) { _textOrientation = orientation; }

    QN_ORDERED_VALUE(CellProps)

private:
    std::shared_ptr<const BordersProps> _borders;
    std::shared_ptr<const Insets> _margins;
    std::shared_ptr<const Fill> _fill;
    boost::optional<VerticalAlignment> _verticalAlignment;
    boost::optional<float> _width;
    boost::optional<TextLayout> _textLayout;
    TextOrientation _textOrientation;

    BOOST_DESCRIBE_CLASS(CellProps, (), (), (),
                         (_borders, _margins, _fill, _verticalAlignment, _width, _textLayout,
                          _textOrientation))
};

/// Two fills, or two lines of the borders, that differ end the process in `intersect`.
QN_DECLARE_ALGEBRA(CellProps)

/// What holds for the cells of a table in a text document where nothing else is said. One object for the whole process.
DOM_API const std::shared_ptr<const CellProps>& getWordDefaultCellProps();

/// The same for the cells of a worksheet.
DOM_API const std::shared_ptr<const CellProps>& getWorksheetDefaultCellProps();

} // namespace QN::DOM
