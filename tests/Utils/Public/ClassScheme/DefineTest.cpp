#include "Utils/Public/ClassScheme/Define.h"

#include <boost/smart_ptr/intrusive_ref_counter.hpp>
#include <boost/unordered_map.hpp>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Support/TestFamily.h"
#include "Support/ValueText.h"
#include "Utils/Public/Size2D.h"

namespace QN::DefineTest {

namespace {

using namespace QN::Test;

struct IndexTag;

struct Style : boost::intrusive_ref_counter<Style> {
    std::string _name;
    QN_VALUE(Style)
    BOOST_DESCRIBE_CLASS(Style, (), (_name), (), ())
};
QN_DEFINE_VALUE(Style)

/// A member of each kind.
class Everything : public UUIDable {
public:
    Everything() : UUIDable(UUID()) {}

    QN_DEEP_COPY(Everything)
    QN_VALUE(Everything)

    bool _flag = false;
    std::uint8_t _byte = 0;
    std::uint64_t _count = 0;
    float _size = 0.0F;
    std::string _text;
    BoolOpt _option;
    TaggedValue<std::uint64_t, IndexTag> _index;
    boost::optional<Size2D<float>> _extent;
    boost::variant<boost::blank, int, std::string> _choice;
    std::vector<std::unique_ptr<Item>> _items;
    std::map<std::string, std::unique_ptr<double>> _named;
    boost::unordered_map<int, std::string> _hashed;
    std::pair<int, float> _pair;
    PropagateConstPtr<std::unique_ptr<Size2D<float>>> _owned;
    std::shared_ptr<const Tone> _tone;
    std::shared_ptr<const Tone> _sameTone;
    boost::intrusive_ptr<const Style> _style;

    BOOST_DESCRIBE_CLASS(Everything, (UUIDable),
                         (_flag, _byte, _count, _size, _text, _option, _index, _extent, _choice, _items,
                          _named, _hashed, _pair, _owned, _tone, _sameTone, _style),
                         (), ())
};
QN_DEFINE_VALUE(Everything)
QN_DEFINE_DEEP_COPY_WITH_BASE(Everything, UUIDable)

Everything makeEverything()
{
    Everything all;
    all.setUUID(UUID::generate());
    all._flag = true;
    all._byte = 255;
    all._count = 18446744073709551615U;
    all._size = 0.1F;
    all._text = std::string("te\0xt \"\xFF", 8);
    all._option = false;
    all._index.set(7);
    all._extent.emplace(1.0F, 2.0F);
    all._choice = std::string("chosen");
    all._items.push_back(std::make_unique<Word>("a", 1.5));
    all._items.push_back(nullptr);
    all._items.push_back(std::make_unique<Group>());
    all._named.emplace("one", std::make_unique<double>(1));
    all._named.emplace("none", nullptr);
    all._hashed.emplace(5, "five");
    all._pair = {1, 2.5F};
    all._owned = std::make_unique<Size2D<float>>(3.0F, 4.0F);
    all._tone = all._sameTone = std::make_shared<Striped>(0.5F, std::vector<float>{1, 2});
    auto* const style = new Style;
    style->_name = "style";
    all._style.reset(style);
    return all;
}

/// Keys in another order than the members, of which the order of the comparison is the second.
class Reordered {
public:
    Reordered() = default;
    Reordered(int begin, int end) : _begin(begin), _end(end) {}
    QN_ORDERED_VALUE(Reordered)

private:
    int _begin = 0;
    int _end = 0;

    QN_JSON_ORDER(Reordered, 1, 0)
    BOOST_DESCRIBE_CLASS(Reordered, (), (), (), (_begin, _end))
};
QN_DEFINE_ORDERED_VALUE(Reordered)

/// Writes its operations itself where it departs from its list: a key of another name, and a check.
class Departing {
public:
    QN_VALUE(Departing)
    int _limited = 1;
    int _cache = 0;

