#include "tests/AbstractGui/MenuTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

// An item of another class: nothing is remembered about its chain.
class OtherItem final : public CVqMenuItem
{
public:
    OtherItem() = default;
    OtherItem(const OtherItem&) = default;
    OtherItem& operator=(const OtherItem&) = default;
};

// One that promises to keep its fields in the base.
class StayingItem final : public CVqMenuItem
{
public:
    StayingItem() : CVqMenuItem(FieldsStayHere{}) { }
};

// One that promises it too, and counts how often it is asked what follows it.
class CountingItem final : public CVqMenuItem
{
public:
    CountingItem() : CVqMenuItem(FieldsStayHere{}) { }

    CVqMenuItem* nextItem() const override
    {
        ++asked;
        return CVqMenuItem::nextItem();
    }

    mutable int asked = 0;
};

// The rules as they are told: plain walks, one call an item.
class Rules
{
public:
    static void Append(CVqMenuItem* parent, CVqMenuItem* item)
    {
        item->setParentItem(parent);
        if (!parent->subItem()) {
            parent->setSubItem(item);
        } else {
            Last(parent->subItem())->setNextItem(item);
            CheckSeps(parent->subItem(), false);
        }
        item->setMnemonic(Mnemonic(parent->subItem(), item->text()));
    }

    static void InsertAfter(CVqMenuItem* parent, CVqMenuItem* anchor, CVqMenuItem* item)
    {
        item->setParentItem(parent);
        item->setNextItem(anchor->nextItem());
        anchor->setNextItem(item);
        item->setMnemonic(Mnemonic(parent->subItem(), item->text()));
        CheckSeps(parent->subItem(), false);
    }

    static void Unlink(CVqMenuItem* parent, CVqMenuItem* item)
    {
        if (parent->subItem() == item)
            parent->setSubItem(item->nextItem());
        for (CVqMenuItem* other = parent->subItem(); other; other = other->nextItem()) {
            if (other->nextItem() == item)
                other->setNextItem(item->nextItem());
        }
        item->setNextItem(nullptr);
    }

    static void CheckSeps(CVqMenuItem* first, bool recursive)
    {
        int run = 0;
        CVqMenuItem* last_entry = nullptr;
        CVqMenuItem* last_separator = nullptr;
        for (CVqMenuItem* item = first; item; item = item->nextItem()) {
            if (item->type() != CVqAbstractMenu::SenseSeparator) {
                if (item->subItem() && recursive)
                    CheckSeps(item->subItem(), recursive);
                if (!item->deleted() && !item->removed())
                    run = 0;
            } else {
                ++run;
                if (run == 1 && item->removed())
                    item->setRemoved(false);
                if ((!last_entry || run >= 2) && !item->removed())
                    item->setRemoved(true);
                if (!item->deleted() && !item->removed())
                    last_separator = item;
            }
            if (!item->deleted() && !item->removed())
                last_entry = item;
        }
        if (recursive && last_separator && run >= 1 && !last_separator->removed())
            last_separator->setRemoved(true);
    }

private:
    static CVqMenuItem* Last(CVqMenuItem* item) { return item->nextItem() ? Last(item->nextItem()) : item; }

    static bool Taken(const CVqMenuItem* item, vq_wchar mark, bool exact)
    {
        if (!item)
            return false;
        const bool same = exact ? item->mnemonic() == mark : VqLower(item->mnemonic()) == VqLower(mark);
        return same || Taken(item->nextItem(), mark, exact);
    }

    static vq_wchar Mnemonic(const CVqMenuItem* first, const CVqStringW& text)
    {
        for (const bool exact : {false, true}) {
            for (int i = 0; i < text.GetLength(); ++i) {
                const vq_wchar mark = text.GetAt(i + 1);
                if (text.GetAt(i) != VQ_TEXT('&') || mark == VQ_TEXT('&') || mark == 0)
                    continue;
                if (!Taken(first, mark, exact))
                    return mark;
                ++i;
            }
        }
        return 0;
    }
};

