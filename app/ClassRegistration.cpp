// The module's runtime classes, in the order they are registered and deleted.
// The tear-down order is deliberately not the reverse of registration: keep both tables
// exactly as they stand when adding a class.
#include "ClassRegistration.h"

#include "geometry/QxPolylineBasedCurve.h"
#include "lines/AecDivisionLine.h"
#include "lines/AecOverlapLine.h"
#include "lines/AecShouBianLine.h"
#include "lines/AecSteelMember.h"
#include "lines/AecStructuralLine.h"
#include "openings/AecCircleOpening.h"
#include "openings/AecLayoutBoundary.h"
#include "openings/AecPolyOpening.h"
#include "openings/AecRectOpening.h"
#include "openings/OpeningGripData.h"
#include "panel/AecPanel.h"
#include "panel/AecPanelLite.h"
#include "rxboiler.h"

namespace Quarvo {

const ACHAR* const kApplicationName = L"QX_AEC_DB_APP";

namespace {

struct ClassEntry {
    const ACHAR* name;
    void (*rxInit)();
    AcRxClass* (*desc)();
};

template <typename T>
ClassEntry Entry(const ACHAR* name)
{
    return ClassEntry{name, [] { T::rxInit(); }, &T::desc};
}

// Registration order: a parent always comes before its children.
const std::vector<ClassEntry>& RegistrationTable()
{
    static const std::vector<ClassEntry> table = {
        Entry<AecPanel>(L"AecPanel"),                                     // step 1
        Entry<AecPanelLite>(L"AecPanelLite"),                             // step 2
        Entry<QxPolylineBasedCurve>(L"QxPolylineBasedCurve"),             // step 3
        Entry<AecDivisionLine>(L"AecDivisionLine"),                       // step 4
        Entry<AecOverlapLine>(L"AecOverlapLine"),                         // step 5
        Entry<AecStructuralLine>(L"AecStructuralLine"),                   // step 6
        Entry<AecSteelMember>(L"AecSteelMember"),                         // step 7
        Entry<AecShouBianLine>(L"AecShouBianLine"),                       // step 8
        Entry<AecLayoutBoundary>(L"AecLayoutBoundary"),                   // step 9
        Entry<AecRectOpeningUnits::OpeningGripData>(L"OpeningGripData"),  // step 10
        Entry<AecRectOpening>(L"AecRectOpening"),                         // step 11
        Entry<AecPolyOpening>(L"AecPolyOpening"),                         // step 12
        Entry<AecCircleOpening>(L"AecCircleOpening"),                     // step 13
    };
    return table;
}

// Tear-down order; the ordinals are places in it.
const std::vector<ClassEntry>& TearDownTable()
{
    static const std::vector<ClassEntry> table = {
        Entry<AecPanel>(L"AecPanel"),                                     // 1st
        Entry<AecPanelLite>(L"AecPanelLite"),                             // 2nd
        Entry<AecRectOpening>(L"AecRectOpening"),                         // 3rd
        Entry<AecRectOpeningUnits::OpeningGripData>(L"OpeningGripData"),  // 4th
        Entry<AecDivisionLine>(L"AecDivisionLine"),                       // 5th
        Entry<AecOverlapLine>(L"AecOverlapLine"),                         // 6th
        Entry<AecStructuralLine>(L"AecStructuralLine"),                   // 7th
        Entry<AecSteelMember>(L"AecSteelMember"),                         // 8th
        Entry<AecShouBianLine>(L"AecShouBianLine"),                       // 9th
        Entry<QxPolylineBasedCurve>(L"QxPolylineBasedCurve"),             // 10th
        Entry<AecPolyOpening>(L"AecPolyOpening"),                         // 11th
        Entry<AecCircleOpening>(L"AecCircleOpening"),                     // 12th
        Entry<AecLayoutBoundary>(L"AecLayoutBoundary"),                   // 13th
    };
    return table;
}

std::vector<AcString> NamesOf(const std::vector<ClassEntry>& table)
{
    std::vector<AcString> names;
    for (const ClassEntry& entry : table)
        names.emplace_back(entry.name);
    return names;
}

}  // namespace

void RegisterModuleClasses()
{
    for (const ClassEntry& entry : RegistrationTable())
        entry.rxInit();
}

void UnregisterModuleClasses()
{
    for (const ClassEntry& entry : TearDownTable())
        deleteAcRxClass(entry.desc());
}

std::vector<AcString> RegistrationOrder()
{
    return NamesOf(RegistrationTable());
}

std::vector<AcString> TearDownOrder()
{
    return NamesOf(TearDownTable());
}

}  // namespace Quarvo
