// AcRxDynamicLinker: modules loaded by file name with the platform's loader.
#include "rxdlinkr.h"

#include <dlfcn.h>
#include <limits.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <memory>
#include <string>
#include <vector>

#include "acutads.h"
#include "headless/TextCodec.h"

ACRX_DEFINE_MEMBERS(AcRxDynamicLinker);
ACRX_DEFINE_RXINIT_(AcRxDynamicLinker, newAcRxClass(ACRX_T("AcRxDynamicLinker"), ACRX_T("AcRxObject")))

namespace {

using EntryPoint = AcRx::AppRetCode (*)(AcRx::AppMsgCode, void*);

// One loaded module. Its address is the pkt handed to the module with kInitAppMsg.
struct LoadedModule {
    std::wstring path;  // canonical path: the module's identity
    void* handle = nullptr;
    EntryPoint entry = nullptr;
    bool locked = true;  // modules stay locked until they unlock themselves
    bool mdiAware = false;
};

std::wstring canonicalPath(const ACHAR* fileName)
{
    const std::string narrow = headless::toUtf8(fileName != nullptr ? fileName : L"");
    char resolved[PATH_MAX];
    if (realpath(narrow.c_str(), resolved) == nullptr)
        return headless::fromUtf8(narrow);
    return headless::fromUtf8(resolved);
}

bool fileExists(const std::wstring& path)
{
    struct stat info;
    return stat(headless::toUtf8(path).c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

}  // namespace

struct AcRxDynamicLinker::Imp {
    std::vector<std::unique_ptr<LoadedModule>> modules;

    LoadedModule* find(const std::wstring& path) const
    {
        for (const auto& m : modules)
            if (m->path == path)
                return m.get();
        return nullptr;
    }
    LoadedModule* findByPkt(const void* pkt) const
    {
        for (const auto& m : modules)
            if (m.get() == pkt)
                return m.get();
        return nullptr;
    }
    void remove(LoadedModule* module)
    {
        for (auto it = modules.begin(); it != modules.end(); ++it)
            if (it->get() == module) {
                modules.erase(it);
                return;
            }
    }
};

namespace {
// The one linker's state, for the module bookkeeping functions that get only a pkt.
AcRxDynamicLinker::Imp* g_linkerImp = nullptr;
}  // namespace

AcRxDynamicLinker::AcRxDynamicLinker() : m_imp(new Imp)
{
    if (g_linkerImp == nullptr)
        g_linkerImp = m_imp;
}

AcRxDynamicLinker::~AcRxDynamicLinker()
{
    if (g_linkerImp == m_imp)
        g_linkerImp = nullptr;
    delete m_imp;
}

bool AcRxDynamicLinker::loadModule(const ACHAR* fileName, bool printIt, bool /*asCmd*/)
{
    const std::wstring path = canonicalPath(fileName);
    if (m_imp->find(path) != nullptr)
        return true;
    if (!fileExists(path)) {
        acutPrintf(L"\nUnable to load module %s: no such file.\n", path.c_str());
        return false;
    }
    void* handle = dlopen(headless::toUtf8(path).c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) {
        const char* why = dlerror();
        acutPrintf(L"\nUnable to load module %s: %S\n", path.c_str(), why != nullptr ? why : "unknown error");
        return false;
    }
    auto entry = reinterpret_cast<EntryPoint>(dlsym(handle, "acrxEntryPoint"));
    if (entry == nullptr) {
        dlclose(handle);
        acutPrintf(L"\nUnable to load module %s: it has no acrxEntryPoint.\n", path.c_str());
        return false;
    }
    auto module = std::make_unique<LoadedModule>();
    module->path = path;
    module->handle = handle;
    module->entry = entry;
    LoadedModule* record = module.get();
    m_imp->modules.push_back(std::move(module));
    if (record->entry(AcRx::kInitAppMsg, record) == AcRx::kRetError) {
        // A module that refuses to start is unloaded again, without an unload message.
        m_imp->remove(record);
        dlclose(handle);
        acutPrintf(L"\nModule %s failed to initialise and was unloaded.\n", path.c_str());
        return false;
    }
    if (printIt)
        acutPrintf(L"\nModule %s loaded.\n", path.c_str());
    return true;
}

bool AcRxDynamicLinker::unloadModule(const ACHAR* fileName, bool printIt)
{
    const std::wstring path = canonicalPath(fileName);
    LoadedModule* module = m_imp->find(path);
    if (module == nullptr) {
        if (printIt)
            acutPrintf(L"\nModule %s is not loaded.\n", path.c_str());
        return false;
    }
    if (module->locked) {
        acutPrintf(L"\nModule %s is locked and cannot be unloaded.\n", path.c_str());
        return false;
    }
    if (module->entry(AcRx::kUnloadAppMsg, module) == AcRx::kRetError) {
        acutPrintf(L"\nModule %s refused to unload.\n", path.c_str());
        return false;
    }
    void* handle = module->handle;
    m_imp->remove(module);
    dlclose(handle);
    if (printIt)
        acutPrintf(L"\nModule %s unloaded.\n", path.c_str());
    return true;
}

void* AcRxDynamicLinker::getSymbolAddress(const ACHAR* fileName, const ACHAR* symbol) const
{
    const LoadedModule* module = m_imp->find(canonicalPath(fileName));
    if (module == nullptr || symbol == nullptr)
        return nullptr;
    return dlsym(module->handle, headless::toUtf8(symbol).c_str());
}

bool AcRxDynamicLinker::isModuleLoaded(const ACHAR* fileName) const
{
    return m_imp->find(canonicalPath(fileName)) != nullptr;
}

AcRx::AppRetCode AcRxDynamicLinker::sendAppMessage(const ACHAR* fileName, AcRx::AppMsgCode msg)
{
    LoadedModule* module = m_imp->find(canonicalPath(fileName));
    if (module == nullptr)
        return AcRx::kRetError;
    return module->entry(msg, module);
}

int AcRxDynamicLinker::moduleCount() const
{
    return static_cast<int>(m_imp->modules.size());
}

const ACHAR* AcRxDynamicLinker::moduleNameAt(int index) const
{
    if (index < 0 || index >= moduleCount())
        return nullptr;
    return m_imp->modules[static_cast<std::size_t>(index)]->path.c_str();
}

namespace {

LoadedModule* moduleOf(const void* pkt)
{
    return g_linkerImp != nullptr ? g_linkerImp->findByPkt(pkt) : nullptr;
}

LoadedModule* moduleNamed(const ACHAR* name)
{
    return g_linkerImp != nullptr && name != nullptr ? g_linkerImp->find(canonicalPath(name)) : nullptr;
}

}  // namespace

bool acrxUnlockApplication(void* pkt)
{
    LoadedModule* module = moduleOf(pkt);
    if (module == nullptr)
        return false;
    module->locked = false;
    return true;
}

bool acrxLockApplication(void* pkt)
{
    LoadedModule* module = moduleOf(pkt);
    if (module == nullptr)
        return false;
    module->locked = true;
    return true;
}

bool acrxApplicationIsLocked(const ACHAR* modulename)
{
    const LoadedModule* module = moduleNamed(modulename);
    return module != nullptr && module->locked;
}

bool acrxRegisterAppMDIAware(void* pkt)
{
    LoadedModule* module = moduleOf(pkt);
    if (module == nullptr)
        return false;
    module->mdiAware = true;
    return true;
}

bool acrxRegisterAppNotMDIAware(void* pkt)
{
    LoadedModule* module = moduleOf(pkt);
    if (module == nullptr)
        return false;
    module->mdiAware = false;
    return true;
}

bool acrxIsAppMDIAware(const ACHAR* moduleName)
{
    const LoadedModule* module = moduleNamed(moduleName);
    return module != nullptr && module->mdiAware;
}
