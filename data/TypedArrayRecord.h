// TypedArrayRecord: the form in which entities file most of their own fields through the
// data channel: nine arrays, each a 32-bit count followed by that many values, always in
// the order booleans, integers, doubles, strings, 3D vectors, 3D points, 2D points, soft
// pointer ids, hard pointer ids. Readers take values by position, so a record written with
// fewer values leaves the later fields at their defaults.
#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

#include "AcString.h"
#include "dbid.h"
#include "gepnt2d.h"
#include "gepnt3d.h"
#include "gevec3d.h"

class DwgFilerIoAdapter;
class IDataIO;

class TypedArrayRecord {
public:
    std::vector<bool> bools;
    std::vector<Adesk::Int32> ints;
    std::vector<double> doubles;
    std::vector<AcString> strings;
    std::vector<AcGeVector3d> vectors;
    std::vector<AcGePoint3d> points;
    std::vector<AcGePoint2d> points2d;
    std::vector<AcDbSoftPointerId> softIds;
    std::vector<AcDbHardPointerId> hardIds;

    // A default record is nine empty arrays: written, it keeps room in a stream for later
    // fields; read into a temporary, it skips such a record.

    void Write(IDataIO& io) const;
    // Replaces every array with the stored one and answers the filer's status. A negative
    // count cannot come from any writer: the filer is told the object is damaged and that
    // array reads as empty. Reading stops where the filer fails, so a hostile count costs
    // no more than the data that is really there.
    Acad::ErrorStatus Read(DwgFilerIoAdapter& io);

    // Copies values[index] into target when the record holds that many values; otherwise
    // target keeps what it had and the answer is false.
    template <typename T>
    static bool Take(const std::vector<T>& values, std::size_t index, T& target)
    {
        if (index >= values.size())
            return false;
        target = values[index];
        return true;
    }

    // As Take, but a non-finite stored value is not taken either.
    static bool TakeFinite(const std::vector<double>& values, std::size_t index, double& target)
    {
        if (index >= values.size() || !std::isfinite(values[index]))
            return false;
        target = values[index];
        return true;
    }
};
