// DataNode: a named node of an entity's data tree, holding typed values under string keys
// and named child nodes. The node is a handle on its record: the const setters change the
// shared record. The owning entity's open state guards every access.
#pragma once

#include <memory>
#include <vector>

#include "AcString.h"
#include "dbid.h"
#include "gepnt2d.h"
#include "gepnt3d.h"
#include "gevec2d.h"
#include "gevec3d.h"

class AcDbEntity;
class IDataIO;

class DataNode {
public:
    // Limits on the counts of one node in a stream; larger counts are hostile data.
    static constexpr Adesk::Int32 kMaxValueCount = 4096;
    static constexpr Adesk::Int32 kMaxChildCount = 4096;
    // The deepest level a node may sit at (a node made on its own is at level 0). Reading
    // and writing recurse once per level, so a hostile stream must not choose the depth;
    // the tree refuses to grow deeper than its reader accepts, so every tree reads back.
    static constexpr int kMaxDepth = 256;

    explicit DataNode(const AcString& name);
    DataNode(DataNode&& other) noexcept;
    DataNode& operator=(DataNode&& other) noexcept;
    DataNode(const DataNode&) = delete;
    DataNode& operator=(const DataNode&) = delete;
    ~DataNode();

    AcString GetName() const;
    // Sets this node's owner only, not its children's.
    void SetOwnerEntity(AcDbEntity* owner);

    // Find-or-create; an existing child is returned unchanged without a write notification.
    // Null, with nothing changed, when this node is at kMaxDepth.
    DataNode* AddChild(const AcString& name);
    DataNode* GetChild(const AcString& name) const;
    // Deletes the child with its subtree; false when there is none.
    bool RemoveChild(const AcString& name);
    std::vector<AcString> GetAllChildNames() const;
    std::vector<AcString> GetAllKeys() const;
    bool HasKey(const AcString& key) const;
    bool RemoveKey(const AcString& key);

    // Stores the value under key, replacing a value of any type held there.
    void SetValue(const AcString& key, const AcString& value) const;
    void SetValue(const AcString& key, const ACHAR* value) const;  // as an AcString, not a bool
    void SetValue(const AcString& key, int value) const;
    void SetValue(const AcString& key, double value) const;
    void SetValue(const AcString& key, const AcDbHardPointerId& value) const;
    void SetValue(const AcString& key, const AcDbSoftPointerId& value) const;
    void SetValue(const AcString& key, const AcGePoint2d& value) const;
    void SetValue(const AcString& key, const AcGePoint3d& value) const;
    void SetValue(const AcString& key, const AcGeVector2d& value) const;
    void SetValue(const AcString& key, const AcGeVector3d& value) const;
    void SetValue(const AcString& key, bool value) const;

    // False, with out untouched, when the key is absent or holds another type (no
    // conversion: an int is not read as a double).
    bool GetValue(const AcString& key, AcString& out) const;
    bool GetValue(const AcString& key, int& out) const;
    bool GetValue(const AcString& key, double& out) const;
    bool GetValue(const AcString& key, AcDbHardPointerId& out) const;
    bool GetValue(const AcString& key, AcDbSoftPointerId& out) const;
    bool GetValue(const AcString& key, AcGePoint2d& out) const;
    bool GetValue(const AcString& key, AcGePoint3d& out) const;
    bool GetValue(const AcString& key, AcGeVector2d& out) const;
    bool GetValue(const AcString& key, AcGeVector3d& out) const;
    bool GetValue(const AcString& key, bool& out) const;

    // The node stream: value count, (key, tag, payload) per value, child count, (name,
    // child stream) per child. Values and children are written in key order.
    // A bad count or an unknown tag ends the read of that node only; its parent goes on
    // with the next child. A stream that nests deeper than kMaxDepth cannot be followed:
    // the read stops there, every level answers false and the rest of the stream is left
    // unread, never taken for names and values.
    bool DataIn(IDataIO* io);
    bool DataOut(IDataIO* io) const;

private:
    struct Record;
    enum class Reading { kWhole, kNodeRefused, kStreamAbandoned };
    Reading Read(IDataIO* io);
    template <typename Value, typename T>
    void StoreValue(const AcString& key, const T& value) const;
    template <typename Value, typename T>
    bool FetchValue(const AcString& key, T& out) const;
    void AssertReadable() const;
    void AssertWritable() const;

    std::unique_ptr<Record> m_record;
};
