// Runtime classes: the declaration and definition macros, the class registry, the
// hierarchy, and the host error raised by acrx_abort.
#include <gtest/gtest.h>

#include "headless/HostError.h"
#include "headless/RegistryJournal.h"
#include "rxboiler.h"
#include "rxdlinkr.h"

class RxTestAnimal : public AcRxObject {
    ACRX_DECLARE_MEMBERS(RxTestAnimal);
};
class RxTestDog : public RxTestAnimal {
    ACRX_DECLARE_MEMBERS(RxTestDog);
};
class RxTestPuppy : public RxTestDog {
    ACRX_DECLARE_MEMBERS(RxTestPuppy);
};
class RxTestCat : public RxTestAnimal {
    ACRX_DECLARE_MEMBERS(RxTestCat);
};

ACRX_NO_CONS_DEFINE_MEMBERS(RxTestAnimal, AcRxObject)
ACRX_CONS_DEFINE_MEMBERS(RxTestDog, RxTestAnimal, 1)
ACRX_DXF_DEFINE_MEMBERS(RxTestPuppy, RxTestDog, 33, 327, 0x37F, RX_TEST_PUPPY, RX_TEST_APP)
// A quoted application token is stringized with its quotes, as the macro documents.
ACRX_DXF_DEFINE_MEMBERS(RxTestCat, RxTestAnimal, 27, 1, 0, RX_TEST_CAT, "RX_TEST_APP")

namespace {

class RxRuntimeTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        RxTestAnimal::rxInit();
        RxTestDog::rxInit();
        RxTestPuppy::rxInit();
        RxTestCat::rxInit();
        acrxBuildClassHierarchy();
    }
    void TearDown() override
    {
        deleteAcRxClass(acrxFindAcRxClass(L"RxTestCat"));
        deleteAcRxClass(acrxFindAcRxClass(L"RxTestPuppy"));
        deleteAcRxClass(acrxFindAcRxClass(L"RxTestDog"));
        deleteAcRxClass(acrxFindAcRxClass(L"RxTestAnimal"));
    }
};

TEST_F(RxRuntimeTest, KindOfAndCastFollowTheHierarchy)
{
    RxTestPuppy puppy;
    RxTestDog dog;
    EXPECT_EQ(puppy.isA(), RxTestPuppy::desc());
    EXPECT_TRUE(puppy.isKindOf(RxTestPuppy::desc()));
    EXPECT_TRUE(puppy.isKindOf(RxTestDog::desc()));
    EXPECT_TRUE(puppy.isKindOf(RxTestAnimal::desc()));
    EXPECT_TRUE(puppy.isKindOf(AcRxObject::desc()));
    EXPECT_FALSE(puppy.isKindOf(RxTestCat::desc()));
    EXPECT_FALSE(dog.isKindOf(RxTestPuppy::desc()));

    EXPECT_EQ(RxTestDog::cast(&puppy), &puppy);
    EXPECT_EQ(RxTestPuppy::cast(&dog), nullptr);
    EXPECT_EQ(RxTestCat::cast(&puppy), nullptr);
    EXPECT_EQ(RxTestDog::cast(nullptr), nullptr);
}

