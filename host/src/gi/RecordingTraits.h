// The traits object of a recording draw: every setting goes straight into the traits
// that the following primitives are recorded with.
#pragma once

#include "AcGiDrawableTraits.h"
#include "RecordingState.h"

namespace hostgi {

class RecordingTraits : public AcGiDrawableTraits {
public:
    explicit RecordingTraits(RecordingState& state) : m_state(state) {}

    // An index colour also becomes the true colour (by index), and a true colour also
    // sets the index to its closest match, so both getters always agree.
    void setColor(const Adesk::UInt16 color) override;
    void setTrueColor(const AcCmEntityColor& color) override;
    void setLayer(const AcDbObjectId layerId) override { m_state.traits.layerId = layerId; }
    void setLineType(const AcDbObjectId linetypeId) override { m_state.traits.linetypeId = linetypeId; }
    void setSelectionMarker(const Adesk::LongPtr markerId) override { m_state.traits.selectionMarker = markerId; }
    void setFillType(const AcGiFillType fillType) override { m_state.traits.fillType = fillType; }
    void setLineWeight(const AcDb::LineWeight lineWeight) override { m_state.traits.lineWeight = lineWeight; }
    void setLineTypeScale(double scale = 1.0) override { m_state.traits.linetypeScale = scale; }
    void setThickness(double thickness) override { m_state.traits.thickness = thickness; }

    Adesk::UInt16 color() const override { return m_state.traits.color; }
    AcCmEntityColor trueColor() const override { return m_state.traits.trueColor; }
    AcDbObjectId layerId() const override { return m_state.traits.layerId; }
    AcDbObjectId lineTypeId() const override { return m_state.traits.linetypeId; }
    AcGiFillType fillType() const override { return m_state.traits.fillType; }
    AcDb::LineWeight lineWeight() const override { return m_state.traits.lineWeight; }
    double lineTypeScale() const override { return m_state.traits.linetypeScale; }
    double thickness() const override { return m_state.traits.thickness; }

private:
    RecordingState& m_state;
};

}  // namespace hostgi
