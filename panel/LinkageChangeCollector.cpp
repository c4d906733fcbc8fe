// LinkageChangeCollector: the module's change recorder and its state.
#include "LinkageChangeCollector.h"

#include <mutex>

namespace DbxPanel {
namespace {

std::mutex s_instanceMutex;
std::unique_ptr<LinkageChangeCollector> s_instance;

}  // namespace

LinkageChangeCollector& LinkageChangeCollector::Instance()
{
    // Only the first creation needs guarding; every use is on the host's main thread.
    std::lock_guard<std::mutex> lock(s_instanceMutex);
    if (s_instance == nullptr)
        s_instance.reset(new LinkageChangeCollector());
    return *s_instance;
}

void LinkageChangeCollector::DestroyInstance()
{
    std::lock_guard<std::mutex> lock(s_instanceMutex);
    s_instance.reset();
}

void LinkageChangeCollector::DisableCollection()
{
    m_enabled = false;
    m_changes.clear();
}

void LinkageChangeCollector::StartCollecting()
{
    if (!m_enabled)
        return;
    m_collecting = true;
    m_changes.clear();
}

void LinkageChangeCollector::ForceReset()
{
    m_collecting = false;
    m_changes.clear();
}

void LinkageChangeCollector::RecordChange(AcDbObjectId id, const EntityChangeDetail& detail)
{
    if (!m_enabled || !m_collecting || id.isNull())
        return;
    m_changes.push_back({id, detail});
}

}  // namespace DbxPanel
