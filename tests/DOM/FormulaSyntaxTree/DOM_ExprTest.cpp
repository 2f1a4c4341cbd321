#include "DOM/FormulaSyntaxTree/DOM_Expr.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"
#include "DOM/FormulaSyntaxTree/RandomExpr.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"

namespace QN::DOM::FormulaSyntaxTree::ExprTest {

namespace {

using Pointer = std::unique_ptr<Expr>;

/// The type names of a family in its order, each an object to load.
template <class... Ts>
std::vector<std::pair<std::string, Pointer>> makeNodes(TypeList<Ts...>, const std::vector<std::string>& names)
{
    std::vector<Pointer> nodes;
    (nodes.push_back(std::make_unique<Ts>()), ...);
    std::vector<std::pair<std::string, Pointer>> named;
    for (std::size_t index = 0; index < nodes.size(); ++index) {
        named.emplace_back(names.at(index), std::move(nodes[index]));
    }
    return named;
}

template <class Base, class Derived>
void expectRelated()
{
    EXPECT_FALSE(cereal::detail::PolymorphicCasters::lookup(typeid(Base), typeid(Derived),
                                                            cereal::detail::CastPurpose::Load)
                     .empty())
        << typeid(Derived).name();
}

template <class Base, class... Derived>
void expectAllRelated(TypeList<Derived...>)
{
    (expectRelated<Base, Derived>(), ...);
}

using UnaryOps = TypeList<UnaryPlus, UnaryMinus, UnaryPercent>;
using BinaryOps = TypeList<Plus, Minus, Mul, Div, Pow, Equal, NotEqual, Less, LessOrEqual, Greater,
                           GreaterOrEqual, Concat, Intersection, Union>;

} // namespace

TEST(ExprTest, TheFamilyHasItsTypesInOrder)
{
    using U = UnaryOpType;
    using B = BinaryOpType;
    EXPECT_TRUE((std::is_same_v<
                 Expr::Types,
                 TypeList<String, Number, Label, Bool, Error, Empty, CellAddress, CellRange, UnaryOp<U(0)>,
                          UnaryOp<U(1)>, UnaryOp<U(2)>, BinaryOp<B(0)>, BinaryOp<B(1)>, BinaryOp<B(2)>,
                          BinaryOp<B(3)>, BinaryOp<B(4)>, BinaryOp<B(5)>, BinaryOp<B(6)>, BinaryOp<B(7)>,
                          BinaryOp<B(8)>, BinaryOp<B(9)>, BinaryOp<B(10)>, BinaryOp<B(11)>, FunctionCall,
                          Array, BinaryOp<B(12)>, BinaryOp<B(13)>, ArgumentsList>>));
}

TEST(ExprTest, EveryTypeHasItsRegisteredName)
{
    const auto nodes = makeNodes(
        Expr::Types{}, {"String",       "Number",         "Label",        "Bool",         "Error",
                        "Empty",        "CellAddress",    "CellRange",    "UnaryPlus",    "UnaryMinus",
                        "UnaryPercent", "Plus",           "Minus",        "Mul",          "Div",
                        "Pow",          "Equal",          "NotEqual",     "Less",         "LessOrEqual",
                        "Greater",      "GreaterOrEqual", "Concat",       "FunctionCall", "Array",
                        "Intersection", "Union",          "ArgumentsList"});
    ASSERT_EQ(nodes.size(), 28U);
    for (const auto& [name, node] : nodes) {
        const std::string json = toJson(node);
        EXPECT_EQ(json.find(R"({"object":{"polymorphic_id":2147483649,)"
                            R"("polymorphic_name":"QN::DOM::FormulaSyntaxTree::)" +
                            name + R"(","ptr_wrapper":{"valid":1,"data":{"value0":)"),
                  0U)
            << json;
        const auto loaded = fromJson<Pointer>(json);
        const Expr& read = *loaded;
        const Expr& written = *node;
        EXPECT_EQ(typeid(read), typeid(written)) << name;
    }
}

TEST(ExprTest, EveryTypeIsRelatedToItsBases)
{
    expectAllRelated<Expr>(Expr::Types{});
    expectAllRelated<Expr>(
        TypeList<BasePrimitiveType, BaseReferenceExpr, BaseCompoundExpr, BaseUnaryOp, BaseBinaryOp>{});
    expectAllRelated<BasePrimitiveType>(TypeList<String, Number, Bool, Error, Empty, Array>{});
    expectAllRelated<BaseReferenceExpr>(TypeList<Label, CellAddress, CellRange>{});
    expectAllRelated<BaseCompoundExpr>(TypeList<ArgumentsList, FunctionCall, BaseUnaryOp, BaseBinaryOp>{});
    expectAllRelated<BaseCompoundExpr>(UnaryOps{});
    expectAllRelated<BaseUnaryOp>(UnaryOps{});
    expectAllRelated<BaseBinaryOp>(BinaryOps{});
    EXPECT_THROW(cereal::detail::PolymorphicCasters::lookup(typeid(BaseUnaryOp), typeid(Plus),
                                                            cereal::detail::CastPurpose::Load),
                 cereal::Exception);
}

TEST(ExprTest, ATreePersistsInFull)
{
    const Pointer tree = op<Plus>(number(1), call("F", args(number(2))));
    EXPECT_EQ(toJson(tree),
              R"j({"object":{"polymorphic_id":2147483649,)j"
              R"j("polymorphic_name":"QN::DOM::FormulaSyntaxTree::Plus","ptr_wrapper":{"valid":1,"data":)j"
              R"j({"value0":{"value0":{"value0":{}},"_args":[)j"
              R"j({"this->getPtr()":{"polymorphic_id":2147483650,)j"
              R"j("polymorphic_name":"QN::DOM::FormulaSyntaxTree::Number","ptr_wrapper":{"valid":1,"data":)j"
              R"j({"value0":{"value0":{}},"_value":1.0,"_format":{"ptr_wrapper":{"id":0}}}}}},)j"
              R"j({"this->getPtr()":{"polymorphic_id":2147483651,)j"
              R"j("polymorphic_name":"QN::DOM::FormulaSyntaxTree::FunctionCall","ptr_wrapper":)j"
              R"j({"valid":1,"data":{"value0":{"value0":{}},"_funcType":7,"_funcName":"F","_args":[)j"
              R"j({"this->getPtr()":{"polymorphic_id":2,"ptr_wrapper":{"valid":1,"data":)j"
              R"j({"value0":{"value0":{}},"_value":2.0,"_format":{"ptr_wrapper":{"id":0}}}}}}]}}}})j"
              R"j(]}}}}})j");
    expectNode(tree);
}

TEST(ExprTest, AChildPersistsAsAnObjectThatNamesTheWrappedPointer)
{
    EXPECT_EQ(toJson(ExprPtr(std::make_unique<Empty>())),
              R"j({"object":{"this->getPtr()":)j" + pointerJson("Empty", R"({"value0":{"value0":{}}})") +
                  "}}");
    EXPECT_EQ(toJson(ExprPtr()), R"j({"object":{"this->getPtr()":{"polymorphic_id":0}}})j");
    const auto loaded = fromJson<ExprPtr>(toJson(ExprPtr(number(4))));
    EXPECT_TRUE(areDeeplyEqual(*loaded, Number(4)));
}

TEST(ExprTest, ANodeHasTheSameKeysThroughAPointerAndByItself)
{
    // The names of types stand where a type occurs first: not in what is compared.
    const auto expectSame = [](const auto& node) {
        const Pointer pointer = clone(node);
        std::ostringstream stream;
        {
            cereal::JSONOutputArchive archive(stream);
            archive.member("names", pointer);
            archive.member("pointer", pointer);
            archive.member("node", node);
        }
        const std::string json = stream.str();
        const std::size_t place = json.find(R"(,"node":)");
        ASSERT_NE(place, std::string::npos);
        const std::string keys = json.substr(place + 8, json.size() - place - 9);
        EXPECT_NE(json.find(R"("pointer":{"polymorphic_id":1,"ptr_wrapper":{"valid":1,"data":)" + keys +
                            R"(}},"node":)"),
                  std::string::npos)
            << json;
    };
    expectSame(UnaryMinus{ExprPtr(std::make_unique<Empty>())});
    expectSame(Union{std::make_unique<Empty>(), row(args(std::make_unique<Bool>()))});
    expectSame(ArgumentsList(args(std::make_unique<Empty>(), std::make_unique<Bool>())));
    expectSame(FunctionCall(FormulaFunctionType(1), "F", args(std::make_unique<Empty>())));
    expectSame(static_cast<const Array&>(*row(args(std::make_unique<Empty>(), nullptr))));
    expectSame(cell({ColumnIndex(1), false}, {RowIndex(2), false}));
}

TEST(ExprTest, ANullPointerPersistsAsItsIdAlone)
{
    EXPECT_EQ(toJson(Pointer()), R"({"object":{"polymorphic_id":0}})");
    EXPECT_EQ(fromJson<Pointer>(R"({"object":{"polymorphic_id":0}})"), nullptr);
    Pointer target = number(1);
    loadJson(R"({"object":{"polymorphic_id":0}})", target);
    EXPECT_EQ(target, nullptr);
}

TEST(ExprTest, APointerThatIsNotValidLoadsAsNull)
{
    EXPECT_EQ(fromJson<Pointer>(R"({"object":{"polymorphic_id":2147483649,"polymorphic_name":)"
                                R"("QN::DOM::FormulaSyntaxTree::Plus","ptr_wrapper":{"valid":0}}})"),
              nullptr);
    const auto unary = fromJson<UnaryMinus>(
        R"j({"value0":{"value0":{"value0":{}},"_args":[{"this->getPtr()":{"polymorphic_id":2147483649,)j"
        R"j("polymorphic_name":"QN::DOM::FormulaSyntaxTree::Empty","ptr_wrapper":{"valid":0}}}]}})j");
    EXPECT_TRUE(unary.getArg() == nullptr);
}

TEST(ExprTest, NullChildrenLoadSaveAndCompare)
{
    Plus plus{number(1), number(2)};
    plus.getArg1() = nullptr;
    const auto loaded = fromJson<Plus>(toJson(plus));
    EXPECT_TRUE(loaded.getArg1() == nullptr);
    EXPECT_EQ(loaded, plus);
    EXPECT_EQ(toJson(loaded), toJson(plus));
    EXPECT_NE(loaded, (Plus{number(1), number(2)}));
    EXPECT_NE((Plus{number(1), number(2)}), loaded);
    expectPersists(list(args(nullptr, number(1), nullptr)));
    expectPersists(row(args(nullptr, number(1), nullptr)));
}

TEST(ExprDeathTest, ReadingThroughANullChildStopsTheProcess)
{
    Plus plus;
    EXPECT_DEATH(static_cast<void>(*plus.getArg1()), "Utils/Public/Ptr/PtrUtils:246: plainPtr");
    EXPECT_DEATH(static_cast<void>(*std::as_const(plus).getArg2()),
                 "Utils/Public/Ptr/PtrUtils:254: plainPtr");
}

TEST(ExprTest, AConstNodeGivesConstArguments)
{
    EXPECT_TRUE((std::is_same_v<decltype(*std::declval<const Plus&>().getArg1()), const Expr&>));
    EXPECT_TRUE((std::is_same_v<decltype(*std::declval<Plus&>().getArg1()), Expr&>));
}

TEST(ExprTest, VisitorsReachTheDynamicTypeConstOrNot)
{
    const Pointer tree = op<Intersection>(number(1), number(2));
    EXPECT_TRUE(
        ::QN::visit<bool>(*tree, [](auto& node) { return std::is_same_v<decltype(node), Intersection&>; }));
    EXPECT_TRUE(::QN::visit<bool>(std::as_const(*tree), [](auto& node) {
        return std::is_same_v<decltype(node), const Intersection&>;
    }));
}

TEST(ExprTest, TreesAreEqualNodeByNodeAndByType)
{
    const auto tree = op<Plus>(number(1), op<Mul>(number(2), number(3)));
    EXPECT_TRUE(areDeeplyEqual(*tree, *tree));
    EXPECT_TRUE(areDeeplyEqual(*tree, *op<Plus>(number(1), op<Mul>(number(2), number(3)))));
    EXPECT_FALSE(areDeeplyEqual(*tree, *op<Minus>(number(1), op<Mul>(number(2), number(3)))));
    EXPECT_FALSE(areDeeplyEqual(*tree, *op<Plus>(number(1), op<Div>(number(2), number(3)))));
    EXPECT_FALSE(areDeeplyEqual(*tree, *op<Plus>(number(1), op<Mul>(number(2), number(4)))));
    EXPECT_FALSE(areDeeplyEqual(*tree, *op<Plus>(number(1), op<Mul>(number(2), text("3")))));
    EXPECT_FALSE(areDeeplyEqual(*op<Intersection>(number(1), number(2)), *op<Union>(number(1), number(2))));
    EXPECT_FALSE(areDeeplyEqual(*op<UnaryPlus>(number(1)), *op<UnaryMinus>(number(1))));
    EXPECT_FALSE(areDeeplyEqual(*list(args(number(1))), *call("F", args(number(1)))));
}

TEST(ExprTest, SharedPointersToTreesPersistToo)
{
    const std::shared_ptr<const Expr> tree = op<Plus>(number(1), op<UnaryMinus>(number(2)));
    const auto loaded = fromJson<std::shared_ptr<const Expr>>(toJson(tree));
    EXPECT_TRUE(areDeeplyEqual(*tree, *loaded));
    EXPECT_EQ(toJson(loaded), toJson(tree));
}

TEST(ExprTest, AnUnknownNameIsRefusedAtAnyDepth)
{
    std::string json = toJson(op<Plus>(number(1), op<UnaryMinus>(text("a"))));
    const std::size_t name = json.find("FormulaSyntaxTree::String");
    json.replace(name, 25, "FormulaSyntaxTree::Nothing");
    EXPECT_EQ(
        loadError<Pointer>(json),
        "Trying to load an unregistered polymorphic type (QN::DOM::FormulaSyntaxTree::Nothing).\n"
        "Make sure your type is registered with CEREAL_REGISTER_TYPE and that the archive you are using was "
        "included (and registered with CEREAL_REGISTER_ARCHIVE) prior to calling CEREAL_REGISTER_TYPE.\n"
        "If your type is already registered and you still see this error, you may need to use "
        "CEREAL_REGISTER_DYNAMIC_INIT.");
}

TEST(ExprTest, ANameOfAnotherFamilyIsRefused)
{
    EXPECT_EQ(
        loadError<Pointer>(R"({"object":{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::NoFill",)"
                           R"("ptr_wrapper":{"valid":1,"data":{"value0":{}}}}})"),
        "Trying to load a registered polymorphic type with an unregistered polymorphic cast.\n"
        "Could not find a path to a base class (QN::DOM::FormulaSyntaxTree::Expr) for type: QN::DOM::NoFill");
}

TEST(ExprTest, ATypeNumberWithoutItsNameIsRefused)
{
    EXPECT_EQ(loadError<Pointer>(R"({"object":{"polymorphic_id":5,"ptr_wrapper":{"valid":0}}})"),
              "Error while trying to deserialize a polymorphic pointer. Could not find type id 5");
    EXPECT_EQ(loadError<Pointer>(R"({"object":{"polymorphic_id":1073741824,"ptr_wrapper":{"valid":0}}})"),
              "Cannot load a polymorphic type that is not default constructable and does not have a "
              "load_and_construct function");
}

TEST(ExprTest, ChildrenOfTheWrongJsonTypeAreRefused)
{
    const auto loadArgs = [](const std::string& json) {
        return loadError<Pointer>(
            R"({"object":)" +
            pointerJson("ArgumentsList", R"({"value0":{"value0":{}},"_args":)" + json + "}") + "}");
    };
    EXPECT_EQ(loadArgs("[]"), "<loaded>");
    EXPECT_EQ(loadArgs("{}"), "rapidjson internal assertion failure: IsArray()");
    EXPECT_EQ(loadArgs("[1]"), "rapidjson internal assertion failure: IsObject()");
    EXPECT_EQ(loadArgs("[{}]"), "JSON Parsing failed - provided NVP (this->getPtr()) not found");
    EXPECT_EQ(loadArgs(R"j([{"this->getPtr()":[]}])j"), "rapidjson internal assertion failure: IsObject()");
    const auto loadItems = [](const std::string& json) {
        return loadError<Pointer>(R"({"object":)" +
                                  pointerJson("Array", R"({"value0":{"value0":{}},"_items":)" + json + "}") +
                                  "}");
    };
    EXPECT_EQ(loadItems("[[],[]]"), "<loaded>");
    EXPECT_EQ(loadItems("[{}]"), "rapidjson internal assertion failure: IsArray()");
}

TEST(ExprTest, AnOperatorInATreeTakesItsExactNumberOfArguments)
{
    const auto load = [](const std::string& name, const std::string& json) {
        return loadError<Pointer>(
            R"({"object":)" +
            pointerJson(name, R"({"value0":{"value0":{"value0":{}},"_args":)" + json + "}}") + "}");
    };
    const std::string null = R"j({"this->getPtr()":{"polymorphic_id":0}})j";
    EXPECT_EQ(load("UnaryMinus", "[" + null + "]"), "<loaded>");
    EXPECT_EQ(load("UnaryMinus", "[]"), "An array of 1 elements has another size");
    EXPECT_EQ(load("UnaryMinus", "[" + null + "," + null + "]"), "An array of 1 elements has another size");
    EXPECT_EQ(load("Plus", "[" + null + "," + null + "]"), "<loaded>");
    EXPECT_EQ(load("Plus", "[" + null + "]"), "An array of 2 elements has another size");
}

TEST(ExprTest, ALoadReplacesWhatThePointerHeld)
{
    Pointer target = op<Plus>(number(1), number(2));
    loadJson(toJson(number(3)), target);
    EXPECT_TRUE(areDeeplyEqual(*target, Number(3)));
}

TEST(ExprTest, RandomTreesCloneAndPersist)
{
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        const Pointer tree = RandomExpr(seed).make(7);
        expectRoundTrip(tree);
        EXPECT_TRUE(areDeeplyEqual(*tree, *clone(*tree)));
        if (seed <= 20) {
            expectOrderDoesNotMatter(tree, 2);
        }
    }
}

} // namespace QN::DOM::FormulaSyntaxTree::ExprTest
