#pragma once

#include <memory>
#include <sstream>
#include <string>
#include <utility>

#include "DOM/DOM.h"
#include "Utils/Public/Archive/JSONArchives.h"

inline std::string save(const QN::DOM::Document& document)
{
    std::ostringstream stream;
    {
        cereal::JSONOutputArchive archive(stream);
        document.serialize(archive);
    }
    return std::move(stream).str();
}

inline std::unique_ptr<QN::DOM::Document> load(const std::string& text)
{
    auto document = std::make_unique<QN::DOM::Document>();
    std::istringstream stream(text);
    cereal::JSONInputArchive archive(stream);
    document->serialize(archive);
    return document;
}
