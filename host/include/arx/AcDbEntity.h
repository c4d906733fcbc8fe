// AcDbEntity: an object with graphics. It carries the display properties (colour, layer,
// linetype, linetype scale, lineweight, visibility) and the editing protocol — draw, list,
// grips, stretch, transform, explode, extents, osnaps, intersections — that custom
// entities override through the protected sub... functions.
#pragma once

#include "AcDbExtents.h"
#include "AcDbFullSubentPath.h"
#include "AcDbGripData.h"
#include "AcDbObject.h"
#include "dbcolor.h"
#include "dbintar.h"
#include "dbptrar.h"
#include "gemat3d.h"
#include "gept3dar.h"
#include "geplane.h"

class AcDbImpEntity;

class ACHOST_API AcDbEntity : public AcDbObject {
    ACRX_DECLARE_MEMBERS(AcDbEntity);

public:
    ~AcDbEntity() override;

    // The block table record that owns the entity.
    AcDbObjectId blockId() const;

    AcCmColor color() const;
    virtual Acad::ErrorStatus setColor(const AcCmColor& color, Adesk::Boolean doSubents = true);
    Adesk::UInt16 colorIndex() const;
    virtual Acad::ErrorStatus setColorIndex(Adesk::UInt16 color, Adesk::Boolean doSubents = true);
    AcCmEntityColor entityColor() const;

    AcString layer() const;                  // the layer's name
    AcDbObjectId layerId() const;
    virtual Acad::ErrorStatus setLayer(const ACHAR* newVal, Adesk::Boolean doSubents = true);
    virtual Acad::ErrorStatus setLayer(AcDbObjectId newVal, Adesk::Boolean doSubents = true);

    AcString linetype() const;               // the linetype's name
    AcDbObjectId linetypeId() const;
    virtual Acad::ErrorStatus setLinetype(const ACHAR* newVal, Adesk::Boolean doSubents = true);
    virtual Acad::ErrorStatus setLinetype(AcDbObjectId newVal, Adesk::Boolean doSubents = true);

    double linetypeScale() const;
    virtual Acad::ErrorStatus setLinetypeScale(double newVal, Adesk::Boolean doSubents = true);

    AcDb::LineWeight lineWeight() const;
    virtual Acad::ErrorStatus setLineWeight(AcDb::LineWeight newVal, Adesk::Boolean doSubents = true);

    AcDb::Visibility visibility() const;
    virtual Acad::ErrorStatus setVisibility(AcDb::Visibility newVal, Adesk::Boolean doSubents = true);

    // Copies colour, layer, linetype, linetype scale, lineweight and visibility.
    Acad::ErrorStatus setPropertiesFrom(const AcDbEntity* other, Adesk::Boolean doSubents = true);
    // Applies the database's current colour, layer, linetype, linetype scale and lineweight
    // (null: the working database).
    void setDatabaseDefaults();
    void setDatabaseDefaults(AcDbDatabase* db);
    virtual void subSetDatabaseDefaults(AcDbDatabase* db);

    // Marks the graphics as changed so that the entity is redrawn.
    void recordGraphicsModified(Adesk::Boolean setModified = true);

    // The host's entry points; each calls the matching sub... function.
    void list() const;
    Acad::ErrorStatus getGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                    AcDbIntArray& geomIds) const;
    Acad::ErrorStatus getGripPoints(AcDbGripDataPtrArray& grips, const double curViewUnitSize, const int gripSize,
                                    const AcGeVector3d& curViewDir, const int bitflags) const;
    Acad::ErrorStatus moveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset);
    Acad::ErrorStatus moveGripPointsAt(const AcDbVoidPtrArray& gripAppData, const AcGeVector3d& offset,
                                       const int bitflags);
    Acad::ErrorStatus getStretchPoints(AcGePoint3dArray& stretchPoints) const;
    Acad::ErrorStatus moveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset);
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& xform);
    Acad::ErrorStatus getTransformedCopy(const AcGeMatrix3d& xform, AcDbEntity*& ent) const;
    Acad::ErrorStatus explode(AcDbVoidPtrArray& entitySet) const;
    Acad::ErrorStatus getGeomExtents(AcDbExtents& extents) const;
    Acad::ErrorStatus getOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                     const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                     const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                     AcDbIntArray& geomIds) const;
    Acad::ErrorStatus getOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                     const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                     const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                     AcDbIntArray& geomIds, const AcGeMatrix3d& insertionMat) const;
    Acad::ErrorStatus intersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType, AcGePoint3dArray& points,
                                    Adesk::GsMarker thisGsMarker = 0, Adesk::GsMarker otherGsMarker = 0) const;
    Acad::ErrorStatus intersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType, const AcGePlane& projPlane,
                                    AcGePoint3dArray& points, Adesk::GsMarker thisGsMarker = 0,
                                    Adesk::GsMarker otherGsMarker = 0) const;
    void gripStatus(const AcDb::GripStat status);
    Acad::ErrorStatus highlight(const AcDbFullSubentPath& subId = kNullSubent,
                                const Adesk::Boolean highlightAll = false) const;
    Acad::ErrorStatus unhighlight(const AcDbFullSubentPath& subId = kNullSubent,
                                  const Adesk::Boolean highlightAll = false) const;
    Acad::ErrorStatus getGsMarkersAtSubentPath(const AcDbFullSubentPath& subPath,
                                               AcArray<Adesk::GsMarker>& gsMarkers) const;
    Acad::ErrorStatus getSubentPathsAtGsMarker(AcDb::SubentType type, Adesk::GsMarker gsMark,
                                               const AcGePoint3d& pickPoint, const AcGeMatrix3d& viewXform,
                                               int& numPaths, AcDbFullSubentPath*& subentPaths,
                                               int numInserts = 0, AcDbObjectId* entAndInsertStack = nullptr) const;
    AcDbEntity* subentPtr(const AcDbFullSubentPath& id) const;

    // Told when a drag of the entity starts, ends or is abandoned.
    virtual void dragStatus(const AcDb::DragStat status);

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

