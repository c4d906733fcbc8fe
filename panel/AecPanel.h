// AecPanel: one roof or wall sheet laid out in plan. It keeps its outline (an outer loop
// and any number of holes, each a closed chain of vertices with bulges), its text labels
// (at most one of each type) and six information blocks of JSON text; from those it
// builds the loop polylines and the hatch it draws, as sub-entities that live in no
// database.
#pragma once

#include <memory>
#include <unordered_set>

#include "AcString.h"
#include "dbents.h"
#include "dbhatch.h"
#include "dbpl.h"
#include "data/DataNodeRoot.h"
#include "geometry/TextLabel.h"
#include "panel/HatchPatternInfo.h"
#include "panel/NumberingAndEncodingInfo.h"
#include "panel/PanelBasicInfo.h"
#include "panel/PanelMergeInfo.h"
#include "panel/PanelShapeInfo.h"

// What a checked loop setter made of the loop it was given. Anything but kAccepted leaves
// the panel as it was.
enum class BoundarySetResult : Adesk::Int32 {
    kAccepted = 0,
    kTooFewVertices = 1,      // fewer than 3 distinct vertices
    kNotFinite = 2,           // a coordinate or a bulge is NaN or infinite
    kBulgeCountMismatch = 3,  // bulges given, but not one per vertex
    kBulgeOutOfRange = 4,     // a bulge beyond ±1000: an arc of almost a full turn on a vanishing chord
    kZeroArea = 5,            // the loop encloses nothing
    kNoSuchLoop = 6,          // an index beyond the loops that exist, or below 0
    kTooManyVertices = 7,     // more than the host polyline holds
};

class AecPanel : public AcDbEntity, public DataNodeRoot {
public:
    ACRX_DECLARE_MEMBERS(AecPanel);

    static constexpr Adesk::Int32 kCurrentVersion = 1;
    // The size setters keep a panel between these lengths.
    static constexpr double kMinimumSize = 1.0;
    static constexpr double kMaximumSize = 256000.0;
    // The list shows this many vertices of a loop, then how many more there are.
    static constexpr int kListedVertexLimit = 50;

    AecPanel();
    ~AecPanel() override;
    AecPanel(const AecPanel&) = delete;
    AecPanel& operator=(const AecPanel&) = delete;

    // ---- loops: loop 0 is the outline, every further loop a hole

    int GetLoopCount() const;
    // 0 for a loop that does not exist.
    int GetLoopPointCountAt(int loop) const;
    bool GetLoopPointsAt(int loop, AcArray<AcGePoint2d>& points) const;
    bool GetLoopPointsWithBulgesAt(int loop, AcArray<AcGePoint2d>& points, AcArray<double>& bulges) const;
    // The loop's polyline as last built (null before the first build or for a loop the host
    // polyline refused); the panel keeps it.
    const AcDbPolyline* GetLoopPolylineAt(int loop) const;
    // Sets loop `loop` (the next index appends a loop); false, with nothing changed, for
    // what TrySetLoopFromPointsWithBulgesAt refuses. Bulges default to 0.
    bool SetLoopFromPointsAt(int loop, const AcArray<AcGePoint2d>& points);
    bool SetLoopFromPointsWithBulgesAt(int loop, const AcArray<AcGePoint2d>& points, const AcArray<double>& bulges);
    bool SetLoopFromPolylineAt(int loop, const AcDbPolyline* polyline);
    BoundarySetResult TrySetLoopFromPointsWithBulgesAt(int loop, const AcArray<AcGePoint2d>& points,
                                                       const AcArray<double>& bulges);
    int GetOuterLoopPointCount() const;
    bool GetOuterLoopPoints(AcArray<AcGePoint2d>& points) const;
    const AcDbPolyline* GetOuterLoopPolyline() const;
    bool SetOuterLoopFromPoints(const AcArray<AcGePoint2d>& points);
    bool SetOuterLoopFromPointsWithBulges(const AcArray<AcGePoint2d>& points, const AcArray<double>& bulges);
    bool SetOuterLoopFromPolyline(const AcDbPolyline* polyline);
    BoundarySetResult TrySetOuterLoopFromPointsWithBulges(const AcArray<AcGePoint2d>& points,
                                                          const AcArray<double>& bulges);
    // Keeps loop 0 and removes every hole.
    void ClearInnerLoops();
    // Makes the outline counter-clockwise (each arc kept: bulges change sign with the
    // direction) and drops a repeated closing vertex and vertices that repeat their
    // predecessor. With requireValid, false when the outline is then still unusable
    // (fewer than 3 vertices, no area, a value that is not finite); the outline is only
    // changed when it is usable.
    bool ValidateAndNormalizeOuterLoopGeometry(bool requireValid);
    AcDbPolyline* GetCurveBasePolyline();
    const AcDbPolyline* GetCurveBaseConstPolyline() const;

