// TypedArrayRecord: writing and reading the nine counted arrays.
#include "TypedArrayRecord.h"

#include "DwgFilerIoAdapter.h"
#include "dbfiler.h"

namespace {

template <typename T>
void WriteArray(IDataIO& io, const std::vector<T>& values)
{
    io.Write(static_cast<Adesk::Int32>(values.size()));
    for (const T& value : values)
        io.Write(value);
}

// std::vector<bool> hands out proxies, not bools.
void WriteArray(IDataIO& io, const std::vector<bool>& values)
{
    io.Write(static_cast<Adesk::Int32>(values.size()));
    for (bool value : values)
        io.Write(value);
}

template <typename T>
void ReadArray(DwgFilerIoAdapter& io, std::vector<T>& values)
{
    values.clear();
    AcDbDwgFiler* filer = io.GetFiler();
    if (filer->filerStatus() != Acad::eOk)
        return;
    Adesk::Int32 count = 0;
    io.Read(count);
    if (filer->filerStatus() != Acad::eOk)
        return;
    if (count < 0) {
        filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
        return;
    }
    for (Adesk::Int32 i = 0; i < count; ++i) {
        T value{};
        io.Read(value);
        if (filer->filerStatus() != Acad::eOk)
            return;
        values.push_back(value);
    }
}

}  // namespace

void TypedArrayRecord::Write(IDataIO& io) const
{
    WriteArray(io, bools);
    WriteArray(io, ints);
    WriteArray(io, doubles);
    WriteArray(io, strings);
    WriteArray(io, vectors);
    WriteArray(io, points);
    WriteArray(io, points2d);
    WriteArray(io, softIds);
    WriteArray(io, hardIds);
}

Acad::ErrorStatus TypedArrayRecord::Read(DwgFilerIoAdapter& io)
{
    ReadArray(io, bools);
    ReadArray(io, ints);
    ReadArray(io, doubles);
    ReadArray(io, strings);
    ReadArray(io, vectors);
    ReadArray(io, points);
    ReadArray(io, points2d);
    ReadArray(io, softIds);
    ReadArray(io, hardIds);
    return io.GetFiler()->filerStatus();
}
