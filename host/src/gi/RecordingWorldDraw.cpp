// The headless host's recording world draw: settings, the top-level draw and the record.
#include "headless/RecordingWorldDraw.h"

#include <sstream>

#include "RecordingGeometry.h"
#include "RecordingState.h"
#include "RecordingTraits.h"

namespace headless {

RecordingWorldDraw::RecordingWorldDraw()
    : m_state(std::make_unique<hostgi::RecordingState>()),
      m_traits(std::make_unique<hostgi::RecordingTraits>(*m_state)),
      m_geometry(std::make_unique<hostgi::RecordingGeometry>(*m_state)),
      m_context(std::make_unique<hostgi::RecordingContext>(*m_state))
{
    m_state->owner = this;
    m_state->traits.fillType = m_state->defaultFill();
}

RecordingWorldDraw::~RecordingWorldDraw() = default;

Adesk::Boolean RecordingWorldDraw::drawDrawable(AcGiDrawable* drawable)
{
    if (drawable == nullptr)
        return Adesk::kTrue;
    m_state->traits = RecordedTraits();
    m_state->traits.fillType = m_state->defaultFill();
    m_state->depth = 0;
    return m_geometry->runDrawable(drawable);
}

const std::vector<RecordedPrimitive>& RecordingWorldDraw::primitives() const
{
    return m_state->primitives;
}

std::string RecordingWorldDraw::transcript() const
{
    std::ostringstream os;
    for (const RecordedPrimitive& prim : m_state->primitives)
        os << std::string(static_cast<size_t>(prim.depth) * 2, ' ') << prim.toLine() << '\n';
    return os.str();
}

void RecordingWorldDraw::clear()
{
    m_state->primitives.clear();
    m_state->viewportDrawRequests = 0;
}

std::size_t RecordingWorldDraw::viewportDrawRequests() const
{
    return m_state->viewportDrawRequests;
}

void RecordingWorldDraw::setDragging(bool dragging)
{
    m_state->dragging = dragging;
}

void RecordingWorldDraw::setRegenType(AcGiRegenType type)
{
    m_state->regenType = type;
    m_state->traits.fillType = m_state->defaultFill();
}

void RecordingWorldDraw::abortNow()
{
    abortAfter(0);
}

void RecordingWorldDraw::abortAfter(std::size_t count)
{
    m_state->abortSet = true;
    m_state->abortAfterCount = count;
}

void RecordingWorldDraw::clearAbort()
{
    m_state->abortSet = false;
    m_state->abortAfterCount = 0;
}

void RecordingWorldDraw::setDeviation(double deviation)
{
    m_state->deviation = deviation;
}

void RecordingWorldDraw::setNumberOfIsolines(Adesk::UInt32 isolines)
{
    m_state->isolines = isolines;
}

void RecordingWorldDraw::setDatabase(AcDbDatabase* db)
{
    m_state->database = db;
}

AcGiWorldGeometry& RecordingWorldDraw::geometry() const
{
    return *m_geometry;
}

AcGiGeometry* RecordingWorldDraw::rawGeometry() const
{
    return m_geometry.get();
}

AcGiRegenType RecordingWorldDraw::regenType() const
{
    return m_state->regenType;
}

Adesk::Boolean RecordingWorldDraw::regenAbort() const
{
    return m_state->aborted();
}

AcGiSubEntityTraits& RecordingWorldDraw::subEntityTraits() const
{
    return *m_traits;
}

Adesk::Boolean RecordingWorldDraw::isDragging() const
{
    return m_state->dragging;
}

AcGiContext* RecordingWorldDraw::context()
{
    return m_context.get();
}

Adesk::UInt32 RecordingWorldDraw::numberOfIsolines() const
{
    return m_state->isolines;
}

double RecordingWorldDraw::deviation(const AcGiDeviationType, const AcGePoint3d&) const
{
    return m_state->deviation;
}

}  // namespace headless
