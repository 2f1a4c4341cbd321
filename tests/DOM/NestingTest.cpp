#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <utility>

#include "DOM/DOM.h"
#include "Support/RoundTrip.h"
#include "Support/SmallStack.h"

/// What may stand inside itself, down to the nesting limit of the archives: it is saved, loaded, copied and compared, one
/// level more is refused, and letting go of it takes no more than a small stack.

namespace QN::DOM::NestingTest {
namespace {

using namespace Test;
using DrawingFormulas::Expression;

/// How many objects and arrays stand inside each other at the deepest place, the root not counted.
std::size_t getNesting(const std::string& json)
{
    std::size_t nesting = 0;
    std::size_t deepest = 0;
    bool isInString = false;
    for (const char character : json) {
        if (character == '"') {
            isInString = !isInString;
        } else if (!isInString && (character == '{' || character == '[')) {
            deepest = std::max(deepest, nesting++);
        } else if (!isInString && (character == '}' || character == ']')) {
            --nesting;
        }
    }
    return deepest;
}

template <class T>
std::unique_ptr<T> nest(std::unique_ptr<T> (*wrap)(std::unique_ptr<T>), std::size_t levels)
{
    std::unique_ptr<T> object;
    for (; levels > 0; --levels) {
        object = wrap(std::move(object));
    }
    return object;
}

template <class T>
std::string saveAtAnyDepth(const std::unique_ptr<T>& object)
{
    cereal::JSONOutputArchive::Options options;
    options.nestingLimit = 10 * cereal::DefaultNestingLimit;
    std::ostringstream stream;
    {
        cereal::JSONOutputArchive archive(stream, options);
        archive.member("object", object);
    }
    return stream.str();
}

/// The message of the exception that a save ends with, or a text that says that it did not.
template <class T>
std::string saveError(const T& value)
{
    try {
        toJson(value);
    } catch (const cereal::Exception& error) {
        return error.what();
    }
    return "<saved>";
}

/// `wrap` puts an object, or none, into a new one.
template <class T>
void expectNestsToTheLimit(std::unique_ptr<T> (*wrap)(std::unique_ptr<T>))
{
    const std::size_t nestingOfOne = getNesting(toJson(nest(wrap, 1)));
    const std::size_t nestingOfLevel = getNesting(toJson(nest(wrap, 2))) - nestingOfOne;
    const std::size_t levels = 1 + (cereal::DefaultNestingLimit - nestingOfOne) / nestingOfLevel;

    auto object = nest(wrap, levels);
    const std::string json = toJson(object);
    EXPECT_LE(getNesting(json), cereal::DefaultNestingLimit);
    auto loaded = fromJson<std::unique_ptr<T>>(json);
    EXPECT_TRUE(areDeeplyEqual(*loaded, *object));
    EXPECT_EQ(toJson(loaded), json);
    std::unique_ptr<T> copy;
    loaded->cloneTo(copy);
    EXPECT_TRUE(areDeeplyEqual(*copy, *object));
    runOnSmallStack([&] {
        object.reset();
        loaded.reset();
        copy.reset();
    });

    const auto deeper = nest(wrap, levels + 1);
    EXPECT_EQ(saveError(deeper), "Nesting limit of 4096 reached during save");
    EXPECT_EQ(loadError<std::unique_ptr<T>>(saveAtAnyDepth(deeper)),
              "Nesting limit of 4096 reached during load");
}

std::unique_ptr<Block> putIntoShape(std::unique_ptr<Block> inner)
{
    auto shape = std::make_unique<Shape>();
    if (inner) {
        shape->getBlocks().push_back(std::move(inner));
    }
    return shape;
}

std::unique_ptr<Block> putIntoCell(std::unique_ptr<Block> inner)
{
    auto table = std::make_unique<Table>(RowIndex(1), ColumnIndex(1));
    Cell& cell = table->getOrCreateCell(RowIndex(0), ColumnIndex(0));
    if (inner) {
        cell.getRawBlocks().push_back(std::move(inner));
    }
    return table;
}

std::unique_ptr<TableFilter> putIntoFilter(std::unique_ptr<TableFilter> inner)
{
    auto filter = std::make_unique<CompositeTableFilter>();
    if (inner) {
        filter->getFilters().push_back(std::move(inner));
    }
    return filter;
}

std::unique_ptr<Block> putIntoShapeInCell(std::unique_ptr<Block> inner)
{
    return putIntoCell(putIntoShape(std::move(inner)));
}

std::unique_ptr<Expression> putIntoFunction(std::unique_ptr<Expression> inner)
{
    return std::make_unique<DrawingFormulas::UnaryFunction>(DrawingFormulas::UnaryFunctionType::Negate,
                                                            std::move(inner));
}

std::unique_ptr<Expression> putIntoChoice(std::unique_ptr<Expression> inner)
{
    return std::make_unique<DrawingFormulas::IfFunction>(std::make_unique<DrawingFormulas::Constant>(),
                                                         std::move(inner), nullptr);
}

std::unique_ptr<Geometry> putIntoOutline(std::unique_ptr<Expression> operand)
{
    auto geometry = std::make_unique<CustomGeometry>();
    geometry->getPaths().emplace_back().getCommands().push_back(
        std::make_unique<DrawingCommands::MoveTo>(std::move(operand), nullptr));
    return geometry;
}

TEST(NestingTest, ShapesStandInTheTextsOfShapesToTheLimit)
{
    expectNestsToTheLimit(&putIntoShape);
}

TEST(NestingTest, TablesStandInTheCellsOfTablesToTheLimit)
{
    expectNestsToTheLimit(&putIntoCell);
}

TEST(NestingTest, ShapesAndTablesStandInEachOtherToTheLimit)
{
    expectNestsToTheLimit(&putIntoShapeInCell);
}

TEST(NestingTest, FiltersStandInFiltersToTheLimit)
{
    expectNestsToTheLimit(&putIntoFilter);
}

TEST(NestingTest, DrawingFormulasStandInDrawingFormulasToTheLimit)
{
    expectNestsToTheLimit(&putIntoFunction);
    expectNestsToTheLimit(&putIntoChoice);
}

TEST(NestingTest, AnOutlineIsRefusedWhoseOperandsNestTooDeep)
{
    const auto geometry = putIntoOutline(nest(&putIntoFunction, cereal::DefaultNestingLimit));
    EXPECT_EQ(saveError(geometry), "Nesting limit of 4096 reached during save");
    EXPECT_EQ(loadError<std::unique_ptr<Geometry>>(saveAtAnyDepth(geometry)),
              "Nesting limit of 4096 reached during load");
    std::unique_ptr<Geometry> copy;
    geometry->cloneTo(copy);
    runOnSmallStack([&] { copy.reset(); });
}

} // namespace
} // namespace QN::DOM::NestingTest
