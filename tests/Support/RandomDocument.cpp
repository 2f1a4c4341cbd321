#include "Support/RandomDocument.h"

#include <string_view>

#include "DOM/DOM.h"
#include "Support/Randomize.h"

namespace QN::Test {

template <>
struct Randomize<UUID> {
    static void apply(UUID& value, Random& random)
    {
        static constexpr std::string_view Digits = "0123456789abcdef";
        std::string text = "00000000-0000-0000-0000-000000000000";
        if (!random.oneIn(4)) {
            for (char& digit : text) {
                digit = digit == '-' ? '-' : Digits[random.below(Digits.size())];
            }
        }
        value = UUID(text);
    }
};

template <>
struct Randomize<BoolOpt> {
    static void apply(BoolOpt& value, Random& random)
    {
        switch (random.below(3)) {
        case 0:
            value = boost::none;
            break;
        default:
            value = random.oneIn(2);
        }
    }
};

template <>
struct Randomize<FloatNumber> {
    static void apply(FloatNumber& value, Random& random)
    {
        value = FloatNumber(RandomizeDetails::randomFloat<double>(random));
    }
};

template <class T>
struct Randomize<cinder::ColorAT<T>> {
    static void apply(cinder::ColorAT<T>& value, Random& random)
    {
        value = {static_cast<T>(random.bits()), static_cast<T>(random.bits()), static_cast<T>(random.bits()),
                 static_cast<T>(random.bits())};
    }
};

template <class T>
struct Randomize<cinder::Vec2<T>> {
    static void apply(cinder::Vec2<T>& value, Random& random)
    {
        randomize(value.x, random);
        randomize(value.y, random);
    }
};

template <class T>
struct Randomize<cinder::Vec3<T>> {
    static void apply(cinder::Vec3<T>& value, Random& random)
    {
        randomize(value.x, random);
        randomize(value.y, random);
        randomize(value.z, random);
    }
};

template <class Point>
struct Randomize<cinder::PolyLine<Point>> {
    static void apply(cinder::PolyLine<Point>& value, Random& random)
    {
        randomize(value.getPoints(), random);
        value.setClosed(random.oneIn(2));
    }
};

template <>
struct Randomize<TableRange> {
    static void apply(TableRange& value, Random& random)
    {
        const RowIndex row(random.below(1000));
        const ColumnIndex column(random.below(1000));
        value = TableRange(row, row + 1 + random.below(9), column, column + 1 + random.below(9));
    }
};

template <>
struct Randomize<CollaborationUtils::TombstonesStorage> {
    static void apply(CollaborationUtils::TombstonesStorage& value, Random& random)
    {
        value.clear();
        for (std::size_t count = random.below(5); count > 0; --count) {
            const CollaborationUtils::IndexIncludingTombstones position(random.below(30));
            if (value.convertIndex(position)) {
                value.replaceWithTombstone(position);
            }
        }
    }
};

template <class T>
struct Randomize<DOM::UUIDContainer<T>> {
    static void apply(DOM::UUIDContainer<T>& value, Random& random)
    {
        value.clear();
        for (std::size_t count = random.depth > 0 ? random.below(3) : 0; count > 0; --count) {
            T element;
            randomize(element, random);
            if (value.find(element.getUUID()) == nullptr) {
                value.insert(std::move(element));
            }
        }
    }
};

/// Not persisted, and no part of equality.
template <>
struct Randomize<DOM::SharedObjectFactory> {
    static void apply(DOM::SharedObjectFactory& /*value*/, Random& /*random*/) {}
};

/// Every copy of such a fill has a holder of its own for its image, so that a copy of fills that share one would not give the
/// same text.
template <>
struct Randomize<DOM::BlipFill> {
    static void apply(DOM::BlipFill& value, Random& random)
    {
        forEachMember<DOM::BlipFill>([&](auto member) { randomize(value.*member.pointer, random); });
        value = DOM::BlipFill(std::as_const(value));
    }
};

template <class T>
struct Randomize<DOM::SharedStyle<T>> {
    static void apply(DOM::SharedStyle<T>& value, Random& random)
    {
        forEachMember<DOM::SharedStyle<T>>([&](auto member) { randomize(value.*member.pointer, random); });
    }
};

/// An operator or call without an operand cannot be copied.
template <class T>
requires std::is_base_of_v<DOM::FormulaSyntaxTree::BaseCompoundExpr, T>
struct Randomize<T> {
    using ExprPtr = DOM::FormulaSyntaxTree::ExprPtr;