protected:
    AcDbEntity();

    Adesk::UInt32 subSetAttributes(AcGiDrawableTraits* traits) override;
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    void subViewportDraw(AcGiViewportDraw* viewportDraw) override;

    // Prints the host's standard lines (entity type, layer, space, colour and linetype when
    // not by layer, handle); entities print their own lines after calling it.
    virtual void subList() const;
    virtual Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                               AcDbIntArray& geomIds) const;
    virtual Acad::ErrorStatus subGetGripPoints(AcDbGripDataPtrArray& grips, const double curViewUnitSize,
                                               const int gripSize, const AcGeVector3d& curViewDir,
                                               const int bitflags) const;
    virtual Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset);
    virtual Acad::ErrorStatus subMoveGripPointsAt(const AcDbVoidPtrArray& gripAppData, const AcGeVector3d& offset,
                                                  const int bitflags);
    virtual Acad::ErrorStatus subGetStretchPoints(AcGePoint3dArray& stretchPoints) const;
    virtual Acad::ErrorStatus subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset);
    virtual Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform);
    virtual Acad::ErrorStatus subGetTransformedCopy(const AcGeMatrix3d& xform, AcDbEntity*& ent) const;
    virtual Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const;
    virtual Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const;
    virtual Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                                const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                                const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                                AcDbIntArray& geomIds) const;
    virtual Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                                const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                                const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                                AcDbIntArray& geomIds, const AcGeMatrix3d& insertionMat) const;
    virtual Acad::ErrorStatus subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                               AcGePoint3dArray& points, Adesk::GsMarker thisGsMarker = 0,
                                               Adesk::GsMarker otherGsMarker = 0) const;
    virtual Acad::ErrorStatus subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                               const AcGePlane& projPlane, AcGePoint3dArray& points,
                                               Adesk::GsMarker thisGsMarker = 0,
                                               Adesk::GsMarker otherGsMarker = 0) const;
    virtual void subGripStatus(const AcDb::GripStat status);
    virtual Acad::ErrorStatus subHighlight(const AcDbFullSubentPath& subId = kNullSubent,
                                           const Adesk::Boolean highlightAll = false) const;
    virtual Acad::ErrorStatus subUnhighlight(const AcDbFullSubentPath& subId = kNullSubent,
                                             const Adesk::Boolean highlightAll = false) const;
    virtual Acad::ErrorStatus subGetGsMarkersAtSubentPath(const AcDbFullSubentPath& subPath,
                                                          AcArray<Adesk::GsMarker>& gsMarkers) const;
    virtual Acad::ErrorStatus subGetSubentPathsAtGsMarker(AcDb::SubentType type, Adesk::GsMarker gsMark,
                                                          const AcGePoint3d& pickPoint,
                                                          const AcGeMatrix3d& viewXform, int& numPaths,
                                                          AcDbFullSubentPath*& subentPaths, int numInserts = 0,
                                                          AcDbObjectId* entAndInsertStack = nullptr) const;
    virtual AcDbEntity* subSubentPtr(const AcDbFullSubentPath& id) const;

private:
    friend class AcDbImpEntity;
    AcDbImpEntity* m_entityImp;
};

ACHOST_API Acad::ErrorStatus acdbOpenAcDbEntity(AcDbEntity*& ent, AcDbObjectId id, AcDb::OpenMode mode,
                                                bool openErased = false);
