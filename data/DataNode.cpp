// DataNode: the node of an entity's data tree and its stream.
#include "DataNode.h"

#include <algorithm>
#include <unordered_map>

#include "AnyData.h"
#include "IDataIO.h"
#include "dbmain.h"

struct DataNode::Record {
    explicit Record(const AcString& n) : name(n) {}
    ~Record()
    {
        for (auto& child : children)
            delete child.second;
    }

    AcString name;
    // How many levels below the node that started its tree (a node made on its own) it sits.
    int depth = 0;
    std::unordered_map<AcString, DataNode*> children;  // owned
    std::unordered_map<AcString, std::shared_ptr<IAnyData>> values;
    AcDbEntity* ownerEntity = nullptr;  // not owned

    void ClearChildren()
    {
        for (auto& child : children)
            delete child.second;
        children.clear();
    }
};

namespace {

// Hash-map order depends on insertion history; writing in key order keeps a second filing
// of the same tree byte-identical.
template <typename Map>
std::vector<AcString> SortedKeys(const Map& map)
{
    std::vector<AcString> keys;
    keys.reserve(map.size());
    for (const auto& entry : map)
        keys.push_back(entry.first);
    std::sort(keys.begin(), keys.end());
    return keys;
}

}  // namespace

DataNode::DataNode(const AcString& name) : m_record(std::make_unique<Record>(name)) {}
DataNode::DataNode(DataNode&& other) noexcept = default;
DataNode& DataNode::operator=(DataNode&& other) noexcept = default;
DataNode::~DataNode() = default;

void DataNode::AssertReadable() const
{
    if (m_record->ownerEntity != nullptr)
        m_record->ownerEntity->assertReadEnabled();
}

void DataNode::AssertWritable() const
{
    if (m_record->ownerEntity != nullptr)
        m_record->ownerEntity->assertWriteEnabled(true, true);
}

AcString DataNode::GetName() const
{
    AssertReadable();
    return m_record->name;
}

void DataNode::SetOwnerEntity(AcDbEntity* owner)
{
    m_record->ownerEntity = owner;
}

DataNode* DataNode::AddChild(const AcString& name)
{
    auto found = m_record->children.find(name);
    if (found != m_record->children.end())
        return found->second;
    if (m_record->depth >= kMaxDepth)
        return nullptr;
    AssertWritable();
    auto* child = new DataNode(name);
    child->m_record->depth = m_record->depth + 1;
    child->SetOwnerEntity(m_record->ownerEntity);
    m_record->children.emplace(name, child);
    return child;
}

DataNode* DataNode::GetChild(const AcString& name) const
{
    AssertReadable();
    auto found = m_record->children.find(name);
    return found == m_record->children.end() ? nullptr : found->second;
}

bool DataNode::RemoveChild(const AcString& name)
{
    AssertWritable();
    auto found = m_record->children.find(name);
    if (found == m_record->children.end())
        return false;
    DataNode* child = found->second;
    m_record->children.erase(found);
    delete child;
    return true;
}

std::vector<AcString> DataNode::GetAllChildNames() const
{
    AssertReadable();
    return SortedKeys(m_record->children);
}

std::vector<AcString> DataNode::GetAllKeys() const
{
    AssertReadable();
    return SortedKeys(m_record->values);
}

bool DataNode::HasKey(const AcString& key) const
{
    AssertReadable();
    return m_record->values.count(key) != 0;
}

bool DataNode::RemoveKey(const AcString& key)
{
    AssertWritable();
    return m_record->values.erase(key) != 0;
}

template <typename Value, typename T>
void DataNode::StoreValue(const AcString& key, const T& value) const
{
    AssertWritable();
    m_record->values[key] = std::make_shared<Value>(value);
}

template <typename Value, typename T>
bool DataNode::FetchValue(const AcString& key, T& out) const
{
    auto found = m_record->values.find(key);
    if (found == m_record->values.end())
        return false;
    AssertReadable();
    if (found->second->GetType() != Value::kTag)
        return false;
    out = static_cast<const Value*>(found->second.get())->value;
    return true;
}

