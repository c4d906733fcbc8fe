// Data nodes: typed values without conversion, exact keys, child look-up and removal, and
// the root's first-level look-up rules.
#include <gtest/gtest.h>

#include "TreeTestEntity.h"

namespace {

class DataNodeTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { TreeTestEntity::EnsureRegistered(); }
    TreeTestEntity entity;
};

TEST_F(DataNodeTest, ValuesAreReadBackOnlyAsTheirOwnType)
{
    DataNode* node = entity.AddNode(L"n");
    node->SetValue(L"k", 1);
    double asDouble = -1;
    int asInt = 0;
    EXPECT_FALSE(node->GetValue(L"k", asDouble));
    EXPECT_EQ(asDouble, -1);
    EXPECT_TRUE(node->GetValue(L"k", asInt));
    EXPECT_EQ(asInt, 1);

    node->SetValue(L"k", 2.0);  // replaces the int
    EXPECT_TRUE(node->GetValue(L"k", asDouble));
    EXPECT_EQ(asDouble, 2.0);
    EXPECT_FALSE(node->GetValue(L"k", asInt));

    AcString text(L"untouched");
    EXPECT_FALSE(node->GetValue(L"missing", text));
    EXPECT_EQ(text, AcString(L"untouched"));

    node->SetValue(L"s", L"字符串");  // a literal is stored as a string, not a bool
    bool asBool = false;
    EXPECT_FALSE(node->GetValue(L"s", asBool));
    EXPECT_TRUE(node->GetValue(L"s", text));
    EXPECT_EQ(text, AcString(L"字符串"));

    // Keys compare exactly and can be removed.
    EXPECT_FALSE(node->HasKey(L"K"));
    EXPECT_TRUE(node->RemoveKey(L"k"));
    EXPECT_FALSE(node->RemoveKey(L"k"));
    EXPECT_EQ(node->GetAllKeys(), std::vector<AcString>{L"s"});
}

TEST_F(DataNodeTest, ChildrenAreFoundCreatedAndRemovedWithTheirSubtrees)
{
    DataNode* parent = entity.AddNode(L"parent");
    DataNode* child = parent->AddChild(L"child");
    child->AddChild(L"grandchild")->SetValue(L"v", 1);
    EXPECT_EQ(parent->AddChild(L"child"), child);
    EXPECT_EQ(parent->GetChild(L"child"), child);
    EXPECT_EQ(child->GetName(), AcString(L"child"));
    EXPECT_EQ(parent->GetAllChildNames(), std::vector<AcString>{AcString(L"child")});

    EXPECT_TRUE(parent->RemoveChild(L"child"));
    EXPECT_EQ(parent->GetChild(L"child"), nullptr);
    EXPECT_FALSE(parent->RemoveChild(L"child"));
}

TEST_F(DataNodeTest, GetNodeSearchesTheFirstLevelOnly)
{
    DataNode* root = entity.GetNode(L"");
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(entity.GetNode(L"root"), root);
    EXPECT_EQ(root->GetName(), AcString(L"root"));

    DataNode* a = entity.AddNode(L"a");
    a->AddChild(L"b");
    DataNode* slashed = entity.AddNode(L"a/b");
    EXPECT_EQ(entity.GetNode(L"a"), a);
    EXPECT_EQ(entity.GetNode(L"b"), nullptr);
    EXPECT_EQ(entity.GetNode(L"a/b"), slashed);  // a slash is part of the name
    EXPECT_NE(entity.GetNode(L"a/b"), a->GetChild(L"b"));
}

TEST_F(DataNodeTest, NodesMoveWithTheirContents)
{
    DataNode source(L"moved");
    source.SetValue(L"x", 3);
    source.AddChild(L"c");
    DataNode target(std::move(source));
    int x = 0;
    EXPECT_TRUE(target.GetValue(L"x", x));
    EXPECT_EQ(x, 3);
    EXPECT_NE(target.GetChild(L"c"), nullptr);
    EXPECT_EQ(target.GetName(), AcString(L"moved"));

    DataNode other(L"other");
    other = std::move(target);
    EXPECT_EQ(other.GetName(), AcString(L"moved"));
}

}  // namespace
