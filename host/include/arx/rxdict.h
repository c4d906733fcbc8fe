// AcRxDictionary: the runtime layer's string-keyed dictionaries, and the system registry
// in which the host files its global objects ("ClassDictionary", "AcRxEvent", ...).
#pragma once

#include <map>
#include <string>

#include "AcString.h"
#include "rxobject.h"

#define ACRX_CLASS_DICTIONARY ACRX_T("ClassDictionary")

class AcRxDictionaryIterator;

class ACHOST_API AcRxDictionary : public AcRxObject {
public:
    static AcRxClass* desc();
    static AcRxDictionary* cast(const AcRxObject* inPtr);
    AcRxClass* isA() const override;

    // deleteObjects: the dictionary owns its entries and deletes them when removed or
    // when the dictionary goes.
    explicit AcRxDictionary(bool deleteObjects = false);
    ~AcRxDictionary() override;

    AcRxObject* at(const ACHAR* key) const;                    // null when absent
    // Stores obj under key; answers the object it replaced (not deleted), or null.
    AcRxObject* atPut(const ACHAR* key, AcRxObject* obj);
    // Takes the entry out; answers it (the caller now owns it), or null.
    AcRxObject* remove(const ACHAR* key);
    bool has(const ACHAR* key) const { return at(key) != nullptr; }
    Adesk::UInt32 numEntries() const { return static_cast<Adesk::UInt32>(m_entries.size()); }
    AcRxDictionaryIterator* newIterator() const;               // caller deletes

private:
    friend class AcRxDictionaryIterator;
    std::map<std::wstring, AcRxObject*> m_entries;
    bool m_deleteObjects;
};

// Walks a dictionary in key order; valid while the dictionary is not changed.
class ACHOST_API AcRxDictionaryIterator {
public:
    explicit AcRxDictionaryIterator(const AcRxDictionary& dict);
    bool done() const;
    bool next();
    const ACHAR* key() const;
    AcRxObject* object() const;

private:
    std::map<std::wstring, AcRxObject*>::const_iterator m_it, m_end;
};

// The system registry: the top-level dictionary of the runtime layer.
ACHOST_API AcRxDictionary* acrxSysRegistry();

#define acrxClassDictionary AcRxDictionary::cast(acrxSysRegistry()->at(ACRX_CLASS_DICTIONARY))
