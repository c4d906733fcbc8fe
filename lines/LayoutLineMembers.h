// The members every layout line defines alike, stamped into each class by macros so that
// the logic stands once. The class's implementation object `m_imp` provides what a macro
// names: `startPoint` and `endPoint`, `display` (LineDisplaySettings) and `json`
// (LineJsonBlocks), `ShownPolylines()` (LinePolylines), `grips` (StraightLineGrips), and
// the member function passed as CHANGED, run after every change of geometry.
//
// Accessors, declared in the class with the QX_DECLARE_... macros and defined in its
// source with the QX_DEFINE_... ones. Getters check that the line is open for read,
// setters that it is open for write (with undo). What they promise:
// - the point setters keep the line between 5.0 and 512000.0 long by moving the point that
//   was set (the end for SetPoints); eInvalidInput, with nothing changed, for non-finite
//   coordinates;
// - widths and indents (QX_DEFINE_LINE_LENGTH_ACCESSOR) take any finite value, negative
//   ones too; eInvalidInput, with nothing changed, for non-finite ones;
// - the four layer names (JieDian text and boundary, ShouBian text and line) are kept as
//   given; a change is a change of what the line draws;
// - the four colour indices keep 0..256 and store anything outside as 0 (the entity's own
//   colour);
// - "节点基本信息", "收边信息" and "辅配件信息" are opaque text, kept as given; they change
//   nothing drawn.
//
// Host overrides, declared in the class as usual and defined with the QX_DEFINE_... macros:
// the snaps and intersections of the shown polylines, stretch by start (0) and end (1)
// under the length rule, and the three grips of a straight line.
#pragma once

#include <cmath>

#include "AcString.h"
#include "LayoutLineGeometry.h"
#include "LineDisplaySettings.h"
#include "LineJsonBlocks.h"
#include "acadstrc.h"

#define QX_DECLARE_LINE_POINT_ACCESSORS()                                                                              \
    AcGePoint3d GetStartPoint() const;                                                                                 \
    Acad::ErrorStatus SetStartPoint(const AcGePoint3d& pt);                                                            \
    AcGePoint3d GetEndPoint() const;                                                                                   \
    Acad::ErrorStatus SetEndPoint(const AcGePoint3d& pt);                                                              \
    Acad::ErrorStatus SetPoints(const AcGePoint3d& start, const AcGePoint3d& end);

#define QX_DEFINE_LINE_POINT_ACCESSORS(CLASS, CHANGED)                                                                 \
    AcGePoint3d CLASS::GetStartPoint() const                                                                           \
    {                                                                                                                  \
        assertReadEnabled();                                                                                           \
        return m_imp->startPoint;                                                                                      \
    }                                                                                                                  \
    Acad::ErrorStatus CLASS::SetStartPoint(const AcGePoint3d& pt)                                                      \
    {                                                                                                                  \
        assertWriteEnabled(true, true);                                                                                \
        if (!LayoutLineGeometry::IsFinite(pt))                                                                         \
            return Acad::eInvalidInput;                                                                                \
        LayoutLineGeometry::PlaceStart(m_imp->startPoint, m_imp->endPoint, pt);                                        \
        m_imp->CHANGED();                                                                                              \
        return Acad::eOk;                                                                                              \
    }                                                                                                                  \
    AcGePoint3d CLASS::GetEndPoint() const                                                                             \
    {                                                                                                                  \
        assertReadEnabled();                                                                                           \
        return m_imp->endPoint;                                                                                        \
    }                                                                                                                  \
    Acad::ErrorStatus CLASS::SetEndPoint(const AcGePoint3d& pt)                                                        \
    {                                                                                                                  \
        assertWriteEnabled(true, true);                                                                                \
        if (!LayoutLineGeometry::IsFinite(pt))                                                                         \
            return Acad::eInvalidInput;                                                                                \
        LayoutLineGeometry::PlaceEnd(m_imp->startPoint, m_imp->endPoint, pt);                                          \
        m_imp->CHANGED();                                                                                              \
        return Acad::eOk;                                                                                              \
    }                                                                                                                  \
    Acad::ErrorStatus CLASS::SetPoints(const AcGePoint3d& start, const AcGePoint3d& end)                               \
    {                                                                                                                  \
        assertWriteEnabled(true, true);                                                                                \
        if (!LayoutLineGeometry::IsFinite(start) || !LayoutLineGeometry::IsFinite(end))                                \
            return Acad::eInvalidInput;                                                                                \
        LayoutLineGeometry::PlacePoints(m_imp->startPoint, m_imp->endPoint, start, end);                               \
        m_imp->CHANGED();                                                                                              \
        return Acad::eOk;                                                                                              \
    }

