#include <gtest/gtest.h>

#include <cctype>
#include <cstdint>
#include <exception>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

#include "DOM/DOM_Paragraph.h"
#include "DOM/Properties/DOM_SharedObjectFactory.h"
#include "DOM/Shapes/DOM_Shape.h"
#include "DOM/Tables/DOM_Table.h"
#include "Support/RandomDocument.h"
#include "Support/RoundTrip.h"

/// Pools find a style by its order and know it by its equality: the two must agree on every member of every class that a
/// style can reach.

namespace QN::DOM::StyleInterningTest {

using namespace Test;

namespace {

constexpr std::size_t MaxStyles = 40;

/// Styles of each type with random content, those included that other styles hold.
class StyleCollection {
public:
    StyleCollection()
    {
        for (std::uint64_t seed = 1; seed <= 2000 && !isFull(); ++seed) {
            for (const auto& block : makeOneOfEachKind<Block>(seed)) {
                addStylesOf(*block);
            }
        }
    }

    template <class T>
    const std::vector<T>& get() const
    {
        return std::get<std::vector<T>>(_styles);
    }

private:
    bool isFull() const
    {
        return std::apply([](const auto&... styles) { return ((styles.size() == MaxStyles) && ...); },
                          _styles);
    }

    template <class T>
    void add(const T& style)
    {
        if constexpr (std::is_same_v<T, TableStyle>) {
            add(style.getDefaultRowStyle());
            add(style.getDefaultColumnStyle());
        } else if constexpr (std::is_same_v<T, RowStyle> || std::is_same_v<T, ColumnStyle>) {
            add(style.getDefaultCellStyle());
        } else if constexpr (std::is_same_v<T, ParagraphStyle>) {
            add(NumberingLevelStyle(style.getParaProps(), style.getRunProps()));
        }
        auto& styles = std::get<std::vector<T>>(_styles);
        if (styles.size() < MaxStyles && !style.isEmpty()) {
            styles.push_back(style);
        }
    }

    void addStylesOf(Block& block)
    {
        if (auto* const paragraph = dynamic_cast<Paragraph*>(&block)) {
            add(paragraph->getStyle());
            add(paragraph->getParaMarkStyle());
            for (const auto& run : paragraph->getRuns()) {
                if (run) {
                    add(run->getStyle());
                }
            }
        } else if (const auto* const table = dynamic_cast<const Table*>(&block)) {
            add(table->getStyle());
        } else if (const auto* const shape = dynamic_cast<const Shape*>(&block)) {
            add(shape->getStyle());
        }
    }

    std::tuple<std::vector<CellStyle>, std::vector<ColumnStyle>, std::vector<RowStyle>,
               std::vector<ParagraphStyle>, std::vector<RunStyle>, std::vector<ShapeStyle>,
               std::vector<TableStyle>, std::vector<NumberingLevelStyle>>
        _styles;
};

const StyleCollection& getCollection()
{
    static const StyleCollection Collection;
    return Collection;
}

} // namespace

template <class T>
class StyleInterningTest : public ::testing::Test {
};

using StyleTypes = ::testing::Types<CellStyle, ColumnStyle, RowStyle, ParagraphStyle, RunStyle, ShapeStyle,
                                    TableStyle, NumberingLevelStyle>;
TYPED_TEST_SUITE(StyleInterningTest, StyleTypes);

TYPED_TEST(StyleInterningTest, StylesAreEquivalentExactlyWhereTheyAreEqual)
{
    const auto& styles = getCollection().template get<TypeParam>();
    ASSERT_EQ(styles.size(), MaxStyles);
    for (const TypeParam& left : styles) {
        for (const TypeParam& right : styles) {
            const auto order = left.compare(right, NanOrder::Last);
            ASSERT_TRUE(order != std::partial_ordering::unordered);
            ASSERT_EQ(order == 0, left == right);
            ASSERT_TRUE((right.compare(left, NanOrder::Last) < 0) == (order > 0));
            ASSERT_TRUE(left.compare(right, NanOrder::Unordered) == order) << "without a NaN they are one";
        }
    }
}

TYPED_TEST(StyleInterningTest, AStyleThatWentThroughAFileIsFoundAgain)
{
    const SharedObjectFactory factory;
    const auto& styles = getCollection().template get<TypeParam>();
    std::vector<SharedStylePtr<TypeParam>> handles;
    for (const TypeParam& style : styles) {
        handles.push_back(factory.create(style));
    }
    for (std::size_t index = styles.size(); index-- > 0;) {
        const auto loaded = fromJson<TypeParam>(toJson(styles[index]));
        ASSERT_TRUE(loaded.compare(styles[index], NanOrder::Last) == 0);
        ASSERT_EQ(factory.create(loaded), handles[index]) << index;
    }
}

TYPED_TEST(StyleInterningTest, AnyNumberThatIsChangedInAFileCountsForOrderAndEqualityAlike)
{
    const auto& styles = getCollection().template get<TypeParam>();
    std::size_t changedCount = 0;
    for (std::size_t index = 0; index < styles.size() && changedCount < 1000; ++index) {
        const TypeParam& style = styles[index];
        const std::string json = toJson(style);
        for (std::size_t place = 0; place < json.size(); ++place) {
            if (std::isdigit(static_cast<unsigned char>(json[place])) == 0) {
                continue;
            }
            std::string text = json;
            text[place] = text[place] == '1' ? '2' : '1';
            TypeParam changed;
            try {
                loadJson(text, changed);
            } catch (const std::exception&) {
                continue; // no longer a style
            }
            const bool areEqual = changed == style;
            ASSERT_EQ(changed.compare(style, NanOrder::Last) == 0, areEqual) << place << ' ' << json;
            changedCount += areEqual ? 0U : 1U;
        }
    }
    EXPECT_GE(changedCount, 1000U);
}

} // namespace QN::DOM::StyleInterningTest
