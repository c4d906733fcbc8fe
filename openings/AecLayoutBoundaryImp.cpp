// AecLayoutBoundaryImp: the record's access, filing and title.
#include "AecLayoutBoundaryImp.h"

#include <cmath>

#include "AecLayoutBoundary.h"
#include "acgi.h"
#include "dbfiler.h"

AecLayoutBoundaryImp::AecLayoutBoundaryImp(AecLayoutBoundary* owner) : m_owner(owner) {}

AecLayoutBoundaryImp::AecLayoutBoundaryImp(const AecLayoutBoundaryImp& other) : m_owner(nullptr), m_data(other.m_data)
{}

AecLayoutBoundaryImp& AecLayoutBoundaryImp::operator=(const AecLayoutBoundaryImp& other)
{
    if (this != &other) {
        if (m_owner != nullptr)
            m_owner->assertWriteEnabled();
        m_data = other.m_data;
    }
    return *this;
}

AecLayoutBoundaryImp::~AecLayoutBoundaryImp() = default;

const LayoutBoundaryData& AecLayoutBoundaryImp::GetData() const
{
    if (m_owner != nullptr)
        m_owner->assertReadEnabled();
    return m_data;
}

void AecLayoutBoundaryImp::SetData(const LayoutBoundaryData& data)
{
    if (m_owner != nullptr)
        m_owner->assertWriteEnabled();
    m_data.CopyFrom(&data);
}

void AecLayoutBoundaryImp::TransformBy(const AcGeMatrix3d& m)
{
    if (m_owner != nullptr)
        m_owner->assertWriteEnabled();
    m_data.TransformBy(m);
}

void AecLayoutBoundaryImp::WorldDraw(AcGiWorldDraw* worldDraw) const
{
    if (m_owner == nullptr || worldDraw == nullptr || !m_data.titleVisible || m_data.titleText.isEmpty())
        return;
    if (!(std::isfinite(m_data.titleHeight) && m_data.titleHeight > 0.0) || m_data.titleDirection.isZeroLength())
        return;
    AcDbExtents extents;
    if (m_owner->getGeomExtents(extents) != Acad::eOk)
        return;
    const AcGePoint3d& low = extents.minPoint();
    const AcGePoint3d& high = extents.maxPoint();
    const AcGePoint3d position(low.x + (high.x - low.x) * 0.5 + m_data.titleOffset.x,
                               low.y + (high.y - low.y) * 0.5 + m_data.titleOffset.y,
                               low.z + (high.z - low.z) * 0.5 + m_data.titleOffset.z);
    worldDraw->geometry().text(position, AcGeVector3d::kZAxis, m_data.titleDirection, m_data.titleHeight, 1.0, 0.0,
                               m_data.titleText.kwszPtr());
}

Acad::ErrorStatus AecLayoutBoundaryImp::dwgOutFields(AcDbDwgFiler* filer) const
{
    if (filer == nullptr)
        return Acad::eNullObjectPointer;
    filer->writeInt32(kCurrentVersion);
    return m_data.dwgOutFields(filer);
}

Acad::ErrorStatus AecLayoutBoundaryImp::dwgInFields(AcDbDwgFiler* filer)
{
    if (filer == nullptr)
        return Acad::eNullObjectPointer;
    Adesk::Int32 version = 0;
    filer->readInt32(&version);
    if (version > kCurrentVersion)
        return Acad::eMakeMeProxy;
    return m_data.dwgInFields(filer);
}
