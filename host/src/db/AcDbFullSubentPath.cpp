// Sub-entity paths: equality and the null path.
#include "AcDbFullSubentPath.h"

#include <ostream>

const AcDbFullSubentPath kNullSubent;

AcDbFullSubentPath::AcDbFullSubentPath(const AcDbObjectId& entity, AcDb::SubentType type, Adesk::GsMarker index)
    : m_subentId(type, index)
{
    m_path.append(entity);
}

bool AcDbFullSubentPath::operator==(const AcDbFullSubentPath& o) const
{
    if (m_subentId != o.m_subentId || m_path.length() != o.m_path.length())
        return false;
    for (int i = 0; i < m_path.length(); ++i) {
        if (m_path[i] != o.m_path[i])
            return false;
    }
    return true;
}

std::ostream& operator<<(std::ostream& os, const AcDbSubentId& id)
{
    static const char* const kTypeNames[] = {"null", "face", "edge", "vertex", "mline", "class", "axis"};
    const int type = static_cast<int>(id.type());
    if (type >= 0 && type < static_cast<int>(sizeof kTypeNames / sizeof kTypeNames[0]))
        os << kTypeNames[type];
    else
        os << "type " << type;
    return os << ' ' << id.index();
}

std::ostream& operator<<(std::ostream& os, const AcDbFullSubentPath& path)
{
    for (int i = 0; i < path.objectIds().length(); ++i)
        os << path.objectIds()[i];
    if (path.objectIds().length() > 0)
        os << ' ';
    return os << path.subentId();
}
