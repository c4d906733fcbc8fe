// AcArray: editing keeps the items in order, copies are independent, items that alias the
// array survive its growth, and every out-of-range use raises the host error naming the call.
#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "acarray.h"
#include "dbintar.h"
#include "dbptrar.h"
#include "gedblar.h"
#include "geintarr.h"
#include "gept2dar.h"
#include "gept3dar.h"
#include "gevc2dar.h"
#include "gevc3dar.h"
#include "gevptar.h"
#include "headless/HostError.h"

namespace {

AcGeIntArray intArray(std::initializer_list<int> items)
{
    AcGeIntArray array;
    for (int item : items)
        array.append(item);
    return array;
}

std::vector<int> itemsOf(const AcGeIntArray& array)
{
    return std::vector<int>(array.begin(), array.end());
}

TEST(AcArrayEditTest, EditsKeepTheOtherItemsInOrder)
{
    struct Row {
        const char* name;
        std::function<void(AcGeIntArray&)> edit;
        std::vector<int> expected;
    };
    const Row rows[] = {
        {"insert at the front", [](AcGeIntArray& a) { a.insertAt(0, 9); }, {9, 1, 2, 3, 4}},
        {"insert in the middle", [](AcGeIntArray& a) { a.insertAt(2, 9); }, {1, 2, 9, 3, 4}},
        {"insert at the length appends", [](AcGeIntArray& a) { a.insertAt(4, 9); }, {1, 2, 3, 4, 9}},
        {"remove the first", [](AcGeIntArray& a) { a.removeAt(0); }, {2, 3, 4}},
        {"remove in the middle", [](AcGeIntArray& a) { a.removeAt(2); }, {1, 2, 4}},
        {"remove the last", [](AcGeIntArray& a) { a.removeAt(3); }, {1, 2, 3}},
        {"removeFirst", [](AcGeIntArray& a) { a.removeFirst(); }, {2, 3, 4}},
        {"removeLast", [](AcGeIntArray& a) { a.removeLast(); }, {1, 2, 3}},
        {"remove a sub-array, both ends included", [](AcGeIntArray& a) { a.removeSubArray(1, 2); }, {1, 4}},
        {"remove a one-item sub-array", [](AcGeIntArray& a) { a.removeSubArray(3, 3); }, {1, 2, 3}},
        {"remove by value", [](AcGeIntArray& a) { EXPECT_TRUE(a.remove(3)); }, {1, 2, 4}},
        {"remove a missing value", [](AcGeIntArray& a) { EXPECT_FALSE(a.remove(7)); }, {1, 2, 3, 4}},
        {"remove by value from a start", [](AcGeIntArray& a) { EXPECT_FALSE(a.remove(1, 1)); }, {1, 2, 3, 4}},
        {"removeAll", [](AcGeIntArray& a) { a.removeAll(); }, {}},
        {"setAt", [](AcGeIntArray& a) { a.setAt(1, 7); }, {1, 7, 3, 4}},
        {"setAll", [](AcGeIntArray& a) { a.setAll(5); }, {5, 5, 5, 5}},
        {"reverse", [](AcGeIntArray& a) { a.reverse(); }, {4, 3, 2, 1}},
        {"swap", [](AcGeIntArray& a) { a.swap(0, 3); }, {4, 2, 3, 1}},
        {"append an array", [](AcGeIntArray& a) { a.append(intArray({5, 6})); }, {1, 2, 3, 4, 5, 6}},
        {"append itself", [](AcGeIntArray& a) { a.append(a); }, {1, 2, 3, 4, 1, 2, 3, 4}},
        {"shorten the logical length", [](AcGeIntArray& a) { a.setLogicalLength(2); }, {1, 2}},
        {"shorten the storage below the length", [](AcGeIntArray& a) { a.setPhysicalLength(3); }, {1, 2, 3}},
        {"edit through at", [](AcGeIntArray& a) { a.at(0) = 8; }, {8, 2, 3, 4}},
        {"edit through first and last", [](AcGeIntArray& a) { a.first() = 0; a.last() = 5; }, {0, 2, 3, 5}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        AcGeIntArray array = intArray({1, 2, 3, 4});
        row.edit(array);
        EXPECT_EQ(itemsOf(array), row.expected);
        EXPECT_EQ(array.length(), static_cast<int>(row.expected.size()));
        EXPECT_EQ(array.logicalLength(), array.length());
        EXPECT_EQ(array.isEmpty(), row.expected.empty());
    }
}

TEST(AcArrayEditTest, MisuseRaisesTheHostErrorNamingTheCallAndChangesNothing)
{
    struct Row {
        const char* name;
        std::function<void(AcGeIntArray&)> misuse;
        const char* call;
    };
    const Row rows[] = {
        {"at past the end", [](AcGeIntArray& a) { a.at(3); }, "AcArray::at"},
        {"at before the start", [](AcGeIntArray& a) { a.at(-1); }, "AcArray::at"},
        {"const at past the end", [](AcGeIntArray& a) { static_cast<const AcGeIntArray&>(a).at(3); }, "AcArray::at"},
        {"subscript past the end", [](AcGeIntArray& a) { a[3] = 1; }, "AcArray::operator[]"},
        {"const subscript before the start", [](AcGeIntArray& a) { static_cast<const AcGeIntArray&>(a)[-1]; },
         "AcArray::operator[]"},
        {"setAt past the end", [](AcGeIntArray& a) { a.setAt(3, 0); }, "AcArray::setAt"},
        {"insertAt beyond the length", [](AcGeIntArray& a) { a.insertAt(4, 0); }, "AcArray::insertAt"},
        {"insertAt before the start", [](AcGeIntArray& a) { a.insertAt(-1, 0); }, "AcArray::insertAt"},
        {"removeAt past the end", [](AcGeIntArray& a) { a.removeAt(3); }, "AcArray::removeAt"},
        {"removeSubArray reversed", [](AcGeIntArray& a) { a.removeSubArray(2, 1); }, "AcArray::removeSubArray"},
        {"removeSubArray past the end", [](AcGeIntArray& a) { a.removeSubArray(1, 3); }, "AcArray::removeSubArray"},
        {"swap past the end", [](AcGeIntArray& a) { a.swap(0, 3); }, "AcArray::swap"},
        {"find from a negative start", [](AcGeIntArray& a) { a.contains(1, -1); }, "AcArray::find"},
        {"negative logical length", [](AcGeIntArray& a) { a.setLogicalLength(-1); }, "AcArray::setLogicalLength"},
        {"negative physical length", [](AcGeIntArray& a) { a.setPhysicalLength(-2); }, "AcArray::setPhysicalLength"},
        {"zero grow length", [](AcGeIntArray& a) { a.setGrowLength(0); }, "AcArray::setGrowLength"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        AcGeIntArray array = intArray({1, 2, 3});
        try {
            row.misuse(array);
            ADD_FAILURE() << "no host error";
        } catch (const headless::HostError& error) {
            EXPECT_NE(std::string(error.what()).find(row.call), std::string::npos) << error.what();
        }
        EXPECT_EQ(itemsOf(array), (std::vector<int>{1, 2, 3}));
    }
}

TEST(AcArrayEditTest, EmptyArrayHasNoFirstOrLastItem)
{
    const std::vector<std::pair<const char*, std::function<void(AcGeIntArray&)>>> rows = {
        {"first", [](AcGeIntArray& a) { a.first(); }},
        {"last", [](AcGeIntArray& a) { a.last(); }},
        {"removeFirst", [](AcGeIntArray& a) { a.removeFirst(); }},
        {"removeLast", [](AcGeIntArray& a) { a.removeLast(); }},
        {"at 0", [](AcGeIntArray& a) { a.at(0); }},
    };
    for (const auto& [name, misuse] : rows) {
        SCOPED_TRACE(name);
        AcGeIntArray empty(16);
        EXPECT_THROW(misuse(empty), headless::HostError);
    }
}

TEST(AcArrayGrowthTest, AppendAnswersTheIndexAndGrowthKeepsTheItems)
{
    AcGeIntArray array(0, 2);
    for (int i = 0; i < 1000; ++i)
        ASSERT_EQ(array.append(i * 7), i);
    ASSERT_EQ(array.length(), 1000);
    EXPECT_GE(array.physicalLength(), 1000);
    for (int i = 0; i < 1000; ++i)
        ASSERT_EQ(array[i], i * 7) << "at " << i;
}

TEST(AcArrayGrowthTest, ItemsOfTheArrayItselfSurviveItsGrowth)
{
    // The appended and inserted values are references into the storage that growing frees.
    AcArray<std::string> words(1, 1);
    words.append("alpha");
    ASSERT_EQ(words.physicalLength(), words.length());
    words.append(words[0]);
    words.insertAt(0, words[1]);
    words.insertAt(1, words.last());
    const std::vector<std::string> expected = {"alpha", "alpha", "alpha", "alpha"};
    EXPECT_EQ(std::vector<std::string>(words.begin(), words.end()), expected);

    AcGeIntArray numbers = intArray({1, 2});
    numbers.setPhysicalLength(2);
    numbers.insertAt(0, numbers[1]);
    EXPECT_EQ(itemsOf(numbers), (std::vector<int>{2, 1, 2}));
}

TEST(AcArrayGrowthTest, RegrownItemsAreDefaultNotTheRemovedOnes)
{
    AcGeIntArray array = intArray({1, 2, 3, 4});
    array.removeLast();
    array.removeAt(0);
    array.setLogicalLength(4);
    EXPECT_EQ(itemsOf(array), (std::vector<int>{2, 3, 0, 0}));
    array.setLogicalLength(6);
    EXPECT_GE(array.physicalLength(), 6);
    EXPECT_EQ(itemsOf(array), (std::vector<int>{2, 3, 0, 0, 0, 0}));
}

TEST(AcArrayGrowthTest, PhysicalLengthIsTheStorage)
{
    AcGeIntArray array(10);
    EXPECT_EQ(array.physicalLength(), 10);
    EXPECT_TRUE(array.isEmpty());
    array.append(1);
    array.setPhysicalLength(1);
    EXPECT_EQ(array.physicalLength(), 1);
    array.setPhysicalLength(0);
    EXPECT_TRUE(array.isEmpty());
    EXPECT_EQ(array.asArrayPtr(), nullptr);
    array.append(5);
    EXPECT_EQ(itemsOf(array), (std::vector<int>{5}));
}

TEST(AcArrayValueTest, CopiesAreIndependentAndMovesEmptyTheSource)
{
    AcArray<std::string> original;
    original.append("one");
    original.append("two");

    AcArray<std::string> copy(original);
    copy[0] = "changed";
    EXPECT_EQ(original[0], "one");

    AcArray<std::string> assigned;
    assigned.append("stale");
    assigned = original;
    EXPECT_TRUE(assigned == original);
    assigned.removeAt(0);
    EXPECT_EQ(original.length(), 2);

    AcArray<std::string> moved(std::move(copy));
    EXPECT_EQ(moved.length(), 2);
    // A moved-from array is empty and usable.
    EXPECT_EQ(copy.length(), 0);
    copy.append("reusable");
    EXPECT_EQ(copy[0], "reusable");

    moved = std::move(original);
    EXPECT_EQ(moved[1], "two");
    EXPECT_TRUE(original.isEmpty());
}

TEST(AcArrayValueTest, FindAndContainsSearchFromTheStart)
{
    const AcGeIntArray array = intArray({4, 5, 4, 6});
    int foundAt = -7;
    EXPECT_TRUE(array.find(4, foundAt));
    EXPECT_EQ(foundAt, 0);
    EXPECT_TRUE(array.find(4, foundAt, 1));
    EXPECT_EQ(foundAt, 2);
    foundAt = -7;
    EXPECT_FALSE(array.find(5, foundAt, 2));
    EXPECT_EQ(foundAt, -7);
    EXPECT_EQ(array.find(6), 3);
    EXPECT_EQ(array.find(9), -1);
    EXPECT_EQ(array.findFrom(4, 1), 2);
    EXPECT_TRUE(array.contains(6, 3));
    EXPECT_FALSE(array.contains(6, 4));
}

TEST(AcArrayValueTest, EqualityComparesLengthAndItemsInOrder)
{
    EXPECT_TRUE(intArray({1, 2}) == intArray({1, 2}));
    EXPECT_FALSE(intArray({1, 2}) == intArray({2, 1}));
    EXPECT_FALSE(intArray({1, 2}) == intArray({1, 2, 3}));
    AcGeIntArray roomy(50);
    roomy.append(1);
    EXPECT_TRUE(roomy == intArray({1}));
}

TEST(AcArrayValueTest, GeometryArraysHoldTheirTypesAndPrint)
{
    AcGePoint3dArray points;
    points.append(AcGePoint3d(1, 2, 3));
    points.append(AcGePoint3d(0.5, 0, -1));
    std::ostringstream os;
    os << points;
    EXPECT_EQ(os.str(), "{(1, 2, 3), (0.5, 0, -1)}");

    AcGePoint2dArray points2d;
    AcGeVector2dArray vectors2d;
    AcGeVector3dArray vectors3d;
    AcGeDoubleArray doubles;
    AcDbIntArray ints;
    int item = 0;
    AcDbVoidPtrArray pointers;
    AcGeVoidPointerArray gePointers;
    points2d.append(AcGePoint2d(1, 1));
    vectors2d.append(AcGeVector2d::kYAxis);
    vectors3d.append(AcGeVector3d::kZAxis);
    doubles.append(0.25);
    ints.append(3);
    pointers.append(&item);
    gePointers.append(&item);
    EXPECT_EQ(points2d[0], AcGePoint2d(1, 1));
    EXPECT_EQ(vectors2d[0], AcGeVector2d(0, 1));
    EXPECT_EQ(vectors3d[0], AcGeVector3d(0, 0, 1));
    EXPECT_EQ(doubles[0], 0.25);
    EXPECT_EQ(ints[0], 3);
    EXPECT_EQ(pointers[0], &item);
    EXPECT_EQ(gePointers[0], &item);
}

TEST(AcArrayValueTest, RangeForVisitsTheItemsInUseOnly)
{
    AcGeDoubleArray values(20);
    values.append(1.5);
    values.append(2.5);
    double sum = 0.0;
    for (double value : values)
        sum += value;
    EXPECT_EQ(sum, 4.0);
    for (double& value : values)
        value *= 2.0;
    EXPECT_EQ(values.asArrayPtr()[1], 5.0);
}

}  // namespace
