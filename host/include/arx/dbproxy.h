// Proxies: what a drawing keeps of an object whose class is not loaded (or whose filing
// refused the data). A proxy holds the object's original class record and its filed
// bytes and writes them back unchanged; the class's proxy flags say what may be done to
// it. A proxy entity also keeps the graphics the entity drew when it was saved, draws
// them, and answers its extents from them.
#pragma once

#include "AcDbEntity.h"
#include "AcDbObject.h"

namespace hostfile {
class ProxyData;
class ProxyAccess;
}

class ACHOST_API AcDbProxyObject : public AcDbObject {
    ACRX_DECLARE_MEMBERS(AcDbProxyObject);

public:
    enum {
        kNoOperation = 0,
        kEraseAllowed = 0x1,
        kCloningAllowed = 0x80,
        kAllButCloningAllowed = 0x1,
        kAllAllowedBits = 0x81,
        kDisableProxyWarning = 0x400,
    };

    AcDbProxyObject();
    ~AcDbProxyObject() override;

    // The flags of the original class.
    int proxyFlags() const;
    const ACHAR* originalClassName() const;
    const ACHAR* originalDxfName() const;
    // The application that defines the class, as its class record names it.
    const ACHAR* applicationDescription() const;
    // The objects the kept data refers to, in the order of the data.
    Acad::ErrorStatus getReferenceObjectIds(AcDbObjectIdArray& ids) const;

    // A file filer gets back exactly the bytes that were read; other filers (undo, copy,
    // clone) get the class record and the data with its references as ids.
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

protected:
    // eNotAllowedForThisProxy unless the flags allow it.
    Acad::ErrorStatus subErase(Adesk::Boolean erasing) override;
    Acad::ErrorStatus subDeepClone(AcDbObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                   Adesk::Boolean isPrimary = true) const override;
    Acad::ErrorStatus subWblockClone(AcRxObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                     Adesk::Boolean isPrimary = true) const override;

private:
    friend class hostfile::ProxyAccess;
    hostfile::ProxyData* m_data;
};

class ACHOST_API AcDbProxyEntity : public AcDbEntity {
    ACRX_DECLARE_MEMBERS(AcDbProxyEntity);

public:
    enum GraphicsMetafileType { kNoMetafile = 0, kBoundingBox = 1, kFullGraphics = 2 };
    enum {
        kNoOperation = 0,
        kEraseAllowed = 0x1,
        kTransformAllowed = 0x2,
        kColorChangeAllowed = 0x4,
        kLayerChangeAllowed = 0x8,
        kLinetypeChangeAllowed = 0x10,
        kLinetypeScaleChangeAllowed = 0x20,
        kVisibilityChangeAllowed = 0x40,
        kCloningAllowed = 0x80,
        kLineWeightChangeAllowed = 0x100,
        kPlotStyleNameChangeAllowed = 0x200,
        kAllButCloningAllowed = 0x37F,
        kAllAllowedBits = 0x3FF,
        kDisableProxyWarning = 0x400,
    };

    AcDbProxyEntity();
    ~AcDbProxyEntity() override;

    int proxyFlags() const;
    const ACHAR* originalClassName() const;
    const ACHAR* originalDxfName() const;
    const ACHAR* applicationDescription() const;
    Acad::ErrorStatus getReferenceObjectIds(AcDbObjectIdArray& ids) const;
    // kFullGraphics when the drawing kept the entity's graphics, else kNoMetafile.
    GraphicsMetafileType graphicsMetafileType() const;

    // Property changes answer eNotAllowedForThisProxy unless the flags allow them.
    Acad::ErrorStatus setColor(const AcCmColor& color, Adesk::Boolean doSubents = true) override;
    Acad::ErrorStatus setColorIndex(Adesk::UInt16 color, Adesk::Boolean doSubents = true) override;
    Acad::ErrorStatus setLayer(const ACHAR* newVal, Adesk::Boolean doSubents = true) override;
    Acad::ErrorStatus setLayer(AcDbObjectId newVal, Adesk::Boolean doSubents = true) override;
    Acad::ErrorStatus setLinetype(const ACHAR* newVal, Adesk::Boolean doSubents = true) override;
    Acad::ErrorStatus setLinetype(AcDbObjectId newVal, Adesk::Boolean doSubents = true) override;
    Acad::ErrorStatus setLinetypeScale(double newVal, Adesk::Boolean doSubents = true) override;
    Acad::ErrorStatus setLineWeight(AcDb::LineWeight newVal, Adesk::Boolean doSubents = true) override;
    Acad::ErrorStatus setVisibility(AcDb::Visibility newVal, Adesk::Boolean doSubents = true) override;

    // As AcDbProxyObject's; other filers also carry the graphics and any transform that
    // waits for the class.
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;
    // Moves the kept graphics and remembers the transform; the entity gets it when its
    // class is loaded and the drawing is read again.
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    Acad::ErrorStatus subErase(Adesk::Boolean erasing) override;
    void subList() const override;
    Acad::ErrorStatus subDeepClone(AcDbObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                   Adesk::Boolean isPrimary = true) const override;
    Acad::ErrorStatus subWblockClone(AcRxObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                     Adesk::Boolean isPrimary = true) const override;

private:
    friend class hostfile::ProxyAccess;
    Acad::ErrorStatus allowed(int flag) const;
    hostfile::ProxyData* m_data;
};
