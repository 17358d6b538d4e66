// The pieces of guide.md, in a program that says whether they do what the guide says.
#include <cstdio>
#include <cstring>

#include "XMLSchemaNameSpaceRetrieval.h"
#include "XMLSimservs.h"
#include "XmlDocument.h"

namespace {

constexpr char kText[] =
    "<simservs xmlns=\"http://uri.etsi.org/ngn/params/xml/simservs/xcap\""
    " xmlns:cp=\"urn:ietf:params:xml:ns:common-policy\" xmlns:v=\"urn:example:vendor\">"
    "<communication-waiting active=\"true\" v:level=\"3\"/>"
    "<communication-diversion active=\"true\"><cp:ruleset>"
    "<cp:rule id=\"a\"><cp:conditions><busy/></cp:conditions>"
    "<cp:actions><forward-to><target> sip:a&amp;b@example.com </target></forward-to></cp:actions></cp:rule>"
    "<v:note>checked</v:note>"
    "<cp:rule id=\"b\"/>"
    "</cp:ruleset></communication-diversion></simservs>";

int g_failed = 0;

void Expect(bool isTrue, const char* what) {
    if (isTrue) return;
    std::printf("not so: %s\n", what);
    g_failed = 1;
}

bool Has(const char* text, const char* part) { return text != nullptr && std::strstr(text, part) != nullptr; }

ix_communication_diversion* DiversionOf(const ix_Simservs& simservs) {
    for (auto* service : XmlEntries<XMLElement>(simservs.mServiceList)) {
        if (auto* const diversion = ixAs<ix_communication_diversion>(service)) return diversion;
    }
    return nullptr;
}

int Guide() {
    const char* const text = kText;
    XmlDocument<ix_Simservs> document(IX_XML_PROFILE_STANDARD);
    if (!document.Read(text)) {
        std::fprintf(stderr, "%s\n", document.Problem());
        return 1;
    }

    for (auto* service : XmlEntries<XMLElement>(document->mServiceList)) {
        auto* const waiting = ixAs<ix_communication_waiting>(service);
        if (waiting != nullptr) waiting->setActiveValue(0);
    }
    Expect(Has(document.Write(), "<communication-waiting active=\"false\" v:level=\"3\"/>"), "set");

    ix_communication_diversion* const diversion = DiversionOf(*document);
    if (diversion == nullptr || diversion->mRuleset == nullptr) return 1;
    ix_ns_common_policy_ruleset& rules = *diversion->mRuleset;
    auto* const first = static_cast<ix_ns_common_policy_ruleType*>(rules.mRuleList->GetKeyAtIndex(0));

    // Add.
    auto* const rule = ixAddNew<ix_ns_common_policy_ruleType>(rules, rules.mRuleList);
    auto* const conditions = rule != nullptr ? ixMake(rule->mConditions) : nullptr;
    if (conditions == nullptr || rule->setIdValue("c") == 0) return 1;  // no memory
    Expect(Has(document.Write(), "<cp:rule id=\"c\"><cp:conditions/></cp:rule></cp:ruleset>"), "add");

    // Insert.
    XmlOwned<ix_ns_common_policy_ruleType> urgent(ixNew<ix_ns_common_policy_ruleType>("app"));
    if (urgent == nullptr || urgent->setIdValue("urgent") == 0) return 1;
    if (XmlEdit::Insert(rules, rules.mRuleList, urgent.get(), first) != 0) urgent.release();
    Expect(urgent == nullptr && Has(document.Write(), "<cp:rule id=\"urgent\"/><cp:rule id=\"a\">"), "insert");

    // Copy and replace.
    XmlOwned<ix_ns_common_policy_ruleType> copy = ixCopy(*first);
    if (copy == nullptr ||
        XmlEdit::SetFlag(*copy->mConditions, copy->mConditions->mOtherConditionsList, "roaming") == 0) {
        return 1;
    }
    if (XmlEdit::Replace(rules, rules.mRuleList, first, copy.get()) != 0) copy.release();
    Expect(Has(document.Write(), "<cp:conditions><busy/><roaming/></cp:conditions>"), "replace");
    Expect(
        Has(document.Write(), "</cp:rule><v:note xmlns:v=\"urn:example:vendor\">checked</v:note><cp:rule id=\"b\"/>"),
        "what stood behind the first rule is still there");

    // Remove, and take.
    XmlEdit::Remove(rules, rules.mRuleList, rules.mRuleList->GetKeyAtIndex(0));
    XmlOwned<ix_ns_common_policy_ruleType> taken = ixTake(rules, rules.mRuleList, rule);
    Expect(taken != nullptr && !Has(document.Write(), "urgent") && !Has(document.Write(), "id=\"c\""), "remove");

    // Flags.
    auto& others = conditions->mOtherConditionsList;
    const bool isSet = XmlEdit::SetFlag(*conditions, others, "busy") != 0;
    const bool isGone = XmlEdit::SetFlag(*conditions, others, "busy", false) != 0;
    Expect(isSet && isGone && ixNodesOf(others) == nullptr, "flags");

    // Texts.
    const char* const indented = "\n  sip:a&amp;b@example.com\n";
    const std::string target = XmlPlainText(indented);
    const std::string escaped = XmlEscaped(target);
    Expect(target == "sip:a&b@example.com" && escaped == "sip:a&amp;b@example.com", "texts");

    // Rests.
    if (document->MakeRest() == nullptr) return 1;
    document->Rest()->AddElement("<v:seen xmlns:v=\"urn:example:vendor\"/>");
    Expect(Has(document.Write(), "<v:seen xmlns:v=\"urn:example:vendor\"/></simservs>"), "rests");
    return 0;
}

int Namespaces() {
    XmlDocument<ix_communication_diversion> document;
    if (!document.Create()) return 1;
    const bool isDeclared =
        XmlEdit::Declare(*document, "ss", "http://uri.etsi.org/ngn/params/xml/simservs/xcap") != 0 &&
        XmlEdit::Declare(*document, "cp", "urn:ietf:params:xml:ns:common-policy") != 0;
    Expect(isDeclared && Has(document.Write(), "xmlns:cp=\"urn:ietf:params:xml:ns:common-policy\""), "namespaces");
    return 0;
}

int Binder(const char* text) {
    XmlDocument<ix_schema_namespace_retrieval> declarations;
    XmlDocument<ix_communication_waiting> document;
    if (!declarations.Read(text) || !document.SetNamespaceBinder(declarations.Get())) return 1;
    if (!document.Read(text)) return 1;
    Expect(Has(document.Write(), "<s:communication-waiting"), "binder");
    return 0;
}

}  // namespace

int main() {
    constexpr char kPrefixed[] =
        "<s:communication-waiting xmlns:s=\"http://uri.etsi.org/ngn/params/xml/simservs/xcap\"/>";
    const int result = Guide() + Namespaces() + Binder(kPrefixed);
    return result != 0 ? result : g_failed;
}
