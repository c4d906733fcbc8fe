// AcDbSymbolTableRecord: a named entry of a symbol table (a layer, a linetype, a style, a
// block). Names are unique within their table, compared without regard to case.
#pragma once

#include "AcDbObject.h"
#include "AcString.h"

class AcDbSymbolTable;

class ACHOST_API AcDbSymbolTableRecord : public AcDbObject {
    ACRX_DECLARE_MEMBERS(AcDbSymbolTableRecord);

public:
    ~AcDbSymbolTableRecord() override;

    // A copy of the name; free it with acutDelString.
    Acad::ErrorStatus getName(ACHAR*& name) const;
    Acad::ErrorStatus getName(AcString& name) const;
    // The record's own text: valid while the record is open and its name unchanged.
    Acad::ErrorStatus getName(const ACHAR*& name) const;
    // eInvalidSymbolTableName for an empty name, one longer than 255 characters or one
    // with a character of <>/\":;?*|,=` (block names may start with '*'); eDuplicateRecordName
    // when another record of the same table has the name.
    Acad::ErrorStatus setName(const ACHAR* name);

    // Records of external references are not supported by the headless host.
    bool isDependent() const { return false; }
    bool isResolved() const { return true; }

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

protected:
    AcDbSymbolTableRecord();

private:
    friend class AcDbSymbolTable;
    AcString m_name;
};
