// LayoutBoundaryData: copying, transformation and filing.
#include "LayoutBoundaryData.h"

#include <cmath>

#include "dbfiler.h"

namespace {

bool IsFinite(double value)
{
    return std::isfinite(value);
}

bool IsFinite(const AcGePoint3d& p)
{
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

bool IsFinite(const AcGeVector3d& v)
{
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

// Reads a number, point or vector and takes it only when it is finite.
template <typename T>
void ReadFinite(AcDbDwgFiler* filer, T& field)
{
    T value = field;
    filer->readItem(&value);
    if (IsFinite(value))
        field = value;
}

}  // namespace

void LayoutBoundaryData::CopyFrom(const LayoutBoundaryData* other)
{
    if (other != nullptr && other != this)
        *this = *other;
}

void LayoutBoundaryData::TransformBy(const AcGeMatrix3d& m)
{
    referencePoint.transformBy(m);
    titleOffset.transformBy(m);
    titleDirection.transformBy(m);
}

Acad::ErrorStatus LayoutBoundaryData::dwgOutFields(AcDbDwgFiler* filer) const
{
    if (filer == nullptr)
        return Acad::eNullObjectPointer;
    filer->writeInt32(kCurrentVersion);
    filer->writeInt32(kind);
    filer->writePoint3d(referencePoint);
    filer->writeDouble(referenceSize);
    filer->writeBool(firstFlag);
    filer->writeBool(titleVisible);
    filer->writeString(titleText);
    filer->writePoint3d(titleOffset);
    filer->writeDouble(titleHeight);
    filer->writeVector3d(titleDirection);
    filer->writeSoftPointerId(AcDbSoftPointerId(referencedObject));
    return filer->filerStatus();
}

Acad::ErrorStatus LayoutBoundaryData::dwgInFields(AcDbDwgFiler* filer)
{
    if (filer == nullptr)
        return Acad::eNullObjectPointer;
    Adesk::Int32 version = 0;
    filer->readInt32(&version);
    if (version > kCurrentVersion)
        return Acad::eMakeMeProxy;

    LayoutBoundaryData read = *this;
    filer->readInt32(&read.kind);
    ReadFinite(filer, read.referencePoint);
    ReadFinite(filer, read.referenceSize);
    filer->readBool(&read.firstFlag);
    filer->readBool(&read.titleVisible);
    filer->readString(read.titleText);
    ReadFinite(filer, read.titleOffset);
    ReadFinite(filer, read.titleHeight);
    ReadFinite(filer, read.titleDirection);
    AcDbSoftPointerId referenced = read.referencedObject;
    filer->readSoftPointerId(&referenced);
    read.referencedObject = referenced;
    if (filer->filerStatus() == Acad::eOk)
        *this = read;
    return filer->filerStatus();
}
