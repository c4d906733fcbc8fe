// AcDbDatabase: adding and finding objects, the tables and the current values.
#include "AcDbDatabase.h"

#include <cmath>

#include "AcDbImpDatabase.h"
#include "AcDbStub.h"
#include "DbChecks.h"
#include "LinetypeLibrary.h"
#include "dbsymtb.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbDatabase, AcRxObject)

AcDbDatabase::AcDbDatabase(bool buildDefaultDrawing, bool /*noDocument*/) : m_imp(new AcDbImpDatabase(this))
{
    if (buildDefaultDrawing)
        m_imp->buildDefaultDrawing();
}

AcDbDatabase::~AcDbDatabase()
{
    delete m_imp;
}

Acad::ErrorStatus AcDbDatabase::addAcDbObject(AcDbObjectId& objId, AcDbObject* obj)
{
    objId.setNull();
    return m_imp->add(obj, objId);
}

Acad::ErrorStatus AcDbDatabase::addAcDbObject(AcDbObject* obj)
{
    AcDbObjectId id;
    return m_imp->add(obj, id);
}

// xRefId names a reference drawing; the headless host has none, so it is ignored.
Acad::ErrorStatus AcDbDatabase::getAcDbObjectId(AcDbObjectId& retId, bool createIfNotFound,
                                                const AcDbHandle& objHandle, Adesk::UInt32 /*xRefId*/)
{
    retId.setNull();
    if (objHandle.isNull())
        return Acad::eNullHandle;
    AcDbStub* stub = createIfNotFound ? m_imp->stubFor(objHandle.value()) : m_imp->find(objHandle.value());
    if (stub == nullptr)
        return Acad::eUnknownHandle;
    retId = AcDbObjectId(stub);
    return Acad::eOk;
}

AcDbHandle AcDbDatabase::handseed() const
{
    return AcDbHandle(m_imp->handseed());
}

Adesk::Int32 AcDbDatabase::approxNumObjects() const
{
    return static_cast<Adesk::Int32>(m_imp->stubs().size());
}

namespace {

template <class Table>
Acad::ErrorStatus openTable(const AcDbObjectId& id, Table*& table, AcDb::OpenMode mode)
{
    table = nullptr;
    return acdbOpenObject(table, id, mode);
}

// A record id given as a current value must be a record of the right table of db.
Acad::ErrorStatus checkRecord(const AcDbDatabase* db, const AcDbObjectId& id, AcRxClass* recordClass)
{
    if (id.isNull())
        return Acad::eNullObjectId;
    if (id.database() != db)
        return Acad::eWrongDatabase;
    const AcRxClass* cls = id.objectClass();
    if (cls == nullptr || !cls->isDerivedFrom(recordClass))
        return Acad::eWrongObjectType;
    if (id.isErased())
        return Acad::eWasErased;
    return Acad::eOk;
}

// Scales are finite and positive.
bool isValidScale(double scale)
{
    return std::isfinite(scale) && scale > 0.0;
}

}  // namespace

Acad::ErrorStatus AcDbDatabase::getBlockTable(AcDbBlockTable*& t, AcDb::OpenMode m)
{
    return openTable(m_imp->m_blockTable, t, m);
}
Acad::ErrorStatus AcDbDatabase::getLayerTable(AcDbLayerTable*& t, AcDb::OpenMode m)
{
    return openTable(m_imp->m_layerTable, t, m);
}
Acad::ErrorStatus AcDbDatabase::getLinetypeTable(AcDbLinetypeTable*& t, AcDb::OpenMode m)
{
    return openTable(m_imp->m_linetypeTable, t, m);
}
Acad::ErrorStatus AcDbDatabase::getTextStyleTable(AcDbTextStyleTable*& t, AcDb::OpenMode m)
{
    return openTable(m_imp->m_textStyleTable, t, m);
}
Acad::ErrorStatus AcDbDatabase::getDimStyleTable(AcDbDimStyleTable*& t, AcDb::OpenMode m)
{
    return openTable(m_imp->m_dimStyleTable, t, m);
}
Acad::ErrorStatus AcDbDatabase::getSymbolTable(AcDbBlockTable*& t, AcDb::OpenMode m) { return getBlockTable(t, m); }
Acad::ErrorStatus AcDbDatabase::getSymbolTable(AcDbLayerTable*& t, AcDb::OpenMode m) { return getLayerTable(t, m); }
Acad::ErrorStatus AcDbDatabase::getSymbolTable(AcDbLinetypeTable*& t, AcDb::OpenMode m)
{
    return getLinetypeTable(t, m);
}
Acad::ErrorStatus AcDbDatabase::getSymbolTable(AcDbTextStyleTable*& t, AcDb::OpenMode m)
{
    return getTextStyleTable(t, m);
}
Acad::ErrorStatus AcDbDatabase::getSymbolTable(AcDbDimStyleTable*& t, AcDb::OpenMode m)
{
    return getDimStyleTable(t, m);
}