// A menu of some popups that one random sequence of changes is applied to. The same seed gives the same
// sequence, for plain items with the manipulators and for other items with the rules.
template <typename Item, bool ByRules>
class World
{
public:
    explicit World(unsigned seed) : m_random(seed)
    {
        for (int i = 0; i < 4; ++i) {
            m_popups.push_back(NewItem());
            Append(m_popups.front(), m_popups.back());
        }
    }

    // Numbered by what they do, so that each is as likely as the others.
    void Step()
    {
        switch (Pick(16)) {
        case 0:
            return CheckSeps(Pick(2) == 0);
        case 1:
            return Change([this](CVqMenuItem* item) { item->setRemoved(Pick(2) == 0); });
        case 2:
            return Change([this](CVqMenuItem* item) { item->setDeleted(Pick(2) == 0); });
        case 3:
            return Change([this](CVqMenuItem* item) { item->setType(RandomType()); });
        case 4:
            return Change([this](CVqMenuItem* item) { item->setMnemonic(RandomLetter()); });
        case 5:
            return Change([](CVqMenuItem* item) { item->setNextItem(nullptr); });
        case 6:
            return Change([this](CVqMenuItem* item) { Assign(item); });
        case 7:
            return RemoveOne(true);
        case 8:
            return RemoveOne(false);
        case 9:
            return InsertOne();
        default:
            return Append(RandomPopup(), NewItem());
        }
    }

    std::string Dump() const { return DumpChain(m_popups.front()); }

private:
    unsigned Pick(unsigned below) { return static_cast<unsigned>(m_random() % below); }
    CVqMenuItem* RandomPopup() { return m_popups[Pick(static_cast<unsigned>(m_popups.size()))]; }
    vq_wchar RandomLetter() { return VQ_TEXT("\0aAbBcC")[Pick(7)]; }

    vq_uint32 RandomType()
    {
        return Pick(3) == 0 ? CVqAbstractMenu::SenseItem : CVqAbstractMenu::SenseSeparator;
    }

    CVqMenuItem* NewItem()
    {
        const vq_wchar* texts[]
            = {VQ_TEXT("&a"), VQ_TEXT("&A&b"), VQ_TEXT("&&B"), VQ_TEXT("&c&C&"), VQ_TEXT("d")};
        m_items.push_back(std::make_unique<Item>());
        CVqMenuItem* item = m_items.back().get();
        item->setId(static_cast<vq_uint32>(m_items.size()));
        item->setText(texts[Pick(5)]);
        item->setMnemonic(Pick(5) == 0 ? RandomLetter() : vq_wchar(0));
        item->setType(m_popups.size() < 4 ? CVqAbstractMenu::SensePopup : RandomType());
        return item;
    }

    CVqMenuItem* RandomChild(CVqMenuItem* popup)
    {
        std::vector<CVqMenuItem*> children;
        for (CVqMenuItem* item = popup->subItem(); item; item = item->nextItem())
            children.push_back(item);
        return children.empty() ? nullptr : children[Pick(static_cast<unsigned>(children.size()))];
    }

    template <typename Changer>
    void Change(Changer changer)
    {
        if (CVqMenuItem* item = RandomChild(RandomPopup()))
            changer(item);
    }

    // The item takes the fields of another and keeps its place.
    void Assign(CVqMenuItem* item)
    {
        CVqMenuItem* other = RandomChild(RandomPopup());
        if (!other || item->subItem() || other->subItem() || IsPopup(item) || IsPopup(other))
            return;
        const vq_uint32 id = item->id();
        CVqMenuItem* next = item->nextItem();
        static_cast<Item&>(*item) = static_cast<const Item&>(*other);
        item->setId(id);
        item->setNextItem(next);
    }

    bool IsPopup(const CVqMenuItem* item) const
    {
        return std::any_of(m_popups.begin(), m_popups.end(),
                           [item](const auto* popup) { return popup == item; });
    }

    void Append(CVqMenuItem* parent, CVqMenuItem* item)
    {
        if (parent == item)
            return;
        if constexpr (ByRules)
            Rules::Append(parent, item);
        else
            Tools().append_item(parent, item);
    }

    void CheckSeps(bool recursive)
    {
        CVqMenuItem* first = RandomPopup()->subItem();
        if constexpr (ByRules)
            Rules::CheckSeps(first, recursive);
        else
            Tools().check_seps(first, recursive);
    }

