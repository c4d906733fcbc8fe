// The module entry: loading Quarvo.dbx by path registers its classes as listed here, in
// order, and prints the load message; unloading deletes them in the tear-down order.
#include <gtest/gtest.h>

#include "app/DeepCloneReactor.h"
#include "app/DocReactor.h"

#include <map>
#include <memory>

#include "app/BuildStamp.h"
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

// The module's runtime classes as the host must hold them once the module is loaded. A
// class that joins the module adds its row here; its steps place it in the registration
// and tear-down orders of the whole module, among the classes listed.
struct ModuleClass {
    const wchar_t* name;
    const wchar_t* parent;
    const wchar_t* dxfName;  // null for a plain registration: no DXF or application name
    int dwgVersion;
    int maintenanceVersion;
    int proxyFlags;
    bool constructor;
    int registrationStep;
    int tearDownStep;
};

const ModuleClass kModuleClasses[] = {
    // name, parent, DXF name, versions, proxy flags, constructor, registration and tear-down steps
    {L"AecPanel", L"AcDbEntity", L"QX_PANEL", 33, 327, 895, true, 1, 1},
    {L"AecPanelLite", L"AcDbEntity", L"QX_PANEL_LITE", 33, 327, 895, true, 2, 2},
    {L"QxPolylineBasedCurve", L"AcDbCurve", nullptr, 0, 0, 0, false, 3, 10},
    {L"AecDivisionLine", L"QxPolylineBasedCurve", L"QX_DIVISION_LINE", 33, 327, 895, true, 4, 5},
    {L"AecOverlapLine", L"QxPolylineBasedCurve", L"QX_OVERLAP_LINE", 33, 327, 895, true, 5, 6},
    {L"AecStructuralLine", L"QxPolylineBasedCurve", L"QX_STRUCTURAL_LINE", 33, 327, 895, true, 6, 7},
    {L"AecShouBianLine", L"QxPolylineBasedCurve", L"QX_SHOU_BIAN_LINE", 33, 327, 895, true, 8, 9},
    {L"AecSteelMember", L"QxPolylineBasedCurve", L"QX_STEEL_MEMBER", 33, 327, 895, true, 7, 8},
    {L"AecLayoutBoundary", L"AcDbPolyline", L"QX_LAYOUT_BOUNDARY", 33, 327, 895, true, 9, 13},
    {L"OpeningGripData", L"AcDbObject", nullptr, 0, 0, 0, false, 10, 4},
    {L"AecRectOpening", L"QxPolylineBasedCurve", L"QX_RECT_OPENING", 33, 327, 895, true, 11, 3},
    {L"AecPolyOpening", L"AcDbPolyline", L"QX_POLY_OPENING", 33, 327, 895, true, 12, 11},
    {L"AecCircleOpening", L"AcDbCircle", L"QX_CIRCLE_OPENING", 33, 327, 895, true, 13, 12},
};

// The class names ordered by one of the steps.
std::vector<std::wstring> NamesInOrderOf(int ModuleClass::*step)
{
    std::map<int, std::wstring> byStep;
    for (const ModuleClass& row : kModuleClasses)
        byStep[row.*step] = row.name;
    std::vector<std::wstring> names;
    for (const auto& entry : byStep)
        names.push_back(entry.second);
    return names;
}

// What the registry holds for a class, against its row.
void ExpectRegisteredAsListed(const ModuleClass& row)
{
    SCOPED_TRACE(headless::toUtf8(row.name));
    const AcRxClass* cls = acrxFindAcRxClass(row.name);
    ASSERT_NE(cls, nullptr);
    ASSERT_NE(cls->myParent(), nullptr);
    EXPECT_STREQ(cls->myParent()->name(), row.parent);
    EXPECT_STREQ(cls->dxfName(), row.dxfName);
    EXPECT_STREQ(cls->appName(), row.dxfName != nullptr ? L"QX_AEC_DB_APP" : nullptr);
    EXPECT_EQ(cls->proxyFlags(), row.proxyFlags);
    int dwgVersion = -1;
    int maintenanceVersion = -1;
    cls->getClassVersion(dwgVersion, maintenanceVersion);
    EXPECT_EQ(dwgVersion, row.dwgVersion);
    EXPECT_EQ(maintenanceVersion, row.maintenanceVersion);
    std::unique_ptr<AcRxObject> made(cls->create());
    EXPECT_EQ(made != nullptr, row.constructor);
    EXPECT_TRUE(made == nullptr || made->isA() == cls);
}

TEST(ModuleEntryTest, LoadRegistersTheClassesInOrderAndUnloadDeletesThemInTearDownOrder)
{
    headless::RegistryJournal journal;
    headless::CommandLineCapture capture;
    ASSERT_TRUE(acrxDynamicLinker->loadModule(kModule, false)) << capture.utf8();
    EXPECT_EQ(journal.created(), NamesInOrderOf(&ModuleClass::registrationStep));
    for (const ModuleClass& row : kModuleClasses)
        ExpectRegisteredAsListed(row);
    EXPECT_TRUE(IsLoadMessage(capture.text())) << capture.utf8();
    EXPECT_TRUE(DocReactor::IsInstalled());
    EXPECT_TRUE(DeepCloneReactor::IsInstalled());

    // A second initialisation finds every class registered and changes nothing.
    std::vector<const AcRxClass*> before;
    for (const ModuleClass& row : kModuleClasses)
        before.push_back(acrxFindAcRxClass(row.name));
    EXPECT_EQ(acrxDynamicLinker->sendAppMessage(kModule, AcRx::kInitAppMsg), AcRx::kRetOK);
    EXPECT_EQ(journal.created(), NamesInOrderOf(&ModuleClass::registrationStep));
    for (std::size_t i = 0; i < before.size(); ++i)
        EXPECT_EQ(acrxFindAcRxClass(kModuleClasses[i].name), before[i]);

    ASSERT_TRUE(acrxDynamicLinker->unloadModule(kModule, false));
    EXPECT_EQ(journal.deleted(), NamesInOrderOf(&ModuleClass::tearDownStep));
    for (const ModuleClass& row : kModuleClasses)
        EXPECT_EQ(acrxFindAcRxClass(row.name), nullptr) << headless::toUtf8(row.name);
    EXPECT_FALSE(DocReactor::IsInstalled());
    EXPECT_FALSE(DeepCloneReactor::IsInstalled());

    // Loaded again, it registers and installs everything once more.
    headless::RegistryJournal again;
    ASSERT_TRUE(acrxDynamicLinker->loadModule(kModule, false));
    EXPECT_EQ(again.created(), NamesInOrderOf(&ModuleClass::registrationStep));
    EXPECT_TRUE(DocReactor::IsInstalled());
    EXPECT_TRUE(DeepCloneReactor::IsInstalled());
    ASSERT_TRUE(acrxDynamicLinker->unloadModule(kModule, false));
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
