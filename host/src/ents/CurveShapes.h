// Curve shapes: lines and circular arcs as plain values, so that intersections between
// any two of the host's curve entities are computed in one place. An entity class that
// is made of such pieces (the polyline) registers a source for its shapes.
#pragma once

#include <iosfwd>
#include <vector>

#include "AcDbEntity.h"
#include "ArcGeometry.h"
#include "geplane.h"

namespace hostents {

struct CurveShape {
    enum Kind { kLine, kArc };
    Kind kind = kLine;
    // kLine: the segment from start to end.
    AcGePoint3d start;
    AcGePoint3d end;
    // kArc: the arc (a whole circle when its sweep is 2 pi).
    ArcGeometry arc;

    static CurveShape line(const AcGePoint3d& start, const AcGePoint3d& end);
    static CurveShape circular(const ArcGeometry& arc);
};

// "line (0, 0, 0) to (1, 0, 0)" or the arc's own form.
std::ostream& operator<<(std::ostream& os, const CurveShape& shape);

using ShapeSource = bool (*)(const AcDbEntity* entity, std::vector<CurveShape>& shapes);

// Lets the entities of a class (and of its subclasses) be intersected with the basic
// curves. Lines, circles and arcs are known without registration.
void registerShapeSource(AcRxClass* cls, ShapeSource source);
void unregisterShapeSource(AcRxClass* cls);

// True when the entity's class (or one it derives from) registered a shape source.
bool hasRegisteredSource(const AcDbEntity* entity);

// The shapes an entity is made of; false when its class is unknown here.
bool shapesOf(const AcDbEntity* entity, std::vector<CurveShape>& shapes);

// Intersections of two shapes; an extended line is infinite, an extended arc its whole
// circle. Parallel or coincident pieces contribute no points.
void intersectShapes(const CurveShape& a, bool extendA, const CurveShape& b, bool extendB,
                     std::vector<AcGePoint3d>& points);

// Projects a shape orthogonally onto a plane; false when the projection is no longer a
// line or an arc (an arc whose plane is not parallel to the projection plane).
bool projectShape(const CurveShape& shape, const AcGePlane& plane, CurveShape& projected);

// The intersection service behind intersectWith for the basic curves: every piece of this
// entity against every piece of the other. eNotImplementedYet when the other entity's
// class gives no shapes. With a projection plane, the pieces are intersected as seen
// along the plane's normal and the points answered lie on this entity.
Acad::ErrorStatus intersectEntities(const AcDbEntity* self, const AcDbEntity* other, AcDb::Intersect type,
                                    const AcGePlane* projection, AcGePoint3dArray& points);

}  // namespace hostents
