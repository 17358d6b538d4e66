// The library on a platform layer that is not the project's own. Plain checks, so that this program takes nothing of
// the other tests, which link the host's layer.
#include <cstdio>
#include <cstring>

#include "OtherDpl.h"
#include "XMLCommunicationWaiting.h"
#include "XMLFile.h"
#include "XMLGruu.h"

namespace {

int g_failures = 0;

void Check(bool holds, const char* what, int line) {
    if (holds) return;
    std::fprintf(stderr, "line %d: %s\n", line, what);
    ++g_failures;
}

#define CHECK(condition) Check((condition), #condition, __LINE__)

void ExpectNothingAlive(int line) {
    Check(other_dpl::LiveBlocks() == 0, "no block is alive", line);
    Check(other_dpl::LiveObjects() == 0, "no object is alive", line);
}

bool IsText(const char* text, const char* expected) { return text != nullptr && std::strcmp(text, expected) == 0; }

void ReadsAndWrites() {
    XMLContext* const context = XMLFactory::newInstance(IX_XML_SCHEMA_COMMUNICATION_WAITING);
    CHECK(other_dpl::InArena(context));
    XMLUnMarshaller* const reader = context->createUnMarshaller();
    XMLMarshaller* const writer = context->createMarshaller();
    CHECK(other_dpl::InArena(reader) && other_dpl::InArena(writer));
    auto* const root = static_cast<ix_communication_waiting*>(
        reader->UnMarshall("<ss:communication-waiting vendor='7' active=\"true\"></ss:communication-waiting>"));
    CHECK(other_dpl::InArena(root));
    if (root != nullptr) {
        CHECK(root->mActive == 1);
        CHECK(other_dpl::InArena(root->mExtensionList));
        root->setActiveValue(0);
        const char* const text = writer->Marshall(root);
        CHECK(other_dpl::InArena(text));
        CHECK(IsText(text, "<communication-waiting  vendor=\"7\"  active=\"false\"/>"));
    }
    XMLFactory::DeleteElement(root);
    XMLFactory::deleteContext(context);
    ExpectNothingAlive(__LINE__);
    CHECK(other_dpl::Allocations() > 0);
}

void ConvertsNumbers() {
    XMLContext* const context = XMLFactory::newInstance(IX_XML_SCHEMA_GRUU);
    auto* const root = static_cast<ix_temp_gruu*>(
        context->createUnMarshaller()->UnMarshall("<temp-gruu uri=\"sip:a@b;gr\" first-cseq=\" 17\"/>"));
    CHECK(root != nullptr && root->mFirstCseq == 17);
    CHECK(IsText(context->createMarshaller()->Marshall(root),
                 "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<temp-gruu  first-cseq=\"17\"  uri=\"sip:a@b;gr\"/>"));
    XMLFactory::DeleteElement(root);
    XMLFactory::deleteContext(context);
    ExpectNothingAlive(__LINE__);
}

void Logs() {
    const std::size_t before = other_dpl::LogLines();
    XMLContext* const context = XMLFactory::newInstance(IX_XML_SCHEMA_GRUU);
    CHECK(context->createMarshaller()->Marshall(nullptr) == nullptr);
    XMLFactory::deleteContext(context);
    CHECK(other_dpl::LogLines() > before);
}

void FailsWithoutFiles() {
    {
        XMLFile file("file.xml", eXMLFileReadWrite);
        CHECK(file.OpenFile() == 0);
        CHECK(file.Read() == nullptr);
        CHECK(file.Write("text") == 0);
        XMLContext* const context = XMLFactory::newInstance(IX_XML_SCHEMA_COMMUNICATION_WAITING);
        CHECK(context->createUnMarshaller()->UnMarshall(&file) == nullptr);
        XMLFactory::deleteContext(context);
        CHECK(file.CloseFile() == 1);
    }
    CHECK(other_dpl::Opens() == 4);
    ExpectNothingAlive(__LINE__);
}

void StandsAnExhaustedArena() {
    XMLContext* const context = XMLFactory::newInstance(IX_XML_SCHEMA_COMMUNICATION_WAITING);
    XMLUnMarshaller* const reader = context->createUnMarshaller();
    other_dpl::SetExhausted(true);
    CHECK(XMLFactory::newInstance(IX_XML_SCHEMA_COMMUNICATION_WAITING) == nullptr);
    CHECK(context->createMarshaller() == nullptr);
    CHECK(reader->UnMarshall("<communication-waiting active=\"true\"/>") == nullptr);
    other_dpl::SetExhausted(false);
    XMLElement* const root = reader->UnMarshall("<communication-waiting active=\"true\"/>");
    CHECK(root != nullptr);
    XMLFactory::DeleteElement(root);
    XMLFactory::deleteContext(context);
    ExpectNothingAlive(__LINE__);
}

}  // namespace

int main() {
    ReadsAndWrites();
    ConvertsNumbers();
    Logs();
    FailsWithoutFiles();
    StandsAnExhaustedArena();
    return g_failures == 0 ? 0 : 1;
}
