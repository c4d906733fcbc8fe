// LayoutContext: what every kind's builder shares while a layout description becomes a
// drawing: the drawing, its layers, and the properties every entity of the format has
// ("layer", "color").
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "JsonObjectReader.h"

#include "dbid.h"

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

    // The id of a layer the drawing has (null for an empty name).
    AcDbObjectId LayerId(const std::wstring& name) const;

    // Gives entity the drawing's defaults and the item's "layer" and "color", appends it
    // to model space and closes it; the entity is deleted when it cannot be appended.
    // Answers the entity's id.
    AcDbObjectId Add(AcDbEntity* entity, JsonObjectReader& item) const;

    // Work that needs every entity built first (a group names its members by their
    // position, and their handles exist only once they are in the drawing): run in order
    // by RunDeferred, each throwing LayoutError for what it refuses.
    void Defer(std::function<void()> step) { m_deferred.push_back(std::move(step)); }
    void RunDeferred();

    // The ids of a kind's entities in the order of their description ("panels").
    std::vector<AcDbObjectId>& Built(const std::string& kind) { return m_built[kind]; }

private:
    bool HasLayer(const std::wstring& name) const;

    AcDbDatabase* m_db;
    std::vector<std::function<void()>> m_deferred;
    std::map<std::string, std::vector<AcDbObjectId>> m_built;
};

}  // namespace quarvo
