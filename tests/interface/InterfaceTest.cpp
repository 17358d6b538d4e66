// The C interface, as a program sees it that links the shared library: results, faults, failing allocations, threads.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <new>
#include <string>
#include <thread>
#include <vector>

#include "imsxml.h"
#include "ixDplHost.h"

namespace {

/// What `operator new` has given out, and which call of it is to fail; 0: none.
std::atomic<long> liveNews{0};
std::atomic<long> news{0};
std::atomic<long> failingNew{0};

void* New(std::size_t size) {
    const long number = news.fetch_add(1) + 1;
    void* const block = number == failingNew.load() ? nullptr : std::malloc(size != 0 ? size : 1);
    if (block == nullptr) throw std::bad_alloc();
    ++liveNews;
    return block;
}

void Delete(void* block) {
    if (block == nullptr) return;
    --liveNews;
    std::free(block);
}

}  // namespace

void* operator new(std::size_t size) { return New(size); }
void* operator new[](std::size_t size) { return New(size); }
void operator delete(void* block) noexcept { Delete(block); }
void operator delete[](void* block) noexcept { Delete(block); }
void operator delete(void* block, std::size_t /*size*/) noexcept { Delete(block); }
void operator delete[](void* block, std::size_t /*size*/) noexcept { Delete(block); }

namespace {

struct Answer {
    int status;
    std::string text;
    imsxml_problem problem;
};

using Transcode = int (*)(const char*, std::size_t, const char*, int, char**);

Answer Call(Transcode call, const std::string& text, const char* schema, int profile) {
    char unset = 0;
    char* result = &unset;
    Answer answer = {call(text.data(), text.size(), schema, profile, &result), {}, {}};
    imsxml_last_problem(&answer.problem);
    EXPECT_EQ(result != nullptr, answer.status == IMSXML_OK) << text;
    if (result != nullptr) answer.text = result;
    imsxml_free(result);
    return answer;
}

std::string Place(const imsxml_problem& problem) {
    return std::to_string(problem.line) + ':' + std::to_string(problem.column) + ' ' + problem.text;
}

/// The documents of a folder.
std::vector<std::string> Documents(const std::string& folder) {
    std::vector<std::string> documents;
    std::error_code none;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder, none)) {
        if (entry.path().extension() != ".xml") continue;
        std::ifstream file(entry.path(), std::ios::binary);
        documents.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return documents;
}

const char kGruu[] = R"(<pub-gruu xmlns="urn:ietf:params:xml:ns:gruuinfo" uri="sip:a@b;gr=1"/>)";
const char kGruuJson[] = R"({"schema":"gruu","root":{"class":"ix_pub_gruu","uri":"sip:a@b;gr=1"}})";
const char kGruuText[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<pub-gruu  uri=\"sip:a@b;gr=1\"/>";

}  // namespace

TEST(InterfaceTest, ReadsAndWrites) {
    for (const char* const schema : {static_cast<const char*>(nullptr), "gruu"}) {
        const Answer json = Call(imsxml_decode, kGruu, schema, IMSXML_PROFILE_DEVICE);
        EXPECT_EQ(json.status, IMSXML_OK) << Place(json.problem);
        EXPECT_EQ(json.text, kGruuJson);
        EXPECT_EQ(Place(json.problem), "0:0 ");
        EXPECT_EQ(Call(imsxml_encode, kGruuJson, schema, IMSXML_PROFILE_DEVICE).text, kGruuText);
    }
    const Answer typed = Call(imsxml_decode, "<reginfo version=\"1\"/>", "Application/Reginfo+xml; charset=utf-8",
                              IMSXML_PROFILE_DEVICE);
    EXPECT_EQ(typed.text, R"({"schema":"reginfo","root":{"class":"ix_reginfo","version":1}})");
    EXPECT_STREQ(imsxml_version(), IMSXML_VERSION);
    EXPECT_STREQ(imsxml_schema_of_content_type("message/imdn+xml"), "imdn");
    EXPECT_EQ(imsxml_schema_of_content_type("application/sdp"), nullptr);
    EXPECT_EQ(imsxml_schema_of_content_type(nullptr), nullptr);
    imsxml_last_problem(nullptr);
    imsxml_free(nullptr);
}

