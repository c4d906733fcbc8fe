// AcDbGripData: one grip of an entity in the new grip protocol: its point, the entity's
// own identifier for it (app data), and optional behaviour callbacks.
#pragma once

#include "acarray.h"
#include "dbid.h"
#include "gepnt3d.h"

class AcDbGripData;
class AcRxClass;

namespace AcDbGripOperations {
enum ReturnValue { eOk = 0, eFailure = 1, eNoRedrawGrip = 2, eGripHotToRtClk = 3, eGetNewGripPoints = 4 };
enum DrawType { kWarmGrip = 0, kHoverGrip = 1, kHotGrip = 2, kDragImageGrip = 3 };
enum GripStatus {
    kGripStart = 0, kGripEnd = 1, kGripAbort = 2, kStretch = 3, kMove = 4, kRotate = 5, kScale = 6,
    kMirror = 7, kDimFocusChanged = 8, kPopUpMenu = 9,
};
enum GripFlags {
    kSkipWhenShared = 0x1,
    kDisableRubberBandLine = 0x2,
    kDisableModeKeywords = 0x4,
    kDrawAtDragImageGripPoint = 0x8,
    kTriggerGrip = 0x10,
    kTurnOnForcedPick = 0x20,
    kMapGripHotToRtClk = 0x40,
    kGizmosEnabled = 0x80,
    kGripIsPerViewport = 0x100,
};
enum GetGripPointsFlags { kGripPointsOnly = 1, kCyclableGripsOnly = 2, kDynamicDimMode = 4 };
enum MoveGripPointsFlags { kOsnapped = 1, kPolar = 2, kOtrack = 4, kZdir = 8, kKeyboard = 16 };
}  // namespace AcDbGripOperations

using GripOpStatusPtr = void (*)(AcDbGripData* grip, const AcDbObjectId& entId,
                                 AcDbGripOperations::GripStatus status);
using GripHotGripFuncPtr = AcDbGripOperations::ReturnValue (*)(AcDbGripData* grip, const AcDbObjectId& entId,
                                                               int contextFlags);

class ACHOST_API AcDbGripData {
public:
    AcDbGripData() = default;
    AcDbGripData(const AcGePoint3d& pt, void* appData) : m_point(pt), m_appData(appData) {}
    virtual ~AcDbGripData() = default;

    const AcGePoint3d& gripPoint() const { return m_point; }
    void setGripPoint(const AcGePoint3d& pt) { m_point = pt; }
    void* appData() const { return m_appData; }
    void setAppData(void* appData) { m_appData = appData; }
    AcRxClass* appDataAcRxClass() const { return m_appDataClass; }
    void setAppDataAcRxClass(AcRxClass* cls) { m_appDataClass = cls; }
    const AcGePoint3d* alternateBasePoint() const { return m_alternateBase; }
    void setAlternateBasePoint(AcGePoint3d* pt) { m_alternateBase = pt; }
    unsigned int bitFlags() const { return m_flags; }
    void setBitFlags(unsigned int flags) { m_flags = flags; }
    GripOpStatusPtr gripOpStatFunc() const { return m_opStatus; }
    void setGripOpStatFunc(GripOpStatusPtr f) { m_opStatus = f; }
    GripHotGripFuncPtr hotGripFunc() const { return m_hotGrip; }
    void setHotGripFunc(GripHotGripFuncPtr f) { m_hotGrip = f; }

private:
    AcGePoint3d m_point;
    void* m_appData = nullptr;
    AcRxClass* m_appDataClass = nullptr;
    AcGePoint3d* m_alternateBase = nullptr;
    unsigned int m_flags = 0;
    GripOpStatusPtr m_opStatus = nullptr;
    GripHotGripFuncPtr m_hotGrip = nullptr;
};

using AcDbGripDataPtrArray = AcArray<AcDbGripData*>;
using AcDbGripDataArray = AcArray<AcDbGripData>;
