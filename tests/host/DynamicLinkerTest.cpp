// The dynamic linker: modules loaded by path, their application messages, and the clear
// errors for files that are missing or are not modules.
#include <gtest/gtest.h>

#include <string>

#include "headless/CommandLine.h"
#include "headless/RegistryJournal.h"
#include "headless/TextCodec.h"
#include "rxdlinkr.h"

namespace {

std::wstring ModulePath(const char* file)
{
    return headless::fromUtf8(std::string(QX_TEST_MODULE_DIR) + "/" + file);
}

int CallCounter(const std::wstring& module, const ACHAR* symbol)
{
    auto counter = reinterpret_cast<int (*)()>(acrxDynamicLinker->getSymbolAddress(module.c_str(), symbol));
    return counter != nullptr ? counter() : -1;
}

TEST(DynamicLinkerTest, LoadsInitialisesAndUnloadsAModule)
{
    const std::wstring path = ModulePath("TestModuleGood.dbx");
    headless::RegistryJournal journal;
    ASSERT_TRUE(acrxDynamicLinker->loadModule(path.c_str(), false));
    EXPECT_TRUE(acrxDynamicLinker->isModuleLoaded(path.c_str()));
    EXPECT_EQ(CallCounter(path, L"testModuleInitCount"), 1);
    AcRxClass* thing = acrxFindAcRxClass(L"TestModuleThing");
    ASSERT_NE(thing, nullptr);
    EXPECT_STREQ(thing->dxfName(), L"QX_TEST_THING");
    EXPECT_STREQ(thing->appName(), L"QX_TEST_APP");
    EXPECT_TRUE(acrxIsAppMDIAware(path.c_str()));
    EXPECT_FALSE(acrxApplicationIsLocked(path.c_str()));

    // Loading again is harmless: no second initialisation.
    EXPECT_TRUE(acrxDynamicLinker->loadModule(path.c_str(), false));
    EXPECT_EQ(CallCounter(path, L"testModuleInitCount"), 1);

    // A second initialisation message re-uses the registered classes.
    const std::size_t createdBefore = journal.created().size();
    EXPECT_EQ(acrxDynamicLinker->sendAppMessage(path.c_str(), AcRx::kInitAppMsg), AcRx::kRetOK);
    EXPECT_EQ(journal.created().size(), createdBefore);
    EXPECT_EQ(acrxFindAcRxClass(L"TestModuleThing"), thing);

    // Messages without a handler are answered OK.
    EXPECT_EQ(acrxDynamicLinker->sendAppMessage(path.c_str(), AcRx::kLoadDwgMsg), AcRx::kRetOK);
    EXPECT_EQ(acrxDynamicLinker->sendAppMessage(path.c_str(), AcRx::kSuspendMsg), AcRx::kRetOK);

    ASSERT_TRUE(acrxDynamicLinker->unloadModule(path.c_str(), false));
    EXPECT_FALSE(acrxDynamicLinker->isModuleLoaded(path.c_str()));
    EXPECT_EQ(acrxFindAcRxClass(L"TestModuleThing"), nullptr);
    EXPECT_EQ(acrxFindAcRxClass(L"TestModuleBase"), nullptr);
    ASSERT_EQ(journal.deleted().size(), 2u);
    EXPECT_EQ(journal.deleted()[0], L"TestModuleThing");
    EXPECT_EQ(journal.deleted()[1], L"TestModuleBase");

    // The file was closed: loading again starts the module afresh.
    ASSERT_TRUE(acrxDynamicLinker->loadModule(path.c_str(), false));
    EXPECT_EQ(CallCounter(path, L"testModuleInitCount"), 1);
    EXPECT_TRUE(acrxDynamicLinker->unloadModule(path.c_str(), false));
}

TEST(DynamicLinkerTest, FilesThatCannotBeModulesGiveClearErrors)
{
    struct Row {
        const char* file;
        const wchar_t* message;
    };
    const Row rows[] = {
        {"NoSuchModule.dbx", L"no such file"},
        {"TestModuleNoEntry.dbx", L"has no acrxEntryPoint"},
        {"TestModuleRefusing.dbx", L"failed to initialise"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.file);
        const std::wstring path = ModulePath(row.file);
        headless::CommandLineCapture capture;
        EXPECT_FALSE(acrxDynamicLinker->loadModule(path.c_str(), false));
        EXPECT_NE(capture.text().find(row.message), std::wstring::npos) << capture.utf8();
        EXPECT_FALSE(acrxDynamicLinker->isModuleLoaded(path.c_str()));
    }
}

TEST(DynamicLinkerTest, ALockedModuleStaysLoaded)
{
    const std::wstring path = ModulePath("TestModuleLocked.dbx");
    ASSERT_TRUE(acrxDynamicLinker->loadModule(path.c_str(), false));
    EXPECT_TRUE(acrxApplicationIsLocked(path.c_str()));
    headless::CommandLineCapture capture;
    EXPECT_FALSE(acrxDynamicLinker->unloadModule(path.c_str(), false));
    EXPECT_NE(capture.text().find(L"locked"), std::wstring::npos);
    EXPECT_TRUE(acrxDynamicLinker->isModuleLoaded(path.c_str()));
}

TEST(DynamicLinkerTest, UnloadingAModuleThatIsNotLoadedFails)
{
    headless::CommandLineCapture capture;
    EXPECT_FALSE(acrxDynamicLinker->unloadModule(ModulePath("TestModuleGood.dbx").c_str(), false));
}

}  // namespace
