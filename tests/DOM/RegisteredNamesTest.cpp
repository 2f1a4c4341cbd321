#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <typeinfo>
#include <vector>

#include "DOM/DOM.h"
#include "DOM/FamilyChecks.h"
#include "Support/ModelNames.h"
#include "Support/RandomDocument.h"
#include "Support/ValueText.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"

/// Objects of all classes that are registered: each goes through pointers to its family, under its name.

namespace QN::DOM::RegisteredNamesTest {
namespace {

using namespace Test;
using namespace cereal::detail;

constexpr std::string_view ModelPrefix = "QN::DOM::";

template <class Root, class T>
std::unique_ptr<Root> takeKind(std::vector<std::unique_ptr<Root>>& kinds)
{
    for (auto& kind : kinds) {
        if (kind && typeid(*kind) == typeid(T)) {
            return std::move(kind);
        }
    }
    ADD_FAILURE() << "no object of " << typeid(T).name();
    return nullptr;
}

/// A pointer of a kind that shares or owns the object: its text begins with the name, and what it loads is the same.
template <class T, class Ptr>
void expectStandsUnder(const std::string& name, const Ptr& object)
{
    const std::string begin =
        R"({"polymorphic_id":2147483649,"polymorphic_name":")" + name + R"(","ptr_wrapper":{)";
    const std::string text = toText(object);
    EXPECT_EQ(text.substr(0, begin.size()), begin);
    const auto loaded = fromText<Ptr>(text);
    ASSERT_TRUE(loaded);
    EXPECT_EQ(typeid(*loaded), typeid(T));
    EXPECT_TRUE(areDeeplyEqual(*loaded, *object));
    EXPECT_EQ(toText(loaded), text);
}

/// Every class of the family, of which there are as many as names, stands in a file under its name, through a pointer that
/// owns it and through one that shares it.
template <class Root, class... Ts>
void expectFamily(TypeList<Ts...> /*types*/, const Names& names)
{
    ASSERT_EQ(sizeof...(Ts), names.size());
    for (std::uint64_t seed = 1; seed <= 10; ++seed) {
        auto kinds = makeOneOfEachKind<Root>(seed);
        ASSERT_EQ(kinds.size(), names.size());
        auto name = names.begin();
        const auto check = [&]<class T>(TypeList<T>) {
            SCOPED_TRACE(*name + ", seed " + std::to_string(seed));
            const auto type = StaticObject<TypeNameMap>::getInstance().map.find(*name);
            ASSERT_NE(type, StaticObject<TypeNameMap>::getInstance().map.end());
            EXPECT_EQ(type->second, typeid(T));

            const std::unique_ptr<Root> object = takeKind<Root, T>(kinds);
            ASSERT_TRUE(object);
            expectStandsUnder<T>(*name, object);
            std::shared_ptr<Root> shared;
            object->cloneTo(shared);
            expectStandsUnder<T>(*name, shared);
            ++name;
        };
        (check(TypeList<Ts>{}), ...);
    }
}

/// A family whose root lists its classes itself.
template <class RootOfFamily, const Names& NamesOfFamily>
struct Family {
    using Root = RootOfFamily;
    static const Names& getNames() { return NamesOfFamily; }
};

template <class T>
class RegisteredFamilyTest : public testing::Test {
};

using Families = testing::Types<Family<Chart, ChartNames>, Family<ChartAxis, AxisNames>,
                                Family<Series, SeriesNames>, Family<GraphicalObject, GraphicalObjectNames>,
                                Family<Fill, FillNames>, Family<LineProps, LineNames>,
                                Family<Geometry, GeometryNames>, Family<TableFilter, TableFilterNames>>;
TYPED_TEST_SUITE(RegisteredFamilyTest, Families);

TYPED_TEST(RegisteredFamilyTest, StandsUnderItsNames)
{
    using Root = typename TypeParam::Root;
    expectFamily<Root>(typename Root::Types{}, TypeParam::getNames());
}

TEST(RegisteredNamesTest, AreTheNinetyFiveOfTheModelAndNoOthers)
{
    std::set<std::string> registered;
    for (const auto& entry : StaticObject<TypeNameMap>::getInstance().map) {
        if (entry.first.starts_with(ModelPrefix)) {
            registered.emplace(entry.first);
        }
    }
    EXPECT_EQ(registered.size(), 95U);
    EXPECT_EQ(registered, getModelNames());
}

TEST(RegisteredNamesTest, BlocksStandUnderTheirs)
{
    expectFamily<Block>(TypeList<Paragraph, Table, SectionTag, Shape, FieldBlock>{}, BlockNames);
}

TEST(RegisteredNamesTest, RunsStandUnderTheirs)
{
    expectFamily<DOM::Run>(
        TypeList<TextRun, TabRun, BreakRun, DrawingRun, BookmarkRun, FieldRun, AnchorRun>{}, RunNames);
}

TEST(RegisteredNamesTest, FormulaExpressionsStandUnderTheirs)
{
    using namespace FormulaSyntaxTree;
    expectFamily<Expr>(
        TypeList<String, Number, Label, Bool, Error, Empty, CellAddress, CellRange, FunctionCall, Array,
                 ArgumentsList, UnaryOp<UnaryOpType{0}>, UnaryOp<UnaryOpType{1}>, UnaryOp<UnaryOpType{2}>,
                 BinaryOp<BinaryOpType{0}>, BinaryOp<BinaryOpType{1}>, BinaryOp<BinaryOpType{2}>,
                 BinaryOp<BinaryOpType{3}>, BinaryOp<BinaryOpType{4}>, BinaryOp<BinaryOpType{5}>,
                 BinaryOp<BinaryOpType{6}>, BinaryOp<BinaryOpType{7}>, BinaryOp<BinaryOpType{8}>,
                 BinaryOp<BinaryOpType{9}>, BinaryOp<BinaryOpType{10}>, BinaryOp<BinaryOpType{11}>,
                 BinaryOp<BinaryOpType{12}>, BinaryOp<BinaryOpType{13}>>{},
        ExprNames);
}

TEST(RegisteredNamesTest, DrawingCommandsStandUnderTheirs)
{
    using namespace DrawingCommands;
    constexpr LinearCommandType Move{0};
    constexpr LinearCommandType Line{1};
    constexpr RotationDirection CW{0};
    constexpr RotationDirection CC{1};
    expectFamily<PathCommand>(
        TypeList<LinearCommand<Move>, LinearCommand<Line>, QuadCurveTo, CubicCurveTo, ArcCommand<Move>,
                 ArcCommand<Line>, ArcByVectorCommand<Move, CW>, ArcByVectorCommand<Line, CW>,
                 ArcByVectorCommand<Move, CC>, ArcByVectorCommand<Line, CC>,
                 EllipticalQuadrantCommand<EllipticalQuadrantType{0}>,
                 EllipticalQuadrantCommand<EllipticalQuadrantType{1}>, ArcRelative>{},
        PathCommandNames);
}

TEST(RegisteredNamesTest, DrawingFormulasStandUnderTheirs)
{
    using namespace DrawingFormulas;
    expectFamily<Expression>(TypeList<Value, Reference<ReferenceType{0}>, Reference<ReferenceType{1}>,
                                      Constant, UnaryFunction, BinaryFunction, IfFunction>{},
                             DrawingFormulaNames);
}

} // namespace
} // namespace QN::DOM::RegisteredNamesTest
