// The editor services and window types headless code compiles against: coordinate
// transformations, pixels of the fixed view, windows that never exist, CString.
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "CloneTestSupport.h"
#include "aced.h"
#include "acedads.h"
#include "atlstr.h"
#include "dbents.h"

namespace {

resbuf code(short value)
{
    resbuf rb{};
    rb.restype = RTSHORT;
    rb.resval.rint = value;
    return rb;
}

resbuf normal(double x, double y, double z)
{
    resbuf rb{};
    rb.restype = RT3DPOINT;
    rb.resval.rpoint[0] = x;
    rb.resval.rpoint[1] = y;
    rb.resval.rpoint[2] = z;
    return rb;
}

struct TransCase {
    const char* name;
    resbuf from;
    resbuf to;
    int disp;
    ads_point in;
    int expected;
    ads_point out;
};

TEST(EditorServicesTest, TransMapsBetweenCoordinateSystems)
{
    const TransCase cases[] = {
        {"display to user, as the message filter asks", code(2), code(1), 0, {3, 4, 0}, RTNORM, {3, 4, 0}},
        {"world to display", code(0), code(2), 0, {-1, 2, 5}, RTNORM, {-1, 2, 5}},
        {"paper display to display", code(3), code(2), 0, {7, 8, 0}, RTNORM, {7, 8, 0}},
        // The object system of +x: its x axis is the world's y, its y axis the world's z.
        {"world to the object system of +x", code(0), normal(1, 0, 0), 0, {1, 2, 3}, RTNORM, {2, 3, 1}},
        {"object system of +x back to world", normal(1, 0, 0), code(0), 0, {2, 3, 1}, RTNORM, {1, 2, 3}},
        {"displacement", code(0), normal(0, 0, -1), 1, {1, 2, 3}, RTNORM, {-1, 2, -3}},
        {"paper display pairs only with display", code(3), code(0), 0, {1, 1, 1}, RTERROR, {9, 9, 9}},
        {"unknown code", code(4), code(0), 0, {1, 1, 1}, RTERROR, {9, 9, 9}},
        {"zero normal", normal(0, 0, 0), code(0), 0, {1, 1, 1}, RTERROR, {9, 9, 9}},
    };
    for (const TransCase& c : cases) {
        ads_point result = {9, 9, 9};
        EXPECT_EQ(acedTrans(c.in, &c.from, &c.to, c.disp, result), c.expected) << c.name;
        for (int i = 0; i < 3; ++i)
            EXPECT_NEAR(result[i], c.out[i], 1e-12) << c.name << " [" << i << "]";
    }
    ads_point result = {0, 0, 0};
    const ads_point origin = {0, 0, 0};
    const resbuf world = code(0);
    EXPECT_EQ(acedTrans(origin, nullptr, &world, 0, result), RTERROR);
}

TEST(EditorServicesTest, TransIntoAnEntitysObjectSystem)
{
    registerCloneTestClasses();
    AcDbDatabase db;
    const AcDbObjectId id = clonetest::append(&db, new AcDbCircle(AcGePoint3d(0, 0, 0), AcGeVector3d(0, 0, -1), 1));
    resbuf entity{};
    entity.restype = RTENAME;
    entity.resval.rlname[0] = id.asOldId();
    const resbuf world = code(0);
    const ads_point in = {1, 2, 3};
    ads_point out = {0, 0, 0};
    ASSERT_EQ(acedTrans(in, &world, &entity, 0, out), RTNORM);
    EXPECT_NEAR(out[0], -1, 1e-12);
    EXPECT_NEAR(out[1], 2, 1e-12);
    EXPECT_NEAR(out[2], -3, 1e-12);
}

TEST(EditorServicesTest, PixelsOfTheFixedViewMapToTheWorld)
{
    AcGePoint3d world;
    ASSERT_TRUE(acedCoordFromPixelToWorld(CPoint(kHeadlessViewWidth / 2, kHeadlessViewHeight / 2), world));
    EXPECT_EQ(world, AcGePoint3d(0, 0, 0));
    ASSERT_TRUE(acedCoordFromPixelToWorld(CPoint(0, 0), world));
    EXPECT_EQ(world, AcGePoint3d(-500, 375, 0));
    double out[3] = {};
    ASSERT_TRUE(acedCoordFromPixelToWorld(2, CPoint(600, 475), out));
    EXPECT_EQ(AcGePoint3d(out[0], out[1], out[2]), AcGePoint3d(100, -100, 0));
    EXPECT_FALSE(acedCoordFromPixelToWorld(-1, CPoint(0, 0), out));
}

TEST(EditorServicesTest, NoWindowEverExists)
{
    MSG msg{};
    msg.message = WM_LBUTTONDBLCLK;
    EXPECT_EQ(msg.message, 0x203u);
    EXPECT_EQ(CWnd::FromHandle(msg.hwnd), nullptr);
    CView view;
    CWnd* asWindow = &view;
    EXPECT_TRUE(asWindow->IsKindOf(RUNTIME_CLASS(CView)));
    EXPECT_EQ(DYNAMIC_DOWNCAST(CView, asWindow), &view);
    CWnd plain;
    CWnd* other = &plain;
    EXPECT_EQ(DYNAMIC_DOWNCAST(CView, other), nullptr);
    POINT cursor{5, 5};
    EXPECT_FALSE(GetCursorPos(&cursor));
    EXPECT_EQ(CPoint(cursor), CPoint(0, 0));
}

TEST(EditorServicesTest, CStringFormatsWithTheHostsRulesAndEdits)
{
    CString text;
    text.Format(L"%s: %d mm, %.1f", L"宽度", 600, 2.25);
    EXPECT_EQ(text, L"宽度: 600 mm, 2.2");
    text.AppendFormat(L" [%S]", "ok");
    EXPECT_EQ(text.GetLength(), 20);
    EXPECT_EQ(text.Find(L"mm"), 8);
    EXPECT_EQ(text.Find(L'Z'), -1);
    EXPECT_EQ(text.Left(2), L"宽度");
    EXPECT_EQ(text.Mid(4, 3), L"600");
    EXPECT_EQ(text.Right(4), L"[ok]");
    EXPECT_EQ(text.Left(100), text);
    CString padded(L"  a-b-c  ");
    EXPECT_EQ(padded.Trim().Replace(L"-", L"+"), 2);
    EXPECT_EQ(padded, L"a+b+c");
    EXPECT_EQ(CString(L"Panel").CompareNoCase(L"PANEL"), 0);
    EXPECT_EQ(CString(L"x") + L"y" + CString(L'z', 2), L"xyzz");
    std::ostringstream os;
    os << CString(L"屋面");
    EXPECT_EQ(os.str(), "屋面");
}

}  // namespace
