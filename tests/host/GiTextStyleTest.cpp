// Text styles and the headless font model: measured widths and heights of strings, the
// %% control codes, and styles filled from a text style record.
#include <gtest/gtest.h>

#include "EntTestSupport.h"
#include "acutmem.h"

namespace {

TEST(GiTextStyleTest, ExtentsFollowTheFontModel)
{
    struct Row {
        const char* name;
        const wchar_t* text;
        int length;
        bool raw;
        bool penups;
        double size;
        double xScale;
        double tracking;
        double width;
        double height;
    };
    const Row rows[] = {
        {"ascii", L"ABCD", -1, false, false, 2.0, 1.0, 1.0, 4 * 0.6 * 2.0, 2.0},
        {"pen-up spaces count", L" AB  ", -1, false, true, 2.0, 1.0, 1.0, 5 * 0.6 * 2.0, 2.0},
        {"pen-up spaces left out", L" AB  ", -1, false, false, 2.0, 1.0, 1.0, 2 * 0.6 * 2.0, 2.0},
        {"only spaces", L"   ", -1, false, false, 2.0, 1.0, 1.0, 0.0, 0.0},
        {"x scale", L"AB", -1, false, false, 10.0, 0.5, 1.0, 2 * 0.6 * 10.0 * 0.5, 10.0},
        {"tracking", L"AB", -1, false, false, 10.0, 1.0, 1.5, 2 * 0.6 * 10.0 * 1.5, 10.0},
        {"cjk", L"\x9762\x677F", -1, false, false, 3.0, 1.0, 1.0, 2 * 1.0 * 3.0, 3.0},
        {"mixed", L"A\x9762", -1, false, false, 1.0, 1.0, 1.0, 1.6, 1.0},
        {"full-width forms", L"\xFF21", -1, false, false, 1.0, 1.0, 1.0, 1.0, 1.0},
        {"length", L"ABCD", 2, false, false, 1.0, 1.0, 1.0, 1.2, 1.0},
        {"degree code", L"90%%d", -1, false, false, 1.0, 1.0, 1.0, 3 * 0.6, 1.0},
        {"underline toggle", L"%%uAB%%u", -1, false, false, 1.0, 1.0, 1.0, 2 * 0.6, 1.0},
        {"raw keeps codes", L"90%%d", -1, true, false, 1.0, 1.0, 1.0, 5 * 0.6, 1.0},
        {"character number", L"%%065", -1, false, false, 1.0, 1.0, 1.0, 0.6, 1.0},
        {"empty", L"", -1, false, true, 1.0, 1.0, 1.0, 0.0, 0.0},
    };
    for (const Row& row : rows) {
        AcGiTextStyle style;
        style.setTextSize(row.size);
        style.setXScale(row.xScale);
        style.setTrackingPercent(row.tracking);
        const AcGePoint2d ext = style.extents(row.text, row.penups, row.length, row.raw);
        EXPECT_NEAR(ext.x, row.width, 1e-12) << row.name;
        EXPECT_NEAR(ext.y, row.height, 1e-12) << row.name;
    }
}

TEST(GiTextStyleTest, FilledFromATextStyleRecord)
{
    enttest::WorkingDatabase wdb;
    AcDbTextStyleTable* styles = nullptr;
    ASSERT_EQ(wdb.db()->getTextStyleTable(styles, AcDb::kForWrite), Acad::eOk);
    auto* record = new AcDbTextStyleTableRecord();
    record->setName(L"Narrow");
    record->setFileName(L"simplex");
    record->setXScale(0.7);
    record->setTextSize(3.5);
    AcDbObjectId id;
    ASSERT_EQ(styles->add(id, record), Acad::eOk);
    record->close();
    styles->close();

    AcGiTextStyle style;
    ASSERT_EQ(fromAcDbTextStyle(style, id), Acad::eOk);
    EXPECT_STREQ(style.styleName(), L"Narrow");
    EXPECT_STREQ(style.fileName(), L"simplex");
    EXPECT_EQ(style.xScale(), 0.7);
    EXPECT_EQ(style.textSize(), 3.5);
    EXPECT_EQ(style.loadStyleRec(), 1);
    EXPECT_EQ(enttest::text(style), "style \"Narrow\" font \"simplex\" size 3.5 xscale 0.7 oblique 0 tracking 1");
    EXPECT_EQ(fromAcDbTextStyle(style, AcDbObjectId::kNull), Acad::eInvalidInput);
    EXPECT_EQ(fromAcDbTextStyle(style, wdb.db()->layerZero()), Acad::eInvalidInput);
}

TEST(GiTextStyleTest, FontComesBackAsANewString)
{
    AcGiTextStyle style;
    ASSERT_EQ(style.setFont(L"Arial", true, false, 0, 34), Acad::eOk);
    ACHAR* typeface = nullptr;
    bool bold = false;
    bool italic = true;
    int charset = -1;
    int pitch = 0;
    ASSERT_EQ(style.font(typeface, bold, italic, charset, pitch), Acad::eOk);
    EXPECT_STREQ(typeface, L"Arial");
    EXPECT_TRUE(bold);
    EXPECT_FALSE(italic);
    EXPECT_EQ(pitch, 34);
    acutDelString(typeface);
}

}  // namespace
