// LayoutContext: layers and the common properties of a layout description's entities.
#include "LayoutContext.h"

#include <memory>

#include "dbmain.h"
#include "dbsymtb.h"
#include "geometry/EntityCreation.h"
#include "headless/TextCodec.h"

namespace quarvo {

void LayoutContext::AddLayers(const rapidjson::Value* layers, const std::string& path)
{
    if (layers == nullptr)
        return;
    for (rapidjson::SizeType i = 0; i < layers->Size(); ++i) {
        JsonObjectReader layer((*layers)[i], path + "[" + std::to_string(i) + "]");
        const std::wstring name = layer.String("name", L"");
        if (name.empty())
            throw LayoutError(layer.path(), "a layer needs a name");
        if (HasLayer(name))
            throw LayoutError(layer.PathOf("name"), "the layer \"" + headless::toUtf8(name) + "\" is given twice");
        const int color = layer.Integer("color", 7, 1, 255);
        layer.Finish();

        AcDbLayerTable* table = nullptr;
        if (m_db->getLayerTable(table, AcDb::kForWrite) != Acad::eOk)
            throw LayoutError(layer.path(), "the drawing's layer table cannot be changed");
        auto record = std::make_unique<AcDbLayerTableRecord>();
        AcCmColor colour;
        colour.setColorIndex(static_cast<Adesk::UInt16>(color));
        record->setColor(colour);
        const Acad::ErrorStatus named = record->setName(name.c_str());
        const Acad::ErrorStatus added = named == Acad::eOk ? table->add(record.get()) : named;
        table->close();
        if (added != Acad::eOk)
            throw LayoutError(layer.PathOf("name"), "\"" + headless::toUtf8(name) + "\" is not a valid layer name");
        record.release()->close();
    }
}

bool LayoutContext::HasLayer(const std::wstring& name) const
{
    AcDbLayerTable* table = nullptr;
    if (m_db->getLayerTable(table, AcDb::kForRead) != Acad::eOk)
        return false;
    const bool has = table->has(name.c_str());
    table->close();
    return has;
}

std::wstring LayoutContext::LayerName(JsonObjectReader& item) const
{
    const std::wstring name = item.String("layer", L"0");
    if (!HasLayer(name))
        throw LayoutError(item.PathOf("layer"), "no layer \"" + headless::toUtf8(name) + "\" is declared in layers");
    return name;
}

std::wstring LayoutContext::LayerReference(JsonObjectReader& item, const char* key) const
{
    const std::wstring name = item.String(key, L"");
    if (!name.empty() && !HasLayer(name))
        throw LayoutError(item.PathOf(key), "no layer \"" + headless::toUtf8(name) + "\" is declared in layers");
    return name;
}

AcDbObjectId LayoutContext::LayerId(const std::wstring& name) const
{
    AcDbObjectId id;
    AcDbLayerTable* table = nullptr;
    if (name.empty() || m_db->getLayerTable(table, AcDb::kForRead) != Acad::eOk)
        return id;
    table->getAt(name.c_str(), id);
    table->close();
    return id;
}

void LayoutContext::RunDeferred()
{
    // A step may defer more work; it runs after the steps already waiting.
    for (std::size_t i = 0; i < m_deferred.size(); ++i) {
        const std::function<void()> step = m_deferred[i];
        step();
    }
    m_deferred.clear();
}

AcDbObjectId LayoutContext::Add(AcDbEntity* entity, JsonObjectReader& item) const
{
    std::unique_ptr<AcDbEntity> owned(entity);
    const std::wstring layer = LayerName(item);
    const int color = item.ColorIndex("color", 256);
    owned->setDatabaseDefaults(m_db);
    owned->setLayer(layer.c_str());
    owned->setColorIndex(static_cast<Adesk::UInt16>(color));
    if (AddToCurrentSpace(owned.get(), m_db) != Acad::eOk)
        throw LayoutError(item.path(), "the entity cannot be added to the drawing");
    const AcDbObjectId id = owned->objectId();
    owned.release()->close();
    return id;
}

}  // namespace quarvo
