// What an XCAP client does: reads a whole simservs document (3GPP TS 24.623), switches communication waiting off, sends
// forwarded calls to another target, and writes it back with everything else as it came.
//
// usage: switch-off [FILE [TARGET]]
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "XMLCommunicationDiversion.h"
#include "XMLCommunicationWaiting.h"
#include "XMLSimservs.h"
#include "XMLSimservsXcap.h"

namespace {

/// Every action "forward-to" of a service gets another target. @return false without memory.
bool Forward(const ix_communication_diversion& diversion, const char* target) {
    if (diversion.mRuleset == nullptr) return true;
    for (const auto* rule : XmlEntries<ix_ns_common_policy_ruleType>(diversion.mRuleset->mRuleList)) {
        if (rule->mActions == nullptr) continue;
        for (auto* action : XmlEntries<XMLElement>(rule->mActions->mElementList)) {
            auto* const forward = ixAs<ix_ns_xcap_forward_to_type>(action);
            if (forward != nullptr && forward->setTargetValue(target) == 0) return false;
        }
    }
    return true;
}

bool Change(const ix_Simservs& simservs, const char* target) {
    for (auto* service : XmlEntries<XMLElement>(simservs.mServiceList)) {
        if (auto* const waiting = ixAs<ix_communication_waiting>(service)) waiting->setActiveValue(0);
        const auto* const diversion = ixAs<ix_communication_diversion>(service);
        if (diversion != nullptr && !Forward(*diversion, target)) return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    const char* const name = argc > 1 ? argv[1] : "samples/simservs/typical.xml";
    std::ifstream file(name, std::ios::binary);
    const std::string body{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};

    const XmlOwnedContext context(XMLFactory::newInstance(IX_XML_SCHEMA_SIMSERVS, IX_XML_PROFILE_STANDARD));
    XMLUnMarshaller* const reader = context != nullptr ? context->createUnMarshaller() : nullptr;
    XMLMarshaller* const writer = context != nullptr ? context->createMarshaller() : nullptr;
    if (reader == nullptr || writer == nullptr) return 1;
    const XmlOwned<> root(reader->UnMarshall(body.data(), body.size()));
    if (root == nullptr) {
        const XmlProblem& problem = *reader->Problem();
        std::fprintf(stderr, "%s:%d:%d: %s\n", name, problem.line, problem.column, problem.text);
        return 1;
    }
    if (!Change(static_cast<ix_Simservs&>(*root), argc > 2 ? argv[2] : "sip:voicemail@ims.example.net")) return 1;
    const char* const written = writer->Marshall(root.get());
    if (written == nullptr) {
        std::fprintf(stderr, "%s: %s\n", name, writer->Problem()->text);
        return 1;
    }
    std::printf("%s\n", written);
}
