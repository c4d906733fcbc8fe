// The private state of an id mapping: its pairs in assignment order with an index by key,
// the databases, the clone context, and where the operation it belongs to stands.
#pragma once

#include <cstddef>
#include <unordered_map>
#include <vector>

#include "dbidmap.h"

class AcDbStub;

namespace hostdb {

struct IdMappingState {
    static IdMappingState& of(AcDbIdMapping& map) { return *map.m_state; }
    static const IdMappingState& of(const AcDbIdMapping& map) { return *map.m_state; }

    // The pair with the key, or null.
    const AcDbIdPair* find(const AcDbObjectId& key) const;
    AcDbIdPair* find(const AcDbObjectId& key);

    std::vector<AcDbIdPair> pairs;
    std::unordered_map<const AcDbStub*, std::size_t> index;
    AcDbDatabase* destDb = nullptr;
    AcDbDatabase* origDb = nullptr;
    AcDb::DeepCloneType context = AcDb::kDcCopy;
    bool contextChosen = false;  // set by a host command before the operation started
    AcDb::DuplicateRecordCloning duplicateRecords = AcDb::kDrcNotApplicable;
    // The operation has begun (beginDeepClone was sent) and has not ended or aborted.
    bool inProgress = false;
    // The operation ended or aborted: the mapping cannot start another one.
    bool finished = false;
    bool wblock = false;
};

}  // namespace hostdb
