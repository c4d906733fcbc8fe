// DataNodeRoot: the mix-in that gives an entity its data tree (a root node named "root")
// and files it after the entity's own fields: a magic number, the tree-format version,
// then the root's node stream. Data written before the header existed is still read.
#pragma once

#include "DataNode.h"

class AcDbDwgFiler;
class AcDbEntity;

class DataNodeRoot {
public:
    // The header's magic number (0xFFFFFC17 as stored) and the tree format written today.
    static constexpr Adesk::Int32 kMagicNumber = -1001;
    static constexpr Adesk::Int32 kCurrentVersion = 1;

    virtual ~DataNodeRoot();

    // Find-or-create a first-level node.
    DataNode* AddNode(const AcString& name);
    // The root for an empty name or "root"; otherwise the first-level child of that name
    // (no path syntax: a slash is part of the name).
    DataNode* GetNode(const AcString& name) const;

protected:
    explicit DataNodeRoot(AcDbEntity* owner);
    DataNodeRoot(DataNodeRoot&& other) noexcept;
    DataNodeRoot& operator=(DataNodeRoot&& other) noexcept;
    DataNodeRoot(const DataNodeRoot&) = delete;
    DataNodeRoot& operator=(const DataNodeRoot&) = delete;

    // The tree-format version found by the last DataIn (0 for data without a header).
    virtual int GetReadVersion() const;
    // Reads the tree; false when it was not (wholly) read. Never touches the filer's status.
    virtual bool DataIn(AcDbDwgFiler* filer);
    virtual bool DataOut(AcDbDwgFiler* filer) const;
    // Hooks: copy the tree into the entity's members, and the members into the tree.
    virtual void LoadFromNode();
    virtual void SaveToNode();

private:
    DataNode* m_root;
    Adesk::Int32 m_readVersion;
};
