// AcDbIdMapping, AcDbIdPair and AcDbIdMappingIter: the pairs of one clone operation, kept
// in assignment order (reactors see them in the order the objects were cloned).
#include "dbidmap.h"

#include <ostream>

#include "AcDbStub.h"
#include "IdMappingState.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbIdMapping, AcRxObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcDbIdMappingIter, AcRxObject)

AcDbIdPair::AcDbIdPair(AcDbObjectId key, AcDbObjectId value, bool isCloned, bool isPrimary, bool isOwnerXlated)
    : m_key(key), m_value(value), m_isCloned(isCloned), m_isPrimary(isPrimary), m_isOwnerXlated(isOwnerXlated)
{
}

bool AcDbIdPair::operator==(const AcDbIdPair& o) const
{
    return m_key == o.m_key && m_value == o.m_value && m_isCloned == o.m_isCloned && m_isPrimary == o.m_isPrimary &&
           m_isOwnerXlated == o.m_isOwnerXlated;
}

std::ostream& operator<<(std::ostream& os, const AcDbIdPair& pair)
{
    os << '(' << pair.key() << " -> " << pair.value();
    if (pair.isCloned())
        os << " cloned";
    if (pair.isPrimary())
        os << " primary";
    if (!pair.isOwnerXlated())
        os << " owner-pending";
    return os << ')';
}

namespace hostdb {

const AcDbIdPair* IdMappingState::find(const AcDbObjectId& key) const
{
    const auto it = index.find(static_cast<const AcDbStub*>(key));
    return it != index.end() ? &pairs[it->second] : nullptr;
}

AcDbIdPair* IdMappingState::find(const AcDbObjectId& key)
{
    const auto it = index.find(static_cast<const AcDbStub*>(key));
    return it != index.end() ? &pairs[it->second] : nullptr;
}

}  // namespace hostdb

AcDbIdMapping::AcDbIdMapping() : m_state(new hostdb::IdMappingState()) {}

AcDbIdMapping::~AcDbIdMapping()
{
    delete m_state;
}

Acad::ErrorStatus AcDbIdMapping::assign(const AcDbIdPair& pair)
{
    if (pair.key().isNull())
        return Acad::eNullObjectId;
    if (AcDbIdPair* existing = m_state->find(pair.key())) {
        *existing = pair;
        return Acad::eOk;
    }
    m_state->index.emplace(static_cast<const AcDbStub*>(pair.key()), m_state->pairs.size());
    m_state->pairs.push_back(pair);
    return Acad::eOk;
}

bool AcDbIdMapping::compute(AcDbIdPair& pair) const
{
    const AcDbIdPair* found = m_state->find(pair.key());
    if (found == nullptr)
        return false;
    pair = *found;
    return true;
}

bool AcDbIdMapping::change(const AcDbIdPair& pair)
{
    AcDbIdPair* existing = m_state->find(pair.key());
    if (existing == nullptr)
        return false;
    *existing = pair;
    return true;
}

bool AcDbIdMapping::del(AcDbObjectId key)
{
    const auto it = m_state->index.find(static_cast<const AcDbStub*>(key));
    if (it == m_state->index.end())
        return false;
    const std::size_t removed = it->second;
    m_state->pairs.erase(m_state->pairs.begin() + static_cast<std::ptrdiff_t>(removed));
    m_state->index.erase(it);
    for (auto& [stub, position] : m_state->index) {
        if (position > removed)
            --position;
    }
    return true;
}

Acad::ErrorStatus AcDbIdMapping::destDb(AcDbDatabase*& db) const
{
    db = m_state->destDb;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbIdMapping::setDestDb(AcDbDatabase* db)
{
    if (db == nullptr)
        return Acad::eNullObjectPointer;
    if (m_state->inProgress && db != m_state->destDb)
        return Acad::eInvalidContext;  // an operation under way keeps its destination
    m_state->destDb = db;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbIdMapping::origDb(AcDbDatabase*& db) const
{
    db = m_state->origDb;
    return Acad::eOk;
}

AcDb::DeepCloneType AcDbIdMapping::deepCloneContext() const
{
    return m_state->context;
}

AcDb::DuplicateRecordCloning AcDbIdMapping::duplicateRecordCloning() const
{
    return m_state->duplicateRecords;
}

int AcDbIdMapping::numPairs() const
{
    return static_cast<int>(m_state->pairs.size());
}

AcDbIdMappingIter::AcDbIdMappingIter(const AcDbIdMapping& map) : m_map(&map) {}

AcDbIdMappingIter::~AcDbIdMappingIter() = default;

Acad::ErrorStatus AcDbIdMappingIter::iterateOn(const AcDbIdMapping& map)
{
    m_map = &map;
    m_index = 0;
    return Acad::eOk;
}

void AcDbIdMappingIter::start()
{
    m_index = 0;
}

bool AcDbIdMappingIter::getMap(AcDbIdPair& pair)
{
    if (done())
        return false;
    pair = hostdb::IdMappingState::of(*m_map).pairs[static_cast<std::size_t>(m_index)];
    return true;
}

bool AcDbIdMappingIter::next()
{
    if (done())
        return false;
    ++m_index;
    return !done();
}

bool AcDbIdMappingIter::done()
{
    return m_index >= m_map->numPairs();
}
