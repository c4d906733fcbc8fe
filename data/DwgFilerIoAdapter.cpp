// DwgFilerIoAdapter: one filer call per operation; the statuses are dropped on purpose
// because the filer keeps the first failure and the entity returns it at the end.
#include "DwgFilerIoAdapter.h"

#include <stdexcept>

#include "dbmain.h"

void DwgFilerIoAdapter::Write(const AcString& value) { m_filer->writeString(value); }
void DwgFilerIoAdapter::Write(const AcGePoint2d& value) { m_filer->writePoint2d(value); }
void DwgFilerIoAdapter::Write(const AcGePoint3d& value) { m_filer->writePoint3d(value); }
void DwgFilerIoAdapter::Write(const AcGeVector2d& value) { m_filer->writeVector2d(value); }
void DwgFilerIoAdapter::Write(const AcGeVector3d& value) { m_filer->writeVector3d(value); }
void DwgFilerIoAdapter::Write(double value) { m_filer->writeDouble(value); }
void DwgFilerIoAdapter::Write(Adesk::UInt32 value) { m_filer->writeUInt32(value); }
void DwgFilerIoAdapter::Write(Adesk::Int32 value) { m_filer->writeInt32(value); }
void DwgFilerIoAdapter::Write(bool value) { m_filer->writeBool(value); }
void DwgFilerIoAdapter::Read(AcString& value) { m_filer->readString(value); }
void DwgFilerIoAdapter::Read(AcGePoint2d& value) { m_filer->readPoint2d(&value); }
void DwgFilerIoAdapter::Read(AcGePoint3d& value) { m_filer->readPoint3d(&value); }
void DwgFilerIoAdapter::Read(AcGeVector2d& value) { m_filer->readVector2d(&value); }
void DwgFilerIoAdapter::Read(AcGeVector3d& value) { m_filer->readVector3d(&value); }
void DwgFilerIoAdapter::Read(double& value) { m_filer->readDouble(&value); }
void DwgFilerIoAdapter::Read(Adesk::UInt32& value) { m_filer->readUInt32(&value); }
void DwgFilerIoAdapter::Read(Adesk::Int32& value) { m_filer->readInt32(&value); }
void DwgFilerIoAdapter::Read(bool& value) { m_filer->readBool(&value); }
void DwgFilerIoAdapter::Write(const AcDbSoftPointerId& value) { m_filer->writeSoftPointerId(value); }
void DwgFilerIoAdapter::Read(AcDbSoftPointerId& value) { m_filer->readSoftPointerId(&value); }
void DwgFilerIoAdapter::Write(const AcDbHardPointerId& value) { m_filer->writeHardPointerId(value); }
void DwgFilerIoAdapter::Read(AcDbHardPointerId& value) { m_filer->readHardPointerId(&value); }

Acad::ErrorStatus DwgFilerIoAdapter::ReadObject(AcDbObject* object)
{
    return object->dwgIn(m_filer);
}

namespace {

template <typename Id, typename WriteOne>
void WriteIds(AcDbDwgFiler* filer, const std::vector<Id>& ids, WriteOne writeOne)
{
    filer->writeInt32(static_cast<Adesk::Int32>(ids.size()));
    for (const Id& id : ids)
        (filer->*writeOne)(id);
}

// A negative count is taken as a huge size and fails with the standard length error, so a
// hostile count never turns into a silent partial read. Elements are read one by one and the
// read stops when the filer fails, so a count larger than the data cannot make the vector
// allocate more than the data holds; a well-formed stream always yields count elements.
template <typename Id, typename ReadOne>
void ReadIds(AcDbDwgFiler* filer, std::vector<Id>& ids, ReadOne readOne)
{
    Adesk::Int32 count = 0;
    filer->readInt32(&count);
    if (count < 0)
        throw std::length_error("vector too long");
    ids.clear();
    for (Adesk::Int32 i = 0; i < count; ++i) {
        Id id;
        if ((filer->*readOne)(&id) != Acad::eOk)
            break;
        ids.push_back(id);
    }
}

}  // namespace

void DwgFilerIoAdapter::Write(const std::vector<AcDbSoftPointerId>& ids)
{
    WriteIds(m_filer, ids, &AcDbDwgFiler::writeSoftPointerId);
}

void DwgFilerIoAdapter::Read(std::vector<AcDbSoftPointerId>& ids)
{
    ReadIds(m_filer, ids, &AcDbDwgFiler::readSoftPointerId);
}

void DwgFilerIoAdapter::Write(const std::vector<AcDbHardPointerId>& ids)
{
    WriteIds(m_filer, ids, &AcDbDwgFiler::writeHardPointerId);
}

void DwgFilerIoAdapter::Read(std::vector<AcDbHardPointerId>& ids)
{
    ReadIds(m_filer, ids, &AcDbDwgFiler::readHardPointerId);
}
