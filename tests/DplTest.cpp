#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <set>
#include <thread>

#include "XmlTest.h"

namespace {

std::uintptr_t Word(const char* text) { return reinterpret_cast<std::uintptr_t>(text); }

class DplTest : public XmlTest {
  protected:
    std::string Formatted(const char* format, std::uintptr_t one = 0, std::uintptr_t two = 0,
                          std::uintptr_t three = 0) {
        ClearLog();
        ixLogModuleEventSimple(2, 6070, "file", 7, format, one, two, three);
        const std::vector<LogLine> lines = Log();
        return lines.size() == 1 ? lines[0].text : "(not one line)";
    }
};

TEST_F(DplTest, LogLinesPutTheirWordsIntoTheFormat) {
    const auto minus = static_cast<std::uintptr_t>(std::intptr_t{-5});
    EXPECT_EQ(Formatted("plain"), "plain");
    EXPECT_EQ(Formatted("%s, %d and %u", Word("a%sb"), minus, 7), "a%sb, -5 and 7");
    EXPECT_EQ(Formatted("%x 100%% [%s]", 255, 0), "ff 100% [(null)]");
    EXPECT_EQ(Formatted("%ld %08x %c", minus, 16, 'z'), "-5 10 z");
    EXPECT_EQ(Formatted("ends in %"), "ends in ");
    EXPECT_EQ(Log()[0], (LogLine{2, 6070, "file", 7, "ends in "}));
}

// A whole document can be an argument, and a sink must not be handed more than it can store.
TEST_F(DplTest, LogTextIsBounded) {
    const std::string most(kIxDplHostLogLimit, 'x');
    const std::string cut = most.substr(3) + "...";
    // Compared as flags, so that a failure does not print the texts.
    EXPECT_TRUE(Formatted("%s", Word(most.substr(1).c_str())) == most.substr(1));
    EXPECT_TRUE(Formatted("%s", Word(most.c_str())) == most) << "a text of exactly the limit is not cut";
    EXPECT_TRUE(Formatted("%s", Word((most + "y").c_str())) == cut);
    EXPECT_TRUE(Formatted("%s%s", Word(most.c_str()), Word("y")) == cut);
}

TEST_F(DplTest, OnlyTheLevelsOfTheMaskReachTheSink) {
    std::vector<int> levels;
    const auto sink = [](const ixDplHostLogLine& line, void* context) {
        static_cast<std::vector<int>*>(context)->push_back(line.level);
    };
    ixDplHostSetLogSink(sink, &levels, 1U | (1U << 2) | (1U << 31));
    for (int level = -1; level < 40; ++level) ixLogModuleEventSimple(level, 1, "file", 1, "text", 0, 0, 0);
    EXPECT_EQ(levels, (std::vector<int>{0, 2, 31}));
    ixDplHostSetLogSink(nullptr, nullptr, kIxDplHostAllLevels);
    ixLogModuleEventSimple(2, 1, "file", 1, "text", 0, 0, 0);
    EXPECT_EQ(levels.size(), 3U);
}

TEST_F(DplTest, TheLedgerTellsWhatIsAliveAndWhatWasRemovedWrongly) {
    int objects[3];
    trmemlog_add(14, "one", 1, &objects[0], 4);
    trmemlog_add(1, "two", 2, &objects[1], 8);
    trmemlog_add(14, "none", 3, nullptr, 4);
    std::string seen;
    ixDplHostVisitLedger(
        [](const ixDplHostBlock& block, void* context) {
            *static_cast<std::string*>(context) += std::to_string(block.module) + block.source +
                                                   std::to_string(block.line) + "/" + std::to_string(block.size) + " ";
        },
        &seen);
    EXPECT_EQ(seen, "14one1/4 1two2/8 ");
    trmemlog_remove(14, &objects[0]);
    trmemlog_remove(14, &objects[0]);
    EXPECT_EQ(ixDplHostLedger().doubleRemovals, 1U);
    EXPECT_EQ(ixDplHostLedger().unknownRemovals, 0U);
    trmemlog_remove(14, &objects[2]);
    EXPECT_EQ(ixDplHostLedger().unknownRemovals, 1U);
    trmemlog_remove(14, &objects[1]);  // Registered under module 1.
    EXPECT_EQ(ixDplHostLedger().unknownRemovals, 2U);
    EXPECT_EQ(ixDplHostLedger().liveObjects, 0U);
    // An address may be used again.
    trmemlog_add(14, "again", 1, &objects[0], 4);
    trmemlog_remove(14, &objects[0]);
    EXPECT_EQ(ixDplHostLedger().doubleRemovals, 1U);
    ixDplHostEnableLedger(true);
    EXPECT_EQ(ixDplHostLedger().unknownRemovals, 0U);
}

TEST_F(DplTest, AWrongRemovalIsToldWithTheObjectThatWasThere) {
    std::vector<std::string> told;
    ixDplHostSetMisuseHandler(
        [](const ixDplHostMisuse& misuse, void* context) {
            char* text = nullptr;
            std::size_t size = 0;
            std::FILE* const file = open_memstream(&text, &size);
            ixDplHostPrintMisuse(file, misuse);
            std::fclose(file);
            std::string line(text, size);
            std::free(text);
            // An address differs from run to run.
            const std::size_t address = line.find("0x");
            line.replace(address, line.find_first_of(" ,\n", address) - address, "P");
            static_cast<std::vector<std::string>*>(context)->push_back(line);
        },
        &told);
    int objects[2];
    trmemlog_add(14, "one", 1, &objects[0], 4);
    trmemlog_add(14, "two", 2, &objects[1], 8);
    trmemlog_remove(14, &objects[0]);
    trmemlog_remove(14, &objects[0]);
    trmemlog_remove(1, &objects[1]);
    trmemlog_remove(14, &told);
    // The address has had another object since.
    trmemlog_add(1, "three", 3, &objects[0], 16);
    trmemlog_remove(1, &objects[0]);
    trmemlog_remove(14, &objects[0]);
    EXPECT_EQ(told, (std::vector<std::string>{
                        "deleted twice: P under module 14, object 1 of module 14 one:1 4 bytes, deleted first when 2 "
                        "was the newest\n",
                        "deleted under another module: P under module 1, object 2 of module 14 two:2 8 bytes\n",
                        "deleted, but not registered: P under module 14\n",
                        "deleted twice: P under module 14, object 3 of module 1 three:3 16 bytes, deleted first when 3 "
                        "was the newest\n"}));
    int visited = 0;
    ixDplHostVisitMisuses([](const ixDplHostMisuse&, void* context) { ++*static_cast<int*>(context); }, &visited);
    EXPECT_EQ(visited, 4);

    // The calls of the first removal.
    told.clear();
    ixDplHostTraceRemovals(true);
    trmemlog_add(14, "one", 1, &objects[0], 4);
    trmemlog_remove(14, &objects[0]);
    trmemlog_remove(14, &objects[0]);
    ixDplHostTraceRemovals(false);
    ASSERT_EQ(told.size(), 1U);
#if __has_include(<execinfo.h>)
    EXPECT_NE(told[0].find("\n  by "), std::string::npos) << told[0];
#endif
    ixDplHostSetMisuseHandler(nullptr, nullptr);
    ixDplHostEnableLedger(true);
    visited = 0;
    ixDplHostVisitMisuses([](const ixDplHostMisuse&, void* context) { ++*static_cast<int*>(context); }, &visited);
    EXPECT_EQ(visited, 0);
}

// The second time the C library ends the process, so what is wrong has to be said before.
TEST(DplDeathTest, ABlockThatIsFreedTwiceIsToldAtOnce) {
    const auto twice = [] {
        ixDplHostEnableLedger(true);
        ixDplHostSetMisuseHandler([](const ixDplHostMisuse& misuse, void*) { ixDplHostPrintMisuse(stderr, misuse); },
                                  nullptr);
        void* const block = __malloc(40);
        trmemlog_add(14, "maker", 7, block, 40);
        trmemlog_remove(14, block);
        __free(block);
        __free(block);
        std::abort();
    };
    EXPECT_DEATH(twice(), "freed twice: 0x[0-9a-f]+, object 1 of module 14 maker:7 40 bytes");
}

TEST_F(DplTest, TheKindOfALineIsToldByItsText) {
    const std::pair<ixDplHostLogKind, const char*> table[] = {
        {kIxDplHostFault, "<XML Module>: AddEntryElementToXml Uri mandatory attribute"},
        {kIxDplHostFault, "XmlDecoder:: m_strDup: Malloc unable to allocate memory"},
        {kIxDplHostFault, "<XML Module>: XML Decode Failure in poip"},
        {kIxDplHostFault, "stack overflow\n"},
        {kIxDplHostRejected, "<XML Module>XMLPresenceDecoder :: ProcessAnyElement is not supported when person"},
        // Names of elements and texts of documents can be any words.
        {kIxDplHostRejected, "Cannot accommodate the element failed with value (null)"},
        {kIxDplHostProgress, "<XML Module>: ReginfoMarshaller XML <?xml version=\"1.0\"?><note>delivery failed</note>"},
        {kIxDplHostProgress, "<XML Module>: Xcap_ErrorMarshall :: Marshall"},
        {kIxDplHostProgress, "XmlDecoder:: DecodeAttributes 0"},
    };
    for (const auto& [kind, text] : table) {
        EXPECT_EQ(ixDplHostKindOf({2, 6070, "file", 1, text}), kind) << text;
        for (const ixDplHostLogKind least : {kIxDplHostProgress, kIxDplHostRejected, kIxDplHostFault}) {
            int lines = 0;
            ixDplHostLogFilter filter = {[](const ixDplHostLogLine&, void* context) { ++*static_cast<int*>(context); },
                                         &lines, least};
            ixDplHostSetLogSink(ixDplHostFilterLog, &filter, kIxDplHostAllLevels);
            ixLogModuleEventSimple(2, 6070, "file", 1, "%s", Word(text), 0, 0);
            EXPECT_EQ(lines, kind >= least ? 1 : 0) << text;
        }
    }
    ixDplHostSetLogSink(nullptr, nullptr, 0);
}

TEST_F(DplTest, TheNthAllocationFailsAndThoseThatFollowIt) {
    void* blocks[5];
    ixDplHostFailAllocation(2, 2);
    blocks[0] = __malloc(0);
    blocks[1] = __calloc(2, 2);
    blocks[2] = __strdup("text");
    blocks[3] = __strdup("text");
    EXPECT_EQ(ixDplHostAllocations(), 4U);
    ixDplHostFailAllocation(0);
    blocks[4] = __calloc(3, 1);
    EXPECT_EQ(ixDplHostAllocations(), 1U);
    EXPECT_TRUE(blocks[0] != nullptr && blocks[3] != nullptr && blocks[4] != nullptr);
    EXPECT_TRUE(blocks[1] == nullptr && blocks[2] == nullptr);
    EXPECT_EQ(std::memcmp(blocks[4], "\0\0\0", 3), 0);
    EXPECT_EQ(ixDplHostLedger().liveHeapBlocks, 3U);
    for (void* block : blocks) __free(block);
    EXPECT_EQ(__calloc(SIZE_MAX / 2 + 1, 2), nullptr);
    EXPECT_EQ(__strdup(nullptr), nullptr);
}

// Freed blocks serve again, so one that was kept as larger than it is would be written past its end. Without the
// fixture, whose ledger keeps blocks from being kept.
TEST(BlockCacheTest, BlocksThatServeAgainHaveTheirSize) {
    const auto work = [] {
        constexpr std::size_t kMost = 600;
        std::vector<unsigned char*> blocks;
        for (int round = 0; round < 3; ++round) {
            for (std::size_t i = 0; i < 20 * kMost; ++i) {
                const std::size_t size = i % kMost;
                blocks.push_back(static_cast<unsigned char*>(i % 7 == 0 ? __calloc(size, 1) : __malloc(size)));
                if (i % 7 == 0) {
                    ASSERT_TRUE(std::all_of(blocks.back(), blocks.back() + size, [](int byte) { return byte == 0; }));
                }
                std::memset(blocks.back(), static_cast<int>(i % 251), size);
            }
            for (std::size_t i = 0; i < blocks.size(); ++i) {
                const std::size_t size = i % kMost;
                const bool kept = size == 0 || (blocks[i][0] == i % 251 && blocks[i][size - 1] == i % 251);
                ASSERT_TRUE(kept) << "block " << i;
                __free(blocks[i]);
            }
            blocks.clear();
        }
    };
    std::thread other(work);
    work();
    other.join();
}

// One thread that only takes and one that only frees, and threads that come and go, live on the blocks that there are.
TEST(BlockCacheTest, BlocksComeBackFromOtherThreads) {
    constexpr std::size_t kCount = 5000;
    constexpr std::size_t kSize = 200;
    std::set<void*> seen;
    for (int round = 0; round < 20; ++round) {
        std::vector<void*> blocks(kCount);
        std::thread([&] { std::generate(blocks.begin(), blocks.end(), [] { return __malloc(kSize); }); }).join();
        seen.insert(blocks.begin(), blocks.end());
        ASSERT_EQ(std::set<void*>(blocks.begin(), blocks.end()).size(), kCount);
        std::thread([&] { std::for_each(blocks.begin(), blocks.end(), __free); }).join();
    }
#if !defined(__SANITIZE_ADDRESS__)
    EXPECT_LT(seen.size(), kCount + kCount / 2);
#endif
}

// What is freed while a thread ends, when its cache has gone, serves as well.
TEST(BlockCacheTest, BlocksAreFreedWhileThreadsEnd) {
    struct Late {
        void* block = nullptr;
        ~Late() {
            __free(block);
            __free(__malloc(40));
        }
    };
    std::thread([] {
        static thread_local Late late;
        late.block = nullptr;
        late.block = __malloc(40);
    }).join();
    void* const block = __malloc(40);
    std::thread([block] { __free(block); }).join();
}

TEST_F(DplTest, CopiesStayWithinTheirBuffer) {
    char text[8] = "#######";
    EXPECT_EQ(__strlcpy(text, "abc", 0), 3U);
    EXPECT_STREQ(text, "#######");
    EXPECT_EQ(__strlcpy(text, "abcdef", 4), 6U);
    EXPECT_EQ(std::string(text, 7), std::string("abc\0###", 7));
    EXPECT_EQ(__strlcat(text, "de", 6), 5U);
    EXPECT_STREQ(text, "abcde");
    EXPECT_EQ(__strlcat(text, "fgh", 7), 8U);
    EXPECT_EQ(std::string(text, 8), std::string("abcdef\0\0", 8));
    EXPECT_EQ(__strlcat(text, "xyz", 3), 6U);  // No NUL within the size: nothing is written.
    EXPECT_STREQ(text, "abcdef");
    struct {
        std::size_t size, count;
        const char* result;
    } const table[] = {{8, 3, "uvw"}, {4, 9, "uvw"}, {4, 4, "uvw"}, {1, 5, ""}, {8, 9, "uvwxy"}, {8, 0, ""}};
    for (const auto& row : table) {
        char copy[8] = "#######";
        EXPECT_EQ(__strlncpy(copy, row.size, "uvwxy", row.count), copy);
        EXPECT_STREQ(copy, row.result) << row.size << ' ' << row.count;
    }
    EXPECT_EQ(*__strlncpy(text, 0, "x", 1), 'a');
    EXPECT_EQ(__strlen(nullptr), 0U);
    EXPECT_GT(__strcmp("\x80", "a"), 0);  // Unsigned, whatever `char` is.
    EXPECT_EQ(__strncmp("abX", "abY", 2), 0);
}

TEST_F(DplTest, NumbersBecomeTextWithinTheirBuffer) {
    struct {
        std::int64_t value;
        std::size_t size;
        int radix;
        const char* result;
    } const table[] = {{0, 2, 10, "0"},
                       {0, 1, 10, ""},
                       {-12, 4, 10, "-12"},
                       {-12, 3, 10, ""},
                       {255, 3, 16, "ff"},
                       {35, 2, 36, "z"},
                       {5, 8, 1, ""},
                       {5, 8, 37, ""},
                       {INT64_MAX, 20, 10, "9223372036854775807"},
                       {INT64_MIN, 21, 10, "-9223372036854775808"},
                       {INT64_MIN, 20, 10, ""},
                       {INT64_MIN, 66, 2, "-1000000000000000000000000000000000000000000000000000000000000000"}};
    for (const auto& row : table) {
        std::vector<char> buffer(row.size, '#');
        EXPECT_STREQ(__itoaL(row.value, buffer.data(), row.size, row.radix), row.result) << row.value;
    }
    char none = '#';
    EXPECT_EQ(__itoaL(1, &none, 0, 10), nullptr);
    EXPECT_EQ(__itoaL(1, nullptr, 5, 10), nullptr);
}

TEST_F(DplTest, TextBecomesTheNearestNumber) {
    struct {
        const char* text;
        int value;
        std::int64_t value64;
    } const table[] = {{" \t\n-12x", -12, -12},
                       {"+7 8", 7, 7},
                       {"", 0, 0},
                       {"abc", 0, 0},
                       {"- 1", 0, 0},
                       {nullptr, 0, 0},
                       {"0x10", 0, 0},
                       {"2147483647", INT_MAX, INT_MAX},
                       {"2147483648", INT_MAX, 2147483648LL},
                       {"-2147483649", INT_MIN, -2147483649LL},
                       {"9223372036854775808", INT_MAX, INT64_MAX},
                       {"-99999999999999999999", INT_MIN, INT64_MIN}};
    for (const auto& row : table) {
        errno = 0;
        EXPECT_EQ(__atoi(row.text), row.value) << row.value64;
        EXPECT_EQ(__atoi64(row.text), row.value64);
        EXPECT_EQ(errno, 0);
    }
}

class DeviceTest : public DplTest {
  protected:
    void SetUp() override {
        ASSERT_NE(mkdtemp(&m_folder[0]), nullptr);
        m_path = Path("file");
    }
    std::string Path(const char* name) const { return m_folder + "/" + name; }
    int Open(const std::string& path, int access) { return ixDplIODeviceOpen(&m_device, path.c_str(), access, 0); }
    std::string Contents() {
        char buffer[64];
        std::int32_t count = 1025;
        if (ixDplIODeviceRead(&m_device, buffer, sizeof buffer, &count) != 0) return "(error)";
        return {buffer, static_cast<std::size_t>(count)};
    }
    void TearDown() override {
        EXPECT_EQ(ixDplIODeviceClose(&m_device), 0);
        std::filesystem::remove_all(m_folder);
        DplTest::TearDown();
    }

