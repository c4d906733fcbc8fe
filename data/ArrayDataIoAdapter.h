// ArrayDataIoAdapter: the typed channel over in-memory sequences, one per type, each with
// its own read cursor. A round trip needs the same order of calls per type only.
#pragma once

#include <vector>

#include "IDataIO.h"

class ArrayDataIoAdapter : public IDataIO {
public:
    ArrayDataIoAdapter();

    // Empties every sequence and puts every cursor back to the start.
    void Reset();

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

    using IDataIO::Write;

private:
    // One typed sequence and its read cursor. A read past the end leaves the target as it
    // was but still advances the cursor.
    template <typename T>
    struct Sequence {
        std::vector<T> items;
        Adesk::Int32 cursor = 0;
        void Reset()
        {
            items.clear();
            cursor = 0;
        }
        bool Take(T& out)
        {
            const Adesk::Int32 at = cursor++;
            if (at < 0 || static_cast<std::size_t>(at) >= items.size())
                return false;
            out = items[static_cast<std::size_t>(at)];
            return true;
        }
    };

    Sequence<Adesk::Int32> m_bools;  // stored as 0 or 1
    Sequence<Adesk::Int32> m_ints;
    Sequence<Adesk::UInt32> m_uints;
    Sequence<double> m_doubles;
    Sequence<AcGeVector3d> m_vectors3d;
    Sequence<AcGeVector2d> m_vectors2d;
    Sequence<AcGePoint3d> m_points3d;
    Sequence<AcGePoint2d> m_points2d;
    Sequence<AcString> m_strings;
    Sequence<AcDbSoftPointerId> m_softIds;
    Sequence<AcDbHardPointerId> m_hardIds;
};