    // ---- size along and across the laying direction (the basic information's
    // "lengthDirection", the X axis without one), measured over the outline's vertices as
    // the labels' box is: an arced edge's bulge does not count

    double GetGeomLength() const;
    double GetGeomWidth() const;
    // Moves the outline's far end (by the length anchor: the end away from a left anchor,
    // both ends for a centre anchor, the near end for a right anchor) so that the panel is
    // `length` long; holes stay where they are. False, with nothing changed, below 1.0,
    // above 256000.0 or without an outline. Then the merge-group size is marked unknown
    // and, with flush, the graphics are rebuilt.
    bool SetGeomLengthAndFlush(double length, bool flush);
    // The same across the laying direction, by the width anchor (bottom, centre, top).
    bool SetGeomWidthAndFlush(double width, bool flush);

    // ---- information blocks (JSON text; the typed forms parse and write it)

    bool GetPanelBasicInfo(DbxPanel::PanelBasicInfo& info, AcString* errorMessage = nullptr) const;
    bool SetPanelBasicInfo(const DbxPanel::PanelBasicInfo& info, AcString* errorMessage = nullptr);
    bool GetNumberingAndEncodingInfo(DbxPanel::NumberingAndEncodingInfo& info, AcString* errorMessage = nullptr) const;
    bool SetNumberingAndEncodingInfo(const DbxPanel::NumberingAndEncodingInfo& info, AcString* errorMessage = nullptr);
    bool GetPanelMergeInfo(DbxPanel::PanelMergeInfo& info, AcString* errorMessage = nullptr) const;
    bool SetPanelMergeInfo(const DbxPanel::PanelMergeInfo& info, AcString* errorMessage = nullptr);
    bool GetPanelShapeInfo(DbxPanel::PanelShapeInfo& info, AcString* errorMessage = nullptr) const;
    bool SetPanelShapeInfo(const DbxPanel::PanelShapeInfo& info, AcString* errorMessage = nullptr);
    bool GetHatchPatternInfo(DbxPanel::HatchPatternInfo& info) const;
    void SetHatchPatternInfo(const DbxPanel::HatchPatternInfo& info);

    // The texts as stored; a null pointer stores the empty text. Nothing is validated.
    const wchar_t* GetPanelBasicInfoJsonStr() const;
    void SetPanelBasicInfoJsonStr(const wchar_t* json);
    const wchar_t* GetNumberingAndEncodingInfoJsonStr() const;
    void SetNumberingAndEncodingInfoJsonStr(const wchar_t* json);
    const wchar_t* GetHatchPatternInfoJsonStr() const;
    void SetHatchPatternInfoJsonStr(const wchar_t* json);
    const wchar_t* GetPanelMergeInfoJsonStr() const;
    void SetPanelMergeInfoJsonStr(const wchar_t* json);
    const wchar_t* GetPanelShapeInfoJsonStr() const;
    void SetPanelShapeInfoJsonStr(const wchar_t* json);
    const wchar_t* GetPanelAccessoryInfoJsonStr() const;
    void SetPanelAccessoryInfoJsonStr(const wchar_t* json);
    void SetAllPanelInfoFromJson(const wchar_t* basic, const wchar_t* numbering, const wchar_t* hatch,
                                 const wchar_t* merge, const wchar_t* shape, const wchar_t* accessory);

    // ---- labels (at most one per type; setting a type that exists replaces it)

    void SetTextLabel(const DbxPanel::TextLabel& label);
    void SetTextLabel(DbxPanel::TextLabelType type, const AcString& text);
    void SetTextLabel(DbxPanel::TextLabelType type, const AcString& text, DbxPanel::PredefinedTextPosition position);
    void SetTextLabel(DbxPanel::TextLabelType type, const AcString& text, const AcGePoint3d& position);
    bool GetTextLabel(DbxPanel::TextLabelType type, DbxPanel::TextLabel& label) const;
    // The label at `index` in the panel's label sequence.
    bool GetTextLabel(int index, DbxPanel::TextLabel& label) const;
    int GetTextLabelCount() const;
    bool HasTextLabel(DbxPanel::TextLabelType type) const;
    bool RemoveTextLabel(DbxPanel::TextLabelType type);
    bool UpdateTextContent(DbxPanel::TextLabelType type, const AcString& text);
    bool GetTextLabelContentAndPosition(DbxPanel::TextLabelType type, AcString& text, AcGePoint3d& position) const;
    int GetTextLabelColorIndex(DbxPanel::TextLabelType type) const;
    bool SetTextLabelColorIndex(DbxPanel::TextLabelType type, int index);
    Adesk::UInt32 GetTextLabelColorPacked(DbxPanel::TextLabelType type) const;
    bool SetTextLabelColorPacked(DbxPanel::TextLabelType type, Adesk::UInt32 packed);
    AcDbObjectId GetTextLabelLayerId(DbxPanel::TextLabelType type) const;
    bool SetTextLabelLayerId(DbxPanel::TextLabelType type, const AcDbObjectId& layerId);
    DbxPanel::TextDirectionMode GetTextDirectionMode(DbxPanel::TextLabelType type) const;
    bool SetTextDirectionMode(DbxPanel::TextLabelType type, DbxPanel::TextDirectionMode mode);
    bool SetTextFixedAngle(DbxPanel::TextLabelType type, double radians);
    // Takes the text's string, position, height, width factor, style, direction, layer and
    // colour into the label of that type.
    bool SetTextLabelFromDbText(DbxPanel::TextLabelType type, const AcDbText* text);
    // The label of that type as a new host text owned by the caller; null without one.
    AcDbText* CreateDbTextByType(DbxPanel::TextLabelType type) const;

