// AcRxEvent and AcRxEventReactor: the system's event object and the notifications that
// the clone operations send through it.
#include "rxevent.h"

#include <algorithm>

#include "CloneNotifier.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcRxEventReactor, AcRxObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcRxEvent, AcRxObject)

AcRxEventReactor::AcRxEventReactor() = default;
AcRxEventReactor::~AcRxEventReactor() = default;

void AcRxEventReactor::beginDeepClone(AcDbDatabase*, AcDbIdMapping&) {}
void AcRxEventReactor::beginDeepCloneXlation(AcDbIdMapping&, Acad::ErrorStatus*) {}
void AcRxEventReactor::abortDeepClone(AcDbIdMapping&) {}
void AcRxEventReactor::endDeepClone(AcDbIdMapping&) {}
void AcRxEventReactor::beginWblockObjects(AcDbDatabase*, AcDbIdMapping&) {}
void AcRxEventReactor::wblockNotice(AcDbDatabase*) {}
void AcRxEventReactor::beginWblock(AcDbDatabase*, AcDbDatabase*, const AcGePoint3d*&) {}
void AcRxEventReactor::beginWblock(AcDbDatabase*, AcDbDatabase*, AcDbObjectId) {}
void AcRxEventReactor::beginWblock(AcDbDatabase*, AcDbDatabase*) {}
void AcRxEventReactor::otherWblock(AcDbDatabase*, AcDbIdMapping&, AcDbDatabase*) {}
void AcRxEventReactor::abortWblock(AcDbDatabase*) {}
void AcRxEventReactor::endWblock(AcDbDatabase*) {}
void AcRxEventReactor::beginInsert(AcDbDatabase*, const ACHAR*, AcDbDatabase*) {}
void AcRxEventReactor::otherInsert(AcDbDatabase*, AcDbIdMapping&, AcDbDatabase*) {}
void AcRxEventReactor::abortInsert(AcDbDatabase*) {}
void AcRxEventReactor::endInsert(AcDbDatabase*) {}

AcRxEvent::AcRxEvent() = default;
AcRxEvent::~AcRxEvent() = default;

void AcRxEvent::addReactor(AcRxEventReactor* reactor)
{
    if (reactor != nullptr && std::find(m_reactors.begin(), m_reactors.end(), reactor) == m_reactors.end())
        m_reactors.push_back(reactor);
}

void AcRxEvent::removeReactor(AcRxEventReactor* reactor)
{
    m_reactors.erase(std::remove(m_reactors.begin(), m_reactors.end(), reactor), m_reactors.end());
}

namespace hostdb {

namespace {

AcRxEvent* eventObject()
{
    return AcRxEvent::cast(acrxSysRegistry()->at(ACRX_EVENT_OBJ));
}

}  // namespace

template <class Tell>
void CloneNotifier::notify(Tell tell)
{
    AcRxEvent* event = eventObject();
    if (event == nullptr)
        return;
    const std::vector<AcRxEventReactor*> snapshot = event->m_reactors;
    for (AcRxEventReactor* reactor : snapshot) {
        const auto& current = event->m_reactors;
        if (std::find(current.begin(), current.end(), reactor) != current.end())
            tell(reactor);
    }
}

void CloneNotifier::beginDeepClone(AcDbDatabase* to, AcDbIdMapping& map)
{
    notify([&](AcRxEventReactor* r) { r->beginDeepClone(to, map); });
}

void CloneNotifier::beginWblockObjects(AcDbDatabase* from, AcDbIdMapping& map)
{
    notify([&](AcRxEventReactor* r) { r->beginWblockObjects(from, map); });
}

Acad::ErrorStatus CloneNotifier::beginDeepCloneXlation(AcDbIdMapping& map)
{
    Acad::ErrorStatus status = Acad::eOk;
    notify([&](AcRxEventReactor* r) {
        if (status == Acad::eOk)
            r->beginDeepCloneXlation(map, &status);
    });
    return status;
}

void CloneNotifier::abortDeepClone(AcDbIdMapping& map)
{
    notify([&](AcRxEventReactor* r) { r->abortDeepClone(map); });
}

void CloneNotifier::endDeepClone(AcDbIdMapping& map)
{
    notify([&](AcRxEventReactor* r) { r->endDeepClone(map); });
}

}  // namespace hostdb
