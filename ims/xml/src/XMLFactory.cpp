#include "XMLFactory.h"

#include <cstring>

#include "XMLBootstrappingInfo.h"
#include "XMLCWIndication.h"
#include "XMLCallWaitingIndication.h"
#include "XMLCommunicationBarring.h"
#include "XMLCommunicationDiversion.h"
#include "XMLCommunicationWaiting.h"
#include "XMLConferenceInfo.h"
#include "XMLFt.h"
#include "XMLGruu.h"
#include "XMLImdn.h"
#include "XMLIsComposing.h"
#include "XMLMediaControl.h"
#include "XMLOriginatingIdentityPresentation.h"
#include "XMLPresence.h"
#include "XMLRcsTermsInfo.h"
#include "XMLReginfo.h"
#include "XMLResourceList.h"
#include "XMLRlmi.h"
#include "XMLRlsServices.h"
#include "XMLSchemaNameSpaceRetrieval.h"
#include "XMLSimservs.h"
#include "XMLTerminatingIdentityPresentation.h"
#include "XMLVolteConfigInfo.h"
#include "XMLWapProvisioningDoc.h"
#include "XMLXcapDirectory.h"
#include "XMLXcapError.h"
#include "XmlCommon.h"
#include "standard/XmlStandard.h"

namespace {

constexpr char kSimservs[] = "http://uri.etsi.org/ngn/params/xml/simservs/xcap";

template <class Context>
XMLContext* Create() {
    return ixNew<Context>(kSource);
}

/// The descriptions of a schema's roots, and of the classes that no row of theirs leads to.
template <class... Classes>
constexpr const XmlClass* kClasses[] = {&Classes::kClass..., nullptr};

/// What a client takes out of a document with rules by itself.
constexpr XmlNamedClass kRuleParts[] = {
    {IX_STR_RULESET, &ix_ns_common_policy_ruleset::kClass, XmlNamespace::CommonPolicy},
    {IX_STR_RULE, &ix_ns_common_policy_ruleType::kClass, XmlNamespace::CommonPolicy},
    {IX_STR_CONDITIONS, &ix_ns_common_policy_conditionsType::kClass, XmlNamespace::CommonPolicy},
    {IX_STR_IDENTITY, &ix_ns_common_policy_identityType::kClass, XmlNamespace::CommonPolicy},
    {IX_STR_ONE, &ix_ns_common_policy_oneType::kClass, XmlNamespace::CommonPolicy},
    {IX_STR_MANY, &ix_ns_common_policy_manyType::kClass, XmlNamespace::CommonPolicy},
    {IX_STR_EXCEPT, &ix_ns_common_policy_exceptType::kClass, XmlNamespace::CommonPolicy},
    {IX_STR_VALIDITY, &ix_ns_common_policy_validityType::kClass, XmlNamespace::CommonPolicy},
    {IX_STR_SPHERE, &ix_ns_common_policy_sphereType::kClass, XmlNamespace::CommonPolicy},
    {IX_STR_ACTIONS, &ix_ns_common_policy_extensibleType::kClass, XmlNamespace::CommonPolicy},
    {IX_STR_TRANSFORMATIONS, &ix_ns_common_policy_extensibleType::kClass, XmlNamespace::CommonPolicy},
    {IX_STR_IX_NULL, nullptr},
};

/// A schema whose documents have content types of their own.
constexpr XmlSchemaInfo Typed(const char* contentTypes, const XmlSchemaInfo& schema) {
    return ixWith(schema, &XmlSchemaInfo::contentTypes, contentTypes);
}

/// One row a schema, in the order of the numbers.
constexpr XmlSchemaInfo kSchemas[] = {
    Typed("application/im-iscomposing+xml",
          {IX_XML_SCHEMA_IS_COMPOSING, "is-composing", "isComposing", "urn:ietf:params:xml:ns:im-iscomposing", true,
           false, Create<IsComposingContext>, kClasses<ix_isComposing>}),
    Typed("application/resource-lists+xml",
          {IX_XML_SCHEMA_RESOURCE_LISTS, "resource-lists", "resource-lists", "urn:ietf:params:xml:ns:resource-lists",
           true, false, Create<ResourceListsContext>, kClasses<ix_resource_lists>}),
    Typed("application/conference-info+xml", {IX_XML_SCHEMA_CONFERENCE_INFO, "conference-info", "conference-info",
                                              "urn:ietf:params:xml:ns:conference-info", true, false,
                                              Create<ConferenceInfoContext>, kClasses<ix_conference_type>}),
    Typed("message/imdn+xml", {IX_XML_SCHEMA_IMDN, "imdn", "imdn", "urn:ietf:params:xml:ns:imdn", true, false,
                               Create<IMDNContext>, kClasses<ix_imdn>}),
    {IX_XML_SCHEMA_COMMUNICATION_WAITING, "communication-waiting", "communication-waiting", kSimservs, true, true,
     Create<CommunicationWaitingContext>, kClasses<ix_communication_waiting>},
    {IX_XML_SCHEMA_OIP, "oip", "originating-identity-presentation", kSimservs, true, true, Create<OIPContext>,
     kClasses<ix_originating_identity_presentation>},
    {IX_XML_SCHEMA_TIP, "tip", "terminating-identity-presentation", kSimservs, true, true, Create<TIPContext>,
     kClasses<ix_terminating_identity_presentation>},
    {IX_XML_SCHEMA_COMMUNICATION_DIVERSION, "communication-diversion", "communication-diversion", kSimservs, true, true,
     Create<CommunicationDiversionContext>,
     kClasses<ix_communication_diversion, ix_ns_xcap_media_type, ix_presence_status_activity_type, ix_external_list,
              ix_ns_xcap_forward_to_type>,
     kRuleParts},
    {IX_XML_SCHEMA_COMMUNICATION_BARRING, "communication-barring",
     "incoming-communication-barring outgoing-communication-barring", kSimservs, true, true,
     Create<CommunicationBarringContext>,
     kClasses<ix_incoming_communication_barring, ix_outgoing_communication_barring, ix_allow_action_type,
              ix_ns_xcap_media_type, ix_presence_status_activity_type, ix_external_list, ix_ns_xcap_forward_to_type>,
     kRuleParts},
    Typed("application/vnd.etsi.simservs+xml",
          {IX_XML_SCHEMA_SIMSERVS, "simservs", "simservs", kSimservs, true, true, Create<SimservsContext>,
           kClasses<ix_Simservs, ix_incoming_communication_barring, ix_outgoing_communication_barring,
                    ix_communication_diversion, ix_communication_waiting, ix_originating_identity_presentation,
                    ix_terminating_identity_presentation, ix_ns_xcap_media_type>}),
    Typed("application/xcap-error+xml",
          {IX_XML_SCHEMA_XCAP_ERROR, "xcap-error", "xcap-error", "urn:ietf:params:xml:ns:xcap-error", true, false,
           Create<XcapErrorContext>, kClasses<ix_xcap_error>}),
    Typed("text/vnd.wap.connectivity-xml",
          {IX_XML_SCHEMA_WAP_PROVISIONING_DOC, "wap-provisioning", "wap-provisioningdoc", "", false, false,
           Create<WapProvisioningDocContext>, kClasses<ix_wap_provisioning_doc>}),
    {IX_XML_SCHEMA_VOLTE_CONFIG_INFO, "volte-config-info", "volte-config-info", "", false, false,
     Create<VolteConfigInfoContext>, kClasses<ix_volte_config_info>},
    Typed("application/pidf+xml", {IX_XML_SCHEMA_PRESENCE, "presence", "presence", "urn:ietf:params:xml:ns:pidf", true,
                                   false, Create<PresenceContext>, kClasses<ix_presence>}),
    Typed("application/rls-services+xml",
          {IX_XML_SCHEMA_RLS_SERVICES, "rls-services", "rls-services", "urn:ietf:params:xml:ns:rls-services", true,
           false, Create<RlsServicesContext>, kClasses<ix_rls_services>}),
    Typed("application/rlmi+xml", {IX_XML_SCHEMA_LIST, "rlmi", "list", "urn:ietf:params:xml:ns:rlmi", true, false,
                                   Create<ListContext>, kClasses<ix_list>}),
    Typed("application/vnd.oma.xcap-directory+xml application/oma-directory+xml",
          {IX_XML_SCHEMA_XCAP_DIRECTORY, "xcap-directory", "xcap-directory", "urn:oma:xml:xdm:xcap-directory", true,
           false, Create<XcapDirectoryContext>, kClasses<ix_xcap_directory>}),
    Typed("application/vnd.gsma.rcs-ft-http+xml",
          {IX_XML_SCHEMA_FILE, "file-transfer", "file", "", true, false, Create<FileContext>, kClasses<ix_file>,
           nullptr, "urn:gsma:params:xml:ns:rcs:rcs:fthttp"}),
    Typed("application/media_control+xml", {IX_XML_SCHEMA_MEDIA_CONTROL, "media-control", "media_control", "", true,
                                            false, Create<MediaControlContext>, kClasses<ix_media_control>}),
    Typed("application/vnd.3gpp.cw+xml",
          {IX_XML_SCHEMA_CALL_WAITING_INDICATION, "call-waiting-indication", "3gpp-ims", "", true, false,
           Create<CallWaitingIndicationContext>, kClasses<ix_3gpp_ims>}),
    Typed("application/3gpp-ims+xml", {IX_XML_SCHEMA_CW_INDICATION, "cw-indication", "ims-3gpp", "", true, false,
                                       Create<CWIndicationContext>, kClasses<ix_ims_3gpp>}),
    {IX_XML_SCHEMA_RCS_TERMS_INFO, "rcs-terms-info", "rcs-terms-info", "", true, false, Create<RcsTermsInfoContext>,
     kClasses<ix_rcs_terms_info>},
    Typed("application/vnd.3gpp.bsf+xml",
          {IX_XML_SCHEMA_BOOTSTRAPPING_INFO, "bootstrapping-info", "BootstrappingInfo", "uri:3gpp-gba", true, false,
           Create<BootstrappingInfoContext>, kClasses<ix_bootstrappinginfo>}),
    {IX_XML_SCHEMA_GRUU, "gruu", "pub-gruu temp-gruu", "urn:ietf:params:xml:ns:gruuinfo", true, false,
     Create<GruuContext>, kClasses<ix_pub_gruu, ix_temp_gruu>},
    Typed("application/reginfo+xml", {IX_XML_SCHEMA_REGINFO, "reginfo", "reginfo", "urn:ietf:params:xml:ns:reginfo",
                                      true, false, Create<ReginfoContext>, kClasses<ix_reginfo>}),
    {IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL, "namespaces", "*", "", false, false,
     Create<SchemaNamespaceRetrievalContext>, kClasses<ix_schema_namespace_retrieval>},
};

char Lower(char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; }

/// True when one of the words, which blanks separate, is `word` but for its case.
bool HasWord(const char* words, const char* word, std::size_t length) {
    while (*words != '\0') {
        const std::size_t count = std::strcspn(words, " ");
        std::size_t same = 0;
        while (same < count && same < length && words[same] == Lower(word[same])) ++same;
        if (same == count && same == length) return true;
        words += count + std::strspn(words + count, " ");
    }
    return false;
}

}  // namespace

