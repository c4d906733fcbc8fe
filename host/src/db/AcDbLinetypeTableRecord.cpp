// AcDbLinetypeTableRecord: a linetype's description and dash pattern.
#include "AcDbLinetypeTableRecord.h"

#include <cmath>

#include "acutmem.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbLinetypeTableRecord, AcDbSymbolTableRecord, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent,
                        0, LTYPE, HeadlessHost)

namespace {

// The host allows at most this many dashes in a simple linetype.
constexpr int kMaxDashes = 12;

}  // namespace

AcDbLinetypeTableRecord::AcDbLinetypeTableRecord() = default;

AcDbLinetypeTableRecord::~AcDbLinetypeTableRecord() = default;

Acad::ErrorStatus AcDbLinetypeTableRecord::comments(ACHAR*& text) const
{
    assertReadEnabled();
    return acutNewString(m_comments.kwszPtr(), text);
}

Acad::ErrorStatus AcDbLinetypeTableRecord::comments(const ACHAR*& text) const
{
    assertReadEnabled();
    text = m_comments.kwszPtr();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLinetypeTableRecord::comments(AcString& text) const
{
    assertReadEnabled();
    text = m_comments;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLinetypeTableRecord::setComments(const ACHAR* text)
{
    assertWriteEnabled();
    m_comments = text;
    return Acad::eOk;
}

double AcDbLinetypeTableRecord::patternLength() const
{
    assertReadEnabled();
    return m_patternLength;
}

Acad::ErrorStatus AcDbLinetypeTableRecord::setPatternLength(double length)
{
    assertWriteEnabled();
    if (!std::isfinite(length) || length < 0.0)
        return Acad::eInvalidInput;
    m_patternLength = length;
    return Acad::eOk;
}

bool AcDbLinetypeTableRecord::isScaledToFit() const
{
    assertReadEnabled();
    return m_scaledToFit;
}

void AcDbLinetypeTableRecord::setIsScaledToFit(bool scaledToFit)
{
    assertWriteEnabled();
    m_scaledToFit = scaledToFit;
}

int AcDbLinetypeTableRecord::numDashes() const
{
    assertReadEnabled();
    return static_cast<int>(m_dashes.size());
}

Acad::ErrorStatus AcDbLinetypeTableRecord::setNumDashes(int count)
{
    assertWriteEnabled();
    if (count < 0 || count > kMaxDashes)
        return Acad::eInvalidInput;
    m_dashes.resize(static_cast<size_t>(count), 0.0);
    return Acad::eOk;
}

double AcDbLinetypeTableRecord::dashLengthAt(int index) const
{
    assertReadEnabled();
    if (index < 0 || index >= static_cast<int>(m_dashes.size()))
        return 0.0;
    return m_dashes[static_cast<size_t>(index)];
}

Acad::ErrorStatus AcDbLinetypeTableRecord::setDashLengthAt(int index, double length)
{
    assertWriteEnabled();
    if (index < 0 || index >= static_cast<int>(m_dashes.size()))
        return Acad::eInvalidIndex;
    if (!std::isfinite(length))
        return Acad::eInvalidInput;
    m_dashes[static_cast<size_t>(index)] = length;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLinetypeTableRecord::dwgOutFields(AcDbDwgFiler* filer) const
{
    const Acad::ErrorStatus es = AcDbSymbolTableRecord::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeString(m_comments);
    filer->writeDouble(m_patternLength);
    filer->writeBool(m_scaledToFit);
    filer->writeInt32(static_cast<Adesk::Int32>(m_dashes.size()));
    for (double dash : m_dashes)
        filer->writeDouble(dash);
    return filer->filerStatus();
}

Acad::ErrorStatus AcDbLinetypeTableRecord::dwgInFields(AcDbDwgFiler* filer)
{
    const Acad::ErrorStatus es = AcDbSymbolTableRecord::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    AcString comments;
    double patternLength = 0.0;
    bool scaledToFit = false;
    Adesk::Int32 count = 0;
    filer->readString(comments);
    filer->readDouble(&patternLength);
    filer->readBool(&scaledToFit);
    if (filer->readInt32(&count) != Acad::eOk)
        return filer->filerStatus();
    if (count < 0 || count > kMaxDashes || !std::isfinite(patternLength) || patternLength < 0.0) {
        filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
        return filer->filerStatus();
    }
    std::vector<double> dashes(static_cast<size_t>(count), 0.0);
    for (double& dash : dashes) {
        if (filer->readDouble(&dash) != Acad::eOk)
            return filer->filerStatus();
        if (!std::isfinite(dash)) {
            filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
            return filer->filerStatus();
        }
    }
    m_comments = comments;
    m_patternLength = patternLength;
    m_scaledToFit = scaledToFit;
    m_dashes = std::move(dashes);
    return filer->filerStatus();
}
