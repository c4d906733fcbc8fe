// AcRxEvent: the host's event object, kept in the system registry under ACRX_EVENT_OBJ,
// and AcRxEventReactor, whose notifications it sends: deep clone, wblock and insert.
// Every notification of the reactor does nothing unless overridden.
#pragma once

#include <vector>

#include "acadstrc.h"
#include "dbid.h"
#include "gepnt3d.h"
#include "rxboiler.h"

class AcDbDatabase;
class AcDbIdMapping;

// The key text is UNCONFIRMED; the headless host files the event object under "AcRxEvent".
#define ACRX_EVENT_OBJ ACRX_T("AcRxEvent")

class ACHOST_API AcRxEventReactor : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcRxEventReactor);

public:
    ~AcRxEventReactor() override;

    // A clone operation (copy, insert, wblock of objects) is about to clone into pTo.
    virtual void beginDeepClone(AcDbDatabase* pTo, AcDbIdMapping& idMap);
    // Everything is cloned and references are about to be translated. A reactor may clone
    // more (with the same mapping); setting *pRetStatus to anything but eOk aborts.
    virtual void beginDeepCloneXlation(AcDbIdMapping& idMap, Acad::ErrorStatus* pRetStatus);
    // The operation was abandoned; its clones are erased.
    virtual void abortDeepClone(AcDbIdMapping& idMap);
    // The operation is complete: the clones exist and their references name the clones.
    virtual void endDeepClone(AcDbIdMapping& idMap);

    // Objects of pFrom are about to be wblock-cloned (wblockCloneObjects).
    virtual void beginWblockObjects(AcDbDatabase* pFrom, AcDbIdMapping& idMap);
    // The wblock family of whole drawings and blocks (the headless host sends the
    // object form only; these exist for the interface).
    virtual void wblockNotice(AcDbDatabase* pDb);
    virtual void beginWblock(AcDbDatabase* pTo, AcDbDatabase* pFrom, const AcGePoint3d*& insertionPoint);
    virtual void beginWblock(AcDbDatabase* pTo, AcDbDatabase* pFrom, AcDbObjectId blockId);
    virtual void beginWblock(AcDbDatabase* pTo, AcDbDatabase* pFrom);
    virtual void otherWblock(AcDbDatabase* pTo, AcDbIdMapping& idMap, AcDbDatabase* pFrom);
    virtual void abortWblock(AcDbDatabase* pTo);
    virtual void endWblock(AcDbDatabase* pTo);
    virtual void beginInsert(AcDbDatabase* pTo, const ACHAR* pBlockName, AcDbDatabase* pFrom);
    virtual void otherInsert(AcDbDatabase* pTo, AcDbIdMapping& idMap, AcDbDatabase* pFrom);
    virtual void abortInsert(AcDbDatabase* pTo);
    virtual void endInsert(AcDbDatabase* pTo);

protected:
    AcRxEventReactor();
};

namespace hostdb {
class CloneNotifier;
}

class ACHOST_API AcRxEvent : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcRxEvent);

public:
    AcRxEvent();
    ~AcRxEvent() override;

    // Adding a reactor twice keeps one registration; removing one that is not there does
    // nothing. Reactors are told in the order they were added; they are not owned.
    virtual void addReactor(AcRxEventReactor* reactor);
    virtual void removeReactor(AcRxEventReactor* reactor);

private:
    friend class hostdb::CloneNotifier;
    std::vector<AcRxEventReactor*> m_reactors;
};

#define acrxEvent AcRxEvent::cast(acrxSysRegistry()->at(ACRX_EVENT_OBJ))
