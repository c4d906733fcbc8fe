// Single-line and multiline text: positions from alignment points under the headless font
// model, aligned and fit text, extents, drawing, transforms that keep text readable, and
// the multiline layout (codes, wrapping, attachment).
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "EntTestSupport.h"
#include "GeTestSupport.h"
#include "dbents.h"
#include "dbmtext.h"
#include "headless/RecordingWorldDraw.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

using getest::isNear;

TEST(EntTextTest, PositionFollowsTheAlignmentPoint)
{
    // "ABCD" at height 2 is 4.8 wide; full-width characters are 2 each.
    struct Row {
        const char* name;
        const wchar_t* text;
        AcDb::TextHorzMode h;
        AcDb::TextVertMode v;
        double rotation;
        double widthFactor;
        bool backward;
        AcGePoint3d position;
    };
    const Row rows[] = {
        {"center base", L"ABCD", AcDb::kTextCenter, AcDb::kTextBase, 0, 1, false, {7.6, 20, 0}},
        {"right base", L"ABCD", AcDb::kTextRight, AcDb::kTextBase, 0, 1, false, {5.2, 20, 0}},
        {"left top", L"ABCD", AcDb::kTextLeft, AcDb::kTextTop, 0, 1, false, {10, 18, 0}},
        {"left bottom", L"ABCD", AcDb::kTextLeft, AcDb::kTextBottom, 0, 1, false, {10, 20.4, 0}},
        {"center middle", L"ABCD", AcDb::kTextCenter, AcDb::kTextVertMid, 0, 1, false, {7.6, 19, 0}},
        {"right bottom", L"ABCD", AcDb::kTextRight, AcDb::kTextBottom, 0, 1, false, {5.2, 20.4, 0}},
        {"middle", L"ABCD", AcDb::kTextMid, AcDb::kTextBase, 0, 1, false, {7.6, 19.2, 0}},
        {"center base turned", L"ABCD", AcDb::kTextCenter, AcDb::kTextBase, kPi / 2, 1, false, {10, 17.6, 0}},
        {"right base narrow", L"ABCD", AcDb::kTextRight, AcDb::kTextBase, 0, 0.5, false, {7.6, 20, 0}},
        {"center base full width", L"\x9762\x677F", AcDb::kTextCenter, AcDb::kTextBase, 0, 1, false, {8, 20, 0}},
        {"right base backwards", L"ABCD", AcDb::kTextRight, AcDb::kTextBase, 0, 1, true, {14.8, 20, 0}},
        {"center top with codes", L"%%c12", AcDb::kTextCenter, AcDb::kTextTop, 0, 1, false, {8.2, 18, 0}},
    };
    for (const Row& row : rows) {
        AcDbText text(AcGePoint3d(-50, -50, 0), row.text, AcDbObjectId::kNull, 2.0, row.rotation);
        text.setWidthFactor(row.widthFactor);
        text.mirrorInX(row.backward);
        text.setHorizontalMode(row.h);
        text.setVerticalMode(row.v);
        text.setAlignmentPoint(AcGePoint3d(10, 20, 0));
        // In memory nothing moves until the alignment is adjusted.
        EXPECT_TRUE(isNear(text.position(), AcGePoint3d(-50, -50, 0))) << row.name;
        ASSERT_EQ(text.adjustAlignment(), Acad::eOk);
        EXPECT_TRUE(isNear(text.position(), row.position)) << row.name << " " << text.position();
        EXPECT_TRUE(isNear(text.alignmentPoint(), AcGePoint3d(10, 20, 0))) << row.name;
    }
    // Left on the baseline: the position counts and the alignment point follows it.
    AcDbText left(AcGePoint3d(1, 2, 0), L"ABCD", AcDbObjectId::kNull, 2.0);
    left.setAlignmentPoint(AcGePoint3d(9, 9, 0));
    left.adjustAlignment();
    EXPECT_TRUE(isNear(left.position(), AcGePoint3d(1, 2, 0)));
    EXPECT_TRUE(isNear(left.alignmentPoint(), AcGePoint3d(1, 2, 0)));
    EXPECT_TRUE(left.isDefaultAlignment());
}