    // ---- display

    void SetHatchDisplayEnabled(bool enabled);
    bool IsHatchDisplayEnabled() const;
    // Rebuilds the loop polylines and the hatch from the loops and the hatch information,
    // and places the labels; with notify, the graphics are marked modified.
    void FlushGraphicSubEntities(bool notify);

    // Every panel's labels on or off (on when the module loads).
    static void SetGlobalTextLabelVisible(bool visible);
    static bool IsGlobalTextLabelVisible();
    static void SetTemporaryTextLabelVisibleOverride(bool on);
    static bool IsTemporaryTextLabelVisibleOverride();
    struct AcDbObjectIdHash {
        std::size_t operator()(const AcDbObjectId& id) const;
    };
    using PanelIdSet = std::unordered_set<AcDbObjectId, AcDbObjectIdHash>;
    // Panels whose labels are hidden for a while; kept in memory only, never filed.
    static void SetTemporaryHiddenPanelIds(const PanelIdSet& ids);
    static void AddTemporaryHiddenPanelIds(const PanelIdSet& ids);
    static void ClearTemporaryHiddenPanelIds();
    static bool IsPanelTextTemporarilyHidden(const AcDbObjectId& id);
    static bool IsTextLabelEffectivelyVisible(const DbxPanel::TextLabel& label);

    // A free-standing duplicate (ids kept), owned by the caller; null when it cannot be made.
    AecPanel* CreateCopy() const;

    // ---- host overrides

    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    void dragStatus(const AcDb::DragStat status) override;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    Acad::ErrorStatus subGetClassID(CLSID* classId) const override;
    Acad::ErrorStatus subDeepClone(AcDbObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                   Adesk::Boolean isPrimary) const override;
    void subList() const override;
    Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const override;
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    // The grips are grip-data objects only: one at each outline vertex (moved along the
    // laying direction, as a stretch moves it) and a move grip at the box's centre. The
    // point-array forms answer eNotImplementedYet.
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subGetGripPoints(AcDbGripDataPtrArray& grips, const double curViewUnitSize, const int gripSize,
                                       const AcGeVector3d& curViewDir, const int bitflags) const override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbVoidPtrArray& gripAppData, const AcGeVector3d& offset,
                                          const int bitflags) override;
    void subGripStatus(const AcDb::GripStat status) override;
    Acad::ErrorStatus subGetStretchPoints(AcGePoint3dArray& stretchPoints) const override;
    Acad::ErrorStatus subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;
    Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                        const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                        const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                        AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                        const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                        const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                        AcDbIntArray& geomIds, const AcGeMatrix3d& insertionMat) const override;
    Acad::ErrorStatus subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType, AcGePoint3dArray& points,
                                       Adesk::GsMarker thisGsMarker = 0,
                                       Adesk::GsMarker otherGsMarker = 0) const override;
    Acad::ErrorStatus subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType, const AcGePlane& projPlane,
                                       AcGePoint3dArray& points, Adesk::GsMarker thisGsMarker = 0,
                                       Adesk::GsMarker otherGsMarker = 0) const override;
    Acad::ErrorStatus subHighlight(const AcDbFullSubentPath& subId = kNullSubent,
                                   const Adesk::Boolean highlightAll = false) const override;
    Acad::ErrorStatus subUnhighlight(const AcDbFullSubentPath& subId = kNullSubent,
                                     const Adesk::Boolean highlightAll = false) const override;
    Acad::ErrorStatus subGetGsMarkersAtSubentPath(const AcDbFullSubentPath& subPath,
                                                  AcArray<Adesk::GsMarker>& gsMarkers) const override;
    Acad::ErrorStatus subGetSubentPathsAtGsMarker(AcDb::SubentType type, Adesk::GsMarker gsMark,
                                                  const AcGePoint3d& pickPoint, const AcGeMatrix3d& viewXform,
                                                  int& numPaths, AcDbFullSubentPath*& subentPaths, int numInserts = 0,
                                                  AcDbObjectId* entAndInsertStack = nullptr) const override;
    AcDbEntity* subSubentPtr(const AcDbFullSubentPath& id) const override;

public:
    struct Imp;

private:
    std::unique_ptr<Imp> m_imp;
};
