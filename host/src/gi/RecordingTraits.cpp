// The recording traits' colour settings, which keep the index and the true colour in step.
#include "RecordingTraits.h"

namespace hostgi {

void RecordingTraits::setColor(const Adesk::UInt16 color)
{
    AcCmEntityColor trueColor;
    if (trueColor.setColorIndex(static_cast<Adesk::Int16>(color)) != Acad::eOk)
        return;
    m_state.traits.color = color;
    m_state.traits.trueColor = trueColor;
}

void RecordingTraits::setTrueColor(const AcCmEntityColor& color)
{
    m_state.traits.trueColor = color;
    m_state.traits.color = static_cast<Adesk::UInt16>(color.colorIndex());
}

}  // namespace hostgi
