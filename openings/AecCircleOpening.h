// AecCircleOpening: a circular opening in the panel layout: a host circle with an optional
// title drawn beside it in its own text style. Its record lives in the node
// "CircleOpeningData" of its data tree.
#pragma once

#include <memory>

#include "CircleOpeningData.h"
#include "data/DataNodeRoot.h"
#include "dbents.h"

class AecCircleOpening : public AcDbCircle, public DataNodeRoot {
public:
    ACRX_DECLARE_MEMBERS(AecCircleOpening);

    static constexpr Adesk::Int32 kVersion_1 = 1;
    static constexpr Adesk::Int32 kCurrentVersion = kVersion_1;

    AecCircleOpening();
    ~AecCircleOpening() override;

    // The record (a copy), and its replacement, which is written into the tree. A title
    // whose position, height or direction is not finite is refused (eInvalidInput) and the
    // record stays as it was.
    CircleOpeningData GetData() const;
    Acad::ErrorStatus SetData(const CircleOpeningData& data);

    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;

protected:
    void SaveToNode() override;
    void LoadFromNode() override;

    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    void subList() const override;
    Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const override;
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    // Five grips in the grip-data form: centre, then the ends of the in-plane axes u, v,
    // -u, -v; the point-array forms are refused so that the host uses these.
    Acad::ErrorStatus subGetGripPoints(AcDbGripDataPtrArray& grips, const double curViewUnitSize, const int gripSize,
                                       const AcGeVector3d& curViewDir, const int bitflags) const override;
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbVoidPtrArray& gripAppData, const AcGeVector3d& offset,
                                          const int bitflags) override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;
    Acad::ErrorStatus subGetClassID(CLSID* classId) const override;

private:
    struct Imp;
    std::unique_ptr<Imp> m_imp;
};
