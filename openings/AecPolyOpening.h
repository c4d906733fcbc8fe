// AecPolyOpening: an opening of free polygonal shape (异形洞口): a host polyline that draws
// its outline, a title inside it, a centre cross and, while the document is in inspect
// mode, a label at every segment. Its own attributes live in a PolyOpeningData kept in the
// node "PolyOpeningData" of its data tree.
#pragma once

#include <memory>
#include <vector>

#include "PolyOpeningData.h"
#include "data/DataNodeRoot.h"
#include "dbpl.h"

class AecPolyOpening : public AcDbPolyline, public DataNodeRoot {
public:
    ACRX_DECLARE_MEMBERS(AecPolyOpening);

    static constexpr Adesk::Int32 kVersion_1 = 1;
    static constexpr Adesk::Int32 kCurrentVersion = kVersion_1;

    AecPolyOpening();
    ~AecPolyOpening() override;
    AecPolyOpening(const AecPolyOpening&) = delete;
    AecPolyOpening& operator=(const AecPolyOpening&) = delete;

    // The current document's inspect mode (off until set); every document has its own.
    static void SetInspectMode(bool inspectMode);
    static bool IsInspectMode();

    // The record (a copy), and its replacement. eInvalidInput, with nothing changed, for
    // heights that are not finite; a colour index outside 0..256 is stored as 0.
    PolyOpeningData GetData() const;
    Acad::ErrorStatus SetData(const PolyOpeningData& data);
    void SetDisplayAidTitle(const AcString& title);
    void SetDisplayAidTitleVisible(bool visible);
    void SetCenterCrossVisible(bool visible);
    void SetSegmentLabelsInInspectModeVisible(bool visible);

    // Where the title and the centre cross go, in world coordinates: inside the outline
    // and as far from its edges as the outline allows. False without vertices.
    bool GetInnerReferencePoint(AcGePoint3d& point) const;

    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;

protected:
    void SaveToNode() override;
    void LoadFromNode() override;

    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    void subList() const override;
    // The outline moves as a polyline; the text heights scale with it.
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;

private:
    void Update();
    // The record's text style when the drawing has it, else the drawing's current one
    // (fellBack set); the entity's drawing, or the working one when it has none.
    AcDbObjectId ResolveTextStyle(bool* fellBack = nullptr) const;
    // From the outline's own plane to the world; a normal that cannot be used (zero or not
    // finite, as only damaged data has it) counts as the Z axis.
    AcGeMatrix3d OutlineToWorld() const;

    std::unique_ptr<PolyOpeningData> m_data;

    // The outline last searched for its inner point and what the search found: every
    // regen asks for the point, and the search costs far more than the drawing.
    struct InnerPointMemo {
        std::vector<AcGePoint2d> outline;
        bool found = false;
        AcGePoint2d inner;
    };
    mutable std::unique_ptr<InnerPointMemo> m_innerPointMemo;
};