AcDbObjectId AcDbDatabase::blockTableId() const { return m_imp->m_blockTable; }
AcDbObjectId AcDbDatabase::layerTableId() const { return m_imp->m_layerTable; }
AcDbObjectId AcDbDatabase::linetypeTableId() const { return m_imp->m_linetypeTable; }
AcDbObjectId AcDbDatabase::textStyleTableId() const { return m_imp->m_textStyleTable; }
AcDbObjectId AcDbDatabase::dimStyleTableId() const { return m_imp->m_dimStyleTable; }
AcDbObjectId AcDbDatabase::layerZero() const
{
    return m_imp->standardRecord(m_imp->m_layerZero, m_imp->m_layerTable, L"0");
}

AcDbObjectId AcDbDatabase::byLayerLinetype() const
{
    return m_imp->standardRecord(m_imp->m_byLayerLinetype, m_imp->m_linetypeTable, L"ByLayer");
}

AcDbObjectId AcDbDatabase::byBlockLinetype() const
{
    return m_imp->standardRecord(m_imp->m_byBlockLinetype, m_imp->m_linetypeTable, L"ByBlock");
}

AcDbObjectId AcDbDatabase::continuousLinetype() const
{
    return m_imp->standardRecord(m_imp->m_continuousLinetype, m_imp->m_linetypeTable, L"Continuous");
}

// The headless host has no layouts to activate: the current space is model space.
AcDbObjectId AcDbDatabase::currentSpaceId() const
{
    return m_imp->standardRecord(m_imp->m_modelSpace, m_imp->m_blockTable, ACDB_MODEL_SPACE);
}

// Current values that were never set (a drawing that was read) fall back to the standard
// records.
AcDbObjectId AcDbDatabase::textstyle() const
{
    return m_imp->standardRecord(m_imp->m_textstyle, m_imp->m_textStyleTable, L"Standard");
}

AcDbObjectId AcDbDatabase::dimstyle() const
{
    return m_imp->standardRecord(m_imp->m_dimstyle, m_imp->m_dimStyleTable, L"Standard");
}

AcDbObjectId AcDbDatabase::clayer() const
{
    return m_imp->m_clayer.isNull() || m_imp->m_clayer.isErased() ? layerZero() : m_imp->m_clayer;
}

AcDbObjectId AcDbDatabase::celtype() const
{
    return m_imp->m_celtype.isNull() || m_imp->m_celtype.isErased() ? byLayerLinetype() : m_imp->m_celtype;
}
AcCmColor AcDbDatabase::cecolor() const { return m_imp->m_cecolor; }
double AcDbDatabase::celtscale() const { return m_imp->m_celtscale; }
AcDb::LineWeight AcDbDatabase::celweight() const { return m_imp->m_celweight; }
double AcDbDatabase::ltscale() const { return m_imp->m_ltscale; }

Acad::ErrorStatus AcDbDatabase::setTextstyle(AcDbObjectId id)
{
    const Acad::ErrorStatus es = checkRecord(this, id, AcDbTextStyleTableRecord::desc());
    if (es == Acad::eOk)
        m_imp->m_textstyle = id;
    return es;
}

Acad::ErrorStatus AcDbDatabase::setDimstyle(AcDbObjectId id)
{
    const Acad::ErrorStatus es = checkRecord(this, id, AcDbDimStyleTableRecord::desc());
    if (es == Acad::eOk)
        m_imp->m_dimstyle = id;
    return es;
}

Acad::ErrorStatus AcDbDatabase::setClayer(AcDbObjectId id)
{
    const Acad::ErrorStatus es = checkRecord(this, id, AcDbLayerTableRecord::desc());
    if (es == Acad::eOk)
        m_imp->m_clayer = id;
    return es;
}

Acad::ErrorStatus AcDbDatabase::setCeltype(AcDbObjectId id)
{
    const Acad::ErrorStatus es = checkRecord(this, id, AcDbLinetypeTableRecord::desc());
    if (es == Acad::eOk)
        m_imp->m_celtype = id;
    return es;
}

Acad::ErrorStatus AcDbDatabase::setCecolor(const AcCmColor& color)
{
    m_imp->m_cecolor = color;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDatabase::setCeltscale(double scale)
{
    if (!isValidScale(scale))
        return Acad::eInvalidInput;
    m_imp->m_celtscale = scale;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDatabase::setCelweight(AcDb::LineWeight weight)
{
    if (!hostdb::isValidLineWeight(weight))
        return Acad::eInvalidInput;
    m_imp->m_celweight = weight;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDatabase::setLtscale(double scale)
{
    if (!isValidScale(scale))
        return Acad::eInvalidInput;
    m_imp->m_ltscale = scale;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDatabase::loadLineTypeFile(const ACHAR* ltName, const ACHAR* fileName)
{
    return hostdb::LinetypeLibrary::load(this, ltName, fileName);
}
