// Forward calls to voicemail while the line is busy: builds a communication diversion document and writes it twice,
// first the rule alone (`cp:rule`), which an XCAP client puts into the document on the server, then the whole document.
#include <cstdio>

#include "XMLCommunicationDiversion.h"
#include "XmlDocument.h"

int main() {
    XmlDocument<ix_communication_diversion> document;
    auto* const rules = document.Create() ? ixMake(document->mRuleset) : nullptr;
    auto* const rule = rules != nullptr ? ixAddNew<ix_ns_common_policy_ruleType>(*rules, rules->mRuleList) : nullptr;
    auto* const conditions = rule != nullptr ? ixMake(rule->mConditions) : nullptr;
    auto* const actions = conditions != nullptr ? ixMake(rule->mActions) : nullptr;
    if (actions == nullptr) return 1;  // no memory
    auto* const forward = ixAddNew<ix_ns_xcap_forward_to_type>(*actions, actions->mElementList);
    const bool isBuilt = forward != nullptr && rule->setIdValue("voicemail-when-busy") != 0 &&
                         XmlEdit::SetFlag(*conditions, conditions->mOtherConditionsList, "busy") != 0 &&
                         forward->setTargetValue("sip:voicemail@ims.example.net;cause=486") != 0 &&
                         forward->setNotifyCallerValue(1) != 0 &&
                         XmlEdit::Declare(*document, "ss", "http://uri.etsi.org/ngn/params/xml/simservs/xcap") != 0 &&
                         XmlEdit::Declare(*document, "cp", "urn:ietf:params:xml:ns:common-policy") != 0;
    // The text belongs to the document, and is gone with its next one.
    for (const bool isWhole : {false, true}) {
        const char* const text = !isBuilt ? nullptr : isWhole ? document.Write() : document.Write(*rule);
        if (text == nullptr) return std::fprintf(stderr, "%s\n", document.Problem()), 1;
        std::printf("%s\n", text);
    }
}
