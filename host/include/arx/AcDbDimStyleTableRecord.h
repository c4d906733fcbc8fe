// AcDbDimStyleTableRecord: a dimension style. The headless host keeps the common sizes
// (overall scale, arrow size, text height, extension line offset and extension, text gap),
// the decimal places and the text style.
#pragma once

#include "AcDbSymbolTableRecord.h"

class ACHOST_API AcDbDimStyleTableRecord : public AcDbSymbolTableRecord {
    ACRX_DECLARE_MEMBERS(AcDbDimStyleTableRecord);

public:
    // The host's default drawing values (drawing units of inches).
    AcDbDimStyleTableRecord();
    ~AcDbDimStyleTableRecord() override;

    // Sizes: eInvalidInput unless finite and >= 0 (the scale > 0).
    double dimscale() const;
    Acad::ErrorStatus setDimscale(double value);
    double dimasz() const;
    Acad::ErrorStatus setDimasz(double value);
    double dimtxt() const;
    Acad::ErrorStatus setDimtxt(double value);
    double dimexo() const;
    Acad::ErrorStatus setDimexo(double value);
    double dimexe() const;
    Acad::ErrorStatus setDimexe(double value);
    double dimgap() const;
    Acad::ErrorStatus setDimgap(double value);
    int dimdec() const;
    Acad::ErrorStatus setDimdec(int places);  // eInvalidInput outside 0..8
    AcDbObjectId dimtxsty() const;
    Acad::ErrorStatus setDimtxsty(AcDbObjectId textStyle);

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

private:
    double m_dimscale = 1.0;
    double m_dimasz = 0.18;
    double m_dimtxt = 0.18;
    double m_dimexo = 0.0625;
    double m_dimexe = 0.18;
    double m_dimgap = 0.09;
    int m_dimdec = 4;
    AcDbObjectId m_dimtxsty;
};