TEST(InterfaceTest, EachFaultHasItsStatusAndPlace) {
    const struct {
        Transcode call;
        const char* text;
        const char* schema;
        int profile;
        int status;
        const char* problem;
    } table[] = {
        {imsxml_decode, kGruu, nullptr, 2, IMSXML_WRONG_USE, "0:0 there is no such profile"},
        {imsxml_decode, kGruu, "gru", 0, IMSXML_UNKNOWN_SCHEMA,
         "0:0 no schema has the name \"gru\"; the nearest: gruu"},
        {imsxml_decode, kGruu, "text/plain", 0, IMSXML_UNKNOWN_SCHEMA,
         "0:0 no schema has the content type \"text/plain\""},
        {imsxml_decode, "<a>\n<b></c></a>", nullptr, 0, IMSXML_NOT_READ,
         "1:1 root element <a> is of no schema; the nearest: imdn (<imdn>), rlmi (<list>), file-transfer (<file>)"},
        {imsxml_decode, "<reginfo>\n<registration></c></reginfo>", nullptr, 0, IMSXML_NOT_READ,
         "2:15 end tag </c> does not match <registration> opened at 2:1"},
        {imsxml_decode, "<reginfo>\n<registration></c></reginfo>", nullptr, 1, IMSXML_NOT_READ,
         "2:15 not the end tag of the open element"},
        {imsxml_decode, "", nullptr, 1, IMSXML_NOT_READ, "0:0 the file is empty"},
        {imsxml_decode, "<3gpp-ims/>", "call-waiting-indication", 1, IMSXML_NOT_READ,
         "0:0 schema call-waiting-indication has no standard profile"},
        {imsxml_encode, "", nullptr, 0, IMSXML_WRONG_JSON, "0:0 there is no JSON"},
        {imsxml_encode, kGruuJson, "gru", 0, IMSXML_UNKNOWN_SCHEMA,
         "0:0 no schema has the name \"gru\"; the nearest: gruu"},
        {imsxml_encode, "{\"schema\":\"gru\",\n\"root\":{}}", nullptr, 0, IMSXML_WRONG_JSON,
         "1:2 schema: no schema has the name \"gru\"; the nearest: gruu"},
        {imsxml_encode, "{\"schema\":\"gruu\",\n \"root\":{\"class\":\"ix_pub_gruu\",\"url\":\"\"}}", nullptr, 0,
         IMSXML_WRONG_JSON, "2:32 root.url: ix_pub_gruu has no field \"url\"; the nearest: uri"},
        {imsxml_encode, R"({"schema":"gruu","root":{"class":"ix_pub_gruu"}} {})", nullptr, 0, IMSXML_WRONG_JSON,
         "1:50 there is more than one document"},
        {imsxml_encode, R"({"schema":"namespaces","root":{"class":"namespaceElement"}})", nullptr, 0, IMSXML_WRONG_JSON,
         "1:32 root.class: no object of the class \"namespaceElement\" stands here; the nearest: "
         "ix_schema_namespace_retrieval"},
        {imsxml_encode, R"({"schema":"gruu","root":{"class":"ix_temp_gruu"}})", nullptr, 1, IMSXML_NOT_WRITTEN,
         "0:0 schema gruu cannot write the document: <temp-gruu> has no attribute uri"},
        {imsxml_encode, R"({"schema":"wap-provisioning","root":{"class":"ix_wap_provisioning_doc"}})", nullptr, 0,
         IMSXML_NOT_WRITTEN, "0:0 documents of schema wap-provisioning are only read"},
    };
    for (const auto& row : table) {
        const Answer answer = Call(row.call, row.text, row.schema, row.profile);
        EXPECT_EQ(answer.status, row.status) << row.text << ' ' << Place(answer.problem);
        EXPECT_EQ(Place(answer.problem), row.problem) << row.text;
    }
    char* result = nullptr;
    EXPECT_EQ(imsxml_decode(nullptr, 0, nullptr, 0, &result), IMSXML_WRONG_USE);
    EXPECT_EQ(imsxml_decode(kGruu, sizeof kGruu - 1, nullptr, 0, nullptr), IMSXML_WRONG_USE);
    EXPECT_EQ(imsxml_encode(nullptr, 0, nullptr, 0, &result), IMSXML_WRONG_USE);
    EXPECT_EQ(imsxml_encode("", 0, nullptr, 0, nullptr), IMSXML_WRONG_USE);
    EXPECT_EQ(imsxml_validate(nullptr, 0, nullptr, nullptr, nullptr, nullptr), IMSXML_WRONG_USE);
}

