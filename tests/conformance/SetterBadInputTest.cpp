// Bad input to the entities' public setters: NaN, infinities, zero-length directions, huge
// counts, indices and ids that name nothing. Each is refused with a status (or false) and
// leaves the entity's filing as it was (a division line's bulge is clamped by design, so
// an infinite one is not bad input). Very long and empty strings are kept exactly. New
// entities add their setters as rows of the table.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "ModuleTestSupport.h"
#include "dbapserv.h"
#include "dbpl.h"
#include "lines/AecDivisionLine.h"
#include "lines/AecOverlapLine.h"
#include "lines/AecShouBianLine.h"
#include "lines/AecSteelMember.h"
#include "lines/AecStructuralLine.h"
#include "openings/AecCircleOpening.h"
#include "openings/AecPolyOpening.h"
#include "openings/AecRectOpening.h"
#include "panel/AecPanel.h"
#include "panel/AecPanelLite.h"

namespace {

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

struct BadInput {
    const char* what;
    std::function<AcDbEntity*()> make;
    // True when the setter refused the value.
    std::function<bool(AcDbEntity*)> refused;
};

template <typename T>
std::function<AcDbEntity*()> Make()
{
    return [] { return new T(); };
}

template <typename T>
std::function<bool(AcDbEntity*)> Call(std::function<Acad::ErrorStatus(T*)> set)
{
    return [set](AcDbEntity* e) { return set(static_cast<T*>(e)) != Acad::eOk; };
}

template <typename T>
std::function<bool(AcDbEntity*)> Try(std::function<bool(T*)> set)
{
    return [set](AcDbEntity* e) { return !set(static_cast<T*>(e)); };
}

AcArray<AcGePoint2d> Points(std::initializer_list<AcGePoint2d> points)
{
    AcArray<AcGePoint2d> out;
    for (const AcGePoint2d& p : points)
        out.append(p);
    return out;
}

AcArray<AcGePoint2d> Sheet()
{
    return Points({{0, 0}, {6000, 0}, {6000, 750}, {0, 750}});
}

// More vertices than a host polyline holds (100,000), on a circle so that nothing else
// about them is wrong.
AcArray<AcGePoint2d> HugeOutline()
{
    AcArray<AcGePoint2d> out;
    const int count = 100001;
    for (int i = 0; i < count; ++i) {
        const double angle = 2.0 * 3.14159265358979323846 * i / count;
        out.append(AcGePoint2d(1e6 * std::cos(angle), 1e6 * std::sin(angle)));
    }
    return out;
}

AcDbEntity* MakePanel()
{
    auto* panel = new AecPanel();
    panel->SetOuterLoopFromPoints(Sheet());
    panel->SetTextLabel(DbxPanel::TextLabelType::kLength, L"6000");
    return panel;
}

AcDbEntity* MakeLitePanel()
{
    auto* panel = new AecPanelLite();
    panel->AppendLoop(Sheet(), AcArray<double>());
    return panel;
}

AcDbEntity* MakeFlashing()
{
    auto* line = new AecShouBianLine();
    line->SetPoints(AcGePoint3d(0, 0, 0), AcGePoint3d(3000, 0, 0));
    return line;
}

// An id with a handle but no object behind it.
AcDbObjectId IdOfNothing()
{
    AcDbObjectId id;
    acdbHostApplicationServices()->workingDatabase()->getAcDbObjectId(id, true, AcDbHandle(0x7FFFFF));
    return id;
}

std::vector<BadInput> Table()
{
    using Div = AecDivisionLine;
    using Ovl = AecOverlapLine;
    using Str = AecStructuralLine;
    using Rect = AecRectOpening;
    using Circle = AecCircleOpening;
    using Poly = AecPolyOpening;
    using Panel = AecPanel;
    using Lite = AecPanelLite;
    using Flash = AecShouBianLine;
    using Steel = AecSteelMember;
    using Type = DbxPanel::TextLabelType;
    const AcGePoint3d nanPoint(kNaN, 0, 0);
    const AcGePoint3d infPoint(0, kInf, 0);
    const AcGePoint3d origin(0, 0, 0);
    return {
        {"division bulge NaN", Make<Div>(), Call<Div>([](Div* e) { return e->SetBulge(kNaN); })},
        {"division indent NaN", Make<Div>(), Call<Div>([](Div* e) { return e->SetIndentLeft(kNaN); })},
        {"division indent -inf", Make<Div>(), Call<Div>([](Div* e) { return e->SetIndentRight(-kInf); })},
        {"division start NaN", Make<Div>(), Call<Div>([=](Div* e) { return e->SetStartPoint(nanPoint); })},
        {"division end infinite", Make<Div>(), Call<Div>([=](Div* e) { return e->SetEndPoint(infPoint); })},
        {"division points NaN", Make<Div>(),
         Call<Div>([=](Div* e) { return e->SetPoints(nanPoint, AcGePoint3d(1, 0, 0)); })},
        {"division boundary point NaN", Make<Div>(),
         Call<Div>([=](Div* e) { return e->SetBoundaryIdentifierPoint(nanPoint); })},
        {"overlap left NaN", Make<Ovl>(), Call<Ovl>([](Ovl* e) { return e->SetOverlapLeft(kNaN); })},
        {"overlap right infinite", Make<Ovl>(), Call<Ovl>([](Ovl* e) { return e->SetOverlapRight(kInf); })},
        {"structural width NaN", Make<Str>(), Call<Str>([](Str* e) { return e->SetMemberWidthLeft(kNaN); })},
        {"structural width infinite", Make<Str>(), Call<Str>([](Str* e) { return e->SetMemberWidthRight(kInf); })},
        {"structural indent NaN", Make<Str>(), Call<Str>([](Str* e) { return e->SetIndentLeft(kNaN); })},
        {"rect anchor NaN", Make<Rect>(), Call<Rect>([=](Rect* e) { return e->SetAnchorPoint(nanPoint); })},
        {"rect direction zero", Make<Rect>(), Call<Rect>([](Rect* e) { return e->SetDirX(AcGeVector3d(0, 0, 0)); })},
        {"rect direction NaN", Make<Rect>(), Call<Rect>([](Rect* e) { return e->SetDirX(AcGeVector3d(kNaN, 1, 0)); })},
        {"rect title height NaN", Make<Rect>(), Call<Rect>([](Rect* e) { return e->SetTitleHeight(kNaN); })},
        {"rect title height infinite", Make<Rect>(), Call<Rect>([](Rect* e) { return e->SetTitleHeight(kInf); })},
        {"circle title position NaN", Make<Circle>(), Call<Circle>([=](Circle* e) {
             CircleOpeningData data = e->GetData();
             data.titleLabel.SetPosition(nanPoint);
             return e->SetData(data);
         })},
        {"polygonal title height NaN", Make<Poly>(), Call<Poly>([](Poly* e) {
             PolyOpeningData data = e->GetData();
             data.titleHeight = kNaN;
             return e->SetData(data);
         })},
        {"polygonal segment label height infinite", Make<Poly>(), Call<Poly>([](Poly* e) {
             PolyOpeningData data = e->GetData();
             data.segmentLabelHeight = -kInf;
             return e->SetData(data);
         })},
        {"panel outline NaN", MakePanel, Try<Panel>([](Panel* e) {
             return e->SetOuterLoopFromPoints(Points({{0, 0}, {kNaN, 0}, {1, 1}}));
         })},
        {"panel outline of two vertices", MakePanel, Try<Panel>([](Panel* e) {
             return e->SetOuterLoopFromPoints(Points({{0, 0}, {1, 0}}));
         })},
        {"panel outline of more vertices than a polyline holds", MakePanel,
         Try<Panel>([](Panel* e) { return e->SetOuterLoopFromPoints(HugeOutline()); })},
        {"panel bulges one short", MakePanel, Try<Panel>([](Panel* e) {
             AcArray<double> bulges;
             bulges.append(0.0);
             return e->SetOuterLoopFromPointsWithBulges(Sheet(), bulges);
         })},
        {"panel bulge infinite", MakePanel, Try<Panel>([](Panel* e) {
             AcArray<double> bulges;
             for (double b : {0.0, kInf, 0.0, 0.0})
                 bulges.append(b);
             return e->SetOuterLoopFromPointsWithBulges(Sheet(), bulges);
         })},
        {"panel loop beyond the loops", MakePanel,
         Try<Panel>([](Panel* e) { return e->SetLoopFromPointsAt(7, Sheet()); })},
        {"panel loop index negative", MakePanel,
         Try<Panel>([](Panel* e) { return e->SetLoopFromPointsAt(-1, Sheet()); })},
        {"panel loop from no polyline", MakePanel,
         Try<Panel>([](Panel* e) { return e->SetOuterLoopFromPolyline(nullptr); })},
        {"panel length NaN", MakePanel, Try<Panel>([](Panel* e) { return e->SetGeomLengthAndFlush(kNaN, true); })},
        {"panel width infinite", MakePanel, Try<Panel>([](Panel* e) { return e->SetGeomWidthAndFlush(kInf, true); })},
        {"panel length huge", MakePanel, Try<Panel>([](Panel* e) { return e->SetGeomLengthAndFlush(1e300, true); })},
        {"panel width negative", MakePanel, Try<Panel>([](Panel* e) { return e->SetGeomWidthAndFlush(-750, true); })},
        {"panel label angle NaN", MakePanel,
         Try<Panel>([](Panel* e) { return e->SetTextFixedAngle(Type::kLength, kNaN); })},
        {"panel label from no text", MakePanel,
         Try<Panel>([](Panel* e) { return e->SetTextLabelFromDbText(Type::kLength, nullptr); })},
        {"panel label that does not exist", MakePanel,
         Try<Panel>([](Panel* e) { return e->SetTextLabelColorIndex(Type::kWidth, 3); })},
        {"panel label layer that is a text style", MakePanel, Try<Panel>([](Panel* e) {
             return e->SetTextLabelLayerId(Type::kLength,
                                           acdbHostApplicationServices()->workingDatabase()->textstyle());
         })},
        {"panel label layer id of nothing", MakePanel,
         Try<Panel>([](Panel* e) { return e->SetTextLabelLayerId(Type::kLength, IdOfNothing()); })},
        {"lite scale NaN", MakeLitePanel, Call<Lite>([](Lite* e) { return e->SetPatScale(kNaN); })},
        {"lite scale zero", MakeLitePanel, Call<Lite>([](Lite* e) { return e->SetPatScale(0.0); })},
        {"lite pattern type unknown", MakeLitePanel, Call<Lite>([](Lite* e) {
             return e->SetOutlineAndPattern(static_cast<AcDbHatch::HatchPatternType>(9), L"ANSI31", 1.0, 0.0, 1, 0.0);
         })},
        {"lite pattern angle infinite", MakeLitePanel, Call<Lite>([](Lite* e) {
             return e->SetOutlineAndPattern(AcDbHatch::kPreDefined, L"ANSI31", 1.0, kInf, 1, 0.0);
         })},
        {"lite loop of one vertex", MakeLitePanel, Call<Lite>([](Lite* e) {
             return e->AppendLoop(Points({{1, 1}}), AcArray<double>());
         })},
        {"lite loop NaN", MakeLitePanel, Call<Lite>([](Lite* e) {
             return e->AppendLoop(Points({{1, 1}, {kNaN, 2}, {3, 1}}), AcArray<double>());
         })},
        {"lite loop bulge count", MakeLitePanel, Call<Lite>([](Lite* e) {
             AcArray<double> bulges;
             bulges.append(0.5);
             return e->AppendLoop(Sheet(), bulges);
         })},
        {"lite loop from no polyline", MakeLitePanel,
         Call<Lite>([](Lite* e) { return e->AppendLoopFromBoundary(nullptr); })},
        {"lite vertex NaN", MakeLitePanel, Try<Lite>([=](Lite* e) { return e->AddVertex(nanPoint); })},
        {"flashing vertex NaN", MakeFlashing, Call<Flash>([=](Flash* e) { return e->AppendVertex(nanPoint); })},
        {"flashing appended bulge NaN", MakeFlashing,
         Call<Flash>([](Flash* e) { return e->AppendVertex(AcGePoint3d(5000, 0, 0), kNaN); })},
        {"flashing insert before the start", MakeFlashing,
         Call<Flash>([](Flash* e) { return e->InsertVertex(-1, AcGePoint3d(1, 1, 0)); })},
        {"flashing insert far beyond the end", MakeFlashing,
         Call<Flash>([](Flash* e) { return e->InsertVertex(1000000, AcGePoint3d(1, 1, 0)); })},
        {"flashing remove beyond the end", MakeFlashing, Call<Flash>([](Flash* e) { return e->RemoveVertex(2); })},
        {"flashing set beyond the end", MakeFlashing, Call<Flash>([=](Flash* e) { return e->SetVertexAt(2, origin); })},
        {"flashing set vertex infinite", MakeFlashing,
         Call<Flash>([=](Flash* e) { return e->SetVertexAt(0, infPoint); })},
        {"flashing bulge NaN", MakeFlashing, Call<Flash>([](Flash* e) { return e->SetBulgeAt(0, kNaN); })},
        {"flashing bulge huge", MakeFlashing, Call<Flash>([](Flash* e) { return e->SetBulgeAt(0, 1e9); })},
        {"flashing bulge of no segment", MakeFlashing, Call<Flash>([](Flash* e) { return e->SetBulgeAt(5, 0.5); })},
        {"flashing indent NaN", MakeFlashing, Call<Flash>([](Flash* e) { return e->SetIndentLeft(kNaN); })},
        {"flashing indent infinite", MakeFlashing, Call<Flash>([](Flash* e) { return e->SetIndentRight(-kInf); })},
        {"flashing boundary point NaN", MakeFlashing,
         Call<Flash>([=](Flash* e) { return e->SetBoundaryIdentifierPoint(nanPoint); })},
        {"flashing points NaN", MakeFlashing, Call<Flash>([=](Flash* e) { return e->SetPoints(nanPoint, origin); })},
        {"flashing from no polyline", MakeFlashing, Call<Flash>([](Flash* e) { return e->SetFromPolyline(nullptr); })},
        {"flashing label beyond the labels", MakeFlashing,
         Call<Flash>([](Flash* e) { return e->SetTextLabelAt(99, DbxPanel::TextLabel()); })},
        {"steel points NaN", Make<Steel>(), Call<Steel>([=](Steel* e) { return e->SetPoints(nanPoint, origin); })},
        {"steel start infinite", Make<Steel>(), Call<Steel>([=](Steel* e) { return e->SetStartPoint(infPoint); })},
        {"steel end NaN", Make<Steel>(), Call<Steel>([=](Steel* e) { return e->SetEndPoint(nanPoint); })},
    };
}

TEST(SetterBadInputTest, EveryBadValueIsRefusedAndChangesNothing)
{
    qxtest::WorkingDatabase working;
    for (const BadInput& row : Table()) {
        SCOPED_TRACE(row.what);
        std::unique_ptr<AcDbEntity> entity(row.make());
        const qxtest::Bytes before = qxtest::FileOut(entity.get(), working.db());
        EXPECT_TRUE(row.refused(entity.get()));
        EXPECT_EQ(qxtest::FileOut(entity.get(), working.db()), before);
    }
}

// Strings are data, not bad input, whatever their length: a title, a label and an
// information block of 200,000 characters (and empty ones) file out and read back whole.
TEST(SetterBadInputTest, VeryLongAndEmptyStringsAreKeptExactly)
{
    qxtest::WorkingDatabase working;
    for (const std::size_t length : {std::size_t{0}, std::size_t{200000}}) {
        SCOPED_TRACE(length);
        const AcString text(std::wstring(length, L'板').c_str());
        const AcString json =
            length == 0 ? AcString() : AcString((L"{\"k\":\"" + std::wstring(length, L'x') + L"\"}").c_str());

        AecRectOpening rect;
        rect.SetTitleText(text);
        AecRectOpening rectBack;
        ASSERT_EQ(qxtest::FileIn(&rectBack, qxtest::FileOut(&rect, working.db()), working.db()), Acad::eOk);
        EXPECT_EQ(rectBack.GetTitleLabel().GetLabel(), text);

        std::unique_ptr<AcDbEntity> made(MakePanel());
        auto* panel = static_cast<AecPanel*>(made.get());
        ASSERT_TRUE(panel->UpdateTextContent(DbxPanel::TextLabelType::kLength, text));
        panel->SetPanelAccessoryInfoJsonStr(json.kwszPtr());
        AecPanel panelBack;
        ASSERT_EQ(qxtest::FileIn(&panelBack, qxtest::FileOut(panel, working.db()), working.db()), Acad::eOk);
        AcString label;
        AcGePoint3d position;
        ASSERT_TRUE(panelBack.GetTextLabelContentAndPosition(DbxPanel::TextLabelType::kLength, label, position));
        EXPECT_EQ(label, text);
        EXPECT_EQ(AcString(panelBack.GetPanelAccessoryInfoJsonStr()), json);

        std::unique_ptr<AcDbEntity> flashing(MakeFlashing());
        auto* line = static_cast<AecShouBianLine*>(flashing.get());
        line->SetShouBianJsonStr(json.kwszPtr());
        AecShouBianLine lineBack;
        ASSERT_EQ(qxtest::FileIn(&lineBack, qxtest::FileOut(line, working.db()), working.db()), Acad::eOk);
        EXPECT_EQ(lineBack.GetShouBianJsonStr(), json);
    }
}

}  // namespace