    BOOST_DESCRIBE_CLASS(Departing, (), (_limited), (), ())
};
QN_DEFINE_EQUALITY(Departing)

void Departing::serialize(cereal::JSONOutputArchive& archive) const
{
    archive.member("first key", 1);
    saveMembers(archive, *this);
}

void Departing::serialize(cereal::JSONInputArchive& archive)
{
    int first = 0;
    archive.member("first key", first);
    loadMembers(archive, *this);
    if (_limited > 9) {
        throw cereal::Exception("more than 9");
    }
}

TEST(DefineTest, ClassOfAllKindsOfMembersPersistsWithDefaults)
{
    expectPersists(Everything());
}

TEST(DefineTest, ClassOfAllKindsOfMembersPersistsWithEverythingSet)
{
    expectPersists(makeEverything());
}

TEST(DefineTest, EachChangeOfAFileOfEverythingGivesAnObjectOrAnException)
{
    const std::string json = toJson(makeEverything());
    int loaded = 0;
    int refused = 0;
    for (std::size_t place = 0; place < json.size(); ++place) {
        for (const char byte :
             {'\0', '"', '0', '9', '-', '{', ']', ',', 'e', static_cast<char>(json[place] ^ 1)}) {
            std::string changed = json;
            changed[place] = byte;
            try {
                fromJson<Everything>(changed);
                ++loaded;
            } catch (const cereal::Exception& error) {
                EXPECT_TRUE(isStatedLoadError(error.what())) << changed << "\n" << error.what();
                ++refused;
            }
        }
    }
    EXPECT_GT(loaded, 100);
    EXPECT_GT(refused, 1000);
}

TEST(DefineTest, AnyValueInPlaceOfAnotherGivesAnObjectOrAnException)
{
    int loaded = 0;
    int refused = 0;
    forEachReplacedValue(toJson(makeEverything()), [&](const std::string& changed) {
        try {
            const std::string json = toJson(fromJson<Everything>(changed));
            EXPECT_EQ(toJson(fromJson<Everything>(json)), json);
            ++loaded;
        } catch (const cereal::Exception& error) {
            EXPECT_TRUE(isStatedLoadError(error.what())) << changed << "\n" << error.what();
            ++refused;
        }
    });
    EXPECT_GT(loaded, 100);
    EXPECT_GT(refused, 1000);
}

TEST(DefineTest, FileOfEverythingCutOffAnywhereRaises)
{
    const std::string json = toJson(makeEverything());
    for (std::size_t length = 0; length < json.size(); ++length) {
        EXPECT_EQ(loadError<Everything>(json.substr(0, length)),
                  "rapidjson internal assertion failure: IsObject()")
            << length;
    }
}

TEST(DefineTest, CopyIsDeepAndEqual)
{
    const Everything source = makeEverything();
    Everything copy(source);
    EXPECT_EQ(copy, source);
    EXPECT_EQ(copy.getUUID(), source.getUUID());
    EXPECT_NE(copy._items[0], source._items[0]);
    EXPECT_NE(copy._named.at("one"), source._named.at("one"));
    EXPECT_NE(copy._owned.get(), source._owned.get());
    EXPECT_EQ(copy._tone, source._tone);
    EXPECT_EQ(copy._style, source._style);
    dynamic_cast<Word&>(*copy._items[0])._text = "changed";
    EXPECT_NE(copy, source);
    copy = source;
    EXPECT_EQ(copy, source);
}

TEST(DefineTest, StatedOrderOfKeysIsThatOfTheFileAlone)
{
    expectText(Reordered(1, 2), R"({"_end":2,"_begin":1})");
    EXPECT_LT(Reordered(1, 9), Reordered(2, 0));
    EXPECT_EQ(Reordered(1, 9), Reordered(1, 9));
}

TEST(DefineTest, ClassMayDepartFromItsList)
{
    expectText(Departing(), R"({"first key":1,"_limited":1})");
    EXPECT_EQ(textError<Departing>(R"({"first key":1,"_limited":10})"), "more than 9");
    Departing cached;
    cached._cache = 5;
    EXPECT_EQ(cached, Departing());
}

} // namespace

} // namespace QN::DefineTest