TEST(InterfaceTest, LongProblemsAreCutBetweenCharacters) {
    std::string list = R"({"class":"ix_listType","a)";
    for (int i = 0; i < 30; ++i) list += "\xc3\xa9";
    list += R"(":1})";
    for (int i = 0; i < 17; ++i) list = R"({"class":"ix_listType","children":[)" + list + "]}";
    const Answer answer =
        Call(imsxml_encode, R"({"schema":"resource-lists","root":{"class":"ix_resource_lists","list":[)" + list + "]}}",
             nullptr, IMSXML_PROFILE_DEVICE);
    EXPECT_EQ(answer.status, IMSXML_WRONG_JSON);
    EXPECT_EQ(std::strlen(answer.problem.text), sizeof answer.problem.text - 2);
    EXPECT_EQ(std::string(answer.problem.text).substr(252), "\xc3\xa9") << answer.problem.text;
}

TEST(InterfaceTest, ValidateTellsEachPoint) {
    using Points = std::vector<std::string>;
    const auto add = [](int line, int column, const char* text, void* context) {
        static_cast<Points*>(context)->push_back(std::to_string(line) + ':' + std::to_string(column) + ' ' + text);
    };
    const std::string text = "<reginfo xmlns=\"urn:ietf:params:xml:ns:reginfo\" version=\"x\"\n state=\"whole\"/>";
    Points points;
    int count = 7;
    EXPECT_EQ(imsxml_validate(text.data(), text.size(), nullptr, add, &points, &count), IMSXML_OK);
    EXPECT_EQ(points, (Points{"1:49 \"x\" is not a number that fits", "2:2 \"whole\" is not a word of the standard"}));
    EXPECT_EQ(count, 2);
    EXPECT_EQ(imsxml_validate(text.data(), text.size() - 1, "reginfo", add, &points, &count), IMSXML_NOT_READ);
    EXPECT_EQ(count, -1);
    EXPECT_EQ(points.size(), 3U);
    imsxml_problem problem;
    imsxml_last_problem(&problem);
    EXPECT_EQ(points.back(), Place(problem));
    EXPECT_EQ(imsxml_validate(kGruu, sizeof kGruu - 1, "gru", add, &points, &count), IMSXML_UNKNOWN_SCHEMA);
    EXPECT_EQ(imsxml_validate(kGruu, sizeof kGruu - 1, nullptr, nullptr, nullptr, &count), IMSXML_OK);
    EXPECT_EQ(count, 0);
}

// What the device profile leaves to nobody must not pile up in a program that reads what strangers send.
TEST(InterfaceTest, BrokenDocumentsLeaveNothing) {
    ixDplHostEnableLedger(true);
    for (const std::string& text : Documents(PROJECT_DIR "/samples")) {
        for (const int profile : {IMSXML_PROFILE_DEVICE, IMSXML_PROFILE_STANDARD}) {
            for (std::size_t length = 0; length < text.size(); length += text.size() / 17 + 1) {
                Call(imsxml_decode, text.substr(0, length), nullptr, profile);
            }
        }
    }
    const char kTwice[] = R"(<isComposing xmlns="urn:ietf:params:xml:ns:im-iscomposing"><state>idle</state>)"
                          R"(<state>active</state></isComposing>)";
    EXPECT_EQ(Call(imsxml_decode, kTwice, nullptr, IMSXML_PROFILE_DEVICE).status, IMSXML_OK);
    EXPECT_EQ(ixDplHostLedger().liveHeapBlocks, 0U);
    EXPECT_EQ(ixDplHostLedger().liveObjects, 0U);
    ixDplHostEnableLedger(false);
}

