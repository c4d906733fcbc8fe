// AcCmTransparency: how see-through an entity or a drawn primitive is: by layer, by
// block, or an alpha value of its own (0 clear .. 255 solid).
#pragma once

#include <iosfwd>

#include "adesk.h"

class ACHOST_API AcCmTransparency {
public:
    // The numbers are not documented; nothing stores them.
    enum transparencyMethod {
        kByLayer = 0,
        kByBlock = 1,
        kByAlpha = 2,
        kErrorValue = 3,
    };

    static constexpr Adesk::UInt8 kAlphaClear = 0;
    static constexpr Adesk::UInt8 kAlphaSolid = 255;

    AcCmTransparency() = default;                 // by layer
    explicit AcCmTransparency(Adesk::UInt8 alpha);        // by alpha
    explicit AcCmTransparency(double alphaPercent);       // by alpha, see setAlphaPercent

    transparencyMethod method() const { return m_method; }
    // Changing to another method keeps the alpha for a later return to kByAlpha.
    void setMethod(transparencyMethod method);

    Adesk::UInt8 alpha() const { return m_alpha; }
    void setAlpha(Adesk::UInt8 alpha);            // also makes the method kByAlpha
    double alphaPercent() const;                  // alpha / 255
    // A fraction 0..1 (clamped) rounded to the nearest alpha; a non-finite fraction is ignored.
    void setAlphaPercent(double alphaPercent);

    bool isByAlpha() const { return m_method == kByAlpha; }
    bool isByBlock() const { return m_method == kByBlock; }
    bool isByLayer() const { return m_method == kByLayer; }
    bool isInvalid() const { return m_method == kErrorValue; }
    bool isClear() const { return isByAlpha() && m_alpha == kAlphaClear; }
    bool isSolid() const { return isByAlpha() && m_alpha == kAlphaSolid; }

    // The alpha takes part only when the method is kByAlpha.
    bool operator==(const AcCmTransparency& other) const;
    bool operator!=(const AcCmTransparency& other) const { return !(*this == other); }

private:
    transparencyMethod m_method = kByLayer;
    Adesk::UInt8 m_alpha = kAlphaSolid;
};

// Prints "ByLayer", "ByBlock", "Alpha 128" or "Invalid".
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcCmTransparency& transparency);
