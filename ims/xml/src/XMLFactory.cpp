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

constexpr char kSimservs[] = "http://uri.etsi.org/ngn/params/xml/simservs/xcap";

template <class Context>
XMLContext* Create() {
    return ixNew<Context>(kSource);
}

/// One row a schema, in the order of the numbers.
constexpr XmlSchemaInfo kSchemas[] = {
    {IX_XML_SCHEMA_IS_COMPOSING, "is-composing", "isComposing", "urn:ietf:params:xml:ns:im-iscomposing", true, false,
     Create<IsComposingContext>},
    {IX_XML_SCHEMA_RESOURCE_LISTS, "resource-lists", "resource-lists", "urn:ietf:params:xml:ns:resource-lists", true,
     false, Create<ResourceListsContext>},
    {IX_XML_SCHEMA_CONFERENCE_INFO, "conference-info", "conference-info", "urn:ietf:params:xml:ns:conference-info",
     true, false, Create<ConferenceInfoContext>},
    {IX_XML_SCHEMA_IMDN, "imdn", "imdn", "urn:ietf:params:xml:ns:imdn", true, false, Create<IMDNContext>},
    {IX_XML_SCHEMA_COMMUNICATION_WAITING, "communication-waiting", "communication-waiting", kSimservs, true, true,
     Create<CommunicationWaitingContext>},
    {IX_XML_SCHEMA_OIP, "oip", "originating-identity-presentation", kSimservs, true, true, Create<OIPContext>},
    {IX_XML_SCHEMA_TIP, "tip", "terminating-identity-presentation", kSimservs, true, true, Create<TIPContext>},
    {IX_XML_SCHEMA_COMMUNICATION_DIVERSION, "communication-diversion", "communication-diversion", kSimservs, true, true,
     Create<CommunicationDiversionContext>},
    {IX_XML_SCHEMA_COMMUNICATION_BARRING, "communication-barring",
     "incoming-communication-barring outgoing-communication-barring", kSimservs, true, true,
     Create<CommunicationBarringContext>},
    {IX_XML_SCHEMA_SIMSERVS, "simservs", "simservs", kSimservs, true, true, Create<SimservsContext>},
    {IX_XML_SCHEMA_XCAP_ERROR, "xcap-error", "xcap-error", "urn:ietf:params:xml:ns:xcap-error", true, false,
     Create<XcapErrorContext>},
    {IX_XML_SCHEMA_WAP_PROVISIONING_DOC, "wap-provisioning", "wap-provisioningdoc", "", false, false,
     Create<WapProvisioningDocContext>},
    {IX_XML_SCHEMA_VOLTE_CONFIG_INFO, "volte-config-info", "volte-config-info", "", false, false,
     Create<VolteConfigInfoContext>},
    {IX_XML_SCHEMA_PRESENCE, "presence", "presence", "urn:ietf:params:xml:ns:pidf", true, false,
     Create<PresenceContext>},
    {IX_XML_SCHEMA_RLS_SERVICES, "rls-services", "rls-services", "urn:ietf:params:xml:ns:rls-services", true, false,
     Create<RlsServicesContext>},
    {IX_XML_SCHEMA_LIST, "rlmi", "list", "urn:ietf:params:xml:ns:rlmi", true, false, Create<ListContext>},
    {IX_XML_SCHEMA_XCAP_DIRECTORY, "xcap-directory", "xcap-directory", "urn:oma:xml:xdm:xcap-directory", true, false,
     Create<XcapDirectoryContext>},
    {IX_XML_SCHEMA_FILE, "file-transfer", "file", "", true, false, Create<FileContext>},
    {IX_XML_SCHEMA_MEDIA_CONTROL, "media-control", "media_control", "", true, false, Create<MediaControlContext>},
    {IX_XML_SCHEMA_CALL_WAITING_INDICATION, "call-waiting-indication", "3gpp-ims", "", true, false,
     Create<CallWaitingIndicationContext>},
    {IX_XML_SCHEMA_CW_INDICATION, "cw-indication", "ims-3gpp", "", true, false, Create<CWIndicationContext>},
    {IX_XML_SCHEMA_RCS_TERMS_INFO, "rcs-terms-info", "rcs-terms-info", "", true, false, Create<RcsTermsInfoContext>},
    {IX_XML_SCHEMA_BOOTSTRAPPING_INFO, "bootstrapping-info", "BootstrappingInfo", "uri:3gpp-gba", true, false,
     Create<BootstrappingInfoContext>},
    {IX_XML_SCHEMA_GRUU, "gruu", "pub-gruu temp-gruu", "urn:ietf:params:xml:ns:gruuinfo", true, false,
     Create<GruuContext>},
    {IX_XML_SCHEMA_REGINFO, "reginfo", "reginfo", "urn:ietf:params:xml:ns:reginfo", true, false,
     Create<ReginfoContext>},
    {IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL, "namespaces", "*", "", false, false,
     Create<SchemaNamespaceRetrievalContext>},
};

}  // namespace

int XMLMarshaller::IsTruncated() const { return 0; }

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

void XMLFactory::deleteContext(XMLContext* context) { ixDelete(context); }

void XMLFactory::DeleteElement(XMLElement* element) { ixDelete(element); }

const XmlSchemaInfo* XMLFactory::SchemaInfo(int id) {
    for (const XmlSchemaInfo& schema : kSchemas) {
        if (schema.id == id) return &schema;
    }
    return nullptr;
}
