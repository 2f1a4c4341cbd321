// A user's program: all that it knows of the library is one header.
#include "DOM/DOM.h"

#include <cstdlib>
#include <iostream>
#include <memory>
#include <sstream>
#include <utility>

int main()
{
    auto paragraph = std::make_unique<QN::DOM::Paragraph>();
    paragraph->getRuns().push_back(std::make_unique<QN::DOM::TextRun>("Hello"));

    QN::DOM::Document document;
    document.getBlocks().push_back(std::move(paragraph));

    std::stringstream stream;
    {
        cereal::JSONOutputArchive archive(stream);
        document.serialize(archive);
    }

    QN::DOM::Document loaded;
    {
        cereal::JSONInputArchive archive(stream);
        loaded.serialize(archive);
    }
    if (!(loaded == document) || loaded == QN::DOM::Document()) {
        std::cerr << "the loaded document is not the saved one\n";
        return EXIT_FAILURE;
    }
    try {
        std::istringstream malformed("{\"_documentProperties\":");
        cereal::JSONInputArchive archive(malformed);
        std::cerr << "a malformed text was accepted\n";
        return EXIT_FAILURE;
    } catch (const cereal::Exception&) {
        std::cout << "consumer: equal\n";
    }
    return EXIT_SUCCESS;
}
