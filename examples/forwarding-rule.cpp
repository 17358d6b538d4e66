// Forward calls to voicemail while the line is busy: builds a communication diversion document with the binder factory
// and writes it twice, first the rule alone (`cp:rule`), which an XCAP client puts into the document on the server,
// then the whole document.
#include <cstdio>

#include "XMLCommunicationDiversion.h"

namespace {

/// An `add` operation that finds no memory leaves the child with the caller.
bool Taken(int result, XMLElement* child) {
    if (result == 0) XMLFactory::DeleteElement(child);
    return result != 0;
}

/// Declares a namespace. The marshaller writes those that the root has been given, and no others.
bool Declare(ix_communication_diversion& service, const char* attribute, const char* uri) {
    ix_AttributeValuePair* const pair = ixCreatePair(attribute, uri, "examples/forwarding-rule", __LINE__);
    if (pair == nullptr || service.addExtension(pair) != 0) return pair != nullptr;
    ixDelete(pair);
    return false;
}

/// Adds the rule to `service`. Every element is hung into the tree before the next one is made, so that whatever fails,
/// all there is belongs to the tree. @return the rule, still part of the tree; NULL without memory.
ix_ns_common_policy_ruleType* AddRule(CommunicationDiversionDataBinder& binder, ix_communication_diversion& service) {
    auto* const ruleset = binder.CreateRuleSetElement();
    if (ruleset == nullptr) return nullptr;
    service.setRulesetValue(ruleset);
    auto* const rule = binder.CreateRuleTypeElement();
    if (rule == nullptr || !Taken(ruleset->addRule(rule), rule)) return nullptr;

    auto* const conditions = binder.CreateConditionsTypeElement();
    if (conditions == nullptr) return nullptr;
    rule->setConditionsValue(conditions);
    auto* const busy = binder.CreateEmptyTypeElement();
    if (busy == nullptr || !Taken(conditions->addOtherCondition(busy), busy)) return nullptr;

    auto* const actions = binder.CreateActionsTypeElement();
    if (actions == nullptr) return nullptr;
    rule->setActionsValue(actions);
    auto* const forwardTo = binder.CreateForwardToTypeElement();
    if (forwardTo == nullptr || !Taken(actions->addElement(forwardTo), forwardTo)) return nullptr;

    busy->setPresentValue(1);
    forwardTo->setNotifyCallerValue(1);
    // Texts are copied, and written as they stand: a URI with "&" in it has to be given with "&amp;".
    const bool filled = rule->setIdValue("voicemail-when-busy") != 0 && busy->setNameValue("busy") != 0 &&
                        forwardTo->setTargetValue("sip:voicemail@ims.example.net;cause=486") != 0;
    return filled ? rule : nullptr;
}

/// The text belongs to the marshaller, and is gone with its next one.
bool Print(XMLMarshaller& writer, XMLElement* element) {
    const char* const text = writer.Marshall(element);
    if (text == nullptr || writer.IsTruncated() != 0) return false;
    std::printf("%s\n", text);
    return true;
}

}  // namespace

int main() {
    const XmlOwnedContext context(XMLFactory::newInstance(IX_XML_SCHEMA_COMMUNICATION_DIVERSION));
    if (context == nullptr) return 1;
    // The factory of a schema has creators of its own behind the common one.
    auto* const binder = static_cast<CommunicationDiversionDataBinder*>(context->createBinderFactory());
    XMLMarshaller* const writer = context->createMarshaller();
    const XmlOwned<> root(binder != nullptr && writer != nullptr ? binder->CreateRootElement() : nullptr);
    auto* const service = ixAs<ix_communication_diversion>(root.get());
    ix_ns_common_policy_ruleType* const rule = service != nullptr ? AddRule(*binder, *service) : nullptr;
    const bool written = rule != nullptr &&
                         Declare(*service, "xmlns:ss", "http://uri.etsi.org/ngn/params/xml/simservs/xcap") &&
                         Declare(*service, "xmlns:cp", "urn:ietf:params:xml:ns:common-policy") &&
                         Print(*writer, rule) && Print(*writer, root.get());
    return written ? 0 : 1;
}
