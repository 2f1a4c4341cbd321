#include "DOM/DOM_HeaderFooterPair.h"

#include "DOM/Shapes/DOM_Insets.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

namespace {

/// Picks what belongs to a side.
template <class T>
T& select(HeaderFooterType type, T& header, T& footer)
{
    QN_CONTRACT(type == HeaderFooterType::Header || type == HeaderFooterType::Footer,
                "DOM/DOM_HeaderFooterPair", __LINE__, "Unknown header footer type");
    return type == HeaderFooterType::Header ? header : footer;
}

} // namespace

QN_DEFINE_DEEP_COPY_WITH_BASE(HeaderFooterPair, Reflectable<UUIDable>)
QN_DEFINE_VALUE(HeaderFooterPair)

QN_REGISTER_RELATION(UUIDable, HeaderFooterPair)

void HeaderFooterPair::setHeader(TextWithTombstones header)
{
    _header = std::make_unique<TextWithTombstones>(std::move(header));
}

void HeaderFooterPair::setFooter(TextWithTombstones footer)
{
    _footer = std::make_unique<TextWithTombstones>(std::move(footer));
}

const TextWithTombstones& HeaderFooterPair::getHeaderOrFooter(HeaderFooterType type) const
{
    return derefRequired(asConst(select(type, _header, _footer)));
}

TextWithTombstones& HeaderFooterPair::getHeaderOrFooter(HeaderFooterType type)
{
    return derefRequired(select(type, _header, _footer));
}

void HeaderFooterPair::setHeaderOrFooter(TextWithTombstones&& text, HeaderFooterType type)
{
    select(type, _header, _footer) = std::make_unique<TextWithTombstones>(std::move(text));
}

const TextWithTombstones* HeaderFooterPair::findHeaderOrFooter(HeaderFooterType type) const
{
    return asConst(select(type, _header, _footer));
}

const boost::optional<PageNumber>& HeaderFooterPair::getHeaderOrFooterPageNumber(HeaderFooterType type) const
{
    return select(type, _headerPageNumber, _footerPageNumber);
}

void HeaderFooterPair::setHeaderOrFooterPageNumber(boost::optional<PageNumber>&& number,
                                                   HeaderFooterType type)
{
    select(type, _headerPageNumber, _footerPageNumber) = std::move(number);
}

UUID HeaderFooterPair::getHeaderUUID() const
{
    static const UUID headerUUID = UUID::generate();
    return getUUID().combine(headerUUID);
}

UUID HeaderFooterPair::getFooterUUID() const
{
    static const UUID footerUUID = UUID::generate();
    return getUUID().combine(footerUUID);
}

bool HeaderFooterPair::isEmpty() const
{
    return isEmpty(HeaderFooterType::Header) && isEmpty(HeaderFooterType::Footer);
}

bool HeaderFooterPair::isEmpty(HeaderFooterType type) const
{
    return getHeaderOrFooter(type).getBlocks().empty();
}

} // namespace QN::DOM
