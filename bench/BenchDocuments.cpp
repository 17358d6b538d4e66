#include "BenchDocuments.h"

#include <cstdio>
#include <cstdlib>

#include "ixDplHost.h"

const char kCommunicationWaiting[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<ss:communication-waiting xmlns:ss=\"http://uri.etsi.org/ngn/params/xml/simservs/xcap\" active=\"true\"/>\n";

const char kTempGruu[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<temp-gruu uri=\"sip:tgruu.7hs==jd7vnzga5w7fajsc7-ajd6fabz0f8g5@example.com;gr\" first-cseq=\"54301\"/>\n";

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

void ParseWithExpat(const std::string& text, void* context, XML_StartElementHandler start, XML_EndElementHandler end,
                    XML_CharacterDataHandler data) {
    XML_Parser parser = XML_ParserCreate(nullptr);
    XML_SetUserData(parser, context);
    XML_SetElementHandler(parser, start, end);
    XML_SetCharacterDataHandler(parser, data);
    if (XML_Parse(parser, text.data(), static_cast<int>(text.size()), 1) != XML_STATUS_OK) std::abort();
    XML_ParserFree(parser);
}

void CountBytes(benchmark::State& state, const std::string& text) {
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(text.size()));
}

void CountAllocations(benchmark::State& state, const std::function<void()>& step) {
    ixDplHostFailAllocation(0);
    step();
    state.counters["allocations"] = static_cast<double>(ixDplHostAllocations());
    ixDplHostStopCounting();
}
