// AcGiSubEntityTraits: the optional traits that a drawing back end may ignore.
#include "AcGiSubEntityTraits.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcGiSubEntityTraits, AcRxObject)

AcGiSubEntityTraits::AcGiSubEntityTraits() = default;

AcGiSubEntityTraits::~AcGiSubEntityTraits() = default;

void AcGiSubEntityTraits::setMaterial(const AcDbObjectId)
{
}

void AcGiSubEntityTraits::setTransparency(const AcCmTransparency&)
{
}

AcDbObjectId AcGiSubEntityTraits::materialId() const
{
    return AcDbObjectId::kNull;
}

AcCmTransparency AcGiSubEntityTraits::transparency() const
{
    return AcCmTransparency();
}