#define QX_DEFINE_LINE_LENGTH_ACCESSOR(CLASS, NAME, FIELD, CHANGED)                                                    \
    double CLASS::Get##NAME() const                                                                                    \
    {                                                                                                                  \
        assertReadEnabled();                                                                                           \
        return m_imp->FIELD;                                                                                           \
    }                                                                                                                  \
    Acad::ErrorStatus CLASS::Set##NAME(double value)                                                                   \
    {                                                                                                                  \
        assertWriteEnabled(true, true);                                                                                \
        if (!std::isfinite(value))                                                                                     \
            return Acad::eInvalidInput;                                                                                \
        m_imp->FIELD = value;                                                                                          \
        m_imp->CHANGED();                                                                                              \
        return Acad::eOk;                                                                                              \
    }

#define QX_DECLARE_LINE_SETTINGS_ACCESSORS()                                                                           \
    AcString GetJieDianTextLayerName() const;                                                                          \
    Acad::ErrorStatus SetJieDianTextLayerName(const AcString& name);                                                   \
    AcString GetJieDianBoundaryLayerName() const;                                                                      \
    Acad::ErrorStatus SetJieDianBoundaryLayerName(const AcString& name);                                               \
    AcString GetShouBianTextLayerName() const;                                                                         \
    Acad::ErrorStatus SetShouBianTextLayerName(const AcString& name);                                                  \
    AcString GetShouBianLineLayerName() const;                                                                         \
    Acad::ErrorStatus SetShouBianLineLayerName(const AcString& name);                                                  \
    int GetJieDianTextColorIndex() const;                                                                              \
    Acad::ErrorStatus SetJieDianTextColorIndex(int index);                                                             \
    int GetJieDianBoundaryColorIndex() const;                                                                          \
    Acad::ErrorStatus SetJieDianBoundaryColorIndex(int index);                                                         \
    int GetShouBianTextColorIndex() const;                                                                             \
    Acad::ErrorStatus SetShouBianTextColorIndex(int index);                                                            \
    int GetShouBianLineColorIndex() const;                                                                             \
    Acad::ErrorStatus SetShouBianLineColorIndex(int index);                                                            \
    AcString GetNodeBasicJsonStr() const;                                                                              \
    Acad::ErrorStatus SetNodeBasicJsonStr(const AcString& json);                                                       \
    AcString GetShouBianJsonStr() const;                                                                               \
    Acad::ErrorStatus SetShouBianJsonStr(const AcString& json);                                                        \
    AcString GetAccessoryJsonStr() const;                                                                              \
    Acad::ErrorStatus SetAccessoryJsonStr(const AcString& json);

#define QX_LINE_SETTING_ACCESSOR(CLASS, NAME, TYPE, PARAM, FIELD, STORE, DRAWN)                                        \
    TYPE CLASS::Get##NAME() const                                                                                      \
    {                                                                                                                  \
        assertReadEnabled();                                                                                           \
        return m_imp->FIELD;                                                                                           \
    }                                                                                                                  \
    Acad::ErrorStatus CLASS::Set##NAME(PARAM value)                                                                    \
    {                                                                                                                  \
        assertWriteEnabled(true, true);                                                                                \
        m_imp->FIELD = STORE(value);                                                                                   \
        if (DRAWN)                                                                                                     \
            recordGraphicsModified();                                                                                  \
        return Acad::eOk;                                                                                              \
    }

