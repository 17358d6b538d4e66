// Three mistakes on purpose: a document that is not what it is taken for, one that lacks something, and an object where
// its class has no place. Each is told.
#include <cstdio>

#include "XMLCommunicationDiversion.h"
#include "XmlDocument.h"

int main() {
    XmlDocument<ix_communication_diversion> document(IX_XML_PROFILE_STANDARD);
    if (!document.Read("<communication-diversion>\n  <ruleset/>\n</diversion>")) std::puts(document.Problem());

    auto* const rules = document.Create() ? ixMake(document->mRuleset) : nullptr;
    auto* const rule = rules != nullptr ? ixAddNew<ix_ns_common_policy_ruleType>(*rules, rules->mRuleList) : nullptr;
    if (rule == nullptr) return 1;  // no memory
    if (document.Write() == nullptr) std::puts(document.Problem());

    if (rule->setIdValue("busy") == 0) return 1;
    // A list takes whatever it is given; XmlEdit would have refused it.
    rules->mRuleList->Add(XmlEdit::New(ix_string::kClass));
    if (document.Write() == nullptr) std::puts(document.Problem());
}
