// The module entry: loading Quarvo.dbx by path registers its classes in order and prints
// the load message; unloading deletes them in the tear-down order.
#include <gtest/gtest.h>

#include <algorithm>

#include "app/BuildStamp.h"
#include "app/ClassRegistration.h"
#include "headless/CommandLine.h"
#include "headless/RegistryJournal.h"
#include "headless/HostError.h"
#include "headless/TextCodec.h"
#include "openings/AecCircleOpening.h"
#include "rxdlinkr.h"

namespace {

const wchar_t* const kModule = L"" QX_MODULE_PATH;

// "\n[Release] Quarvo loaded! \tBuild time: " and a stamp of the form 2026-10-01 07:58.
bool IsLoadMessage(const std::wstring& text)
{
    const std::wstring prefix = L"\n[Release] Quarvo loaded! \tBuild time: ";
    const std::wstring shape = L"0000-00-00 00:00";
    if (text.size() != prefix.size() + shape.size() || text.compare(0, prefix.size(), prefix) != 0)
        return false;
    for (std::size_t i = 0; i < shape.size(); ++i) {
        const wchar_t c = text[prefix.size() + i];
        if (shape[i] == L'0' ? !(c >= L'0' && c <= L'9') : c != shape[i])
            return false;
    }
    return true;
}

std::vector<std::wstring> Names(const std::vector<AcString>& list)
{
    std::vector<std::wstring> names;
    for (const AcString& s : list)
        names.push_back(s.wstr());
    return names;
}

TEST(ModuleEntryTest, LoadRegistersInOrderAndUnloadDeletesInTearDownOrder)
{
    const auto registration = Names(Quarvo::RegistrationOrder());
    const auto tearDown = Names(Quarvo::TearDownOrder());
    // Both tables name the same classes.
    auto sortedRegistration = registration;
    auto sortedTearDown = tearDown;
    std::sort(sortedRegistration.begin(), sortedRegistration.end());
    std::sort(sortedTearDown.begin(), sortedTearDown.end());
    EXPECT_EQ(sortedRegistration, sortedTearDown);

    headless::RegistryJournal journal;
    headless::CommandLineCapture capture;
    ASSERT_TRUE(acrxDynamicLinker->loadModule(kModule, false)) << capture.utf8();
    EXPECT_EQ(journal.created(), registration);
    for (const std::wstring& name : registration) {
        const AcRxClass* cls = acrxFindAcRxClass(name.c_str());
        ASSERT_NE(cls, nullptr) << headless::toUtf8(name);
        if (cls->dxfName() != nullptr) {
            EXPECT_STREQ(cls->appName(), Quarvo::kApplicationName);
        }
    }
    EXPECT_TRUE(IsLoadMessage(capture.text())) << capture.utf8();

    // A second initialisation finds every class registered and changes nothing.
    std::vector<const AcRxClass*> before;
    for (const std::wstring& name : registration)
        before.push_back(acrxFindAcRxClass(name.c_str()));
    EXPECT_EQ(acrxDynamicLinker->sendAppMessage(kModule, AcRx::kInitAppMsg), AcRx::kRetOK);
    EXPECT_EQ(journal.created(), registration);
    for (std::size_t i = 0; i < registration.size(); ++i)
        EXPECT_EQ(acrxFindAcRxClass(registration[i].c_str()), before[i]);

    ASSERT_TRUE(acrxDynamicLinker->unloadModule(kModule, false));
    EXPECT_EQ(journal.deleted(), tearDown);
    for (const std::wstring& name : registration)
        EXPECT_EQ(acrxFindAcRxClass(name.c_str()), nullptr) << headless::toUtf8(name);
}

TEST(ModuleEntryTest, AModuleClassRegistersOnceAndRefusesAnImpostor)
{
    ASSERT_TRUE(acrxDynamicLinker->loadModule(kModule, false));
    AcRxClass* registered = AecCircleOpening::desc();
    {
        headless::RegistryJournal journal;
        AecCircleOpening::rxInit();
        EXPECT_TRUE(journal.created().empty());
        EXPECT_EQ(acrxFindAcRxClass(L"AecCircleOpening"), registered);
    }
    // A descriptor that is not the registered class of that name is a conflict between
    // modules: the host stops.
    AecCircleOpening::gpDesc = AcDbCircle::desc();
    try {
        AecCircleOpening::rxInit();
        ADD_FAILURE() << "rxInit accepted a different class object";
    } catch (const headless::HostError& error) {
        EXPECT_STREQ(error.what(), "Class mismatch");
    }
    AecCircleOpening::gpDesc = registered;
    headless::CommandLineCapture quiet;
    EXPECT_TRUE(acrxDynamicLinker->unloadModule(kModule, false));
}

TEST(BuildStampTest, CompilerDateAndTimeBecomeTheStamp)
{
    struct Row {
        const char* date;
        const char* time;
        const wchar_t* stamp;
    };
    const Row rows[] = {
        {"Jan  5 2027", "13:04:09", L"2027-01-05 13:04"},  // blank-padded day
        {"Oct  1 2026", "07:58:34", L"2026-10-01 07:58"},
        {"Dec 31 1999", "23:59:59", L"1999-12-31 23:59"},
        {"Feb 28 2030", "00:00:00", L"2030-02-28 00:00"},
        {"Xyz 12 2026", "10:20:30", L"2026-01-12 10:20"},  // unknown month: January
        {"jan 12 2026", "10:20:30", L"2026-01-12 10:20"},  // names compare case-sensitively
        {"Sep 12 2026", "10:20:30", L"2026-09-12 10:20"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.date);
        EXPECT_EQ(Quarvo::FormatBuildStamp(row.date, row.time), AcString(row.stamp));
    }
}

}  // namespace
