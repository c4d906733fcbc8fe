// Sub-entity identification: a sub-entity id (type and index) and the full path of object
// ids from the outermost insert down to the entity.
#pragma once

#include <iosfwd>

#include "acdb.h"
#include "dbid.h"

class ACHOST_API AcDbSubentId {
public:
    AcDbSubentId() = default;
    AcDbSubentId(AcDb::SubentType type, Adesk::GsMarker index) : m_type(type), m_index(index) {}
    AcDb::SubentType type() const { return m_type; }
    void setType(AcDb::SubentType type) { m_type = type; }
    Adesk::GsMarker index() const { return m_index; }
    void setIndex(Adesk::GsMarker index) { m_index = index; }
    bool operator==(const AcDbSubentId& o) const { return m_type == o.m_type && m_index == o.m_index; }
    bool operator!=(const AcDbSubentId& o) const { return !(*this == o); }

private:
    AcDb::SubentType m_type = AcDb::kNullSubentType;
    Adesk::GsMarker m_index = 0;
};

class ACHOST_API AcDbFullSubentPath {
public:
    AcDbFullSubentPath() = default;
    AcDbFullSubentPath(AcDb::SubentType type, Adesk::GsMarker index) : m_subentId(type, index) {}
    AcDbFullSubentPath(const AcDbObjectId& entity, AcDb::SubentType type, Adesk::GsMarker index);
    AcDbFullSubentPath(const AcDbObjectIdArray& path, AcDbSubentId subent) : m_path(path), m_subentId(subent) {}

    AcDbObjectIdArray& objectIds() { return m_path; }
    const AcDbObjectIdArray& objectIds() const { return m_path; }
    const AcDbSubentId& subentId() const { return m_subentId; }
    AcDbSubentId& subentId() { return m_subentId; }
    bool operator==(const AcDbFullSubentPath& o) const;
    bool operator!=(const AcDbFullSubentPath& o) const { return !(*this == o); }

private:
    AcDbObjectIdArray m_path;
    AcDbSubentId m_subentId;
};

extern ACHOST_API const AcDbFullSubentPath kNullSubent;

// "edge 3"; a path prints its ids first: "(6)(1F) edge 3".
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcDbSubentId& id);
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcDbFullSubentPath& path);
