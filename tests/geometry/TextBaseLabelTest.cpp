// The text base label: storing itself in a data node, turning into host texts, and moving
// with its entity.
#include <gtest/gtest.h>

#include <memory>

#include "ModuleTestSupport.h"
#include "data/DataNode.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "geometry/TextBaseLabel.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

TextBaseLabel SampleLabel()
{
    TextBaseLabel label;
    label.SetLabel(L"编号 A-01");
    label.SetPosition(AcGePoint3d(10, 20, 0));
    label.SetHeight(250);
    label.SetTextDirX(AcGeVector3d(0, 1, 0));
    label.SetExtension(L"{\"k\":1}");
    label.SetVisible(true);
    return label;
}

TEST(TextBaseLabelTest, DefaultsAreTheDocumentedOnes)
{
    const TextBaseLabel label;
    EXPECT_TRUE(label.GetLabel().isEmpty());
    EXPECT_EQ(label.GetPosition(), AcGePoint3d::kOrigin);
    EXPECT_EQ(label.GetHeight(), 300.0);
    EXPECT_EQ(label.GetTextDirX(), AcGeVector3d::kXAxis);
    EXPECT_TRUE(label.GetExtension().isEmpty());
    EXPECT_FALSE(label.IsVisible());
}

TEST(TextBaseLabelTest, ANodeRoundTripRestoresEveryField)
{
    DataNode node(L"TitleLabel");
    SampleLabel().SetValue(&node);
    const std::vector<AcString> keys = {L"bVisible", L"dir", L"extension", L"height", L"label", L"pos"};
    EXPECT_EQ(node.GetAllKeys(), keys);

    TextBaseLabel read;
    read.GetValue(&node);
    EXPECT_EQ(read.GetLabel(), AcString(L"编号 A-01"));
    EXPECT_EQ(read.GetPosition(), AcGePoint3d(10, 20, 0));
    EXPECT_EQ(read.GetHeight(), 250);
    EXPECT_EQ(read.GetTextDirX(), AcGeVector3d(0, 1, 0));
    EXPECT_EQ(read.GetExtension(), AcString(L"{\"k\":1}"));
    EXPECT_TRUE(read.IsVisible());

    // A null node and missing keys leave the fields as they were.
    TextBaseLabel untouched = SampleLabel();
    untouched.GetValue(nullptr);
    DataNode empty(L"empty");
    untouched.GetValue(&empty);
    EXPECT_EQ(untouched.GetLabel(), AcString(L"编号 A-01"));
    EXPECT_EQ(untouched.GetHeight(), 250);
}

TEST(TextBaseLabelTest, AnEmptyLabelCreatesNothing)
{
    qxtest::WorkingDatabase working;
    TextBaseLabel label = SampleLabel();
    label.SetLabel(L"");
    EXPECT_EQ(label.CreateMText(AcDbObjectId::kNull), nullptr);
    EXPECT_EQ(label.CreateText(AcGePoint3d::kOrigin, AcDbObjectId::kNull, AcDbMText::kTopLeft), nullptr);
    EXPECT_EQ(label.CreateDbText(AcDbObjectId::kNull), nullptr);
}

TEST(TextBaseLabelTest, MultilineTextCarriesTheLabel)
{
    qxtest::WorkingDatabase working;
    std::unique_ptr<AcDbMText> text(SampleLabel().CreateMText(AcDbObjectId::kNull));
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->location(), AcGePoint3d(10, 20, 0));
    EXPECT_EQ(text->attachment(), AcDbMText::kMiddleCenter);
    EXPECT_EQ(text->flowDirection(), AcDbMText::kByStyle);
    EXPECT_EQ(text->textHeight(), 250);
    EXPECT_TRUE(qxtest::Near(text->direction(), AcGeVector3d(0, 1, 0)));
    EXPECT_EQ(text->textStyle(), working.db()->textstyle());  // null style: the current one
    AcString contents;
    text->contents(contents);
    EXPECT_EQ(contents, AcString(L"编号 A-01"));

    std::unique_ptr<AcDbMText> placed(
        SampleLabel().CreateText(AcGePoint3d(1, 2, 0), AcDbObjectId::kNull, AcDbMText::kBottomRight));
    EXPECT_EQ(placed->location(), AcGePoint3d(1, 2, 0));
    EXPECT_EQ(placed->attachment(), AcDbMText::kBottomRight);
}

TEST(TextBaseLabelTest, SingleLineTextIsCentredOnThePosition)
{
    qxtest::WorkingDatabase working;
    std::unique_ptr<AcDbText> text(SampleLabel().CreateDbText(AcDbObjectId::kNull));
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->textStyle(), working.db()->textstyle());
    EXPECT_EQ(text->height(), 250);
    // The text's box (top left, top right, bottom left, bottom right) has its centre on the
    // position and reads along the label's direction, up the Y axis.
    AcGePoint3dArray box;
    ASSERT_EQ(text->getBoundingPoints(box), Acad::eOk);
    ASSERT_EQ(box.length(), 4);
    const AcGePoint3d centre = box[0] + ((box[1] - box[0]) + (box[2] - box[0]) + (box[3] - box[0])) / 4.0;
    EXPECT_TRUE(qxtest::Near(centre, AcGePoint3d(10, 20, 0), 1e-9));
    EXPECT_GT((box[3] - box[2]).length(), 0.0);
    EXPECT_TRUE((box[3] - box[2]).isCodirectionalTo(AcGeVector3d(0, 1, 0)));
    EXPECT_NEAR((box[0] - box[2]).length(), 250, 1e-9);
}

TEST(TextBaseLabelTest, TransformMovesTurnsAndScales)
{
    struct Row {
        const char* what;
        AcGeMatrix3d matrix;
        AcGePoint3d pos;
        AcGeVector3d dir;
        double height;
    };
    const Row rows[] = {
        {"uniform scale 2", AcGeMatrix3d::scaling(2.0, AcGePoint3d::kOrigin), {20, 40, 0}, {0, 2, 0}, 500},
        {"quarter turn", AcGeMatrix3d::rotation(kPi / 2, AcGeVector3d::kZAxis, AcGePoint3d::kOrigin),
         {-20, 10, 0}, {-1, 0, 0}, 250},
        {"translation", AcGeMatrix3d::translation(AcGeVector3d(5, 5, 5)), {15, 25, 5}, {0, 1, 0}, 250},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        TextBaseLabel label = SampleLabel();
        label.TransformBy(row.matrix);
        EXPECT_TRUE(qxtest::Near(label.GetPosition(), row.pos));
        EXPECT_TRUE(qxtest::Near(label.GetTextDirX(), row.dir));
        EXPECT_NEAR(label.GetHeight(), row.height, 1e-9);
    }
}

}  // namespace