int XMLMarshaller::IsTruncated() const { return 0; }

const XmlProblem* XMLMarshaller::Problem() const { return nullptr; }

XMLElement* XMLUnMarshaller::UnMarshall(const char* text, std::size_t length) {
    char* const copy = text != nullptr ? static_cast<char*>(__malloc(length + 1)) : nullptr;
    if (copy == nullptr) return nullptr;
    if (length != 0) std::memcpy(copy, text, length);
    copy[length] = '\0';
    XMLElement* const root = UnMarshall(copy);
    __free(copy);
    return root;
}

const XmlProblem* XMLUnMarshaller::Problem() const { return nullptr; }

XMLContext::~XMLContext() {
    ixDelete(m_pMarshaller);
    ixDelete(m_pUnMarshaller);
    ixDelete(m_pBinderFactory);
}

int XMLContext::SetNamespaceBinder(XMLObject* /*binder*/) { return 0; }

XMLContext* XMLFactory::newInstance(eXMLSchemaID id) {
    const XmlSchemaInfo* const schema = SchemaInfo(id);
    return schema != nullptr ? schema->create() : nullptr;
}

XMLContext* XMLFactory::newInstance(eXMLSchemaID id, eXMLProfile profile) {
    if (profile == IX_XML_PROFILE_DEVICE) return newInstance(id);
    const XmlSchemaInfo* const schema = profile == IX_XML_PROFILE_STANDARD ? SchemaInfo(id) : nullptr;
    return schema != nullptr ? ixNewStandardContext(*schema) : nullptr;
}

int XMLFactory::Validate(eXMLSchemaID id, const char* text, std::size_t length,
                         void (*report)(const XmlProblem& problem, void* context), void* context) {
    const XmlSchemaInfo* const schema = SchemaInfo(id);
    return schema != nullptr && text != nullptr ? ixValidate(*schema, text, length, report, context) : -1;
}

void XMLFactory::deleteContext(XMLContext* context) { ixDelete(context); }

void XMLFactory::DeleteElement(XMLElement* element) { ixDelete(element); }

int XMLFactory::SchemaForContentType(const char* type) {
    if (type == nullptr) return -1;
    while (XmlCommon::IsSpace(*type)) ++type;
    const std::size_t length = std::strcspn(type, "; \t\r\n");
    const char* const behind = type + length + std::strspn(type + length, " \t\r\n");
    if (length == 0 || (*behind != '\0' && *behind != ';')) return -1;
    for (const XmlSchemaInfo& schema : kSchemas) {
        if (HasWord(schema.contentTypes, type, length)) return schema.id;
    }
    return -1;
}

const XmlSchemaInfo* XMLFactory::SchemaInfo(int id) {
    for (const XmlSchemaInfo& schema : kSchemas) {
        if (schema.id == id) return &schema;
    }
    return nullptr;
}
