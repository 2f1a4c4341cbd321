#pragma once

#include <boost/optional/optional.hpp>
#include <boost/variant/variant.hpp>

#include <cstdint>
#include <utility>

#include "DOM/DOM_PageReferenceInfo.h"
#include "DOM/DOM_PagesCountInfo.h"
#include "DOM/DOM_Run.h"
#include "DOM/Properties/DOM_NumberFormatType.h"
#include "DOM/Tables/Properties/CellFormatModel/DOM_CellFormat.h"
#include "Utils/Public/IDHolder.h"
#include "Utils/Public/TaggedEmpty.h"
#include "Utils/Public/TaggedValue.h"

namespace QN::DOM {

/// A place in the text whose content follows from the document. Its text is `SpecialCharacter::Field`, and not what the
/// field shows.
class DOM_API FieldRun final : public Reflectable<Run> {
public:
    struct PageNumberTag;
    struct DateTag;
    struct TimeTag;
    struct FilePathTag;
    struct FileNameTag;
    struct TableNameTag;
    struct TitleTag;
    using PageNumberInfo = TaggedValue<boost::optional<NumberFormatType>, PageNumberTag>;
    using DateInfo = TaggedValue<CellFormat, DateTag>;
    using TimeInfo = TaggedValue<CellFormat, TimeTag>;
    using FilePathInfo = TaggedEmpty<FilePathTag>;
    using FileNameInfo = TaggedEmpty<FileNameTag>;
    using TableNameInfo = TaggedEmpty<TableNameTag>;
    using TitleInfo = TaggedEmpty<TitleTag>;
    using FieldInfo = boost::variant<PageReferenceInfo, PageNumberInfo, PagesCountInfo, DateInfo, TimeInfo,
                                     FilePathInfo, FileNameInfo, TableNameInfo, TitleInfo>;

    /// A reference to the page of a bookmark without a name.
    FieldRun() = default;
    explicit FieldRun(FieldInfo info) : _data(std::move(info)) {}

    const FieldInfo& getFieldInfo() const { return _data; }
    FieldInfo& getFieldInfo() { return _data; }

    /// A token for the run of the process, as blocks have one: shared by copies, not persisted, no part of equality.
    std::uint64_t getID() const { return _id.getID(); }

    const std::string& getText() const override;

    QN_VALUE(FieldRun)
    QN_CONCRETE(Run)

private:
    FieldInfo _data;
    IDHolder _id;

    BOOST_DESCRIBE_CLASS(FieldRun, (Run), (), (), (_data))
};

} // namespace QN::DOM
