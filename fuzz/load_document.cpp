#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <string_view>

#include "DOM/DOM.h"
#include "Support/StatedStops.h"
#include "Utils/Public/Archive/JSONArchives.h"

/// Loads any bytes as a document. What loads is copied and compared, unless it holds a table or
/// a formula, and saved; what was saved must load again and be saved to the same bytes.

namespace {

std::string save(const QN::DOM::Document& document)
{
    std::ostringstream stream;
    {
        cereal::JSONOutputArchive archive(stream);
        document.serialize(archive);
    }
    return stream.str();
}

void load(const std::string& text, QN::DOM::Document& document)
{
    std::istringstream stream(text);
    cereal::JSONInputArchive archive(stream);
    document.serialize(archive);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    if (QN::Test::holdsReversedIndexRange(text)) {
        return 0;
    }
    QN::DOM::Document document;
    try {
        load(text, document);
    } catch (const cereal::Exception&) {
        return 0;
    }
    if (!QN::Test::holdsTableOrFormula(text)) {
        const QN::DOM::Document copy(document);
        static_cast<void>(copy == document);
    }
    const std::string saved = save(document);
    QN::DOM::Document reloaded;
    load(saved, reloaded);
    if (save(reloaded) != saved) {
        std::abort();
    }
    return 0;
}