    void InsertOne()
    {
        CVqMenuItem* popup = RandomPopup();
        CVqMenuItem* anchor = RandomChild(popup);
        if (!anchor)
            return;
        CVqMenuItem* item = NewItem();
        if constexpr (ByRules) {
            Rules::InsertAfter(popup, anchor, item);
        } else {
            Tools().insert_item_after(anchor->id(), popup, item);
            Tools().check_seps(popup->subItem(), false);
        }
    }

    // The item goes to another popup, or is destroyed.
    void RemoveOne(bool append_elsewhere)
    {
        CVqMenuItem* popup = RandomPopup();
        CVqMenuItem* item = RandomChild(popup);
        if (!item || IsPopup(item))
            return;
        if constexpr (ByRules)
            Rules::Unlink(popup, item);
        else
            Tools().remove_item(item->id(), popup->subItem() == item ? popup : popup->subItem());
        if (append_elsewhere)
            Append(RandomPopup(), item);
        else
            m_items[item->id() - 1].reset();
    }

    static std::string DumpChain(const CVqMenuItem* first)
    {
        std::string dump;
        for (const CVqMenuItem* item = first; item; item = item->nextItem()) {
            dump += " " + std::to_string(item->id())
                + (item->type() == CVqAbstractMenu::SenseSeparator ? "-" : "");
            dump += (item->removed() ? "r" : "") + std::string(item->deleted() ? "d" : "");
            if (item->mnemonic() != 0)
                dump += std::string("&") + static_cast<char>(item->mnemonic());
            if (item->subItem())
                dump += "(" + DumpChain(item->subItem()) + " )";
        }
        return dump;
    }

    std::mt19937 m_random;
    std::vector<std::unique_ptr<CVqMenuItem>> m_items;
    std::vector<CVqMenuItem*> m_popups;
};

class RandomChanges : public testing::TestWithParam<unsigned>
{ };

}

TEST_P(RandomChanges, GiveWhatPlainWalksGive)
{
    World<CVqMenuItem, false> remembered(GetParam());
    World<OtherItem, true> walked(GetParam());

    for (int step = 0; step < 1500; ++step) {
        remembered.Step();
        walked.Step();
        ASSERT_EQ(remembered.Dump(), walked.Dump()) << "step " << step;
    }
}

TEST_P(RandomChanges, GiveTheSameForDerivedItems)
{
    World<OtherItem, false> derived(GetParam());
    World<OtherItem, true> walked(GetParam());

    for (int step = 0; step < 300; ++step) {
        derived.Step();
        walked.Step();
        ASSERT_EQ(derived.Dump(), walked.Dump()) << "step " << step;
    }
}

