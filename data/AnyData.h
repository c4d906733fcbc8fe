// The ten typed values a data node holds, with their stream tags, and the factory that
// makes the value of a tag read from a stream.
#pragma once

#include <memory>

#include "AcString.h"
#include "IAnyData.h"
#include "IDataIO.h"
#include "dbid.h"
#include "gepnt2d.h"
#include "gepnt3d.h"
#include "gevec2d.h"
#include "gevec3d.h"

// Stream tags of the value types.
enum AnyDataTag : Adesk::Int32 {
    kAnyDataInt = 0,
    kAnyDataDouble = 1,
    kAnyDataString = 2,
    kAnyDataBool = 3,
    kAnyDataPoint2D = 4,
    kAnyDataPoint3D = 5,
    kAnyDataVector2D = 6,
    kAnyDataVector3D = 7,
    kAnyDataSoftPointerId = 8,
    kAnyDataHardPointerId = 9,
    kAnyDataTagCount = 10,
};

// One value of type T under tag Tag; its payload is exactly one channel call on the value.
template <typename T, Adesk::Int32 Tag>
class TypedAnyData : public IAnyData {
public:
    static constexpr Adesk::Int32 kTag = Tag;

    TypedAnyData() : IAnyData(Tag), value(DefaultValue()) {}
    explicit TypedAnyData(const T& v) : IAnyData(Tag), value(v) {}

    void DataOut(IDataIO* io) const override { io->Write(value); }
    void DataIn(IDataIO* io) override { io->Read(value); }

    T value;

private:
    static T DefaultValue();
};

using AnyDataInt = TypedAnyData<Adesk::Int32, kAnyDataInt>;
using AnyDataDouble = TypedAnyData<double, kAnyDataDouble>;
using AnyDataString = TypedAnyData<AcString, kAnyDataString>;
using AnyDataBool = TypedAnyData<bool, kAnyDataBool>;
using AnyDataPoint2D = TypedAnyData<AcGePoint2d, kAnyDataPoint2D>;
using AnyDataPoint3D = TypedAnyData<AcGePoint3d, kAnyDataPoint3D>;
using AnyDataVector2D = TypedAnyData<AcGeVector2d, kAnyDataVector2D>;
using AnyDataVector3D = TypedAnyData<AcGeVector3d, kAnyDataVector3D>;
using AnyDataSoftPointerId = TypedAnyData<AcDbSoftPointerId, kAnyDataSoftPointerId>;
using AnyDataHardPointerId = TypedAnyData<AcDbHardPointerId, kAnyDataHardPointerId>;

template <> inline Adesk::Int32 AnyDataInt::DefaultValue() { return 0; }
template <> inline double AnyDataDouble::DefaultValue() { return 0.0; }
template <> inline AcString AnyDataString::DefaultValue() { return AcString(); }
template <> inline bool AnyDataBool::DefaultValue() { return false; }
template <> inline AcGePoint2d AnyDataPoint2D::DefaultValue() { return AcGePoint2d::kOrigin; }
template <> inline AcGePoint3d AnyDataPoint3D::DefaultValue() { return AcGePoint3d::kOrigin; }
template <> inline AcGeVector2d AnyDataVector2D::DefaultValue() { return AcGeVector2d::kXAxis; }
template <> inline AcGeVector3d AnyDataVector3D::DefaultValue() { return AcGeVector3d::kXAxis; }
template <> inline AcDbSoftPointerId AnyDataSoftPointerId::DefaultValue() { return AcDbSoftPointerId(); }
template <> inline AcDbHardPointerId AnyDataHardPointerId::DefaultValue() { return AcDbHardPointerId(); }

// The value of a tag with its default, for reading; null for a tag outside 0-9.
std::shared_ptr<IAnyData> CreateAnyDataForTag(Adesk::Int32 tag);
