// AcApDataManager<T>: per-document data. One T per document, made on first use and
// dropped when the document is about to be destroyed; docData() is the current
// document's. Keep per-document state here rather than in globals.
#pragma once

#include <map>

#include "acdocman.h"

template <class T>
class AcApDataManager : public AcApDocManagerReactor {
public:
    AcApDataManager()
    {
        if (acDocManager != nullptr)
            acDocManager->addReactor(this);
    }
    ~AcApDataManager() override
    {
        if (acDocManager != nullptr)
            acDocManager->removeReactor(this);
    }
    AcApDataManager(const AcApDataManager&) = delete;
    AcApDataManager& operator=(const AcApDataManager&) = delete;

    void documentToBeDestroyed(AcApDocument* pDoc) override { m_dataMap.erase(pDoc); }

    // The document's data, default-constructed on first access.
    T& docData(AcApDocument* pDoc) { return m_dataMap[pDoc]; }
    T& docData() { return docData(acDocManager->curDocument()); }

private:
    std::map<AcApDocument*, T> m_dataMap;
};