TEST_F(RxRuntimeTest, DescriptorsCarryTheRegisteredFacts)
{
    struct Row {
        const char* what;
        AcRxClass* cls;
        const wchar_t* name;
        const wchar_t* parent;
        const wchar_t* dxfName;
        const wchar_t* appName;
        int dwgVersion;
        int maintVersion;
        int proxyFlags;
        bool creatable;
    };
    const Row rows[] = {
        {"abstract short form", RxTestAnimal::desc(), L"RxTestAnimal", L"AcRxObject", nullptr, nullptr, 0, 0, 0,
         false},
        {"transient constructor", RxTestDog::desc(), L"RxTestDog", L"RxTestAnimal", nullptr, nullptr, 0, 0, 1,
         true},
        {"filed class", RxTestPuppy::desc(), L"RxTestPuppy", L"RxTestDog", L"RX_TEST_PUPPY", L"RX_TEST_APP", 33,
         327, 0x37F, true},
        {"quoted app token", RxTestCat::desc(), L"RxTestCat", L"RxTestAnimal", L"RX_TEST_CAT",
         L"\"RX_TEST_APP\"", 27, 1, 0, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        ASSERT_NE(row.cls, nullptr);
        EXPECT_STREQ(row.cls->name(), row.name);
        ASSERT_NE(row.cls->myParent(), nullptr);
        EXPECT_STREQ(row.cls->myParent()->name(), row.parent);
        if (row.dxfName == nullptr)
            EXPECT_EQ(row.cls->dxfName(), nullptr);
        else
            EXPECT_STREQ(row.cls->dxfName(), row.dxfName);
        if (row.appName == nullptr)
            EXPECT_EQ(row.cls->appName(), nullptr);
        else
            EXPECT_STREQ(row.cls->appName(), row.appName);
        int dwg = -1;
        int maint = -1;
        EXPECT_EQ(row.cls->getClassVersion(dwg, maint), Acad::eOk);
        EXPECT_EQ(dwg, row.dwgVersion);
        EXPECT_EQ(maint, row.maintVersion);
        EXPECT_EQ(row.cls->proxyFlags(), row.proxyFlags);
        AcRxObject* made = row.cls->create();
        EXPECT_EQ(made != nullptr, row.creatable);
        if (made != nullptr) {
            EXPECT_EQ(made->isA(), row.cls);
            delete made;
        }
    }
}

TEST_F(RxRuntimeTest, RegisteringTwiceRegistersOnce)
{
    AcRxClass* before = RxTestPuppy::desc();
    headless::RegistryJournal journal;
    RxTestPuppy::rxInit();
    RxTestPuppy::rxInit();
    EXPECT_TRUE(journal.created().empty());
    EXPECT_EQ(RxTestPuppy::desc(), before);
    EXPECT_EQ(acrxFindAcRxClass(L"RxTestPuppy"), before);
}

TEST_F(RxRuntimeTest, ADifferentClassObjectOfTheSameNameIsAFatalMismatch)
{
    AcRxClass* registered = RxTestDog::gpDesc;
    RxTestDog::gpDesc = RxTestCat::desc();  // what this module believes is its class
    try {
        RxTestDog::rxInit();
        FAIL() << "rxInit accepted a mismatching descriptor";
    } catch (const headless::HostError& error) {
        EXPECT_STREQ(error.what(), "Class mismatch");
    }
    RxTestDog::gpDesc = registered;
    EXPECT_EQ(acrxFindAcRxClass(L"RxTestDog"), registered);
}

TEST_F(RxRuntimeTest, DeletedClassesAreGoneAndReRegistrationMakesANewOne)
{
    headless::RegistryJournal journal;
    deleteAcRxClass(RxTestCat::desc());
    EXPECT_EQ(acrxFindAcRxClass(L"RxTestCat"), nullptr);
    ASSERT_EQ(journal.deleted().size(), 1u);
    EXPECT_EQ(journal.deleted()[0], L"RxTestCat");

    // The stale descriptor is not registered any more, so rxInit registers afresh.
    RxTestCat::rxInit();
    ASSERT_EQ(journal.created().size(), 1u);
    EXPECT_NE(acrxFindAcRxClass(L"RxTestCat"), nullptr);
}

TEST_F(RxRuntimeTest, HierarchyListsChildren)
{
    const auto& children = RxTestAnimal::desc()->children();
    ASSERT_EQ(children.size(), 2u);
    EXPECT_TRUE((children[0] == RxTestDog::desc() && children[1] == RxTestCat::desc()) ||
                (children[1] == RxTestDog::desc() && children[0] == RxTestCat::desc()));
    ASSERT_EQ(RxTestDog::desc()->children().size(), 1u);
    EXPECT_EQ(RxTestDog::desc()->children()[0], RxTestPuppy::desc());
    EXPECT_TRUE(RxTestPuppy::desc()->isDerivedFrom(RxTestAnimal::desc()));
    EXPECT_TRUE(RxTestPuppy::desc()->isDerivedFrom(RxTestPuppy::desc()));
    EXPECT_FALSE(RxTestAnimal::desc()->isDerivedFrom(RxTestPuppy::desc()));
}

TEST(RxRegistryTest, SystemRegistryHoldsTheClassDictionaryAndTheLinker)
{
    AcRxDictionary* classes = AcRxDictionary::cast(acrxSysRegistry()->at(L"ClassDictionary"));
    ASSERT_NE(classes, nullptr);
    EXPECT_EQ(classes, acrxClassDictionary);
    EXPECT_NE(AcRxClass::cast(classes->at(L"AcRxObject")), nullptr);
    EXPECT_EQ(acrxFindAcRxClass(L"AcRxObject")->myParent(), nullptr);
    EXPECT_EQ(acrxFindAcRxClass(L"NoSuchClass"), nullptr);
    EXPECT_NE(acrxDynamicLinker, nullptr);
}

TEST(RxRegistryTest, AbortRaisesTheHostErrorWithItsMessage)
{
    try {
        acrx_abort(L"stop: %d %s", 42, L"ok");
        FAIL();
    } catch (const headless::HostError& error) {
        EXPECT_STREQ(error.what(), "stop: 42 ok");
    }
}

TEST(RxRegistryTest, ParentMustBeRegisteredFirst)
{
    try {
        newAcRxClass(L"RxOrphan", L"RxNoSuchParent");
        FAIL();
    } catch (const headless::HostError& error) {
        EXPECT_NE(std::string(error.what()).find("RxNoSuchParent"), std::string::npos);
    }
    EXPECT_EQ(acrxFindAcRxClass(L"RxOrphan"), nullptr);
}

}  // namespace
