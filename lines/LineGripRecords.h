// LineGripRecords: the 32-byte application records that a layout line's grips point to.
// The line keeps every record it handed out until the host deletes the grips or asks for
// them again, and recognises a grip being moved by its record; a record it no longer
// holds (or never handed out) is no grip of the line.
#pragma once

#include <memory>
#include <vector>

#include "dbgrip.h"
#include "gepnt3d.h"

template <typename Kind>
class LineGripRecords {
public:
    struct Record {
        Kind kind;
        // The grip's place in the hand-out.
        Adesk::Int32 order;
        // Where the grip was when it was handed out.
        AcGePoint3d point;
    };
    static_assert(sizeof(Record) == 32, "a line grip record is 32 bytes");

    // A new grip at point whose application data is a new record of kind; the caller owns
    // the grip, the records stay here.
    AcDbGripData* HandOut(Kind kind, const AcGePoint3d& point)
    {
        const auto order = static_cast<Adesk::Int32>(m_records.size());
        m_records.push_back(std::make_unique<Record>(Record{kind, order, point}));
        return new AcDbGripData(point, m_records.back().get());
    }

    // The record if it is one of these, else null.
    const Record* Find(const void* appData) const
    {
        for (const auto& record : m_records)
            if (record.get() == appData)
                return record.get();
        return nullptr;
    }

    void Clear() { m_records.clear(); }

private:
    std::vector<std::unique_ptr<Record>> m_records;
};
