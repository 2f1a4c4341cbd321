#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <string_view>

#include "DOM/DOM.h"
#include "Support/StatedStops.h"
#include "Utils/Public/Archive/JSONArchives.h"

/// Loads any bytes as a document. What loads is saved; what was saved must load again and be saved to the same bytes. It is
/// copied and compared, but for one stated stop: a node of a formula that lacks an operand.

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
    const std::string saved = save(document);
    if (!QN::Test::lacksOperand(saved)) {
        const QN::DOM::Document copy(document);
        static_cast<void>(copy == document);
    }
    QN::DOM::Document reloaded;
    load(saved, reloaded);
    if (save(reloaded) != saved) {
        std::abort();
    }
    return 0;
}
