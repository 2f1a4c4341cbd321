#pragma once

#include <string>
#include <utility>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// The two fonts of a theme: the major one for headings, the minor one for the body.
class DOM_API FontScheme {
public:
    const std::string& getName() const { return _name; }
    void setName(std::string name) { _name = std::move(name); }

    const std::string& getMajorFontName() const { return _majorFontName; }
    void setMajorFontName(std::string name) { _majorFontName = std::move(name); }

    const std::string& getMinorFontName() const { return _minorFontName; }
    void setMinorFontName(std::string name) { _minorFontName = std::move(name); }

    QN_VALUE(FontScheme)

private:
    std::string _name;
    std::string _majorFontName;
    std::string _minorFontName;

    BOOST_DESCRIBE_CLASS(FontScheme, (), (), (), (_name, _majorFontName, _minorFontName))
};

} // namespace QN::DOM