#define QX_LINE_SETTING_AS_GIVEN(value) (value)

#define QX_DEFINE_LINE_SETTINGS_ACCESSORS(CLASS)                                                                       \
    QX_LINE_SETTING_ACCESSOR(CLASS, JieDianTextLayerName, AcString, const AcString&, display.jieDianTextLayerName,     \
                             QX_LINE_SETTING_AS_GIVEN, true)                                                           \
    QX_LINE_SETTING_ACCESSOR(CLASS, JieDianBoundaryLayerName, AcString, const AcString&,                               \
                             display.jieDianBoundaryLayerName, QX_LINE_SETTING_AS_GIVEN, true)                         \
    QX_LINE_SETTING_ACCESSOR(CLASS, ShouBianTextLayerName, AcString, const AcString&, display.shouBianTextLayerName,   \
                             QX_LINE_SETTING_AS_GIVEN, true)                                                           \
    QX_LINE_SETTING_ACCESSOR(CLASS, ShouBianLineLayerName, AcString, const AcString&, display.shouBianLineLayerName,   \
                             QX_LINE_SETTING_AS_GIVEN, true)                                                           \
    QX_LINE_SETTING_ACCESSOR(CLASS, JieDianTextColorIndex, int, int, display.jieDianTextColorIndex,                    \
                             LineDisplaySettings::ClampColorIndex, true)                                               \
    QX_LINE_SETTING_ACCESSOR(CLASS, JieDianBoundaryColorIndex, int, int, display.jieDianBoundaryColorIndex,            \
                             LineDisplaySettings::ClampColorIndex, true)                                               \
    QX_LINE_SETTING_ACCESSOR(CLASS, ShouBianTextColorIndex, int, int, display.shouBianTextColorIndex,                  \
                             LineDisplaySettings::ClampColorIndex, true)                                               \
    QX_LINE_SETTING_ACCESSOR(CLASS, ShouBianLineColorIndex, int, int, display.shouBianLineColorIndex,                  \
                             LineDisplaySettings::ClampColorIndex, true)                                               \
    QX_LINE_SETTING_ACCESSOR(CLASS, NodeBasicJsonStr, AcString, const AcString&, json.nodeBasic,                       \
                             QX_LINE_SETTING_AS_GIVEN, false)                                                          \
    QX_LINE_SETTING_ACCESSOR(CLASS, ShouBianJsonStr, AcString, const AcString&, json.shouBian,                         \
                             QX_LINE_SETTING_AS_GIVEN, false)                                                          \
    QX_LINE_SETTING_ACCESSOR(CLASS, AccessoryJsonStr, AcString, const AcString&, json.accessory,                       \
                             QX_LINE_SETTING_AS_GIVEN, false)

#define QX_DEFINE_LINE_SNAPS_AND_INTERSECTIONS(CLASS)                                                                  \
    Acad::ErrorStatus CLASS::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,             \
                                               const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,             \
                                               const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,            \
                                               AcDbIntArray& geomIds) const                                            \
    {                                                                                                                  \
        assertReadEnabled();                                                                                           \
        return m_imp->ShownPolylines().GetOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform,     \
                                                      snapPoints, geomIds);                                            \
    }                                                                                                                  \
    Acad::ErrorStatus CLASS::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,             \
                                               const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,             \
                                               const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,            \
                                               AcDbIntArray& geomIds, const AcGeMatrix3d& insertionMat) const          \
    {                                                                                                                  \
        assertReadEnabled();                                                                                           \
        return m_imp->ShownPolylines().GetOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform,     \
                                                      snapPoints, geomIds, insertionMat);                              \
    }                                                                                                                  \
    Acad::ErrorStatus CLASS::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,                         \
                                              AcGePoint3dArray& points, Adesk::GsMarker thisGsMarker,                  \
                                              Adesk::GsMarker otherGsMarker) const                                     \
    {                                                                                                                  \
        assertReadEnabled();                                                                                           \
        return m_imp->ShownPolylines().IntersectWith(pEnt, intType, points, thisGsMarker, otherGsMarker);              \
    }                                                                                                                  \
    Acad::ErrorStatus CLASS::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,                         \
                                              const AcGePlane& projPlane, AcGePoint3dArray& points,                    \
                                              Adesk::GsMarker thisGsMarker, Adesk::GsMarker otherGsMarker) const       \
    {                                                                                                                  \
        assertReadEnabled();                                                                                           \
        return m_imp->ShownPolylines().IntersectWith(pEnt, intType, projPlane, points, thisGsMarker, otherGsMarker);   \
    }

