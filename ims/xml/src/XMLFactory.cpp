#include "XMLFactory.h"

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

namespace {

const char kSourceFile[] = "ims/xml/src/XMLFactory";

constexpr char kSimservs[] = "http://uri.etsi.org/ngn/params/xml/simservs/xcap";

/// One row a schema, in the order of the numbers.
constexpr XmlSchemaInfo kSchemas[] = {
    {IX_XML_SCHEMA_IS_COMPOSING, "is-composing", "isComposing", "urn:ietf:params:xml:ns:im-iscomposing", true, false,
     []() -> XMLContext* { return IX_NEW(IsComposingContext); }},
    {IX_XML_SCHEMA_RESOURCE_LISTS, "resource-lists", "resource-lists", "urn:ietf:params:xml:ns:resource-lists", true,
     false, []() -> XMLContext* { return IX_NEW(ResourceListsContext); }},
    {IX_XML_SCHEMA_CONFERENCE_INFO, "conference-info", "conference-info", "urn:ietf:params:xml:ns:conference-info",
     true, false, []() -> XMLContext* { return IX_NEW(ConferenceInfoContext); }},
    {IX_XML_SCHEMA_IMDN, "imdn", "imdn", "urn:ietf:params:xml:ns:imdn", true, false,
     []() -> XMLContext* { return IX_NEW(IMDNContext); }},
    {IX_XML_SCHEMA_COMMUNICATION_WAITING, "communication-waiting", "communication-waiting", kSimservs, true, true,
     []() -> XMLContext* { return IX_NEW(CommunicationWaitingContext); }},
    {IX_XML_SCHEMA_OIP, "oip", "originating-identity-presentation", kSimservs, true, true,
     []() -> XMLContext* { return IX_NEW(OIPContext); }},
    {IX_XML_SCHEMA_TIP, "tip", "terminating-identity-presentation", kSimservs, true, true,
     []() -> XMLContext* { return IX_NEW(TIPContext); }},
    {IX_XML_SCHEMA_COMMUNICATION_DIVERSION, "communication-diversion", "communication-diversion", kSimservs, true, true,
     []() -> XMLContext* { return IX_NEW(CommunicationDiversionContext); }},
    {IX_XML_SCHEMA_COMMUNICATION_BARRING, "communication-barring",
     "incoming-communication-barring outgoing-communication-barring", kSimservs, true, true,
     []() -> XMLContext* { return IX_NEW(CommunicationBarringContext); }},
    {IX_XML_SCHEMA_SIMSERVS, "simservs", "simservs", kSimservs, true, true,
     []() -> XMLContext* { return IX_NEW(SimservsContext); }},
    {IX_XML_SCHEMA_XCAP_ERROR, "xcap-error", "xcap-error", "urn:ietf:params:xml:ns:xcap-error", true, false,
     []() -> XMLContext* { return IX_NEW(XcapErrorContext); }},
    {IX_XML_SCHEMA_WAP_PROVISIONING_DOC, "wap-provisioning", "wap-provisioningdoc", "", false, false,
     []() -> XMLContext* { return IX_NEW(WapProvisioningDocContext); }},
    {IX_XML_SCHEMA_VOLTE_CONFIG_INFO, "volte-config-info", "volte-config-info", "", false, false,
     []() -> XMLContext* { return IX_NEW(VolteConfigInfoContext); }},
    {IX_XML_SCHEMA_PRESENCE, "presence", "presence", "urn:ietf:params:xml:ns:pidf", true, false,
     []() -> XMLContext* { return IX_NEW(PresenceContext); }},
    {IX_XML_SCHEMA_RLS_SERVICES, "rls-services", "rls-services", "urn:ietf:params:xml:ns:rls-services", true, false,
     []() -> XMLContext* { return IX_NEW(RlsServicesContext); }},
    {IX_XML_SCHEMA_LIST, "rlmi", "list", "urn:ietf:params:xml:ns:rlmi", true, false,
     []() -> XMLContext* { return IX_NEW(ListContext); }},
    {IX_XML_SCHEMA_XCAP_DIRECTORY, "xcap-directory", "xcap-directory", "urn:oma:xml:xdm:xcap-directory", true, false,
     []() -> XMLContext* { return IX_NEW(XcapDirectoryContext); }},
    {IX_XML_SCHEMA_FILE, "file-transfer", "file", "", true, false, []() -> XMLContext* { return IX_NEW(FileContext); }},
    {IX_XML_SCHEMA_MEDIA_CONTROL, "media-control", "media_control", "", true, false,
     []() -> XMLContext* { return IX_NEW(MediaControlContext); }},
    {IX_XML_SCHEMA_CALL_WAITING_INDICATION, "call-waiting-indication", "3gpp-ims", "", true, false,
     []() -> XMLContext* { return IX_NEW(CallWaitingIndicationContext); }},
    {IX_XML_SCHEMA_CW_INDICATION, "cw-indication", "ims-3gpp", "", true, false,
     []() -> XMLContext* { return IX_NEW(CWIndicationContext); }},
    {IX_XML_SCHEMA_RCS_TERMS_INFO, "rcs-terms-info", "rcs-terms-info", "", true, false,
     []() -> XMLContext* { return IX_NEW(RcsTermsInfoContext); }},
    {IX_XML_SCHEMA_BOOTSTRAPPING_INFO, "bootstrapping-info", "BootstrappingInfo", "uri:3gpp-gba", true, false,
     []() -> XMLContext* { return IX_NEW(BootstrappingInfoContext); }},
    {IX_XML_SCHEMA_GRUU, "gruu", "pub-gruu temp-gruu", "urn:ietf:params:xml:ns:gruuinfo", true, false,
     []() -> XMLContext* { return IX_NEW(GruuContext); }},
    {IX_XML_SCHEMA_REGINFO, "reginfo", "reginfo", "urn:ietf:params:xml:ns:reginfo", true, false,
     []() -> XMLContext* { return IX_NEW(ReginfoContext); }},
    {IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL, "namespaces", "*", "", false, false,
     []() -> XMLContext* { return IX_NEW(SchemaNamespaceRetrievalContext); }},
};

}  // namespace

int XMLMarshaller::IsTruncated() const { return 0; }

XMLContext::~XMLContext() {
    IX_DELETE(m_pMarshaller);
    IX_DELETE(m_pUnMarshaller);
    IX_DELETE(m_pBinderFactory);
}

int XMLContext::SetNamespaceBinder(XMLObject* /*binder*/) { return 0; }

XMLContext* XMLFactory::newInstance(eXMLSchemaID id) {
    const XmlSchemaInfo* const schema = SchemaInfo(id);
    return schema != nullptr ? schema->create() : nullptr;
}

void XMLFactory::deleteContext(XMLContext* context) { IX_DELETE(context); }

void XMLFactory::DeleteElement(XMLElement* element) { IX_DELETE(element); }

const XmlSchemaInfo* XMLFactory::SchemaInfo(int id) {
    for (const XmlSchemaInfo& schema : kSchemas) {
        if (schema.id == id) return &schema;
    }
    return nullptr;
}
