// The id mapping of one clone operation: which source object became which clone. The
// host fills it while cloning and reads it to translate references; reactors read it at
// the end. One mapping per operation; its address identifies the operation.
#pragma once

#include <iosfwd>

#include "acdb.h"
#include "dbid.h"
#include "rxboiler.h"

class AcDbDatabase;

// A source id (key) and what it maps to (value): a clone, or an existing object of the
// destination that stands for the key (a symbol table record found by name).
class ACHOST_API AcDbIdPair {
public:
    AcDbIdPair() = default;
    // The defaults of the last two flags are UNCONFIRMED: not primary and owner translated
    // are the natural ones (owned objects are placed under their owner's clone).
    AcDbIdPair(AcDbObjectId key, AcDbObjectId value, bool isCloned, bool isPrimary = false,
               bool isOwnerXlated = true);

    AcDbObjectId key() const { return m_key; }
    AcDbObjectId value() const { return m_value; }
    bool isCloned() const { return m_isCloned; }
    bool isPrimary() const { return m_isPrimary; }
    bool isOwnerXlated() const { return m_isOwnerXlated; }

    void setKey(AcDbObjectId key) { m_key = key; }
    void setValue(AcDbObjectId value) { m_value = value; }
    void setIsCloned(bool isCloned) { m_isCloned = isCloned; }
    void setIsPrimary(bool isPrimary) { m_isPrimary = isPrimary; }
    void setIsOwnerXlated(bool isOwnerXlated) { m_isOwnerXlated = isOwnerXlated; }

    bool operator==(const AcDbIdPair& other) const;
    bool operator!=(const AcDbIdPair& other) const { return !(*this == other); }

private:
    AcDbObjectId m_key;
    AcDbObjectId m_value;
    bool m_isCloned = false;
    bool m_isPrimary = false;
    bool m_isOwnerXlated = true;
};

// "(1F -> 2A cloned primary)".
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcDbIdPair& pair);

namespace hostdb {
struct IdMappingState;
}

class ACHOST_API AcDbIdMapping : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcDbIdMapping);

public:
    // Context kDcCopy, duplicate records kDrcNotApplicable, no databases yet.
    AcDbIdMapping();
    // Destroys the pairs it holds.
    ~AcDbIdMapping() override;
    AcDbIdMapping(const AcDbIdMapping&) = delete;
    AcDbIdMapping& operator=(const AcDbIdMapping&) = delete;

    // Adds the pair, or replaces the pair with the same key. eNullObjectId for a null key.
    virtual Acad::ErrorStatus assign(const AcDbIdPair& pair);
    // Looks the pair's key up; fills value and flags. False when the key is absent.
    virtual bool compute(AcDbIdPair& pair) const;
    // Replaces the pair with the same key; false when there is none.
    virtual bool change(const AcDbIdPair& pair);
    // Removes the pair with the key; false when there is none.
    virtual bool del(AcDbObjectId key);

    // The database the clones go to (null until set) and the one they come from.
    Acad::ErrorStatus destDb(AcDbDatabase*& db) const;
    Acad::ErrorStatus setDestDb(AcDbDatabase* db);
    Acad::ErrorStatus origDb(AcDbDatabase*& db) const;

    AcDb::DeepCloneType deepCloneContext() const;
    AcDb::DuplicateRecordCloning duplicateRecordCloning() const;

    // How many pairs the mapping holds.
    int numPairs() const;

private:
    friend class AcDbIdMappingIter;
    friend struct hostdb::IdMappingState;
    hostdb::IdMappingState* m_state;
};

// Walks the pairs in the order they were assigned. Valid while the mapping lives; pairs
// assigned during the walk are visited too.
class ACHOST_API AcDbIdMappingIter : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcDbIdMappingIter);

public:
    explicit AcDbIdMappingIter(const AcDbIdMapping& map);
    ~AcDbIdMappingIter() override;

    virtual Acad::ErrorStatus iterateOn(const AcDbIdMapping& map);
    virtual void start();
    // False when the walk is done.
    virtual bool getMap(AcDbIdPair& pair);
    virtual bool next();
    virtual bool done();

private:
    const AcDbIdMapping* m_map;
    int m_index = 0;
};
