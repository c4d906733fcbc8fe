// The steel member: its width and display normalising, the record that a non-finite value
// or a newer version makes it refuse, its draw and its list.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <memory>

#include "ModuleTestSupport.h"
#include "headless/MemoryDwgFiler.h"
#include "headless/TextCodec.h"
#include "lines/AecSteelMember.h"

namespace {

using headless::PrimitiveKind;

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

TEST(AecSteelMemberTest, WidthsAreHeldTo1To2000)
{
    struct Case {
        double given;
        double stored;
    };
    const Case cases[] = {{0.2, 1.0},       {1.0, 1.0},  {150.0, 150.0},      {2000.0, 2000.0},
                          {2500.0, 2000.0}, {-5.0, 1.0}, {std::nan(""), 1.0}, {HUGE_VAL, 1.0}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.given);
        AecSteelMember member;
        member.SetLeftWidth(c.given);
        EXPECT_EQ(member.GetLeftWidth(), c.stored);
        EXPECT_EQ(member.GetRightWidth(), 100.0);
    }
    AecSteelMember member;
    member.SetCenteredWidth(300);
    EXPECT_EQ(member.GetLeftWidth(), 150.0);
    EXPECT_EQ(member.GetRightWidth(), 150.0);
    EXPECT_EQ(member.GetTotalWidth(), 300.0);
}

TEST(AecSteelMemberTest, DisplayOptionsKeepFourBitsAndAlwaysAnOutline)
{
    struct Case {
        Adesk::Int32 given;
        Adesk::Int32 stored;
    };
    for (const Case& c : {Case{4, 6}, Case{16, 2}, Case{1, 1}, Case{15, 15}, Case{8, 10}, Case{0, 2}}) {
        SCOPED_TRACE(c.given);
        AecSteelMember member;
        member.SetDisplayOptions(static_cast<SteelMemberDisplayOptions>(c.given));
        EXPECT_EQ(member.GetDisplayOptions(), c.stored);
    }
}

// The end point's x is the record's fifth double after the version: start x y z, end x.
TEST(AecSteelMemberTest, ANonFiniteRecordIsRefusedWith67AndChangesNothing)
{
    AecSteelMember source;
    source.SetPoints(AcGePoint3d(0, 0, 0), AcGePoint3d(4000, 0, 0));
    qxtest::WorkingDatabase working;
    headless::MemoryDwgFiler hostPart(AcDb::kFileFiler, working.db());
    ASSERT_EQ(source.QxPolylineBasedCurve::dwgOutFields(&hostPart), Acad::eOk);
    qxtest::Bytes bytes = qxtest::FileOut(&source);
    const double nan = std::nan("");
    std::memcpy(&bytes[hostPart.bytes().size() + 4 + 3 * sizeof(double)], &nan, sizeof nan);

    AecSteelMember target;
    target.SetPoints(AcGePoint3d(10, 20, 0), AcGePoint3d(30, 40, 0));
    const qxtest::Bytes before = qxtest::FileOut(&target);
    EXPECT_EQ(static_cast<int>(qxtest::FileIn(&target, bytes)), 67);
    EXPECT_EQ(qxtest::FileOut(&target), before);
    EXPECT_EQ(target.GetEndPoint(), AcGePoint3d(30, 40, 0));
}

// A 6000 long beam along X, 100 on each side: outline (0,-100) (6000,-100) (6000,100)
// (0,100), the axis, and "梁宽 200" beside the band.
TEST(AecSteelMemberTest, ABeamDrawsItsOutlineAxisAndWidthText)
{
    AecSteelMember member;
    member.SetPoints(AcGePoint3d(0, 0, 0), AcGePoint3d(6000, 0, 0));
    std::unique_ptr<AcDbPolyline> outline(member.CreateOutlinePolyline());
    ASSERT_EQ(outline->numVerts(), 4u);
    const AcGePoint3d corners[] = {{0, -100, 0}, {6000, -100, 0}, {6000, 100, 0}, {0, 100, 0}};
    for (unsigned int i = 0; i < 4; ++i) {
        AcGePoint3d p;
        outline->getPointAt(i, p);
        EXPECT_TRUE(qxtest::Near(p, corners[i])) << i;
    }
    const auto drawn = qxtest::Draw(&member);
    std::vector<PrimitiveKind> kinds;
    std::wstring text;
    for (const auto& p : drawn) {
        kinds.push_back(p.kind);
        if (p.kind == PrimitiveKind::kText)
            text = p.text;
    }
    EXPECT_EQ(kinds, (std::vector<PrimitiveKind>{PrimitiveKind::kPline, PrimitiveKind::kPline, PrimitiveKind::kText}));
    EXPECT_EQ(text, L"梁宽 200");

    member.SetKind(kSteelColumn);
    member.SetDisplayOptions(static_cast<SteelMemberDisplayOptions>(kSteelDisplayOutline | kSteelDisplayNoWidthText |
                                                                    kSteelDisplaySectionCross));
    EXPECT_EQ(member.WidthText(), AcString(L"柱宽 200"));
    std::vector<PrimitiveKind> column;
    for (const auto& p : qxtest::Draw(&member))
        column.push_back(p.kind);
    // The section cross first, then the outline; no axis, no text.
    EXPECT_EQ(column,
              (std::vector<PrimitiveKind>{PrimitiveKind::kPolyline, PrimitiveKind::kPolyline, PrimitiveKind::kPline}));
}

TEST(AecSteelMemberTest, TheListShowsKindEndsAndWidths)
{
    AecSteelMember member;
    member.SetPoints(AcGePoint3d(100, 200, 0), AcGePoint3d(100, 5200, 0));
    member.SetWidths(120, 80);
    member.SetKind(kSteelColumn);
    const std::wstring listed = qxtest::ListOutput(&member);
    const std::wstring expected = L"\n ***钢构件信息*** \n  类型: 钢柱\n  起点: (100.000, 200.000, 0.000)"
                                  L"\n  终点: (100.000, 5200.000, 0.000)\n  构件宽度: 200.000\n  左侧宽度: 120.000"
                                  L"\n  右侧宽度: 80.000";
    ASSERT_GE(listed.size(), expected.size());
    EXPECT_EQ(listed.substr(listed.size() - expected.size()), expected) << headless::toUtf8(listed);
}

}  // namespace
