#include "BenchDocuments.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

std::string FlatDocument(std::size_t size) {
    std::string text = "<?xml version=\"1.0\"?>\n<reginfo xmlns=\"urn:ietf:params:xml:ns:reginfo\" version=\"1\">\n";
    for (unsigned number = 0; text.size() + 11 < size; ++number) {
        char contact[400];
        std::snprintf(contact, sizeof contact,
                      "  <contact id=\"c%u\" state=\"active\" event=\"registered\" expires=\"%u\">\n"
                      "    <uri>sip:user%u@192.0.2.%u:5060;transport=tcp</uri>\n"
                      "    <unknown-param name=\"+g.3gpp.smsip\"/>\n"
                      "  </contact>\n",
                      number, 600 + number % 3000, number, number % 256);
        text += contact;
    }
    return text + "</reginfo>\n";
}

std::string NestedDocument(std::size_t depth) {
    std::string text;
    for (std::size_t i = 0; i < depth; ++i) text += "<list name=\"level\">\n";
    for (std::size_t i = 0; i < depth; ++i) text += "</list>\n";
    return text;
}

std::string GrownDocument(const char* head, const std::string& piece, const char* tail, std::size_t size) {
    std::string text = head;
    for (unsigned number = 1000; number == 1000 || text.size() + piece.size() / 2 < size; ++number) {
        for (const char at : piece) at == '#' ? text += std::to_string(number) : text += at;
    }
    return text + tail;
}

void ParseWithExpat(const std::string& text, void* context, XML_StartElementHandler start, XML_EndElementHandler end,
                    XML_CharacterDataHandler data) {
    // One parser for all documents, as our contexts stay from document to document, too.
    static const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate_MM(nullptr, &kCountedMemory, nullptr), XML_ParserFree);
    XML_ParserReset(parser.get(), nullptr);
    XML_SetUserData(parser.get(), context);
    XML_SetElementHandler(parser.get(), start, end);
    XML_SetCharacterDataHandler(parser.get(), data);
    if (XML_Parse(parser.get(), text.data(), static_cast<int>(text.size()), 1) != XML_STATUS_OK) std::abort();
}

void CountBytes(benchmark::State& state, std::size_t size) {
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(size));
}
