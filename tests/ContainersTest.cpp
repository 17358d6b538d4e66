
#include "XMLList.h"
#include "XMLStack.h"
#include "XmlCommon.h"
#include "XmlTest.h"

namespace {

LogLine Line(const char* file, int level, int line, const std::string& text) {
    return {level, 6070, std::string("ims/xml/src/") + file, line, text};
}

LogLine List(int level, int line, const std::string& text) { return Line("XMLList", level, line, text); }

constexpr char kConstructed[] = "<XML Module>: IxSingleElementList::IxSingleElementList";
constexpr char kAdd[] = "<XML Module>: IxSingleElementList::Add";
constexpr char kRemove[] = "<XML Module>: IxSingleElementList::Remove";
constexpr char kNoHead[] = "IxSingleElementList::GetKeyAtIndex: Head itself is null and No item is there to be removed";
constexpr char kNoIndex[] = "IxSingleElementList::GetKeyAtIndex: Invalid index";

class ContainersTest : public XmlTest {
  protected:
    /// The lines since the last call.
    std::vector<LogLine> NewLines() {
        std::vector<LogLine> lines = Log();
        ClearLog();
        return lines;
    }
    /// The entries as offsets into `m_items`, "-" for NULL.
    std::string Entries(const IxSingleElementList& list) {
        std::string text;
        for (const char* entry : XmlEntries<char>(&list))
            text += entry != nullptr ? std::to_string(entry - m_items) : "-";
        return text;
    }
    char m_items[10] = {};
};

using Lines = std::vector<LogLine>;

TEST_F(ContainersTest, ListsLogWhatTheyDo) {
    {
        IxSingleElementList list;
        EXPECT_EQ(NewLines(), (Lines{List(3, 35, kConstructed)}));
        EXPECT_EQ(list.Add(&m_items[0]), 1U);
        EXPECT_EQ(NewLines(), (Lines{List(3, 82, kAdd), List(3, 117, "<XML Module>: m_iListCount: 1")}));
        EXPECT_EQ(list.Add(&m_items[1]), 1U);
        EXPECT_EQ(NewLines(), (Lines{List(3, 82, kAdd), List(3, 100, "<XML Module>: m_iListCount: 2")}));
        EXPECT_EQ(list.Remove(&m_items[0]), 1U);
        EXPECT_EQ(NewLines(), (Lines{List(3, 142, kRemove)}));
        EXPECT_EQ(list.Remove(&m_items[0]), 0U);
        EXPECT_EQ(NewLines(),
                  (Lines{List(3, 142, kRemove),
                         List(4, 178, "<XML Module> IxSingleElementList::Remove: Entry not found in the list")}));
        EXPECT_EQ(list.GetPtrToListEnd(), nullptr);
        EXPECT_NE(list.GetPtrToListHead(), nullptr);
        EXPECT_EQ(NewLines(), Lines{});
    }
    // Required: the destructor logs the constructor's text.
    EXPECT_EQ(NewLines(), (Lines{List(3, 56, kConstructed)}));
}

TEST_F(ContainersTest, EmptyListsHaveTheirOwnLines) {
    IxSingleElementList list;
    ClearLog();
    EXPECT_EQ(list.Remove(nullptr), 0U);
    EXPECT_EQ(NewLines(), (Lines{List(3, 142, kRemove),
                                 List(4, 146, "<XML Module> IxSingleElementList::Remove: Head itself is null")}));
    EXPECT_EQ(list.GetKeyAtIndex(0), nullptr);
    EXPECT_EQ(NewLines(), (Lines{List(4, 198, kNoHead)}));
    EXPECT_EQ(list.GetPtrToListHead(), nullptr);
    EXPECT_EQ(NewLines(), (Lines{List(4, 238, kNoHead)}));
    EXPECT_EQ(list.GetPtrToListEnd(), nullptr);
    EXPECT_EQ(NewLines(), (Lines{List(4, 265, kNoHead)}));
}

TEST_F(ContainersTest, WithoutMemoryAListStaysAsItIs) {
    IxSingleElementList list;
    ClearLog();
    ixDplHostFailAllocation(1);
    EXPECT_EQ(list.Add(&m_items[0]), 0U);
    EXPECT_EQ(NewLines(),
              (Lines{List(3, 82, kAdd), List(4, 122, "<XML Module>: IxSingleElementList:Add m_pHead Buffer is NULL")}));
    EXPECT_EQ(list.LastNode(), nullptr);
    list.Add(&m_items[0]);
    ClearLog();
    ixDplHostFailAllocation(1);
    EXPECT_EQ(list.Add(&m_items[1]), 0U);
    EXPECT_EQ(NewLines(), (Lines{List(3, 82, kAdd),
                                 List(4, 105, "<XML Module>: IxSingleElementList:Add pTravNode Buffer is NULL")}));
    EXPECT_EQ(list.Add(&m_items[2]), 1U);
    EXPECT_EQ(Entries(list), "02");
    EXPECT_EQ(list.GetCount(), 2);
}

TEST_F(ContainersTest, KeysAreFoundByIndexUpToTheCount) {
    IxSingleElementList list;
    list.Add(&m_items[4]);
    list.Add(nullptr);
    list.Add(&m_items[5]);
    ClearLog();
    EXPECT_EQ(list.GetKeyAtIndex(0), &m_items[4]);
    EXPECT_EQ(list.GetKeyAtIndex(1), nullptr);
    EXPECT_EQ(list.GetKeyAtIndex(2), &m_items[5]);
    // Required: the index one past the end is let through and ends at nothing, without a line.
    EXPECT_EQ(list.GetKeyAtIndex(3), nullptr);
    EXPECT_EQ(NewLines(), Lines{});
    EXPECT_EQ(list.GetKeyAtIndex(4), nullptr);
    EXPECT_EQ(list.GetKeyAtIndex(65535), nullptr);
    EXPECT_EQ(NewLines(), (Lines{List(4, 206, kNoIndex), List(4, 206, kNoIndex)}));
}

// The end of the list is remembered, so every way of removing the last entry must move it.
TEST_F(ContainersTest, RemovingKeepsTheRestInOrderAndAppendable) {
    struct {
        const char* entries;  ///< Items by number, "-" for NULL.
        const char* removed;
        const char* left;  ///< After the removals and one more Add of item 9.
    } const table[] = {
        {"123", "1", "239"}, {"123", "2", "139"},  {"123", "3", "129"},  {"1", "1", "9"},    {"121", "1", "219"},
        {"11", "11", "9"},   {"123", "321", "9"},  {"-1-", "1", "--9"},  {"-1", "-", "-19"}, {"-", "-", "-9"},
        {"12-", "2", "1-9"}, {"1-2", "-2", "1-9"}, {"123", "4", "1239"},
    };
    const auto item = [this](char name) { return name == '-' ? nullptr : &m_items[name - '0']; };
    for (const auto& row : table) {
        IxSingleElementList list;
        for (const char* at = row.entries; *at != '\0'; ++at) list.Add(item(*at));
        for (const char* at = row.removed; *at != '\0'; ++at) list.Remove(item(*at));
        list.Add(&m_items[9]);
        EXPECT_EQ(Entries(list), row.left) << row.entries << " without " << row.removed;
        EXPECT_EQ(list.GetCount(), Entries(list).size());
    }
}

TEST_F(ContainersTest, TheCountWrapsAndTheEntriesStay) {
    IxSingleElementList list;
    for (int i = 0; i < 65535; ++i) list.Add(&m_items[1]);
    ClearLog();
    list.Add(&m_items[2]);
    EXPECT_EQ(NewLines().back(), List(3, 100, "<XML Module>: m_iListCount: 0"));
    EXPECT_EQ(list.GetKeyAtIndex(0), &m_items[1]);
    list.Add(&m_items[3]);
    EXPECT_EQ(list.GetCount(), 1);
    EXPECT_EQ(list.LastNode()->key, &m_items[3]);
    EXPECT_EQ(Entries(list).size(), 65537U);
    ClearLog();
    EXPECT_EQ(list.GetKeyAtIndex(2), nullptr);
    EXPECT_EQ(NewLines(), (Lines{List(4, 206, kNoIndex)}));
}

TEST_F(ContainersTest, NodesMoveToAnotherListInOrder) {
    IxSingleElementList to;
    IxSingleElementList from;
    from.Add(&m_items[1]);
    from.Add(&m_items[2]);
    to.TakeNodesOf(from);
    to.TakeNodesOf(from);
    from.Add(&m_items[3]);
    to.TakeNodesOf(from);
    to.Add(&m_items[4]);
    EXPECT_EQ(Entries(to), "1234");
    EXPECT_EQ(to.GetCount(), 4);
    EXPECT_EQ(Entries(from), "");
}

TEST_F(ContainersTest, TheStackHoldsAHundredItemsAndDropsTheNext) {
    char items[101] = {};
    XmlCodeGenStack stack;
    EXPECT_TRUE(stack.empty());
    EXPECT_EQ(stack.size(), -1);
    EXPECT_EQ(stack.top(), nullptr);
    EXPECT_EQ(NewLines(), (Lines{Line("XMLStack", 2, 41, "stack is empty\n")}));
    stack.pop();
    EXPECT_EQ(NewLines(), (Lines{Line("XMLStack", 2, 29, "stack underflow\n")}));
    EXPECT_EQ(stack.size(), -1);
    for (int i = 0; i < 100; ++i) {
        stack.push(&items[i]);
        // Required: one less than the number of items.
        EXPECT_EQ(stack.size(), i);
    }
    EXPECT_FALSE(stack.empty());
    EXPECT_EQ(NewLines(), Lines{});
    stack.push(&items[100]);
    EXPECT_EQ(NewLines(), (Lines{Line("XMLStack", 2, 15, "stack overflow\n")}));
    for (int i = 99; i >= 0; --i) {
        EXPECT_EQ(stack.top(), &items[i]);
        stack.pop();
    }
    EXPECT_TRUE(stack.empty());
    EXPECT_EQ(NewLines(), Lines{});
}

TEST_F(ContainersTest, NameChainsAppendSeekRemoveAndFree) {
    const auto count = [](void* data) { ++*static_cast<char*>(data); };
    BuddyLinkList chain(nullptr);
    EXPECT_EQ(chain.SeekEnd(), &chain);
    EXPECT_EQ(chain.RemoveLast(), nullptr);
    for (int i = 0; i < 3; ++i) ASSERT_NE(chain.SeekEnd()->Append(&m_items[i]), nullptr);
    std::string seen;
    ixDplHostVisitLedger(
        [](const ixDplHostBlock& block, void* context) {
            *static_cast<std::string*>(context) += std::to_string(block.module) + " " + block.source + ":" +
                                                   std::to_string(block.line) + " " +
                                                   std::to_string(block.size / sizeof(void*)) + "\n";
        },
        &seen);
    const std::string node = "1 ims/xml/src/XmlCommon:22 2\n";
    EXPECT_EQ(seen, node + node + node);
    BuddyLinkList* const last = chain.RemoveLast();
    EXPECT_EQ(last->m_pData, &m_items[2]);
    EXPECT_EQ(chain.SeekEnd()->m_pData, &m_items[1]);
    trmemlog_remove(1, last);
    delete last;
    ixDplHostFailAllocation(1);
    EXPECT_EQ(chain.SeekEnd()->Append(&m_items[3]), nullptr);
    chain.FreeList(count);
    EXPECT_EQ(std::string(m_items, 4), std::string("\1\1\0\0", 4));
}

// Append overwrites: what followed belongs to whoever kept a pointer to it.
TEST_F(ContainersTest, AppendingInTheMiddleOfAChainUnlinksWhatFollowed) {
    BuddyLinkList chain(nullptr);
    BuddyLinkList* const unlinked = chain.Append(&m_items[0]);
    EXPECT_EQ(chain.Append(&m_items[1]), chain.m_pNext);
    EXPECT_EQ(chain.m_pNext->m_pData, &m_items[1]);
    EXPECT_EQ(chain.m_pNext->m_pNext, nullptr);
    chain.FreeList(nullptr);
    EXPECT_EQ(m_items[1], 0);
    trmemlog_remove(1, unlinked);
    delete unlinked;
}

}  // namespace
