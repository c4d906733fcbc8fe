// AcDbTextStyleTableRecord: a text style: font files, fixed height (0: chosen per text),
// width factor and obliquing angle.
#pragma once

#include "AcDbSymbolTableRecord.h"

class ACHOST_API AcDbTextStyleTableRecord : public AcDbSymbolTableRecord {
    ACRX_DECLARE_MEMBERS(AcDbTextStyleTableRecord);

public:
    AcDbTextStyleTableRecord();
    ~AcDbTextStyleTableRecord() override;

    double textSize() const;
    Acad::ErrorStatus setTextSize(double size);        // eInvalidInput unless finite and >= 0
    double xScale() const;
    Acad::ErrorStatus setXScale(double scale);         // eInvalidInput unless finite and > 0
    double obliquingAngle() const;
    Acad::ErrorStatus setObliquingAngle(double angle); // eInvalidInput unless finite
    double priorSize() const;
    Acad::ErrorStatus setPriorSize(double size);       // the last height used with the style

    // The font file; the ACHAR*& forms are copies to free with acutDelString.
    Acad::ErrorStatus fileName(ACHAR*& name) const;
    Acad::ErrorStatus fileName(const ACHAR*& name) const;
    Acad::ErrorStatus fileName(AcString& name) const;
    Acad::ErrorStatus setFileName(const ACHAR* name);
    Acad::ErrorStatus bigFontFileName(ACHAR*& name) const;
    Acad::ErrorStatus bigFontFileName(const ACHAR*& name) const;
    Acad::ErrorStatus bigFontFileName(AcString& name) const;
    Acad::ErrorStatus setBigFontFileName(const ACHAR* name);

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

private:
    double m_textSize = 0.0;
    double m_xScale = 1.0;
    double m_obliquingAngle = 0.0;
    double m_priorSize = 0.2;
    AcString m_fileName;
    AcString m_bigFontFileName;
};
