// CircleOpeningData: the circle opening's own record — the title's text style and the title
// label — kept in the node "CircleOpeningData" of the entity's tree.
#pragma once

#include <vector>

#include "dbid.h"
#include "gemat3d.h"
#include "geometry/TextBaseLabel.h"

class AcDbDatabase;
class AcDbEntity;
class DataNode;

class CircleOpeningData {
public:
    // The style "_Standard" of the working database, else its current text style; null
    // without a working database.
    CircleOpeningData();
    CircleOpeningData(const CircleOpeningData&) = default;
    CircleOpeningData& operator=(const CircleOpeningData&) = default;

    void CopyFrom(const CircleOpeningData* other);

    // "TextStyleId" (soft pointer) and the child node "TitleLabel".
    void SaveToNodeData(DataNode* node) const;
    void LoadFromNodeData(DataNode* node);

    // The title moves, turns and scales with the circle.
    void TransformBy(const AcGeMatrix3d& m);

    // The entities that draw the record: the title as one multiline text when it shows and
    // a usable style resolves; the caller owns them. Without a database: the working one.
    std::vector<AcDbEntity*> GetAllEnts(AcDbDatabase* db) const;
    std::vector<AcDbEntity*> GetAllEnts() const;

    // The title's style: the stored one if usable in db, else "_Standard" or the current
    // style (fellBack set), else null.
    AcDbObjectId ResolveTextStyle(AcDbDatabase* db, bool* fellBack = nullptr) const;

    AcDbObjectId textStyleId;
    TextBaseLabel titleLabel;
};
