#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <string>

#include "DOM/DOM.h"
#include "Support/ModelNames.h"
#include "Support/RandomDocument.h"
#include "Support/Randomize.h"
#include "Support/RoundTrip.h"
#include "Support/StatedStops.h"

namespace QN::Test::GeneratedDocumentsTest {
namespace {

constexpr std::uint64_t Documents = 10000;

/// Every so many documents one is large, deep enough for the series of a chart in a frame of a run or of a table.
constexpr std::uint64_t LargeEvery = 100;

/// Mostly small documents, and now and then a larger one.
int depthOf(std::uint64_t seed)
{
    return seed % LargeEvery == 0 ? 8 : seed % 10 == 0 ? 4 : 2;
}

TEST(GeneratedDocumentsTest, LoadAsTheyWereSavedAndSaveToTheSameBytes)
{
    for (std::uint64_t seed = 1; seed <= Documents; ++seed) {
        const DOM::Document document = makeRandomDocument(seed, depthOf(seed));
        const std::string json = toJson(document);
        DOM::Document loaded;
        loadJson(json, loaded);
        ASSERT_TRUE(loaded == document) << "seed " << seed;
        ASSERT_EQ(toJson(loaded), json) << "seed " << seed;
    }
}

/// Takes the names of the classes that stand in a text out of those that are still to be found.
void removeNamesOf(const std::string& json, std::set<std::string>& missing)
{
    static const std::string Key = R"("polymorphic_name":")";
    for (std::size_t place = json.find(Key); place != std::string::npos; place = json.find(Key, place)) {
        place += Key.size();
        missing.erase(json.substr(place, json.find('"', place) - place));
    }
}

TEST(GeneratedDocumentsTest, HoldEveryKindThatIsPersistedByName)
{
    std::set<std::string> missing = getModelNames();
    for (std::uint64_t seed = LargeEvery; seed <= Documents && !missing.empty(); seed += LargeEvery) {
        removeNamesOf(toJson(makeRandomDocument(seed, depthOf(seed))), missing);
    }
    EXPECT_EQ(missing, std::set<std::string>());
}

/// Whether an object has a second holder: what refers to an object that stands earlier in the text has its number alone,
/// without the top bit.
bool holdsSharedObject(const std::string& json)
{
    static const std::string Key = R"("id":)";
    for (std::size_t place = json.find(Key); place != std::string::npos; place = json.find(Key, place)) {
        place += Key.size();
        const unsigned long id = std::stoul(json.substr(place, 10));
        if (id != 0 && id < 0x80000000UL) {
            return true;
        }
    }
    return false;
}

TEST(GeneratedDocumentsTest, HoldObjectsWithOneHolderAndWithSeveral)
{
    int documentsWithSharing = 0;
    for (std::uint64_t seed = 1; seed <= 100; ++seed) {
        documentsWithSharing += holdsSharedObject(toJson(makeRandomDocument(seed, 3))) ? 1 : 0;
    }
    EXPECT_GT(documentsWithSharing, 10);
}

TEST(GeneratedDocumentsTest, StayAsTheyWereWhenTheirCopiesChange)
{
    for (std::uint64_t seed = 1; seed <= 500; ++seed) {
        const DOM::Document document = makeRandomDocument(seed, 3);
        const std::string json = toJson(document);
        DOM::Document copy(document);
        changeInPlace(copy, seed + Documents, 3);
        ASSERT_EQ(toJson(document), json) << "seed " << seed;
        ASSERT_NE(toJson(copy), json) << "seed " << seed;
    }
}

TEST(GeneratedDocumentsTest, AreEqualToTheirCopies)
{
    for (std::uint64_t seed = 1; seed <= 500; ++seed) {
        const DOM::Document document = makeRandomDocument(seed, 3);
        const DOM::Document copy(document);
        ASSERT_TRUE(copy == document) << "seed " << seed;
        ASSERT_EQ(toJson(copy), toJson(document)) << "seed " << seed;
    }
}

TEST(GeneratedDocumentsTest, LoadTheSameFromKeysInAnyOrderAmongUnknownKeys)
{
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        const std::string json = toJson(makeRandomDocument(seed, 3));
        DOM::Document loaded;
        loadJson(shuffleMembers(json, static_cast<unsigned>(seed)), loaded);
        ASSERT_EQ(toJson(loaded), json) << "seed " << seed;
    }
}

TEST(GeneratedDocumentsTest, EndInTheMissingKeyMessageWithoutAnyOneKey)
{
    expectMissingKeysFail(makeRandomDocument(3, 2));
}

/// A document of about 20 KB.
std::string makeMediumText()
{
    for (std::uint64_t seed = 1;; ++seed) {
        const std::string json = toJson(makeRandomDocument(seed));
        if (json.size() > 19000 && json.size() < 22000) {
            return json;
        }
    }
}

/// Loads any text: it ends in a document, which is then used, or in an exception of the archive.
void loadAnything(const std::string& text)
{
    if (holdsReversedIndexRange(text)) {
        return;
    }
    try {
        DOM::Document document;
        loadJson(text, document);
        if (!lacksOperand(toJson(document))) {
            const DOM::Document copy(document);
            static_cast<void>(copy == document);
        }
    } catch (const cereal::Exception& error) {
        EXPECT_STRNE(error.what(), "");
    }
}

TEST(GeneratedDocumentsTest, CutOffAtAnyByteEndInAnException)
{
    const std::string json = makeMediumText();
    for (std::size_t length = 0; length < json.size(); ++length) {
        EXPECT_EQ(loadError<DOM::Document>(json.substr(0, length)),
                  "rapidjson internal assertion failure: IsObject()")
            << length;
    }
}

/// Every sixteenth byte, so that a build without optimisation takes seconds and not minutes. DOM_MUTATION_STRIDE=1 in the
/// environment takes every one.
std::size_t mutationStride()
{
    const char* const text = std::getenv("DOM_MUTATION_STRIDE");
    return text != nullptr ? std::max<std::size_t>(std::strtoull(text, nullptr, 10), 1) : 16;
}

TEST(GeneratedDocumentsTest, WithAByteChangedEndInADocumentOrAnException)
{
    const std::size_t stride = mutationStride();
    const std::string json = makeMediumText();
    Random random(11);
    const std::string replacements = "0123456789{}[]\",:\\-.etn_ ";
    for (std::size_t place = 0; place < json.size(); place += stride) {
        for (int round = 0; round < 8; ++round) {
            std::string text = json;
            switch (round) {
            case 0:
                text.erase(place, 1);
                break;
            case 1:
                text.insert(place, 1, replacements[random.below(replacements.size())]);
                break;
            case 2:
                text[place] = static_cast<char>(text[place] ^ (1 << random.below(8)));
                break;
            case 3:
                text[place] = static_cast<char>(random.bits());
                break;
            default:
                text[place] = replacements[random.below(replacements.size())];
            }
            loadAnything(text);
        }
    }
}

} // namespace
} // namespace QN::Test::GeneratedDocumentsTest
