// ArrayDataIoAdapter: in-memory typed sequences.
#include "ArrayDataIoAdapter.h"

ArrayDataIoAdapter::ArrayDataIoAdapter()
{
    Reset();
}

void ArrayDataIoAdapter::Reset()
{
    m_bools.Reset();
    m_ints.Reset();
    m_uints.Reset();
    m_doubles.Reset();
    m_vectors3d.Reset();
    m_vectors2d.Reset();
    m_points3d.Reset();
    m_points2d.Reset();
    m_strings.Reset();
    m_softIds.Reset();
    m_hardIds.Reset();
}

void ArrayDataIoAdapter::Write(const AcString& value) { m_strings.items.push_back(value); }
void ArrayDataIoAdapter::Write(const AcGePoint2d& value) { m_points2d.items.push_back(value); }
void ArrayDataIoAdapter::Write(const AcGePoint3d& value) { m_points3d.items.push_back(value); }
void ArrayDataIoAdapter::Write(const AcGeVector2d& value) { m_vectors2d.items.push_back(value); }
void ArrayDataIoAdapter::Write(const AcGeVector3d& value) { m_vectors3d.items.push_back(value); }
void ArrayDataIoAdapter::Write(double value) { m_doubles.items.push_back(value); }
void ArrayDataIoAdapter::Write(Adesk::UInt32 value) { m_uints.items.push_back(value); }
void ArrayDataIoAdapter::Write(Adesk::Int32 value) { m_ints.items.push_back(value); }
void ArrayDataIoAdapter::Write(bool value) { m_bools.items.push_back(value ? 1 : 0); }
void ArrayDataIoAdapter::Write(const AcDbSoftPointerId& value) { m_softIds.items.push_back(value); }
void ArrayDataIoAdapter::Write(const AcDbHardPointerId& value) { m_hardIds.items.push_back(value); }

void ArrayDataIoAdapter::Read(AcString& value) { m_strings.Take(value); }
void ArrayDataIoAdapter::Read(AcGePoint2d& value) { m_points2d.Take(value); }
void ArrayDataIoAdapter::Read(AcGePoint3d& value) { m_points3d.Take(value); }
void ArrayDataIoAdapter::Read(AcGeVector2d& value) { m_vectors2d.Take(value); }
void ArrayDataIoAdapter::Read(AcGeVector3d& value) { m_vectors3d.Take(value); }
void ArrayDataIoAdapter::Read(double& value) { m_doubles.Take(value); }
void ArrayDataIoAdapter::Read(Adesk::UInt32& value) { m_uints.Take(value); }
void ArrayDataIoAdapter::Read(Adesk::Int32& value) { m_ints.Take(value); }
void ArrayDataIoAdapter::Read(AcDbSoftPointerId& value) { m_softIds.Take(value); }
void ArrayDataIoAdapter::Read(AcDbHardPointerId& value) { m_hardIds.Take(value); }

void ArrayDataIoAdapter::Read(bool& value)
{
    Adesk::Int32 stored = 0;
    if (m_bools.Take(stored))
        value = stored != 0;
}
