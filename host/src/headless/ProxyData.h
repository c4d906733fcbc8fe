// ProxyData: what a proxy keeps of an object whose class could not read it: the class
// record from the drawing, the class's own bytes (everything after the base class's
// fields) with the places of the references in them, and for entities the kept graphics,
// the properties they were drawn with, and a transform waiting for the class.
#pragma once

#include <cstdint>
#include <vector>

#include "AcCmEntityColor.h"
#include "AcDbDwgFiler.h"
#include "AcString.h"
#include "gemat3d.h"
#include "headless/RecordedPrimitive.h"

class AcDbObject;
class AcDbEntity;
class AcRxClass;

namespace hostfile {

// A class as a drawing file describes it.
struct ClassRecord {
    AcString name;
    AcString dxfName;
    AcString appName;
    Adesk::Int32 dwgVersion = 0;
    Adesk::Int32 maintVersion = 0;
    Adesk::UInt32 proxyFlags = 0;
    std::vector<AcString> parents;  // the immediate parent first

    static ClassRecord of(const AcRxClass* cls);
    bool derivesFrom(const ACHAR* className) const;
    // The logical application name: the part of the application name before any '|'.
    AcString application() const;

    // At most this many parents are kept: deeper chains are not classes but damage.
    static constexpr std::size_t kMaxParents = 64;
    void writeTo(AcDbDwgFiler* filer) const;
    Acad::ErrorStatus readFrom(AcDbDwgFiler* filer);
};

struct ProxyReference {
    Adesk::UInt32 offset = 0;  // where the reference's 8 bytes start in the class's bytes
    AcDb::ReferenceType kind = AcDb::kSoftPointerRef;
    AcDbObjectId id;
};

// The entity properties the kept graphics were drawn with. Graphics drawn with these
// follow the proxy's current properties; graphics with other traits keep theirs.
struct DrawnProperties {
    AcCmEntityColor color;
    AcDbObjectId layerId;
    AcDbObjectId linetypeId;
    AcDb::LineWeight lineWeight = AcDb::kLnWtByLayer;
    double linetypeScale = 1.0;

    static DrawnProperties of(const AcDbEntity* entity);
};

class ProxyData {
public:
    ClassRecord cls;
    std::vector<std::uint8_t> bytes;
    std::vector<ProxyReference> references;  // ascending, not overlapping
    bool hasGraphics = false;
    std::vector<headless::RecordedPrimitive> graphics;
    DrawnProperties drawnWith;
    bool hasTransform = false;
    AcGeMatrix3d transform;

    // The class's bytes as they were read, references written through the filer.
    Acad::ErrorStatus writeBytes(AcDbDwgFiler* filer) const;
    // Within the session (undo, copy, clone): everything, framed, references as ids.
    Acad::ErrorStatus writeSession(AcDbDwgFiler* filer) const;
    Acad::ErrorStatus readSession(AcDbDwgFiler* filer);

    // The class's bytes and reference places taken from a drawing record: bytes from
    // start on, references at or after start (none may straddle it). False when they do.
    bool takeFrom(const std::vector<std::uint8_t>& record, std::size_t start,
                  const std::vector<ProxyReference>& recordReferences);
};

// The drawing reader and writer's access to proxies.
class ProxyAccess {
public:
    // The data of a proxy object or entity; null for any other object.
    static ProxyData* dataOf(const AcDbObject* obj);
};

}  // namespace hostfile