TEST(EntTextTest, AlignedAndFitTextFillTheirTwoPoints)
{
    struct Row {
        const char* name;
        AcDb::TextHorzMode mode;
        AcGePoint3d end;
        double height;
        double widthFactor;
        double rotation;
    };
    // "ABC" advances 1.8 units: aligned text sets the height, fit text the width factor.
    const Row rows[] = {
        {"aligned", AcDb::kTextAlign, {6, 0, 0}, 6.0 / 1.8, 1.0, 0.0},
        {"aligned upwards", AcDb::kTextAlign, {0, 3.6, 0}, 2.0, 1.0, kPi / 2},
        {"fit", AcDb::kTextFit, {3.6, 0, 0}, 2.0, 1.0, 0.0},
        {"fit wide", AcDb::kTextFit, {-7.2, 0, 0}, 2.0, 2.0, kPi},
    };
    for (const Row& row : rows) {
        AcDbText text(AcGePoint3d::kOrigin, L"ABC", AcDbObjectId::kNull, 2.0);
        text.setHorizontalMode(row.mode);
        text.setAlignmentPoint(row.end);
        ASSERT_EQ(text.adjustAlignment(), Acad::eOk);
        EXPECT_NEAR(text.height(), row.height, 1e-12) << row.name;
        EXPECT_NEAR(text.widthFactor(), row.widthFactor, 1e-12) << row.name;
        EXPECT_NEAR(text.rotation(), row.rotation, 1e-12) << row.name;
        EXPECT_TRUE(isNear(text.position(), AcGePoint3d::kOrigin)) << row.name;
    }
}

TEST(EntTextTest, ClosingATextAdjustsIt)
{
    enttest::WorkingDatabase wdb;
    auto* text = new AcDbText(AcGePoint3d::kOrigin, L"AB", AcDbObjectId::kNull, 1.0);
    text->setDatabaseDefaults();
    text->setHorizontalMode(AcDb::kTextRight);
    text->setAlignmentPoint(AcGePoint3d(10, 0, 0));
    const AcDbObjectId id = wdb.addToModelSpace(text);
    AcDbText* opened = nullptr;
    ASSERT_EQ(acdbOpenObject(opened, id, AcDb::kForWrite), Acad::eOk);
    EXPECT_TRUE(isNear(opened->position(), AcGePoint3d(8.8, 0, 0)));
    opened->setTextString(L"ABCD");
    EXPECT_TRUE(isNear(opened->position(), AcGePoint3d(8.8, 0, 0)));
    opened->close();
    ASSERT_EQ(acdbOpenObject(opened, id, AcDb::kForRead), Acad::eOk);
    EXPECT_TRUE(isNear(opened->position(), AcGePoint3d(7.6, 0, 0)));
    EXPECT_EQ(opened->textStyle(), wdb.db()->textstyle());
    opened->close();
}

TEST(EntTextTest, ExtentsAndBoundingPointsFromTheFontModel)
{
    AcDbText text(AcGePoint3d(1, 1, 0), L"ABCD", AcDbObjectId::kNull, 2.0);
    AcDbExtents extents;
    ASSERT_EQ(text.getGeomExtents(extents), Acad::eOk);
    EXPECT_TRUE(isNear(extents.minPoint(), AcGePoint3d(1, 0.6, 0)));
    EXPECT_TRUE(isNear(extents.maxPoint(), AcGePoint3d(5.8, 3, 0)));
    AcGePoint3dArray corners;
    ASSERT_EQ(text.getBoundingPoints(corners), Acad::eOk);
    ASSERT_EQ(corners.length(), 4);
    EXPECT_TRUE(isNear(corners[0], AcGePoint3d(1, 3, 0)));
    EXPECT_TRUE(isNear(corners[1], AcGePoint3d(5.8, 3, 0)));
    EXPECT_TRUE(isNear(corners[2], AcGePoint3d(1, 1, 0)));
    EXPECT_TRUE(isNear(corners[3], AcGePoint3d(5.8, 1, 0)));
    text.setRotation(kPi / 2);
    ASSERT_EQ(text.getGeomExtents(extents), Acad::eOk);
    EXPECT_TRUE(isNear(extents.minPoint(), AcGePoint3d(-1, 1, 0)));
    EXPECT_TRUE(isNear(extents.maxPoint(), AcGePoint3d(1.4, 5.8, 0)));
    AcDbText empty;
    EXPECT_EQ(empty.getGeomExtents(extents), Acad::eNullExtents);
}

