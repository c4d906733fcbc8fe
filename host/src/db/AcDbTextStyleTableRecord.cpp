// AcDbTextStyleTableRecord: a text style's sizes, angle and font files.
#include "AcDbTextStyleTableRecord.h"

#include <cmath>

#include "acutmem.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbTextStyleTableRecord, AcDbSymbolTableRecord, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent,
                        0, STYLE, HeadlessHost)

namespace {

bool isSize(double value)
{
    return std::isfinite(value) && value >= 0.0;
}

bool isScale(double value)
{
    return std::isfinite(value) && value > 0.0;
}

}  // namespace

AcDbTextStyleTableRecord::AcDbTextStyleTableRecord() = default;

AcDbTextStyleTableRecord::~AcDbTextStyleTableRecord() = default;

double AcDbTextStyleTableRecord::textSize() const
{
    assertReadEnabled();
    return m_textSize;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setTextSize(double size)
{
    assertWriteEnabled();
    if (!isSize(size))
        return Acad::eInvalidInput;
    m_textSize = size;
    return Acad::eOk;
}

double AcDbTextStyleTableRecord::xScale() const
{
    assertReadEnabled();
    return m_xScale;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setXScale(double scale)
{
    assertWriteEnabled();
    if (!isScale(scale))
        return Acad::eInvalidInput;
    m_xScale = scale;
    return Acad::eOk;
}

double AcDbTextStyleTableRecord::obliquingAngle() const
{
    assertReadEnabled();
    return m_obliquingAngle;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setObliquingAngle(double angle)
{
    assertWriteEnabled();
    if (!std::isfinite(angle))
        return Acad::eInvalidInput;
    m_obliquingAngle = angle;
    return Acad::eOk;
}

double AcDbTextStyleTableRecord::priorSize() const
{
    assertReadEnabled();
    return m_priorSize;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setPriorSize(double size)
{
    assertWriteEnabled();
    if (!isSize(size))
        return Acad::eInvalidInput;
    m_priorSize = size;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::fileName(ACHAR*& name) const
{
    assertReadEnabled();
    return acutNewString(m_fileName.kwszPtr(), name);
}

Acad::ErrorStatus AcDbTextStyleTableRecord::fileName(const ACHAR*& name) const
{
    assertReadEnabled();
    name = m_fileName.kwszPtr();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::fileName(AcString& name) const
{
    assertReadEnabled();
    name = m_fileName;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setFileName(const ACHAR* name)
{
    assertWriteEnabled();
    m_fileName = name;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::bigFontFileName(ACHAR*& name) const
{
    assertReadEnabled();
    return acutNewString(m_bigFontFileName.kwszPtr(), name);
}

Acad::ErrorStatus AcDbTextStyleTableRecord::bigFontFileName(const ACHAR*& name) const
{
    assertReadEnabled();
    name = m_bigFontFileName.kwszPtr();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::bigFontFileName(AcString& name) const
{
    assertReadEnabled();
    name = m_bigFontFileName;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::setBigFontFileName(const ACHAR* name)
{
    assertWriteEnabled();
    m_bigFontFileName = name;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbTextStyleTableRecord::dwgOutFields(AcDbDwgFiler* filer) const
{
    const Acad::ErrorStatus es = AcDbSymbolTableRecord::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeDouble(m_textSize);
    filer->writeDouble(m_xScale);
    filer->writeDouble(m_obliquingAngle);
    filer->writeDouble(m_priorSize);
    filer->writeString(m_fileName);
    filer->writeString(m_bigFontFileName);
    return filer->filerStatus();
}

Acad::ErrorStatus AcDbTextStyleTableRecord::dwgInFields(AcDbDwgFiler* filer)
{
    const Acad::ErrorStatus es = AcDbSymbolTableRecord::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    double textSize = 0.0;
    double xScale = 1.0;
    double obliquingAngle = 0.0;
    double priorSize = 0.0;
    AcString fileName;
    AcString bigFontFileName;
    filer->readDouble(&textSize);
    filer->readDouble(&xScale);
    filer->readDouble(&obliquingAngle);
    filer->readDouble(&priorSize);
    filer->readString(fileName);
    filer->readString(bigFontFileName);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (!isSize(textSize) || !isScale(xScale) || !std::isfinite(obliquingAngle) || !isSize(priorSize)) {
        filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
        return filer->filerStatus();
    }
    m_textSize = textSize;
    m_xScale = xScale;
    m_obliquingAngle = obliquingAngle;
    m_priorSize = priorSize;
    m_fileName = fileName;
    m_bigFontFileName = bigFontFileName;
    return Acad::eOk;
}
