// CircleOpeningData: the circle opening's record, its tree form and its title text.
#include "CircleOpeningData.h"

#include "Qx/TextStyleUtil.h"
#include "data/DataNode.h"
#include "dbapserv.h"
#include "dbmain.h"
#include "dbmtext.h"
#include "dbsymtb.h"

namespace {

const ACHAR* const kFallbackStyleName = L"_Standard";

// A usable style id names a live text style record of db.
bool IsUsableTextStyle(const AcDbObjectId& id, const AcDbDatabase* db)
{
    if (id.isNull() || !id.isValid() || !id.isWellBehaved() || id.isErased() || id.database() != db)
        return false;
    const AcRxClass* cls = id.objectClass();
    return cls != nullptr && cls->isDerivedFrom(AcDbTextStyleTableRecord::desc());
}

AcDbObjectId DefaultTextStyle()
{
    AcDbDatabase* db = acdbHostApplicationServices()->workingDatabase();
    if (db == nullptr)
        return AcDbObjectId::kNull;
    const AcDbObjectId standard = Qx::TextStyleUtil::GetAt(kFallbackStyleName, db);
    return standard.isValid() ? standard : db->textstyle();
}

}  // namespace

CircleOpeningData::CircleOpeningData() : textStyleId(DefaultTextStyle()) {}

void CircleOpeningData::CopyFrom(const CircleOpeningData* other)
{
    if (other != nullptr && other != this)
        *this = *other;
}

void CircleOpeningData::SaveToNodeData(DataNode* node) const
{
    if (node == nullptr)
        return;
    node->SetValue(L"TextStyleId", AcDbSoftPointerId(textStyleId));
    titleLabel.SetValue(node->AddChild(L"TitleLabel"));
}

void CircleOpeningData::LoadFromNodeData(DataNode* node)
{
    if (node == nullptr)
        return;
    AcDbSoftPointerId style = textStyleId;
    if (node->GetValue(L"TextStyleId", style))
        textStyleId = style;
    if (DataNode* label = node->GetChild(L"TitleLabel"))
        titleLabel.GetValue(label);
}

void CircleOpeningData::TransformBy(const AcGeMatrix3d& m)
{
    titleLabel.TransformBy(m);
}

AcDbObjectId CircleOpeningData::ResolveTextStyle(AcDbDatabase* db, bool* fellBack) const
{
    if (fellBack != nullptr)
        *fellBack = false;
    if (db == nullptr)
        return AcDbObjectId::kNull;
    if (IsUsableTextStyle(textStyleId, db))
        return textStyleId;
    const AcDbObjectId standard = Qx::TextStyleUtil::GetAt(kFallbackStyleName, db);
    AcDbObjectId candidate = standard.isValid() ? standard : db->textstyle();
    if (!IsUsableTextStyle(candidate, db))
        candidate = db->textstyle();
    if (!IsUsableTextStyle(candidate, db))
        return AcDbObjectId::kNull;
    if (fellBack != nullptr)
        *fellBack = true;
    return candidate;
}

std::vector<AcDbEntity*> CircleOpeningData::GetAllEnts(AcDbDatabase* db) const
{
    std::vector<AcDbEntity*> entities;
    if (!titleLabel.IsVisible())
        return entities;
    const AcDbObjectId style = ResolveTextStyle(db);
    if (style.isNull())
        return entities;
    if (AcDbMText* title = titleLabel.CreateMText(style))
        entities.push_back(title);
    return entities;
}

std::vector<AcDbEntity*> CircleOpeningData::GetAllEnts() const
{
    return GetAllEnts(acdbHostApplicationServices()->workingDatabase());
}