TEST(EntTextTest, DrawsOneTextPrimitiveInItsStyle)
{
    enttest::WorkingDatabase wdb;
    AcDbText text(AcGePoint3d(1, 2, 0), L"Panel 7", AcDbObjectId::kNull, 2.5, kPi / 2);
    text.setDatabaseDefaults();
    text.setWidthFactor(0.8);
    text.setOblique(0.25);
    headless::RecordingWorldDraw rec;
    rec.drawDrawable(&text);
    ASSERT_EQ(rec.primitives().size(), 1u);
    const headless::RecordedPrimitive& prim = rec.primitives()[0];
    EXPECT_EQ(prim.kind, headless::PrimitiveKind::kText);
    EXPECT_EQ(prim.text, L"Panel 7");
    EXPECT_TRUE(isNear(prim.points[0], AcGePoint3d(1, 2, 0)));
    EXPECT_TRUE(isNear(prim.vectors[0], AcGeVector3d::kZAxis));
    EXPECT_TRUE(isNear(prim.vectors[1], AcGeVector3d::kYAxis));
    EXPECT_EQ(prim.numbers[0], 2.5);
    EXPECT_EQ(prim.numbers[1], 0.8);
    EXPECT_EQ(prim.numbers[2], 0.25);
    EXPECT_STREQ(prim.style.styleName(), L"Standard");
}

TEST(EntTextTest, TransformsKeepTextReadable)
{
    struct Row {
        const char* name;
        AcGeMatrix3d xform;
        AcGePoint3d alignment;
        double rotation;
        double height;
        double widthFactor;
    };
    AcGeMatrix3d stretchX;
    stretchX.entry[0][0] = 2.0;
    const Row rows[] = {
        {"moved", AcGeMatrix3d::translation(AcGeVector3d(1, 2, 3)), {11, 22, 3}, 0.0, 2.0, 1.0},
        {"turned", AcGeMatrix3d::rotation(kPi / 2, AcGeVector3d::kZAxis), {-20, 10, 0}, kPi / 2, 2.0, 1.0},
        {"scaled", AcGeMatrix3d::scaling(3.0), {30, 60, 0}, 0.0, 6.0, 1.0},
        {"stretched along", stretchX, {20, 20, 0}, 0.0, 2.0, 2.0},
        {"mirrored left-right", AcGeMatrix3d::mirroring(AcGePlane::kYZPlane), {-10, 20, 0}, 0.0, 2.0, 1.0},
        {"mirrored upside down", AcGeMatrix3d::mirroring(AcGePlane::kZXPlane), {10, -20, 0}, 0.0, 2.0, 1.0},
        {"mirrored across the diagonal",
         AcGeMatrix3d::mirroring(AcGePlane(AcGePoint3d::kOrigin, AcGeVector3d(1, -1, 0))), {20, 10, 0}, kPi / 2,
         2.0, 1.0},
    };
    for (const Row& row : rows) {
        AcDbText text(AcGePoint3d::kOrigin, L"ABCD", AcDbObjectId::kNull, 2.0);
        text.setHorizontalMode(AcDb::kTextCenter);
        text.setAlignmentPoint(AcGePoint3d(10, 20, 0));
        text.adjustAlignment();
        ASSERT_EQ(text.transformBy(row.xform), Acad::eOk) << row.name;
        EXPECT_TRUE(isNear(text.alignmentPoint(), row.alignment)) << row.name;
        EXPECT_NEAR(text.rotation(), row.rotation, 1e-12) << row.name;
        EXPECT_NEAR(text.height(), row.height, 1e-12) << row.name;
        EXPECT_NEAR(text.widthFactor(), row.widthFactor, 1e-12) << row.name;
        EXPECT_TRUE(isNear(text.normal(), AcGeVector3d::kZAxis)) << row.name;
        // The position follows the alignment point at once.
        AcGeVector3d direction(std::cos(text.rotation()), std::sin(text.rotation()), 0);
        const double halfWidth = 0.6 * 4 * text.height() * text.widthFactor() / 2;
        EXPECT_TRUE(isNear(text.position(), text.alignmentPoint() - direction * halfWidth)) << row.name;
    }
    AcDbText text(AcGePoint3d::kOrigin, L"ABCD", AcDbObjectId::kNull, 2.0);
    AcGeMatrix3d skew;
    skew.entry[0][1] = 1.0;
    EXPECT_EQ(text.transformBy(skew), Acad::eCannotScaleNonUniformly);
    EXPECT_EQ(text.height(), 2.0);
}