TEST_P(RandomChanges, GiveTheSameForDerivedItemsWhoseFieldsStay)
{
    World<StayingItem, false> remembered(GetParam());
    World<OtherItem, true> walked(GetParam());

    for (int step = 0; step < 300; ++step) {
        remembered.Step();
        walked.Step();
        ASSERT_EQ(remembered.Dump(), walked.Dump()) << "step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seed, RandomChanges, testing::Range(1u, 31u),
                         [](const auto& seed) { return "Seed" + std::to_string(seed.param); });

// What is remembered, case by case ---------------------------------------------------------------------

namespace {

// A popup whose chain is known: 1, separator 2, item 3 with mnemonic A.
class KnownChain : public testing::Test
{
protected:
    KnownChain()
    {
        tree.New(1);
        tree.New(2)->setType(CVqAbstractMenu::SenseSeparator);
        tree.New(3)->setText(VQ_TEXT("&A"));
        for (const vq_uint32 id : {1u, 2u, 3u})
            Tools().append_item(tree.Root(), tree[id]);
    }

    CVqMenuItem* Append(vq_uint32 id, const vq_wchar* text)
    {
        CVqMenuItem* item = tree.New(id);
        item->setText(text);
        Tools().append_item(tree.Root(), item);
        return item;
    }

    MenuTree tree{{}};
};

}

TEST(CVqSiblingChain, AppendingToAKnownChainDoesNotWalkIt)
{
    MenuTree tree({});
    CountingItem first;
    CVqMenuItem* last = tree.New(3);
    last->setText(VQ_TEXT("&A"));
    Tools().append_item(tree.Root(), &first);
    Tools().append_item(tree.Root(), tree.New(2));
    first.asked = 0;

    Tools().append_item(tree.Root(), last);

    EXPECT_EQ(first.asked, 0);
    EXPECT_EQ(last->mnemonic(), VQ_TEXT('A'));
}

TEST_F(KnownChain, MnemonicSetDirectlyCounts)
{
    tree[1]->setMnemonic(VQ_TEXT('B'));

    EXPECT_EQ(Append(4, VQ_TEXT("&B&C"))->mnemonic(), VQ_TEXT('C'));
}

TEST_F(KnownChain, MnemonicClearedDirectlyIsFreeAgain)
{
    tree[3]->setMnemonic(0);

    EXPECT_EQ(Append(4, VQ_TEXT("&A"))->mnemonic(), VQ_TEXT('A'));
}

TEST_F(KnownChain, MnemonicOfTwoMembersIsTakenUntilBothGaveItUp)
{
    tree[1]->setMnemonic(VQ_TEXT('A'));
    tree[3]->setMnemonic(0);
    EXPECT_EQ(Append(4, VQ_TEXT("&A"))->mnemonic(), 0);

    tree[1]->setMnemonic(0);
    EXPECT_EQ(Append(5, VQ_TEXT("&A"))->mnemonic(), VQ_TEXT('A'));
}

TEST_F(KnownChain, SeparatorShownByHandIsHiddenAtTheNextAppend)
{
    tree[1]->setDeleted(true);

    Append(4, VQ_TEXT(""));

    EXPECT_TRUE(tree[2]->removed());
}

TEST_F(KnownChain, ChainCutByHandIsAppendedToWhereItEnds)
{
    tree[1]->setNextItem(nullptr);

    Append(4, VQ_TEXT(""));

    EXPECT_EQ(Shape(tree.Root()), "0(1 4)");
}

TEST_F(KnownChain, ChainEnteredAtItsSecondItemIsAppendedToAtItsEnd)
{
    tree.Root()->setSubItem(tree[2]);

    Append(4, VQ_TEXT(""));

    EXPECT_EQ(Shape(tree.Root()), "0(2 3 4)");
    EXPECT_TRUE(tree[2]->removed());
}

TEST_F(KnownChain, OneChainUnderTwoParentsIsAppendedToAtItsEnd)
{
    CVqMenuItem* other = tree.New(9);
    other->setSubItem(tree[2]);

    Tools().append_item(other, tree.New(4));
    Append(5, VQ_TEXT(""));
    Tools().append_item(other, tree.New(6));

    EXPECT_EQ(Shape(tree.Root()), "0(1 2 3 4 5 6)");
}

TEST_F(KnownChain, CopyOfAMemberIsNoMember)
{
    const auto copy = std::make_unique<CVqMenuItem>(*tree[3]);
    copy->setMnemonic(0);
    copy->setNextItem(tree[1]);

    EXPECT_EQ(Append(4, VQ_TEXT("&A"))->mnemonic(), 0);
    EXPECT_EQ(Shape(tree.Root()), "0(1 2 3 4)");
}

TEST_F(KnownChain, MemberAssignedToIsLookedAtAnew)
{
    CVqMenuItem other;
    other.setId(3);
    other.setMnemonic(VQ_TEXT('B'));

    *tree[3] = other;

    EXPECT_EQ(Append(4, VQ_TEXT("&B&A"))->mnemonic(), VQ_TEXT('A'));
}

TEST_F(KnownChain, DerivedItemInTheChainIsWalkedOver)
{
    OtherItem derived;
    derived.setId(7);
    Tools().append_item(tree.Root(), &derived);
    CVqMenuItem* last = Append(4, VQ_TEXT("&A&B"));

    EXPECT_EQ(last->mnemonic(), VQ_TEXT('B'));
    EXPECT_EQ(Shape(tree.Root()), "0(1 2 3 7 4)");
}