namespace {

/// Validates a document, and yields the JSON of another one, so that there is a result.
int ValidateFirst(const char* text, std::size_t length, const char* schema, int profile, char** result) {
    *result = nullptr;
    const int status = imsxml_validate(text, length, schema, nullptr, nullptr, nullptr);
    return status == IMSXML_OK ? imsxml_decode(kGruu, sizeof kGruu - 1, nullptr, profile, result) : status;
}

/// One of the two sources of memory, of which an allocation can be made to fail.
struct Source {
    const char* name;
    void (*fail)(long number);
    /// @return true when there were that many allocations.
    bool (*stop)(long number);
    /// What is alive.
    long (*live)();
};

const Source kNew = {"new",
                     [](long number) {
                         news = 0;
                         failingNew = number;
                     },
                     [](long number) {
                         failingNew = 0;
                         return news >= number;
                     },
                     [] { return liveNews.load(); }};

// The ledger takes memory from `operator new` itself, so it is on only where that one does not fail.
const Source kPlatform = {"platform",
                          [](long number) {
                              ixDplHostEnableLedger(true);
                              ixDplHostFailAllocation(static_cast<unsigned long>(number));
                          },
                          [](long number) {
                              const bool hasFailed = ixDplHostAllocations() >= static_cast<unsigned long>(number);
                              ixDplHostStopCounting();
                              return hasFailed;
                          },
                          [] { return static_cast<long>(ixDplHostLedger().liveHeapBlocks); }};

/// Runs a call with each of its allocations failing.
void FailEach(const Source& source, const std::string& name, Transcode call, const std::string& text, int profile) {
    const Answer whole = Call(call, text, nullptr, profile);
    for (long failing = 1; !testing::Test::HasFailure(); ++failing) {
        char* result = nullptr;
        const long before = source.live();
        source.fail(failing);
        const int status = call(text.data(), text.size(), nullptr, profile, &result);
        const bool hasFailed = source.stop(failing);
        const bool hasResult = result != nullptr;
        imsxml_free(result);
        const long after = source.live();
        ixDplHostEnableLedger(false);
        imsxml_problem problem;
        imsxml_last_problem(&problem);
        const std::string place = name + ' ' + source.name + ' ' + std::to_string(failing);
        EXPECT_EQ(status, hasFailed ? IMSXML_NO_MEMORY : whole.status) << place;
        EXPECT_EQ(hasResult, status == IMSXML_OK) << place;
        EXPECT_EQ(after, before) << place;
        EXPECT_STREQ(problem.text, hasFailed ? "no memory" : whole.problem.text) << place;
        if (!hasFailed) break;
    }
}

void FailEachOf(const std::string& name, Transcode call, const std::string& text, int profile) {
    for (const Source* const source : {&kNew, &kPlatform}) FailEach(*source, name, call, text, profile);
}

}  // namespace

TEST(InterfaceTest, EveryFailingAllocationIsToldAndLeavesNothing) {
    for (const char* const name :
         {"reginfo/odd", "simservs/rich", "presence/rich", "resource-lists/rich", "imdn/odd"}) {
        std::ifstream file(std::string(PROJECT_DIR "/samples/") + name + ".xml", std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        ASSERT_FALSE(text.empty()) << name;
        for (const int profile : {IMSXML_PROFILE_DEVICE, IMSXML_PROFILE_STANDARD}) {
            const std::string place = name + std::string(profile == IMSXML_PROFILE_DEVICE ? " device" : " standard");
            FailEachOf(place + " decode", imsxml_decode, text, profile);
            const Answer json = Call(imsxml_decode, text, nullptr, profile);
            FailEachOf(place + " encode", imsxml_encode, json.text, profile);
            FailEachOf(place + " validate", ValidateFirst, text, profile);
        }
    }
    FailEachOf("syntax", imsxml_encode, "{\"schema\":\"gruu\",\"root\":{\"class\":tru}}", 0);
    FailEachOf("key", imsxml_encode, R"({"schema":"gruu","root":{"class":"ix_pub_gruu","url":"x"}})", 0);
    FailEachOf("broken", imsxml_decode, "<reginfo><registration></reginfo>", 0);
}

TEST(InterfaceTest, ThreadsDoNotMeet) {
    const std::vector<std::string> documents = Documents(PROJECT_DIR "/samples");
    const auto run = [&](std::vector<std::string>* results) {
        for (const std::string& text : documents) {
            for (const int profile : {IMSXML_PROFILE_DEVICE, IMSXML_PROFILE_STANDARD}) {
                const Answer json = Call(imsxml_decode, text, nullptr, profile);
                const Answer back = Call(imsxml_encode, json.text, nullptr, profile);
                results->push_back(json.text + back.text + Place(json.problem) + Place(back.problem));
            }
        }
    };
    std::vector<std::string> alone;
    run(&alone);
    std::vector<std::string> results[4];
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (auto& result : results) threads.emplace_back(run, &result);
    for (std::thread& thread : threads) thread.join();
    for (const auto& result : results) EXPECT_EQ(result, alone);
}
