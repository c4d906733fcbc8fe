// Helpers for the drawing and entity suites: a working database for the test's life, a
// drawable made of a lambda, list capture, and filing through the headless memory filer.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "AcDbDatabase.h"
#include "acgi.h"
#include "dbapserv.h"
#include "dbmain.h"
#include "dbsymtb.h"
#include "headless/CommandLine.h"
#include "headless/MemoryDwgFiler.h"

namespace enttest {

using Bytes = std::vector<std::uint8_t>;

// A fresh default drawing that is the working database while the object lives.
class WorkingDatabase {
public:
    WorkingDatabase() : m_previous(acdbHostApplicationServices()->workingDatabase())
    {
        acdbHostApplicationServices()->setWorkingDatabase(&m_db);
    }
    ~WorkingDatabase() { acdbHostApplicationServices()->setWorkingDatabase(m_previous); }
    WorkingDatabase(const WorkingDatabase&) = delete;
    WorkingDatabase& operator=(const WorkingDatabase&) = delete;

    AcDbDatabase* db() { return &m_db; }

    // Appends the entity to model space; it is closed again before returning.
    AcDbObjectId addToModelSpace(AcDbEntity* entity)
    {
        AcDbBlockTable* blocks = nullptr;
        EXPECT_EQ(m_db.getBlockTable(blocks, AcDb::kForRead), Acad::eOk);
        AcDbBlockTableRecord* model = nullptr;
        EXPECT_EQ(blocks->getAt(ACDB_MODEL_SPACE, model, AcDb::kForWrite), Acad::eOk);
        blocks->close();
        AcDbObjectId id;
        EXPECT_EQ(model->appendAcDbEntity(id, entity), Acad::eOk);
        model->close();
        EXPECT_EQ(entity->close(), Acad::eOk);
        return id;
    }

    // Adds a layer (or linetype) record by name and answers its id.
    AcDbObjectId addLayer(const ACHAR* name)
    {
        AcDbLayerTable* layers = nullptr;
        EXPECT_EQ(m_db.getLayerTable(layers, AcDb::kForWrite), Acad::eOk);
        auto* record = new AcDbLayerTableRecord();
        record->setName(name);
        AcDbObjectId id;
        EXPECT_EQ(layers->add(id, record), Acad::eOk);
        record->close();
        layers->close();
        return id;
    }

private:
    AcDbDatabase m_db;
    AcDbDatabase* m_previous;
};

// A drawable whose draw is a lambda.
class LambdaDrawable : public AcGiDrawable {
public:
    using Draw = std::function<Adesk::Boolean(AcGiWorldDraw*)>;
    using Attributes = std::function<Adesk::UInt32(AcGiDrawableTraits*)>;

    explicit LambdaDrawable(Draw draw, Attributes attributes = nullptr)
        : m_draw(std::move(draw)), m_attributes(std::move(attributes))
    {
    }
    Adesk::Boolean isPersistent() const override { return false; }
    AcDbObjectId id() const override { return AcDbObjectId::kNull; }

protected:
    Adesk::UInt32 subSetAttributes(AcGiDrawableTraits* traits) override
    {
        return m_attributes ? m_attributes(traits) : Adesk::UInt32(kDrawableNone);
    }
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override { return m_draw(worldDraw); }
    void subViewportDraw(AcGiViewportDraw*) override {}

private:
    Draw m_draw;
    Attributes m_attributes;
};

// What the entity's list prints, as UTF-8.
inline std::string listOf(const AcDbEntity* entity)
{
    headless::CommandLineCapture capture;
    entity->list();
    return capture.utf8();
}

// The bytes an object files out through a file filer.
inline Bytes fileOut(const AcDbObject* object, AcDbDatabase* db = nullptr)
{
    headless::MemoryDwgFiler filer(AcDb::kFileFiler, db);
    EXPECT_EQ(object->dwgOut(&filer), Acad::eOk);
    return filer.bytes();
}

// Reads the bytes into the object; answers the status.
inline Acad::ErrorStatus fileIn(AcDbObject* object, const Bytes& bytes, AcDbDatabase* db = nullptr)
{
    headless::MemoryDwgFiler filer(bytes, AcDb::kFileFiler, db);
    return object->dwgIn(&filer);
}

template <class T>
std::string text(const T& value)
{
    std::ostringstream os;
    os << value;
    return os.str();
}

}  // namespace enttest
