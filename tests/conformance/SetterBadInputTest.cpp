// Bad input to the entities' public setters: NaN, infinities and zero-length directions.
// Each is refused with a status and leaves the entity's filing as it was (a division
// line's bulge is clamped by design, so an infinite one is not bad input). New entities
// add their setters as rows of the table.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "ModuleTestSupport.h"
#include "lines/AecDivisionLine.h"
#include "lines/AecOverlapLine.h"
#include "lines/AecStructuralLine.h"
#include "openings/AecRectOpening.h"

namespace {

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

struct BadInput {
    const char* what;
    std::function<AcDbEntity*()> make;
    std::function<Acad::ErrorStatus(AcDbEntity*)> set;
};

template <typename T>
std::function<AcDbEntity*()> Make()
{
    return [] { return new T(); };
}

template <typename T>
std::function<Acad::ErrorStatus(AcDbEntity*)> Call(std::function<Acad::ErrorStatus(T*)> set)
{
    return [set](AcDbEntity* e) { return set(static_cast<T*>(e)); };
}

std::vector<BadInput> Table()
{
    using Div = AecDivisionLine;
    using Ovl = AecOverlapLine;
    using Str = AecStructuralLine;
    using Rect = AecRectOpening;
    const AcGePoint3d nanPoint(kNaN, 0, 0);
    const AcGePoint3d infPoint(0, kInf, 0);
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
    };
}

TEST(SetterBadInputTest, EveryBadValueIsRefusedAndChangesNothing)
{
    qxtest::WorkingDatabase working;
    for (const BadInput& row : Table()) {
        SCOPED_TRACE(row.what);
        std::unique_ptr<AcDbEntity> entity(row.make());
        const qxtest::Bytes before = qxtest::FileOut(entity.get(), working.db());
        EXPECT_NE(row.set(entity.get()), Acad::eOk);
        EXPECT_EQ(qxtest::FileOut(entity.get(), working.db()), before);
    }
}

}  // namespace