    std::string m_folder = testing::TempDir() + "deviceXXXXXX";
    std::string m_path;
    ixDplIODevice m_device{0, IX_DPL_IO_FILE, 0, nullptr, 0, 0};
};

// Devices have these numbers in their own layers.
static_assert(IX_DPL_IO_FILE == 2 && IX_DPL_IO_READ == 3 && IX_DPL_IO_WRITE == 4 && IX_DPL_IO_READ_WRITE == 5, "");

TEST_F(DeviceTest, WhatCannotBeOpenedLeavesTheDeviceClosed) {
    const std::string pipe = Path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    struct {
        std::string path;
        int access, result;
    } const table[] = {{m_path, IX_DPL_IO_READ, ENOENT},
                       {Path("no/file"), IX_DPL_IO_WRITE, ENOENT},
                       {Path(""), IX_DPL_IO_READ, EISDIR},
                       {Path(""), IX_DPL_IO_READ_WRITE, EISDIR},
                       {pipe, IX_DPL_IO_READ, EINVAL},  // Must not wait for a writer.
                       {m_path, 2, EINVAL},
                       {m_path, 6, EINVAL}};
    for (const auto& row : table) {
        EXPECT_EQ(Open(row.path, row.access), row.result) << row.path;
        EXPECT_EQ(m_device.handle, 0U);
        EXPECT_EQ(m_device.pSpecificInfo, nullptr);
    }
    std::int32_t count = 0;
    char byte = 'x';
    EXPECT_EQ(ixDplIODeviceRead(&m_device, &byte, 1, &count), EINVAL);
    EXPECT_EQ(ixDplIODeviceWrite(&m_device, &byte, 1, &count, 1), EINVAL);
    EXPECT_EQ(ixDplIODeviceClose(&m_device), 0);
    EXPECT_EQ(ixDplIODeviceOpen(&m_device, nullptr, IX_DPL_IO_READ, 0), EINVAL);
    EXPECT_EQ(access(m_path.c_str(), F_OK), -1);
}

TEST_F(DeviceTest, AFileIsWrittenReadAndReopened) {
    std::int32_t written = 0;
    ASSERT_EQ(Open(m_path, IX_DPL_IO_WRITE), 0);
    EXPECT_EQ(ixDplIODeviceWrite(&m_device, "abcdef", 6, &written, 1), 0);
    EXPECT_EQ(written, 6);
    EXPECT_EQ(Contents(), "(error)");
    // Opening again closes the first file and starts at its beginning.
    ASSERT_EQ(Open(m_path, IX_DPL_IO_READ_WRITE), 0);
    EXPECT_EQ(m_device.pSpecificInfo->fileSize, 6U);
    EXPECT_EQ(ixDplIODeviceWrite(&m_device, "XY", 2, &written, 1), 0);
    EXPECT_EQ(Contents(), "cdef");
    EXPECT_EQ(Contents(), "");
    ASSERT_EQ(Open(m_path, IX_DPL_IO_READ), 0);
    EXPECT_EQ(Contents(), "XYcdef");
    EXPECT_NE(ixDplIODeviceWrite(&m_device, "Z", 1, &written, 1), 0);
    EXPECT_EQ(written, 0);
    ASSERT_EQ(Open(m_path, IX_DPL_IO_WRITE), 0);
    EXPECT_EQ(m_device.pSpecificInfo->fileSize, 0U);
    EXPECT_NE(Open(Path("missing"), IX_DPL_IO_READ), 0);
    EXPECT_EQ(m_device.handle, 0U);
    EXPECT_EQ(ReadFile(m_path), "");
}

// The size of a file has to fit the signed count of a read.
TEST_F(DeviceTest, FilesPastTheSignedRangeAreRefused) {
    ASSERT_EQ(Open(m_path, IX_DPL_IO_WRITE), 0);
    ixDplIODeviceClose(&m_device);
    ASSERT_EQ(truncate(m_path.c_str(), INT_MAX), 0);
    ASSERT_EQ(Open(m_path, IX_DPL_IO_READ), 0);
    EXPECT_EQ(m_device.pSpecificInfo->fileSize, static_cast<std::uint32_t>(INT_MAX));
    ASSERT_EQ(truncate(m_path.c_str(), static_cast<off_t>(INT_MAX) + 1), 0);
    EXPECT_EQ(Open(m_path, IX_DPL_IO_READ), EFBIG);
    ixDplHostFailAllocation(1);
    ASSERT_EQ(truncate(m_path.c_str(), 0), 0);
    EXPECT_EQ(Open(m_path, IX_DPL_IO_READ), ENOMEM);
}

}  // namespace
