// DwgFilerIoAdapter: the typed channel over the host's drawing filer, the path for drawing
// files, undo, copy and paste. Each operation is exactly one typed call of the filer, so the
// byte layout is the filer's own; errors surface through the filer's status.
#pragma once

#include <vector>

#include "IDataIO.h"

class AcDbDwgFiler;
class AcDbObject;

class DwgFilerIoAdapter : public IDataIO {
public:
    explicit DwgFilerIoAdapter(AcDbDwgFiler* filer) : m_filer(filer) {}

    AcDbDwgFiler* GetFiler() const { return m_filer; }
    void SetFiler(AcDbDwgFiler* filer) { m_filer = filer; }

    void Write(const AcString& value) override;
    void Write(const AcGePoint2d& value) override;
    void Write(const AcGePoint3d& value) override;
    void Write(const AcGeVector2d& value) override;
    void Write(const AcGeVector3d& value) override;
    void Write(double value) override;
    void Write(Adesk::UInt32 value) override;
    void Write(Adesk::Int32 value) override;
    void Write(bool value) override;
    void Read(AcString& value) override;
    void Read(AcGePoint2d& value) override;
    void Read(AcGePoint3d& value) override;
    void Read(AcGeVector2d& value) override;
    void Read(AcGeVector3d& value) override;
    void Read(double& value) override;
    void Read(Adesk::UInt32& value) override;
    void Read(Adesk::Int32& value) override;
    void Read(bool& value) override;
    void Write(const AcDbSoftPointerId& value) override;
    void Read(AcDbSoftPointerId& value) override;
    void Write(const AcDbHardPointerId& value) override;
    void Read(AcDbHardPointerId& value) override;

    // Reads a whole object from the same filer.
    virtual Acad::ErrorStatus ReadObject(AcDbObject* object);
    // Id vectors: an Int32 count, then the ids in order. A read stops where the data ends,
    // so a count beyond the data allocates nothing for ids that are not there; a negative
    // count throws std::length_error ("vector too long").
    virtual void Write(const std::vector<AcDbSoftPointerId>& ids);
    virtual void Read(std::vector<AcDbSoftPointerId>& ids);
    virtual void Write(const std::vector<AcDbHardPointerId>& ids);
    virtual void Read(std::vector<AcDbHardPointerId>& ids);

    using IDataIO::Read;
    using IDataIO::Write;

private:
    AcDbDwgFiler* m_filer;
};