TEST(EntTextTest, MultilineContentsResolveTheirCodes)
{
    struct Row {
        const wchar_t* contents;
        std::vector<std::wstring> paragraphs;
    };
    const Row rows[] = {
        {L"One\\PTwo", {L"One", L"Two"}},
        {L"{\\fArial|b1;Bold} \\H2.5x;big", {L"Bold big"}},
        {L"a\\~b \\\\ \\{c\\}", {L"a\x00A0" L"b \\ {c}"}},
        {L"\\S1^2; in", {L"1/2 in"}},
        {L"\\U+9762\\U+677F", {L"\x9762\x677F"}},
        {L"\\LUnder\\l \\C1;red", {L"Under red"}},
        {L"line\r\nfeed", {L"line", L"feed"}},
        {L"unterminated \\fArial", {L"unterminated "}},
        {L"", {L""}},
    };
    for (const Row& row : rows) {
        AcDbMText mtext;
        mtext.setContents(row.contents);
        ACHAR* plain = mtext.text();
        std::wstring expected;
        for (size_t i = 0; i < row.paragraphs.size(); ++i)
            expected += (i == 0 ? L"" : L"\n") + row.paragraphs[i];
        EXPECT_EQ(std::wstring(plain), expected);
        acutDelString(plain);
    }
}

TEST(EntTextTest, MultilineLayoutPlacesLinesByAttachment)
{
    struct Row {
        const char* name;
        AcDbMText::AttachmentPoint attachment;
        AcGePoint3d first;   // start of the baseline of "AB"
        AcGePoint3d second;  // of "CDEF"
    };
    const double pitch = 5.0 / 3.0 * 2.0;
    const double height = 2.0 + pitch;
    const Row rows[] = {
        {"top left", AcDbMText::kTopLeft, {0, -2, 0}, {0, -2 - pitch, 0}},
        {"middle center", AcDbMText::kMiddleCenter, {-1.2, height / 2 - 2, 0}, {-2.4, height / 2 - 2 - pitch, 0}},
        {"bottom right", AcDbMText::kBottomRight, {-2.4, pitch, 0}, {-4.8, 0, 0}},
    };
    for (const Row& row : rows) {
        AcDbMText mtext;
        mtext.setTextHeight(2.0);
        mtext.setAttachment(row.attachment);
        mtext.setContents(L"AB\\PCDEF");
        EXPECT_NEAR(mtext.actualWidth(), 4.8, 1e-12);
        EXPECT_NEAR(mtext.actualHeight(), height, 1e-12);
        headless::RecordingWorldDraw rec;
        rec.drawDrawable(&mtext);
        ASSERT_EQ(rec.primitives().size(), 2u) << row.name;
        EXPECT_EQ(rec.primitives()[0].text, L"AB");
        EXPECT_TRUE(isNear(rec.primitives()[0].points[0], row.first)) << row.name;
        EXPECT_TRUE(isNear(rec.primitives()[1].points[0], row.second)) << row.name;
        EXPECT_EQ(rec.primitives()[1].numbers[0], 2.0);
    }
}

TEST(EntTextTest, MultilineTextWrapsAtItsWidth)
{
    AcDbMText mtext;
    mtext.setTextHeight(2.0);  // 1.2 per character
    mtext.setWidth(6.0);
    mtext.setContents(L"one two three  \x9762\x677F\x9762\x677F");
    headless::RecordingWorldDraw rec;
    rec.drawDrawable(&mtext);
    std::vector<std::wstring> lines;
    for (const headless::RecordedPrimitive& prim : rec.primitives())
        lines.push_back(prim.text);
    const std::vector<std::wstring> expected = {L"one", L"two", L"three", L"\x9762\x677F\x9762", L"\x677F"};
    EXPECT_EQ(lines, expected);
    AcDbExtents extents;
    ASSERT_EQ(mtext.getGeomExtents(extents), Acad::eOk);
    EXPECT_NEAR(extents.maxPoint().x, 6.0, 1e-12);
    AcGePoint3dArray corners;
    mtext.getBoundingPoints(corners);
    EXPECT_TRUE(isNear(corners[1], AcGePoint3d(6, 0, 0)));
}

