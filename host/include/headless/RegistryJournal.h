// Records, while alive, the names of the runtime classes that are created and deleted,
// so that tests can check a module's registration and tear-down order.
#pragma once

#include <string>
#include <vector>

#include "adesk.h"

namespace headless {

class ACHOST_API RegistryJournal {
public:
    RegistryJournal();
    ~RegistryJournal();
    RegistryJournal(const RegistryJournal&) = delete;
    RegistryJournal& operator=(const RegistryJournal&) = delete;

    const std::vector<std::wstring>& created() const { return m_created; }
    const std::vector<std::wstring>& deleted() const { return m_deleted; }

    // Used by the registry.
    void noteCreated(const ACHAR* name) { m_created.emplace_back(name); }
    void noteDeleted(const ACHAR* name) { m_deleted.emplace_back(name); }

private:
    std::vector<std::wstring> m_created;
    std::vector<std::wstring> m_deleted;
    RegistryJournal* m_previous;
};

}  // namespace headless