// An empty index list falls back to the host entity's grip move.
#define QX_DEFINE_LINE_STRETCH(CLASS, CHANGED)                                                                         \
    Acad::ErrorStatus CLASS::subGetStretchPoints(AcGePoint3dArray& stretchPoints) const                                \
    {                                                                                                                  \
        assertReadEnabled();                                                                                           \
        stretchPoints.append(m_imp->startPoint);                                                                       \
        stretchPoints.append(m_imp->endPoint);                                                                         \
        return Acad::eOk;                                                                                              \
    }                                                                                                                  \
    Acad::ErrorStatus CLASS::subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)           \
    {                                                                                                                  \
        if (indices.isEmpty())                                                                                         \
            return QxPolylineBasedCurve::subMoveGripPointsAt(indices, offset);                                         \
        assertWriteEnabled();                                                                                          \
        for (int index : indices)                                                                                      \
            if (LayoutLineGeometry::MoveStretchPoint(index, offset, m_imp->startPoint, m_imp->endPoint))               \
                m_imp->CHANGED();                                                                                      \
        return Acad::eOk;                                                                                              \
    }

// Every hot grip the host passes is moved in turn; records the line did not hand out are
// ignored, and a zero offset changes nothing, not even by rounding. The point-array forms
// are refused so that the host uses the grip-data ones.
#define QX_DEFINE_STRAIGHT_LINE_GRIPS(CLASS, CHANGED)                                                                  \
    Acad::ErrorStatus CLASS::subGetGripPoints(AcDbGripDataPtrArray& grips, const double, const int,                    \
                                              const AcGeVector3d&, const int) const                                    \
    {                                                                                                                  \
        assertReadEnabled();                                                                                           \
        m_imp->grips.HandOut(m_imp->startPoint, m_imp->endPoint, grips);                                               \
        return Acad::eOk;                                                                                              \
    }                                                                                                                  \
    Acad::ErrorStatus CLASS::subGetGripPoints(AcGePoint3dArray&, AcDbIntArray&, AcDbIntArray&) const                   \
    {                                                                                                                  \
        return Acad::eNotImplementedYet;                                                                               \
    }                                                                                                                  \
    Acad::ErrorStatus CLASS::subMoveGripPointsAt(const AcDbVoidPtrArray& gripAppData, const AcGeVector3d& offset,      \
                                                 const int)                                                            \
    {                                                                                                                  \
        assertWriteEnabled();                                                                                          \
        if (offset.isZeroLength())                                                                                     \
            return Acad::eOk;                                                                                          \
        for (void* appData : gripAppData)                                                                              \
            if (m_imp->grips.Move(appData, offset, m_imp->startPoint, m_imp->endPoint))                                \
                m_imp->CHANGED();                                                                                      \
        return Acad::eOk;                                                                                              \
    }                                                                                                                  \
    Acad::ErrorStatus CLASS::subMoveGripPointsAt(const AcDbIntArray&, const AcGeVector3d&)                             \
    {                                                                                                                  \
        return Acad::eNotImplementedYet;                                                                               \
    }                                                                                                                  \
    void CLASS::subGripStatus(const AcDb::GripStat status)                                                             \
    {                                                                                                                  \
        if (status == AcDb::kGripsToBeDeleted)                                                                         \
            m_imp->grips.Clear();                                                                                      \
        QxPolylineBasedCurve::subGripStatus(status);                                                                   \
    }
