#pragma once

#include <boost/optional/optional.hpp>

#include <memory>
#include <utility>

#include "DOM/DOM_TextWithTombstones.h"
#include "DOM/Properties/DOM_PageNumber.h"
#include "DOM/Properties/DOM_PageProps.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Ptr/PtrUtils.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/UUIDable.h"

namespace QN::DOM {

/// A side of a `HeaderFooterPair`. There is no third.
enum class HeaderFooterType : unsigned char { Header = 0, Footer = 1 };

/// The header and the footer of pages, their page numbers and the properties of the pages themselves. Pairs form chains by
/// `UUID`, so that the pages of one section can differ.
///
/// Both texts are there from the start. One that is missing, as after a move from the pair, fails the contract "plainPtr"
/// when it is read. Setting a text destroys the former one: references to it dangle. A side above the last fails the
/// contract "Unknown header footer type". Copies are deep.
class DOM_API HeaderFooterPair final : public Reflectable<UUIDable> {
public:
    HeaderFooterPair() = default;
    explicit HeaderFooterPair(const UUID& uuid) : Reflectable<UUIDable>(uuid) {}
    QN_DEEP_COPY(HeaderFooterPair)
    ~HeaderFooterPair() override = default;

    const TextWithTombstones& getHeader() const { return derefRequired(asConst(_header)); }
    TextWithTombstones& getHeader() { return derefRequired(_header); }
    void setHeader(TextWithTombstones header);

    const TextWithTombstones& getFooter() const { return derefRequired(asConst(_footer)); }
    TextWithTombstones& getFooter() { return derefRequired(_footer); }
    void setFooter(TextWithTombstones footer);

    const TextWithTombstones& getHeaderOrFooter(HeaderFooterType type) const;
    TextWithTombstones& getHeaderOrFooter(HeaderFooterType type);
    void setHeaderOrFooter(TextWithTombstones&& text, HeaderFooterType type);
    /// Null for a text that is missing: for who must look before reading.
    const TextWithTombstones* findHeaderOrFooter(HeaderFooterType type) const;

    const boost::optional<PageNumber>& getHeaderPageNumber() const { return _headerPageNumber; }
    void setHeaderPageNumber(boost::optional<PageNumber> number) { _headerPageNumber = std::move(number); }

    const boost::optional<PageNumber>& getFooterPageNumber() const { return _footerPageNumber; }
    void setFooterPageNumber(boost::optional<PageNumber> number) { _footerPageNumber = std::move(number); }

    const boost::optional<PageNumber>& getHeaderOrFooterPageNumber(HeaderFooterType type) const;
    void setHeaderOrFooterPageNumber(boost::optional<PageNumber>&& number, HeaderFooterType type);

    /// The pair of the pages behind those of this one; nil for none.
    const UUID& getNextHeaderFooterUUID() const { return _nextHeaderFooterUUID; }
    void setNextHeaderFooterUUID(const UUID& uuid) { _nextHeaderFooterUUID = uuid; }

    const PageProps& getPageProps() const { return _pageProps; }
    PageProps& getPageProps() { return _pageProps; }

    /// An identity of the text of a side, made of the pair's own. It holds in this process only and is never persisted.
    UUID getHeaderUUID() const;
    UUID getFooterUUID() const;

    /// Whether neither text has blocks. Page numbers and tombstones do not count.
    bool isEmpty() const;
    bool isEmpty(HeaderFooterType type) const;

    QN_VALUE(HeaderFooterPair)

private:
    static const TextWithTombstones* asConst(const std::unique_ptr<TextWithTombstones>& text)
    {
        return text.get();
    }

    std::unique_ptr<TextWithTombstones> _header = std::make_unique<TextWithTombstones>();
    std::unique_ptr<TextWithTombstones> _footer = std::make_unique<TextWithTombstones>();
    boost::optional<PageNumber> _headerPageNumber;
    boost::optional<PageNumber> _footerPageNumber;
    UUID _nextHeaderFooterUUID;
    PageProps _pageProps;

    BOOST_DESCRIBE_CLASS(HeaderFooterPair, (UUIDable), (), (),
                         (_header, _footer, _headerPageNumber, _footerPageNumber, _nextHeaderFooterUUID,
                          _pageProps))
};

} // namespace QN::DOM
