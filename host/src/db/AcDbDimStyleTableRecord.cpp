// AcDbDimStyleTableRecord: the dimension style values the headless host keeps.
#include "AcDbDimStyleTableRecord.h"

#include <cmath>

ACRX_DXF_DEFINE_MEMBERS(AcDbDimStyleTableRecord, AcDbSymbolTableRecord, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent,
                        0, DIMSTYLE, HeadlessHost)

namespace {

// The host shows at most eight decimal places.
constexpr int kMaxDecimalPlaces = 8;

bool isSize(double value)
{
    return std::isfinite(value) && value >= 0.0;
}

Acad::ErrorStatus setSize(double& field, double value)
{
    if (!isSize(value))
        return Acad::eInvalidInput;
    field = value;
    return Acad::eOk;
}

}  // namespace

AcDbDimStyleTableRecord::AcDbDimStyleTableRecord() = default;

AcDbDimStyleTableRecord::~AcDbDimStyleTableRecord() = default;

double AcDbDimStyleTableRecord::dimscale() const { assertReadEnabled(); return m_dimscale; }
double AcDbDimStyleTableRecord::dimasz() const { assertReadEnabled(); return m_dimasz; }
double AcDbDimStyleTableRecord::dimtxt() const { assertReadEnabled(); return m_dimtxt; }
double AcDbDimStyleTableRecord::dimexo() const { assertReadEnabled(); return m_dimexo; }
double AcDbDimStyleTableRecord::dimexe() const { assertReadEnabled(); return m_dimexe; }
double AcDbDimStyleTableRecord::dimgap() const { assertReadEnabled(); return m_dimgap; }
int AcDbDimStyleTableRecord::dimdec() const { assertReadEnabled(); return m_dimdec; }
AcDbObjectId AcDbDimStyleTableRecord::dimtxsty() const { assertReadEnabled(); return m_dimtxsty; }

Acad::ErrorStatus AcDbDimStyleTableRecord::setDimscale(double value)
{
    assertWriteEnabled();
    if (!isSize(value) || value == 0.0)
        return Acad::eInvalidInput;
    m_dimscale = value;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDimStyleTableRecord::setDimasz(double value)
{
    assertWriteEnabled();
    return setSize(m_dimasz, value);
}

Acad::ErrorStatus AcDbDimStyleTableRecord::setDimtxt(double value)
{
    assertWriteEnabled();
    return setSize(m_dimtxt, value);
}

Acad::ErrorStatus AcDbDimStyleTableRecord::setDimexo(double value)
{
    assertWriteEnabled();
    return setSize(m_dimexo, value);
}

Acad::ErrorStatus AcDbDimStyleTableRecord::setDimexe(double value)
{
    assertWriteEnabled();
    return setSize(m_dimexe, value);
}

Acad::ErrorStatus AcDbDimStyleTableRecord::setDimgap(double value)
{
    assertWriteEnabled();
    return setSize(m_dimgap, value);
}

Acad::ErrorStatus AcDbDimStyleTableRecord::setDimdec(int places)
{
    assertWriteEnabled();
    if (places < 0 || places > kMaxDecimalPlaces)
        return Acad::eInvalidInput;
    m_dimdec = places;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDimStyleTableRecord::setDimtxsty(AcDbObjectId textStyle)
{
    assertWriteEnabled();
    m_dimtxsty = textStyle;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDimStyleTableRecord::dwgOutFields(AcDbDwgFiler* filer) const
{
    const Acad::ErrorStatus es = AcDbSymbolTableRecord::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeDouble(m_dimscale);
    filer->writeDouble(m_dimasz);
    filer->writeDouble(m_dimtxt);
    filer->writeDouble(m_dimexo);
    filer->writeDouble(m_dimexe);
    filer->writeDouble(m_dimgap);
    filer->writeInt32(m_dimdec);
    filer->writeHardPointerId(m_dimtxsty);
    return filer->filerStatus();
}

Acad::ErrorStatus AcDbDimStyleTableRecord::dwgInFields(AcDbDwgFiler* filer)
{
    const Acad::ErrorStatus es = AcDbSymbolTableRecord::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    double sizes[6] = {};
    Adesk::Int32 dimdec = 0;
    AcDbHardPointerId dimtxsty;
    for (double& size : sizes)
        filer->readDouble(&size);
    filer->readInt32(&dimdec);
    filer->readHardPointerId(&dimtxsty);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    bool valid = sizes[0] > 0.0 && dimdec >= 0 && dimdec <= kMaxDecimalPlaces;
    for (double size : sizes)
        valid = valid && isSize(size);
    if (!valid) {
        filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
        return filer->filerStatus();
    }
    m_dimscale = sizes[0];
    m_dimasz = sizes[1];
    m_dimtxt = sizes[2];
    m_dimexo = sizes[3];
    m_dimexe = sizes[4];
    m_dimgap = sizes[5];
    m_dimdec = dimdec;
    m_dimtxsty = dimtxsty;
    return Acad::eOk;
}