void DataNode::SetValue(const AcString& key, const AcString& value) const { StoreValue<AnyDataString>(key, value); }
void DataNode::SetValue(const AcString& key, const ACHAR* value) const
{
    StoreValue<AnyDataString>(key, AcString(value));
}
void DataNode::SetValue(const AcString& key, int value) const { StoreValue<AnyDataInt>(key, value); }
void DataNode::SetValue(const AcString& key, double value) const { StoreValue<AnyDataDouble>(key, value); }
void DataNode::SetValue(const AcString& key, const AcDbHardPointerId& value) const
{
    StoreValue<AnyDataHardPointerId>(key, value);
}
void DataNode::SetValue(const AcString& key, const AcDbSoftPointerId& value) const
{
    StoreValue<AnyDataSoftPointerId>(key, value);
}
void DataNode::SetValue(const AcString& key, const AcGePoint2d& value) const { StoreValue<AnyDataPoint2D>(key, value); }
void DataNode::SetValue(const AcString& key, const AcGePoint3d& value) const { StoreValue<AnyDataPoint3D>(key, value); }
void DataNode::SetValue(const AcString& key, const AcGeVector2d& value) const
{
    StoreValue<AnyDataVector2D>(key, value);
}
void DataNode::SetValue(const AcString& key, const AcGeVector3d& value) const
{
    StoreValue<AnyDataVector3D>(key, value);
}
void DataNode::SetValue(const AcString& key, bool value) const { StoreValue<AnyDataBool>(key, value); }

bool DataNode::GetValue(const AcString& key, AcString& out) const { return FetchValue<AnyDataString>(key, out); }
bool DataNode::GetValue(const AcString& key, int& out) const { return FetchValue<AnyDataInt>(key, out); }
bool DataNode::GetValue(const AcString& key, double& out) const { return FetchValue<AnyDataDouble>(key, out); }
bool DataNode::GetValue(const AcString& key, AcDbHardPointerId& out) const
{
    return FetchValue<AnyDataHardPointerId>(key, out);
}
bool DataNode::GetValue(const AcString& key, AcDbSoftPointerId& out) const
{
    return FetchValue<AnyDataSoftPointerId>(key, out);
}
bool DataNode::GetValue(const AcString& key, AcGePoint2d& out) const { return FetchValue<AnyDataPoint2D>(key, out); }
bool DataNode::GetValue(const AcString& key, AcGePoint3d& out) const { return FetchValue<AnyDataPoint3D>(key, out); }
bool DataNode::GetValue(const AcString& key, AcGeVector2d& out) const { return FetchValue<AnyDataVector2D>(key, out); }
bool DataNode::GetValue(const AcString& key, AcGeVector3d& out) const { return FetchValue<AnyDataVector3D>(key, out); }
bool DataNode::GetValue(const AcString& key, bool& out) const { return FetchValue<AnyDataBool>(key, out); }

bool DataNode::DataOut(IDataIO* io) const
{
    io->Write(static_cast<Adesk::Int32>(m_record->values.size()));
    for (const AcString& key : SortedKeys(m_record->values)) {
        const std::shared_ptr<IAnyData>& value = m_record->values.at(key);
        io->Write(key);
        io->Write(value->GetType());
        value->DataOut(io);
    }
    io->Write(static_cast<Adesk::Int32>(m_record->children.size()));
    for (const AcString& name : SortedKeys(m_record->children)) {
        io->Write(name);
        m_record->children.at(name)->DataOut(io);
    }
    return true;
}

bool DataNode::DataIn(IDataIO* io)
{
    return Read(io) == Reading::kWhole;
}

DataNode::Reading DataNode::Read(IDataIO* io)
{
    Adesk::Int32 valueCount = 0;
    io->Read(valueCount);
    m_record->values.clear();
    if (valueCount < 0 || valueCount > kMaxValueCount)
        return Reading::kNodeRefused;
    for (Adesk::Int32 i = 0; i < valueCount; ++i) {
        AcString key;
        Adesk::Int32 tag = 0;
        io->Read(key);
        io->Read(tag);
        // An unknown tag means the rest of the node cannot be parsed: keep what was read.
        std::shared_ptr<IAnyData> value = CreateAnyDataForTag(tag);
        if (value == nullptr)
            return Reading::kNodeRefused;
        value->DataIn(io);
        m_record->values.emplace(key, value);  // a repeated key keeps the earlier value
    }

    Adesk::Int32 childCount = 0;
    io->Read(childCount);
    m_record->ClearChildren();
    if (childCount < 0 || childCount > kMaxChildCount)
        return Reading::kNodeRefused;
    // A node at the deepest level has no children: a stream that gives it some is not one
    // this tree wrote, and where its children end cannot be known without following them.
    if (childCount > 0 && m_record->depth >= kMaxDepth)
        return Reading::kStreamAbandoned;
    for (Adesk::Int32 i = 0; i < childCount; ++i) {
        AcString name;
        io->Read(name);
        auto* child = new DataNode(name);
        child->m_record->depth = m_record->depth + 1;
        child->SetOwnerEntity(m_record->ownerEntity);
        const Reading reading = child->Read(io);  // a refused child still counts as read
        if (!m_record->children.emplace(name, child).second)
            delete child;  // a repeated name keeps the earlier node
        if (reading == Reading::kStreamAbandoned)
            return Reading::kStreamAbandoned;
    }
    return Reading::kWhole;
}
