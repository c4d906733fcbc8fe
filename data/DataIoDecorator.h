// DataIoDecorator: a channel that forwards every operation to another channel; the base of
// channels that change one aspect of a stream. Internal to the data tree.
#pragma once

#include "IDataIO.h"

class DataIoDecorator : public IDataIO {
public:
    explicit DataIoDecorator(IDataIO* inner) : m_inner(inner) {}

    void Write(const AcString& value) override { m_inner->Write(value); }
    void Write(const AcGePoint2d& value) override { m_inner->Write(value); }
    void Write(const AcGePoint3d& value) override { m_inner->Write(value); }
    void Write(const AcGeVector2d& value) override { m_inner->Write(value); }
    void Write(const AcGeVector3d& value) override { m_inner->Write(value); }
    void Write(double value) override { m_inner->Write(value); }
    void Write(Adesk::UInt32 value) override { m_inner->Write(value); }
    void Write(Adesk::Int32 value) override { m_inner->Write(value); }
    void Write(bool value) override { m_inner->Write(value); }
    void Read(AcString& value) override { m_inner->Read(value); }
    void Read(AcGePoint2d& value) override { m_inner->Read(value); }
    void Read(AcGePoint3d& value) override { m_inner->Read(value); }
    void Read(AcGeVector2d& value) override { m_inner->Read(value); }
    void Read(AcGeVector3d& value) override { m_inner->Read(value); }
    void Read(double& value) override { m_inner->Read(value); }
    void Read(Adesk::UInt32& value) override { m_inner->Read(value); }
    void Read(Adesk::Int32& value) override { m_inner->Read(value); }
    void Read(bool& value) override { m_inner->Read(value); }
    void Write(const AcDbSoftPointerId& value) override { m_inner->Write(value); }
    void Read(AcDbSoftPointerId& value) override { m_inner->Read(value); }
    void Write(const AcDbHardPointerId& value) override { m_inner->Write(value); }
    void Read(AcDbHardPointerId& value) override { m_inner->Read(value); }

    using IDataIO::Write;

private:
    IDataIO* m_inner;
};
