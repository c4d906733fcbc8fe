// IDataIO: the one typed channel through which typed values, data nodes and packed colours
// read and write themselves. It adds nothing to the stream: the order of calls is the format.
#pragma once

#include "AcString.h"
#include "dbid.h"
#include "gepnt2d.h"
#include "gepnt3d.h"
#include "gevec2d.h"
#include "gevec3d.h"

// A read into a target that the channel cannot fill leaves the target unchanged, so
// callers initialise every target before reading it.
class IDataIO {
public:
    virtual ~IDataIO() = default;

    virtual void Write(const AcString& value) = 0;
    virtual void Write(const AcGePoint2d& value) = 0;
    virtual void Write(const AcGePoint3d& value) = 0;
    virtual void Write(const AcGeVector2d& value) = 0;
    virtual void Write(const AcGeVector3d& value) = 0;
    virtual void Write(double value) = 0;
    virtual void Write(Adesk::UInt32 value) = 0;
    virtual void Write(Adesk::Int32 value) = 0;
    virtual void Write(bool value) = 0;
    virtual void Read(AcString& value) = 0;
    virtual void Read(AcGePoint2d& value) = 0;
    virtual void Read(AcGePoint3d& value) = 0;
    virtual void Read(AcGeVector2d& value) = 0;
    virtual void Read(AcGeVector3d& value) = 0;
    virtual void Read(double& value) = 0;
    virtual void Read(Adesk::UInt32& value) = 0;
    virtual void Read(Adesk::Int32& value) = 0;
    virtual void Read(bool& value) = 0;
    virtual void Write(const AcDbSoftPointerId& value) = 0;
    virtual void Read(AcDbSoftPointerId& value) = 0;
    virtual void Write(const AcDbHardPointerId& value) = 0;
    virtual void Read(AcDbHardPointerId& value) = 0;

    // A string literal would otherwise convert to bool and be filed as one.
    void Write(const ACHAR* value) = delete;
    void Write(const char* value) = delete;
};