    static void fill(ExprPtr& operand)
    {
        if (!operand) {
            operand = ExprPtr(std::make_unique<DOM::FormulaSyntaxTree::Empty>());
        }
    }

    static void apply(T& value, Random& random)
    {
        forEachBase<T>(
            [&](auto base) { randomize(static_cast<typename decltype(base)::type&>(value), random); });
        forEachMember<T>([&](auto member) {
            auto& content = value.*member.pointer;
            randomize(content, random);
            if constexpr (requires { fill(*content.begin()); }) {
                if constexpr (requires { content.emplace_back(); }) {
                    content.emplace_back();
                }
                for (ExprPtr& operand : content) {
                    fill(operand);
                }
            }
        });
    }
};

/// Cells are set where a table's own operations put them; what the table derives from them stays as it is.
template <>
struct Randomize<DOM::Table> {
    static constexpr bool isStorage(std::string_view name)
    {
        return name == "_chunks" || name == "_rowIDContainer" || name == "_colIDContainer" ||
               name == "_colsTombstones" || name == "_rowsTombstones" || name == "_mergedCellsCache" ||
               name == "_pivotTablesCache" || name == "_maxChunkSize" || name == "_rowsCount" ||
               name == "_colsCount";
    }

    static void apply(DOM::Table& value, Random& random)
    {
        const std::size_t rows = 1 + random.below(5);
        const std::size_t columns = 1 + random.below(5);
        value = DOM::Table(RowIndex(rows), ColumnIndex(columns));
        for (std::size_t count = random.depth > 0 ? random.below(6) : 0; count > 0; --count) {
            randomize(value.getOrCreateCell(RowIndex(random.below(rows)), ColumnIndex(random.below(columns))),
                      random);
        }
        randomize(static_cast<UUIDable&>(value), random);
        forEachMember<DOM::Table>([&](auto member) {
            if constexpr (!isStorage(decltype(member)::name)) {
                randomize(value.*member.pointer, random);
            }
        });
    }
};

DOM::Document makeRandomDocument(std::uint64_t seed, int depth)
{
    Random random(seed);
    random.depth = depth;
    DOM::Document document;
    randomize(document, random);
    return document;
}

void changeInPlace(DOM::Document& document, std::uint64_t seed, int depth)
{
    Random random(seed);
    random.depth = depth;
    random.isInPlace = true;
    randomize(document, random);
}

namespace {

template <class Root, class... Ts>
std::vector<std::unique_ptr<Root>> makeOneOfEach(TypeList<Ts...> /*types*/, Random& random)
{
    std::vector<std::unique_ptr<Root>> objects;
    (objects.push_back(RandomizeDetails::makeConcrete<Root, Ts>(random)), ...);
    return objects;
}

} // namespace

template <class Root>
std::vector<std::unique_ptr<Root>> makeOneOfEachKind(std::uint64_t seed)
{
    Random random(seed);
    return makeOneOfEach<Root>(typename Root::Types{}, random);
}

template <class Root>
void changeInPlace(Root& object, std::uint64_t seed)
{
    Random random(seed);
    random.isInPlace = true;
    RandomizeDetails::changeObject(object, random);
}

#define QN_TEST_FAMILY(Root)                                                                                 \
    template std::vector<std::unique_ptr<Root>> makeOneOfEachKind<Root>(std::uint64_t seed);                 \
    template void changeInPlace<Root>(Root & object, std::uint64_t seed);

QN_TEST_FAMILY(DOM::Chart)
QN_TEST_FAMILY(DOM::ChartAxis)
QN_TEST_FAMILY(DOM::Series)
QN_TEST_FAMILY(DOM::Block)
QN_TEST_FAMILY(DOM::GraphicalObject)
QN_TEST_FAMILY(DOM::Fill)
QN_TEST_FAMILY(DOM::LineProps)
QN_TEST_FAMILY(DOM::Geometry)
QN_TEST_FAMILY(DOM::TableFilter)
QN_TEST_FAMILY(DOM::Run)
QN_TEST_FAMILY(DOM::FormulaSyntaxTree::Expr)
QN_TEST_FAMILY(DOM::DrawingCommands::PathCommand)
QN_TEST_FAMILY(DOM::DrawingFormulas::Expression)

#undef QN_TEST_FAMILY

} // namespace QN::Test
