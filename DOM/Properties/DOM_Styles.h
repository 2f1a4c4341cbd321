#pragma once

#include <memory>
#include <utility>

#include "DOM/DOM_UUIDContainer.h"
#include "DOM/Properties/DOM_CellStyle.h"
#include "DOM/Properties/DOM_ParagraphStyle.h"
#include "DOM/Properties/DOM_TableStyle.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/UUID.h"

namespace QN::DOM {

class ParaProps;
class RunProps;

/// The style store of a document: its named styles, and what holds where nothing else is said.
///
/// The named style that is the default of a kind is the parent of the default style of that kind.
class DOM_API Styles {
public:
    Styles() = default;
    Styles(const Styles&) = default;
    Styles(Styles&&) noexcept = default;
    Styles& operator=(const Styles& other) { return *this = Styles(other); }
    Styles& operator=(Styles&&) noexcept = default;
    ~Styles() = default;

    const UUIDContainer<NamedTextStyle>& getTextStyles() const { return _textStyles; }
    UUIDContainer<NamedTextStyle>& getTextStyles() { return _textStyles; }

    const UUIDContainer<NamedTableStyle>& getTableStyles() const { return _tableStyles; }
    UUIDContainer<NamedTableStyle>& getTableStyles() { return _tableStyles; }

    const UUIDContainer<NamedShapeStyle>& getShapeStyles() const { return _shapeStyles; }
    UUIDContainer<NamedShapeStyle>& getShapeStyles() { return _shapeStyles; }

    const ParagraphStyle& getDefaultParagraphStyle() const { return _defaultParagraphStyle; }
    const UUID& getDefaultParagraphStyleUUID() const { return _defaultParagraphStyle.getParentUUID(); }
    void setDefaultParagraphStyleUUID(const UUID& uuid) { _defaultParagraphStyle.setParentUUID(uuid); }

    const TableStyle& getDefaultTableStyle() const { return _defaultTableStyle; }
    const UUID& getDefaultTableStyleUUID() const { return _defaultTableStyle.getParentUUID(); }
    void setDefaultTableStyleUUID(const UUID& uuid) { _defaultTableStyle.setParentUUID(uuid); }

    const CellStyle& getDefaultCellStyle() const { return _defaultCellStyle; }
    const UUID& getDefaultCellStyleUUID() const { return _defaultCellStyle.getParentUUID(); }
    void setDefaultCellStyleUUID(const UUID& uuid) { _defaultCellStyle.setParentUUID(uuid); }

    const std::shared_ptr<const ParaProps>& getDefaultParaProps() const { return _defaultParaProps; }
    void setDefaultParaProps(std::shared_ptr<const ParaProps> props) { _defaultParaProps = std::move(props); }

    const std::shared_ptr<const RunProps>& getDefaultRunProps() const { return _defaultRunProps; }
    void setDefaultRunProps(std::shared_ptr<const RunProps> props) { _defaultRunProps = std::move(props); }

    /// The first text style with the predefined name of hyperlinks, in the order of the container; nil when there is none.
    /// Linear.
    UUID getHyperlinkStyleUUID() const;

    QN_VALUE(Styles)

private:
    UUIDContainer<NamedTextStyle> _textStyles;
    UUIDContainer<NamedTableStyle> _tableStyles;
    UUIDContainer<NamedShapeStyle> _shapeStyles;
    ParagraphStyle _defaultParagraphStyle;
    TableStyle _defaultTableStyle;
    CellStyle _defaultCellStyle;
    std::shared_ptr<const ParaProps> _defaultParaProps;
    std::shared_ptr<const RunProps> _defaultRunProps;

    BOOST_DESCRIBE_CLASS(Styles, (), (), (),
                         (_textStyles, _tableStyles, _shapeStyles, _defaultParagraphStyle, _defaultTableStyle,
                          _defaultCellStyle, _defaultParaProps, _defaultRunProps))
};

} // namespace QN::DOM
