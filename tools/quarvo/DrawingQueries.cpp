// DrawingQueries: entities, handles and type names of an open drawing.
#include "DrawingQueries.h"

#include <cctype>

#include "Progress.h"
#include "ToolError.h"
#include "dbproxy.h"
#include "dbsymtb.h"
#include "headless/TextCodec.h"

namespace quarvo {

std::vector<AcDbObjectId> DrawingQueries::ModelSpaceEntities(AcDbDatabase* db)
{
    std::vector<AcDbObjectId> ids;
    AcDbBlockTable* blocks = nullptr;
    if (db == nullptr || db->getBlockTable(blocks, AcDb::kForRead) != Acad::eOk)
        return ids;
    AcDbBlockTableRecord* model = nullptr;
    const Acad::ErrorStatus status = blocks->getAt(ACDB_MODEL_SPACE, model, AcDb::kForRead);
    blocks->close();
    if (status != Acad::eOk)
        return ids;
    AcDbBlockTableRecordIterator* it = nullptr;
    if (model->newIterator(it) == Acad::eOk) {
        for (; !it->done(); it->step()) {
            AcDbObjectId id;
            if (it->getEntityId(id) == Acad::eOk)
                ids.push_back(id);
        }
        delete it;
    }
    model->close();
    return ids;
}

void DrawingQueries::ForEachEntity(const std::vector<AcDbObjectId>& ids, const char* what,
                                   const std::function<void(const AcDbObjectId&, AcDbEntity*)>& visit)
{
    Progress progress(what, ids.size());
    for (std::size_t i = 0; i < ids.size(); ++i) {
        progress.Step(i);
        AcDbEntity* entity = nullptr;
        if (acdbOpenObject(entity, ids[i], AcDb::kForRead) != Acad::eOk) {
            visit(ids[i], nullptr);
            continue;
        }
        // The entity is closed even when visit throws.
        struct Closer {
            AcDbEntity* entity;
            ~Closer() { entity->close(); }
        } closer{entity};
        visit(ids[i], entity);
    }
}

AcDbObjectId DrawingQueries::ObjectOfHandle(AcDbDatabase* db, const std::string& text)
{
    std::string digits = text;
    if (digits.size() > 2 && digits[0] == '0' && (digits[1] == 'x' || digits[1] == 'X'))
        digits = digits.substr(2);
    Adesk::UInt64 value = 0;
    bool valid = !digits.empty() && digits.size() <= 16;
    for (const char c : digits) {
        if (!valid || !std::isxdigit(static_cast<unsigned char>(c))) {
            valid = false;
            break;
        }
        const int digit = std::isdigit(static_cast<unsigned char>(c))
            ? c - '0'
            : std::toupper(static_cast<unsigned char>(c)) - 'A' + 10;
        value = value * 16 + static_cast<Adesk::UInt64>(digit);
    }
    if (!valid || value == 0)
        throw ToolError("\"" + text + "\" is not a handle (a hexadecimal number such as 2A)");
    AcDbObjectId id;
    if (db->getAcDbObjectId(id, false, AcDbHandle(value)) != Acad::eOk || id.isNull() || id.isErased())
        throw ToolError("the drawing has no object with handle " + text);
    return id;
}

std::wstring DrawingQueries::TypeName(const AcDbObject* object)
{
    if (const AcDbProxyEntity* proxy = AcDbProxyEntity::cast(object))
        return proxy->originalDxfName() != nullptr ? proxy->originalDxfName() : L"";
    if (const AcDbProxyObject* proxy = AcDbProxyObject::cast(object))
        return proxy->originalDxfName() != nullptr ? proxy->originalDxfName() : L"";
    const AcRxClass* cls = object->isA();
    return cls != nullptr && cls->dxfName() != nullptr ? cls->dxfName() : L"";
}

std::string DrawingQueries::HandleText(const AcDbObjectId& id)
{
    if (id.isNull())
        return std::string();
    ACHAR buffer[32] = {};
    id.handle().getIntoAsciiBuffer(buffer, 32);
    return headless::toUtf8(buffer);
}

std::string DrawingQueries::OneLine(const std::wstring& text)
{
    std::string line;
    for (const char c : headless::toUtf8(text)) {
        if (c == '\n' || c == '\r') {
            if (!line.empty() && line.back() != ' ')
                line += ' ';
            continue;
        }
        line += c;
    }
    while (!line.empty() && line.back() == ' ')
        line.pop_back();
    return line;
}

}  // namespace quarvo
