// DataNodeRoot: the entity's data tree and its header.
#include "DataNodeRoot.h"

#include "DwgFilerIoAdapter.h"
#include "PrefetchDwgFilerIoAdapter.h"

namespace {
const ACHAR* const kRootName = L"root";
}

DataNodeRoot::DataNodeRoot(AcDbEntity* owner) : m_root(new DataNode(kRootName)), m_readVersion(0)
{
    if (owner != nullptr)
        m_root->SetOwnerEntity(owner);
}

DataNodeRoot::DataNodeRoot(DataNodeRoot&& other) noexcept
    : m_root(other.m_root), m_readVersion(other.m_readVersion)
{
    other.m_root = nullptr;
}

DataNodeRoot& DataNodeRoot::operator=(DataNodeRoot&& other) noexcept
{
    if (this != &other) {
        delete m_root;
        m_root = other.m_root;
        m_readVersion = other.m_readVersion;
        other.m_root = nullptr;
    }
    return *this;
}

DataNodeRoot::~DataNodeRoot()
{
    delete m_root;
}

DataNode* DataNodeRoot::AddNode(const AcString& name)
{
    return m_root != nullptr ? m_root->AddChild(name) : nullptr;
}

DataNode* DataNodeRoot::GetNode(const AcString& name) const
{
    if (m_root == nullptr)
        return nullptr;
    if (name.isEmpty() || name == kRootName)
        return m_root;
    return m_root->GetChild(name);
}

int DataNodeRoot::GetReadVersion() const
{
    return m_readVersion;
}

bool DataNodeRoot::DataOut(AcDbDwgFiler* filer) const
{
    if (filer == nullptr || m_root == nullptr)
        return false;
    DwgFilerIoAdapter io(filer);
    io.Write(kMagicNumber);
    io.Write(kCurrentVersion);
    return m_root->DataOut(&io);
}

bool DataNodeRoot::DataIn(AcDbDwgFiler* filer)
{
    if (filer == nullptr || m_root == nullptr)
        return false;
    DwgFilerIoAdapter io(filer);
    Adesk::Int32 first = 0;
    io.Read(first);
    if (first != kMagicNumber) {
        // Data from before the header: the integer just read is the root's value count.
        m_readVersion = 0;
        PrefetchDwgFilerIoAdapter prefetch(&io, first);
        return m_root->DataIn(&prefetch);
    }
    Adesk::Int32 version = 0;
    io.Read(version);
    m_readVersion = version;
    if (m_readVersion >= 2)
        return false;  // a newer tree format: keep the members' defaults
    return m_root->DataIn(&io);
}

void DataNodeRoot::LoadFromNode() {}

void DataNodeRoot::SaveToNode() {}