TEST(EntTextTest, MultilineDirectionNormalAndTransforms)
{
    AcDbMText mtext;
    ASSERT_EQ(mtext.setRotation(1.0), Acad::eOk);
    EXPECT_NEAR(mtext.rotation(), 1.0, 1e-12);
    ASSERT_EQ(mtext.setNormal(AcGeVector3d(0, 0, 1)), Acad::eOk);
    EXPECT_TRUE(isNear(mtext.direction(), AcGeVector3d::kXAxis));
    ASSERT_EQ(mtext.setNormal(AcGeVector3d(2, 0, 0)), Acad::eOk);
    EXPECT_TRUE(isNear(mtext.direction(), AcGeVector3d::kYAxis));
    EXPECT_EQ(mtext.setDirection(AcGeVector3d(3, 0, 0)), Acad::eInvalidInput);
    EXPECT_EQ(mtext.setNormal(AcGeVector3d(0, 0, 0)), Acad::eInvalidInput);
    ASSERT_EQ(mtext.setDirection(AcGeVector3d(1, 0, 1)), Acad::eOk);
    EXPECT_TRUE(isNear(mtext.direction(), AcGeVector3d::kZAxis));
    EXPECT_EQ(mtext.setAttachment(AcDbMText::kBaseLeft), Acad::eInvalidInput);
    EXPECT_EQ(mtext.setLineSpacingFactor(5.0), Acad::eInvalidInput);

    AcDbMText flat;
    flat.setLocation(AcGePoint3d(1, 0, 0));
    flat.setTextHeight(2.0);
    flat.setWidth(10.0);
    flat.setContents(L"AB");
    ASSERT_EQ(flat.transformBy(AcGeMatrix3d::rotation(kPi / 2, AcGeVector3d::kZAxis) * AcGeMatrix3d::scaling(2.0)),
              Acad::eOk);
    EXPECT_TRUE(isNear(flat.location(), AcGePoint3d(0, 2, 0)));
    EXPECT_TRUE(isNear(flat.direction(), AcGeVector3d::kYAxis));
    EXPECT_EQ(flat.textHeight(), 4.0);
    EXPECT_EQ(flat.width(), 20.0);
    ASSERT_EQ(flat.transformBy(AcGeMatrix3d::mirroring(AcGePlane::kZXPlane)), Acad::eOk);
    EXPECT_TRUE(isNear(flat.normal(), AcGeVector3d::kZAxis));
    AcGeMatrix3d stretch;
    stretch.entry[0][0] = 3.0;
    EXPECT_EQ(flat.transformBy(stretch), Acad::eCannotScaleNonUniformly);
}

TEST(EntTextTest, MovingTheAttachmentCanKeepTheText)
{
    AcDbMText mtext;
    mtext.setTextHeight(2.0);
    mtext.setContents(L"AB\\PCDEF");
    AcDbExtents before;
    mtext.getGeomExtents(before);
    ASSERT_EQ(mtext.setAttachmentMovingLocation(AcDbMText::kBottomRight), Acad::eOk);
    EXPECT_EQ(mtext.attachment(), AcDbMText::kBottomRight);
    EXPECT_TRUE(isNear(mtext.location(), AcGePoint3d(4.8, -2.0 - 10.0 / 3.0, 0)));
    AcDbExtents after;
    mtext.getGeomExtents(after);
    EXPECT_TRUE(isNear(after.minPoint(), before.minPoint()));
    EXPECT_TRUE(isNear(after.maxPoint(), before.maxPoint()));
    // Plain setAttachment keeps the location and moves the text.
    mtext.setAttachment(AcDbMText::kTopLeft);
    EXPECT_TRUE(isNear(mtext.location(), AcGePoint3d(4.8, -2.0 - 10.0 / 3.0, 0)));
}

TEST(EntTextTest, MultilineTextExplodesIntoItsLines)
{
    AcDbMText mtext;
    mtext.setLocation(AcGePoint3d(0, 10, 0));
    mtext.setTextHeight(2.0);
    mtext.setColorIndex(4);
    mtext.setContents(L"AB\\P\\PCD");
    AcDbVoidPtrArray parts;
    ASSERT_EQ(mtext.explode(parts), Acad::eOk);
    ASSERT_EQ(parts.length(), 2);
    std::unique_ptr<AcDbText> first(AcDbText::cast(static_cast<AcDbEntity*>(parts[0])));
    std::unique_ptr<AcDbText> second(AcDbText::cast(static_cast<AcDbEntity*>(parts[1])));
    ASSERT_TRUE(first && second);
    EXPECT_STREQ(first->textStringConst(), L"AB");
    EXPECT_TRUE(isNear(first->position(), AcGePoint3d(0, 8, 0)));
    EXPECT_TRUE(isNear(second->position(), AcGePoint3d(0, 8 - 2 * 10.0 / 3.0, 0)));
    EXPECT_EQ(second->height(), 2.0);
    EXPECT_EQ(second->colorIndex(), 4);
}

}  // namespace
