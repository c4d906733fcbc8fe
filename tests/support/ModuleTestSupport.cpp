// Helpers for the module's suites.
#include "ModuleTestSupport.h"

#include <cmath>
#include <sstream>

#include "dbapserv.h"
#include "dbsymtb.h"
#include "headless/CommandLine.h"
#include "headless/MemoryDwgFiler.h"
#include "headless/RecordingDwgFiler.h"
#include "headless/RecordingWorldDraw.h"
#include "headless/TextCodec.h"
#include "rxdlinkr.h"

namespace qxtest {
namespace {

const wchar_t* const kModulePath = L"" QX_MODULE_PATH;

class ModuleEnvironment : public ::testing::Environment {
public:
    void SetUp() override
    {
        headless::CommandLineCapture quiet;
        ASSERT_TRUE(acrxDynamicLinker->loadModule(kModulePath, false)) << quiet.utf8();
    }
    void TearDown() override
    {
        headless::CommandLineCapture quiet;
        EXPECT_TRUE(acrxDynamicLinker->unloadModule(kModulePath, false)) << quiet.utf8();
    }
};

}  // namespace

bool RegisterModuleEnvironment()
{
    // Several sources of one program ask; the module is loaded once for all of them.
    static const bool registered = [] {
        ::testing::AddGlobalTestEnvironment(new ModuleEnvironment());
        return true;
    }();
    return registered;
}

WorkingDatabase::WorkingDatabase() : m_previous(acdbHostApplicationServices()->workingDatabase())
{
    acdbHostApplicationServices()->setWorkingDatabase(&m_db);
}

WorkingDatabase::~WorkingDatabase()
{
    acdbHostApplicationServices()->setWorkingDatabase(m_previous);
}

AcDbObjectId WorkingDatabase::Add(AcDbEntity* entity)
{
    AcDbBlockTableRecord* space = nullptr;
    EXPECT_EQ(acdbOpenObject(space, m_db.currentSpaceId(), AcDb::kForWrite), Acad::eOk);
    AcDbObjectId id;
    EXPECT_EQ(space->appendAcDbEntity(id, entity), Acad::eOk);
    space->close();
    EXPECT_EQ(entity->close(), Acad::eOk);
    return id;
}

std::wstring ListOutput(const AcDbEntity* entity)
{
    headless::CommandLineCapture capture;
    entity->list();
    return capture.text();
}

Bytes FileOut(const AcDbObject* object, AcDbDatabase* db)
{
    headless::MemoryDwgFiler filer(AcDb::kFileFiler, db != nullptr ? db : object->database());
    EXPECT_EQ(object->dwgOutFields(&filer), Acad::eOk);
    return filer.bytes();
}

Acad::ErrorStatus FileIn(AcDbObject* object, const Bytes& bytes, AcDbDatabase* db)
{
    headless::MemoryDwgFiler filer(bytes, AcDb::kFileFiler, db != nullptr ? db : object->database());
    return object->dwgInFields(&filer);
}

std::vector<std::string> FilingTranscript(const AcDbObject* object)
{
    headless::RecordingDwgFiler filer;
    EXPECT_EQ(object->dwgOutFields(&filer), Acad::eOk);
    return filer.lines();
}

std::vector<headless::RecordedPrimitive> Draw(AcDbEntity* entity)
{
    headless::RecordingWorldDraw draw;
    draw.setDatabase(entity->database());
    draw.drawDrawable(entity);
    return draw.primitives();
}

::testing::AssertionResult Near(const AcGePoint3d& a, const AcGePoint3d& b, double tol)
{
    if (a.distanceTo(b) <= tol)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << a << " is not within " << tol << " of " << b;
}

::testing::AssertionResult Near(const AcGeVector3d& a, const AcGeVector3d& b, double tol)
{
    if ((a - b).length() <= tol)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << a << " is not within " << tol << " of " << b;
}

::testing::AssertionResult SamePrimitives(const std::vector<headless::RecordedPrimitive>& a,
                                          const std::vector<headless::RecordedPrimitive>& b, double tol)
{
    if (a.size() != b.size())
        return ::testing::AssertionFailure() << a.size() << " primitives against " << b.size();
    for (std::size_t i = 0; i < a.size(); ++i) {
        const auto& p = a[i];
        const auto& q = b[i];
        auto differ = [&](const char* what) {
            return ::testing::AssertionFailure() << "primitive " << i << " differs in " << what << ":\n  " << p
                                                 << "\n  " << q;
        };
        if (p.kind != q.kind || p.points.size() != q.points.size() || p.vectors.size() != q.vectors.size() ||
            p.numbers.size() != q.numbers.size() || p.integers != q.integers || p.text != q.text)
            return differ("shape");
        for (std::size_t k = 0; k < p.points.size(); ++k)
            if (p.points[k].distanceTo(q.points[k]) > tol)
                return differ("points");
        for (std::size_t k = 0; k < p.vectors.size(); ++k)
            if ((p.vectors[k] - q.vectors[k]).length() > tol)
                return differ("vectors");
        for (std::size_t k = 0; k < p.numbers.size(); ++k)
            if (std::fabs(p.numbers[k] - q.numbers[k]) > tol)
                return differ("numbers");
    }
    return ::testing::AssertionSuccess();
}

}  // namespace qxtest
