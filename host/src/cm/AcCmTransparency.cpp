// AcCmTransparency: a transparency method and an alpha value.
#include "AcCmTransparency.h"

#include <cmath>
#include <ostream>

AcCmTransparency::AcCmTransparency(Adesk::UInt8 alpha) : m_method(kByAlpha), m_alpha(alpha) {}

AcCmTransparency::AcCmTransparency(double alphaPercent) : m_method(kByAlpha)
{
    setAlphaPercent(alphaPercent);
}

void AcCmTransparency::setMethod(transparencyMethod method)
{
    m_method = method;
}

void AcCmTransparency::setAlpha(Adesk::UInt8 alpha)
{
    m_method = kByAlpha;
    m_alpha = alpha;
}

double AcCmTransparency::alphaPercent() const
{
    return m_alpha / 255.0;
}

void AcCmTransparency::setAlphaPercent(double alphaPercent)
{
    if (!std::isfinite(alphaPercent))
        return;
    const double clamped = std::fmin(1.0, std::fmax(0.0, alphaPercent));
    setAlpha(static_cast<Adesk::UInt8>(std::lround(clamped * 255.0)));
}

bool AcCmTransparency::operator==(const AcCmTransparency& other) const
{
    return m_method == other.m_method && (m_method != kByAlpha || m_alpha == other.m_alpha);
}

std::ostream& operator<<(std::ostream& os, const AcCmTransparency& transparency)
{
    switch (transparency.method()) {
    case AcCmTransparency::kByLayer: return os << "ByLayer";
    case AcCmTransparency::kByBlock: return os << "ByBlock";
    case AcCmTransparency::kByAlpha: return os << "Alpha " << int(transparency.alpha());
    default: return os << "Invalid";
    }
}
