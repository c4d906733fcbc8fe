// RecordingWorldDraw: the headless host's world draw. It keeps every primitive drawn into
// it, in world coordinates, with the traits in force and the nesting depth; nested
// drawables (draw()) run their setAttributes and worldDraw into the same record with the
// traits saved and restored around them. Tests can make it answer isDragging() true and
// regenAbort() true, at once or after a number of primitives.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "AcGiWorldDraw.h"
#include "headless/RecordedPrimitive.h"

namespace hostgi {
struct RecordingState;
class RecordingGeometry;
class RecordingTraits;
class RecordingContext;
}  // namespace hostgi

namespace headless {

class ACHOST_API RecordingWorldDraw : public AcGiWorldDraw {
public:
    RecordingWorldDraw();
    ~RecordingWorldDraw() override;
    RecordingWorldDraw(const RecordingWorldDraw&) = delete;
    RecordingWorldDraw& operator=(const RecordingWorldDraw&) = delete;

    // The host's draw of one drawable: the traits start from the defaults (colour 7, no
    // layer or linetype, lineweight by layer, linetype scale 1, fill by regeneration type,
    // marker 0), then setAttributes, then worldDraw unless the drawable said it is
    // invisible. Answers worldDraw's answer (true: no viewport draw needed).
    Adesk::Boolean drawDrawable(AcGiDrawable* drawable);

    const std::vector<RecordedPrimitive>& primitives() const;
    // One line per primitive (RecordedPrimitive::toLine), nested ones indented two spaces per level.
    std::string transcript() const;
    void clear();
    // How many drawables answered false from worldDraw (asked for a viewport draw, which a
    // world-only draw does not make).
    std::size_t viewportDrawRequests() const;

    void setDragging(bool dragging);
    void setRegenType(AcGiRegenType type);
    // regenAbort() answers true from now on; primitives are refused (answer true).
    void abortNow();
    // regenAbort() answers true once count more primitives have been recorded.
    void abortAfter(std::size_t count);
    void clearAbort();
    void setDeviation(double deviation);
    void setNumberOfIsolines(Adesk::UInt32 isolines);
    // The database that context()->database() answers (null by default).
    void setDatabase(AcDbDatabase* db);

    // AcGiWorldDraw
    AcGiWorldGeometry& geometry() const override;
    AcGiGeometry* rawGeometry() const override;
    AcGiRegenType regenType() const override;
    Adesk::Boolean regenAbort() const override;
    AcGiSubEntityTraits& subEntityTraits() const override;
    Adesk::Boolean isDragging() const override;
    AcGiContext* context() override;
    Adesk::UInt32 numberOfIsolines() const override;
    // The deviation set with setDeviation, whatever the type and point (default 0.01).
    double deviation(const AcGiDeviationType type, const AcGePoint3d& point) const override;

private:
    std::unique_ptr<hostgi::RecordingState> m_state;
    std::unique_ptr<hostgi::RecordingTraits> m_traits;
    std::unique_ptr<hostgi::RecordingGeometry> m_geometry;
    std::unique_ptr<hostgi::RecordingContext> m_context;
};

}  // namespace headless
