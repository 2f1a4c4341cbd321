#pragma once

#include <memory>
#include <string>

#include "Utils/Public/Archive/JSONInputArchive.h"
#include "Utils/Public/Archive/JSONOutputArchive.h"
#include "Utils/Public/Archive/PersistPointers.h"

namespace QN::Test {

/// Objects inside each other to any depth, released without recursion. Each link takes `NestingOfLink` nested values.
struct Chain {
    static constexpr std::size_t NestingOfLink = 3;

    Chain() = default;
    explicit Chain(std::size_t links)
    {
        for (; links > 0; --links) {
            auto longer = std::make_unique<Chain>();
            longer->next = std::move(next);
            next = std::move(longer);
        }
    }
    Chain(Chain&&) = default;
    Chain& operator=(Chain&&) = default;
    ~Chain()
    {
        while (next) {
            next = std::move(next->next);
        }
    }

    void serialize(cereal::JSONOutputArchive& archive) const { archive.member("next", next); }
    void serialize(cereal::JSONInputArchive& archive) { archive.member("next", next); }

    std::size_t getLinks() const
    {
        std::size_t links = 0;
        for (const Chain* link = next.get(); link != nullptr; link = link->next.get()) {
            ++links;
        }
        return links;
    }

    /// The text of a chain, as its own object.
    static std::string makeText(std::size_t links)
    {
        std::string text;
        for (std::size_t link = 0; link < links; ++link) {
            text += R"({"next":{"ptr_wrapper":{"valid":1,"data":)";
        }
        text += R"({"next":{"ptr_wrapper":{"valid":0}}})";
        for (std::size_t link = 0; link < links; ++link) {
            text += "}}}";
        }
        return text;
    }

    std::unique_ptr<Chain> next;
};

} // namespace QN::Test
