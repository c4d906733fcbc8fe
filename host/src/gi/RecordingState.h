// What a recording world draw and its geometry and traits objects share: the record, the
// traits in force, the model transform and clip stacks, and the abort and drag settings.
#pragma once

#include <cstddef>
#include <vector>

#include "AcGiContext.h"
#include "gemat3d.h"
#include "headless/RecordedPrimitive.h"

namespace headless {
class RecordingWorldDraw;
}

namespace hostgi {

struct RecordingState {
    headless::RecordingWorldDraw* owner = nullptr;
    std::vector<headless::RecordedPrimitive> primitives;
    headless::RecordedTraits traits;
    int depth = 0;
    // Each entry is the product of all transforms pushed up to it (model to world).
    std::vector<AcGeMatrix3d> modelTransforms;
    int clipDepth = 0;
    std::size_t viewportDrawRequests = 0;

    bool dragging = false;
    AcGiRegenType regenType = kAcGiStandardDisplay;
    bool abortSet = false;
    std::size_t abortAfterCount = 0;   // primitives still admitted while abortSet
    double deviation = 0.01;
    Adesk::UInt32 isolines = 4;
    AcDbDatabase* database = nullptr;

    AcGeMatrix3d modelToWorld() const
    {
        return modelTransforms.empty() ? AcGeMatrix3d::kIdentity : modelTransforms.back();
    }
    bool aborted() const { return abortSet && abortAfterCount == 0; }
    // The fill a draw starts with: never for the standard display, always for hide, shade
    // and render.
    AcGiFillType defaultFill() const
    {
        return regenType == kAcGiStandardDisplay || regenType == kAcGiForExplode ? kAcGiFillNever
                                                                                 : kAcGiFillAlways;
    }
    // A new primitive of the kind, with the current traits and depth, built in place at the
    // end of the record (moving a primitive costs as much as filling one); nullptr, nothing
    // added, once aborted.
    headless::RecordedPrimitive* startRecord(headless::PrimitiveKind kind)
    {
        if (aborted())
            return nullptr;
        headless::RecordedPrimitive& primitive = primitives.emplace_back();
        primitive.kind = kind;
        primitive.traits = traits;
        primitive.depth = depth;
        if (abortSet)
            --abortAfterCount;
        return &primitive;
    }
};

// The context of a recording draw: a plain display of the database the test names.
class RecordingContext : public AcGiContext {
public:
    explicit RecordingContext(const RecordingState& state) : m_state(state) {}
    Adesk::Boolean isPsOut() const override { return false; }
    Adesk::Boolean isPlotGeneration() const override { return false; }
    AcDbDatabase* database() const override { return m_state.database; }
    bool isBoundaryClipping() const override { return m_state.clipDepth > 0; }

private:
    const RecordingState& m_state;
};

}  // namespace hostgi
