// AcRxDictionary and its iterator.
#include "rxdict.h"

#include "rxclass.h"
#include "rxregsvc.h"

AcRxDictionary::AcRxDictionary(bool deleteObjects) : m_deleteObjects(deleteObjects) {}

AcRxDictionary::~AcRxDictionary()
{
    if (!m_deleteObjects)
        return;
    // Entries may look themselves up while going; take each out before deleting it.
    while (!m_entries.empty()) {
        auto it = m_entries.begin();
        AcRxObject* obj = it->second;
        m_entries.erase(it);
        delete obj;
    }
}

AcRxClass* AcRxDictionary::desc()
{
    static AcRxClass* cls = nullptr;
    if (cls == nullptr)
        cls = acrxFindAcRxClass(L"AcRxDictionary");
    return cls;
}

AcRxDictionary* AcRxDictionary::cast(const AcRxObject* inPtr)
{
    return (inPtr == nullptr || !inPtr->isKindOf(AcRxDictionary::desc()))
               ? nullptr
               : static_cast<AcRxDictionary*>(const_cast<AcRxObject*>(inPtr));
}

AcRxClass* AcRxDictionary::isA() const
{
    return AcRxDictionary::desc();
}

AcRxObject* AcRxDictionary::at(const ACHAR* key) const
{
    if (key == nullptr)
        return nullptr;
    auto it = m_entries.find(key);
    return it == m_entries.end() ? nullptr : it->second;
}

AcRxObject* AcRxDictionary::atPut(const ACHAR* key, AcRxObject* obj)
{
    if (key == nullptr)
        return nullptr;
    AcRxObject*& slot = m_entries[key];
    AcRxObject* previous = slot;
    slot = obj;
    return previous;
}

AcRxObject* AcRxDictionary::remove(const ACHAR* key)
{
    if (key == nullptr)
        return nullptr;
    auto it = m_entries.find(key);
    if (it == m_entries.end())
        return nullptr;
    AcRxObject* obj = it->second;
    m_entries.erase(it);
    return obj;
}

AcRxDictionaryIterator* AcRxDictionary::newIterator() const
{
    return new AcRxDictionaryIterator(*this);
}

AcRxDictionaryIterator::AcRxDictionaryIterator(const AcRxDictionary& dict)
    : m_it(dict.m_entries.begin()), m_end(dict.m_entries.end())
{
}

bool AcRxDictionaryIterator::done() const
{
    return m_it == m_end;
}

bool AcRxDictionaryIterator::next()
{
    if (m_it != m_end)
        ++m_it;
    return m_it != m_end;
}

const ACHAR* AcRxDictionaryIterator::key() const
{
    return m_it == m_end ? nullptr : m_it->first.c_str();
}

AcRxObject* AcRxDictionaryIterator::object() const
{
    return m_it == m_end ? nullptr : m_it->second;
}
