// OpeningStyles: usable styles, the fall-back chain and the style line of the list output.
#include "OpeningStyles.h"

#include "Qx/DimStyleUtil.h"
#include "Qx/TextStyleUtil.h"
#include "acutads.h"
#include "dbmain.h"
#include "dbsymtb.h"

const ACHAR* const OpeningStyles::kPreferredStyleName = L"_Standard";

namespace {

// A usable id names a live record of the given class in db.
bool IsUsable(const AcDbObjectId& id, const AcDbDatabase* db, const AcRxClass* recordClass)
{
    if (id.isNull() || !id.isValid() || !id.isWellBehaved() || id.isErased() || id.database() != db)
        return false;
    const AcRxClass* cls = id.objectClass();
    return cls != nullptr && cls->isDerivedFrom(recordClass);
}

AcDbObjectId Resolve(const AcDbObjectId& stored, const AcDbObjectId& fallback, const AcDbObjectId& current,
                     AcDbDatabase* db, const AcRxClass* recordClass, bool* fellBack)
{
    if (fellBack != nullptr)
        *fellBack = false;
    if (db == nullptr)
        return AcDbObjectId::kNull;
    if (IsUsable(stored, db, recordClass))
        return stored;
    for (const AcDbObjectId& candidate : {fallback, current}) {
        if (IsUsable(candidate, db, recordClass)) {
            if (fellBack != nullptr)
                *fellBack = true;
            return candidate;
        }
    }
    return AcDbObjectId::kNull;
}

}  // namespace

AcDbObjectId OpeningStyles::DefaultTextStyle(AcDbDatabase* db)
{
    if (db == nullptr)
        return AcDbObjectId::kNull;
    const AcDbObjectId preferred = Qx::TextStyleUtil::GetAt(kPreferredStyleName, db);
    return preferred.isValid() ? preferred : db->textstyle();
}

AcDbObjectId OpeningStyles::DefaultDimStyle(AcDbDatabase* db)
{
    if (db == nullptr)
        return AcDbObjectId::kNull;
    const AcDbObjectId preferred = Qx::DimStyleUtil::GetAt(kPreferredStyleName, db);
    return preferred.isValid() ? preferred : db->dimstyle();
}

AcDbObjectId OpeningStyles::ResolveTextStyle(const AcDbObjectId& stored, const AcDbObjectId& fallback, AcDbDatabase* db,
                                             bool* fellBack)
{
    const AcDbObjectId current = db != nullptr ? db->textstyle() : AcDbObjectId::kNull;
    return Resolve(stored, fallback, current, db, AcDbTextStyleTableRecord::desc(), fellBack);
}

AcDbObjectId OpeningStyles::ResolveDimStyle(const AcDbObjectId& stored, const AcDbObjectId& fallback, AcDbDatabase* db,
                                            bool* fellBack)
{
    const AcDbObjectId current = db != nullptr ? db->dimstyle() : AcDbObjectId::kNull;
    return Resolve(stored, fallback, current, db, AcDbDimStyleTableRecord::desc(), fellBack);
}

AcString OpeningStyles::NameOf(const AcDbObjectId& styleId)
{
    AcString name;
    AcDbSymbolTableRecord* record = nullptr;
    if (styleId.isNull() || acdbOpenObject(record, styleId, AcDb::kForRead) != Acad::eOk)
        return name;
    const ACHAR* text = nullptr;
    if (record->getName(text) == Acad::eOk && text != nullptr)
        name = text;
    record->close();
    return name;
}

void OpeningStyles::ListTextStyle(const AcDbObjectId& resolved, bool fellBack)
{
    const AcString name = NameOf(resolved);
    acutPrintf(L"\n文字样式: %s%s", name.isEmpty() ? L"<无效>" : name.kwszPtr(), fellBack ? L"（默认兜底）" : L"");
}
