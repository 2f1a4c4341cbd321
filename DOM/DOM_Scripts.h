#pragma once

#include <boost/optional/optional.hpp>

#include <map>
#include <string>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// The named scripts of a document, in the byte order of their names.
class DOM_API Scripts {
public:
    /// The text of a script, none for an unknown name.
    boost::optional<std::string> getScript(const std::string& name) const;
    /// Replaces the text where the name is there already.
    void insertScript(std::string name, std::string text);
    /// An unknown name is no failure.
    void removeScript(const std::string& name) { _scriptsByName.erase(name); }

    const std::map<std::string, std::string>& getScriptsByName() const { return _scriptsByName; }

    QN_VALUE(Scripts)

private:
    std::map<std::string, std::string> _scriptsByName;

    BOOST_DESCRIBE_CLASS(Scripts, (), (), (), (_scriptsByName))
};

} // namespace QN::DOM
