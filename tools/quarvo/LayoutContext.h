// LayoutContext: what every kind's builder shares while a layout description becomes a
// drawing: the drawing, its layers, and the properties every entity of the format has
// ("layer", "color").
#pragma once

#include <string>

#include "JsonObjectReader.h"

class AcDbDatabase;
class AcDbEntity;

namespace quarvo {

class LayoutContext {
public:
    explicit LayoutContext(AcDbDatabase* db) : m_db(db) {}

    AcDbDatabase* db() const { return m_db; }

    // Reads the description's "layers" (null when absent) into the drawing's layer table.
    void AddLayers(const rapidjson::Value* layers, const std::string& path);
    // LayoutError at item's "layer" unless the drawing has the layer.
    std::wstring LayerName(JsonObjectReader& item) const;
    // A member naming a layer other than the entity's own (the layer a part is drawn on):
    // empty when absent, else a declared layer.
    std::wstring LayerReference(JsonObjectReader& item, const char* key) const;

    // Gives entity the drawing's defaults and the item's "layer" and "color", appends it
    // to model space and closes it; the entity is deleted when it cannot be appended.
    void Add(AcDbEntity* entity, JsonObjectReader& item) const;

private:
    bool HasLayer(const std::wstring& name) const;

    AcDbDatabase* m_db;
};

}  // namespace quarvo
