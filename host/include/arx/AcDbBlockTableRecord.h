// AcDbBlockTableRecord: a block: model space, paper space or a named block definition. It
// owns its entities and keeps them in the order they were appended.
#pragma once

#include <vector>

#include "AcDbSymbolTableRecord.h"
#include "gepnt3d.h"

class AcDbEntity;
class AcDbBlockTableRecordIterator;

class ACHOST_API AcDbBlockTableRecord : public AcDbSymbolTableRecord {
    ACRX_DECLARE_MEMBERS(AcDbBlockTableRecord);

public:
    AcDbBlockTableRecord();
    ~AcDbBlockTableRecord() override;

    // The block must be in a database and open for write. The entity joins the database,
    // owned by the block, and stays open for write for the caller to close.
    // eNullEntityPointer, eAlreadyInDb, eNoDatabase.
    Acad::ErrorStatus appendAcDbEntity(AcDbEntity* entity);
    Acad::ErrorStatus appendAcDbEntity(AcDbObjectId& entityId, AcDbEntity* entity);
    // The iterator is the caller's to delete.
    Acad::ErrorStatus newIterator(AcDbBlockTableRecordIterator*& iterator, bool atBeginning = true,
                                  bool skipDeleted = true) const;

    AcGePoint3d origin() const;
    Acad::ErrorStatus setOrigin(const AcGePoint3d& origin);
    // Model space and paper space are layouts; "*U..." blocks are anonymous.
    bool isLayout() const;
    bool isAnonymous() const;

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

private:
    friend class AcDbBlockTableRecordIterator;
    AcGePoint3d m_origin;
    std::vector<AcDbObjectId> m_entities;
};
