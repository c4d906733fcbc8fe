// AcDbLinetypeTableRecord: a linetype: its description and its dash pattern (positive
// lengths draw, negative lengths skip, zero is a dot).
#pragma once

#include <vector>

#include "AcDbSymbolTableRecord.h"

class ACHOST_API AcDbLinetypeTableRecord : public AcDbSymbolTableRecord {
    ACRX_DECLARE_MEMBERS(AcDbLinetypeTableRecord);

public:
    AcDbLinetypeTableRecord();
    ~AcDbLinetypeTableRecord() override;

    // The description; the ACHAR*& form is a copy to free with acutDelString.
    Acad::ErrorStatus comments(ACHAR*& text) const;
    Acad::ErrorStatus comments(const ACHAR*& text) const;
    Acad::ErrorStatus comments(AcString& text) const;
    Acad::ErrorStatus setComments(const ACHAR* text);
    Acad::ErrorStatus asciiDescription(ACHAR*& text) const { return comments(text); }
    Acad::ErrorStatus setAsciiDescription(const ACHAR* text) { return setComments(text); }

    double patternLength() const;
    Acad::ErrorStatus setPatternLength(double length);  // eInvalidInput unless finite and >= 0
    bool isScaledToFit() const;
    void setIsScaledToFit(bool scaledToFit);
    int numDashes() const;
    // eInvalidInput outside 0..12 (the host's limit); new dashes have length 0.
    Acad::ErrorStatus setNumDashes(int count);
    // 0 for an index outside the pattern.
    double dashLengthAt(int index) const;
    // eInvalidIndex outside the pattern, eInvalidInput for a length that is not finite.
    Acad::ErrorStatus setDashLengthAt(int index, double length);

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

private:
    AcString m_comments;
    double m_patternLength = 0.0;
    bool m_scaledToFit = false;
    std::vector<double> m_dashes;
};
