#pragma once

#include <boost/optional/optional.hpp>

#include <string>
#include <utility>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// What a document says about itself.
class DOM_API DocumentProperties {
public:
    const boost::optional<std::string>& getCategory() const { return _category; }
    void setCategory(boost::optional<std::string> category) { _category = std::move(category); }

    const boost::optional<std::string>& getContentStatus() const { return _contentStatus; }
    void setContentStatus(boost::optional<std::string> status) { _contentStatus = std::move(status); }

    const boost::optional<std::string>& getDescription() const { return _description; }
    void setDescription(boost::optional<std::string> description) { _description = std::move(description); }

    const boost::optional<std::string>& getLanguage() const { return _language; }
    void setLanguage(boost::optional<std::string> language) { _language = std::move(language); }

    const boost::optional<std::string>& getTitle() const { return _title; }
    void setTitle(boost::optional<std::string> title) { _title = std::move(title); }

    QN_VALUE(DocumentProperties)

private:
    boost::optional<std::string> _category;
    boost::optional<std::string> _contentStatus;
    boost::optional<std::string> _description;
    boost::optional<std::string> _language;
    boost::optional<std::string> _title;

    BOOST_DESCRIBE_CLASS(DocumentProperties, (), (), (),
                         (_category, _contentStatus, _description, _language, _title))
};

} // namespace QN::DOM
