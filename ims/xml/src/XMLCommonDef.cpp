#include "XMLCommonDef.h"

#include "XmlElementSupport.h"
#include "XmlFields.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLCommonDef";

constexpr XmlField kStringFields[] = {
    {XmlFieldKind::Text, IX_STR_IX_NULL, XmlTextMember(&ix_string::mValue), 0, nullptr, "text"},
};
constexpr XmlFieldTable kStringTable = {nullptr, kStringFields, 1};

constexpr XmlField kEmptyElementFields[] = {
    {XmlFieldKind::Text, IX_STR_NAME, XmlTextMember(&ix_empty_element_type::mName)},
    {XmlFieldKind::Flag, IX_STR_IX_NULL, XmlIntMember(&ix_empty_element_type::mPresent), 0, nullptr, "present"},
};
constexpr XmlFieldTable kEmptyElementTable = {nullptr, kEmptyElementFields, 2};

/// The lists below an entry are emptied into `list` before the entry goes, so that the depth of a tree is not the depth
/// of the calls.
void DeleteElement(void* entry, IxSingleElementList& list) {
    XMLElement* const element = static_cast<XMLElement*>(entry);
    XmlFields::HandOverChildLists(element, list);
    IX_DELETE(element);
}

void DeletePair(void* entry, IxSingleElementList& /*list*/) {
    ix_AttributeValuePair* const pair = static_cast<ix_AttributeValuePair*>(entry);
    IX_DELETE(pair);
}

void DeleteText(void* entry, IxSingleElementList& /*list*/) { FreeElement(entry); }

/// Hands every entry to `end`, which may append to the list, then deletes the list.
void DeleteList(IxSingleElementList* list, void (*end)(void* entry, IxSingleElementList& list)) {
    if (list == nullptr) return;
    // A list that was emptied into another one is no news for the log.
    IxSingleElementNode* node = list->LastNode() != nullptr ? list->GetPtrToListHead() : nullptr;
    for (; node != nullptr; node = node->next) {
        if (node->key != nullptr) end(node->key, *list);
    }
    IX_DELETE(list);
}

}  // namespace

int XMLElement::ProcessUnMarshall(char* /*name*/, char* /*text*/, XMLElement* /*child*/) { return 1; }

int XMLElement::ProcessUnMarshallAttribute(char* /*attribute*/, char* /*value*/, XMLAttribute* /*pair*/) { return 1; }

const XmlFieldTable* XMLElement::FieldTable() const { return nullptr; }

ix_string::~ix_string() { XmlFields::Release(this, kStringTable); }

const XmlFieldTable* ix_string::FieldTable() const { return &kStringTable; }

int ix_string::setValueValue(const char* value) { return ixSetText(mValue, value); }

ix_empty_element_type::~ix_empty_element_type() { XmlFields::Release(this, kEmptyElementTable); }

const XmlFieldTable* ix_empty_element_type::FieldTable() const { return &kEmptyElementTable; }

int ix_empty_element_type::setNameValue(const char* name) { return ixSetText(mName, name); }

int ix_empty_element_type::setPresentValue(int present) {
    mPresent = present;
    return 1;
}

ix_AttributeValuePair::~ix_AttributeValuePair() {
    __free(mName);
    __free(mValue);
}

int ix_AttributeValuePair::setNameValue(const char* name) { return ixSetText(mName, name); }

int ix_AttributeValuePair::setValueValue(const char* value) { return ixSetText(mValue, value); }

ix_xml_common_array_definition* ix_xml_common_array_definition::m_pXmlStrRef = nullptr;

ix_xml_common_array_definition* ix_xml_common_array_definition::CreateArrayInstance() {
    // Required: its source line is fixed.
    if (m_pXmlStrRef == nullptr) m_pXmlStrRef = IX_NEW_AT(304, ix_xml_common_array_definition);
    return m_pXmlStrRef;
}

void ix_xml_common_array_definition::ReleaseArrayInstance() {
    IX_DELETE(m_pXmlStrRef);
    m_pXmlStrRef = nullptr;
}

void FreeElement(void* text) {
    if (text != nullptr) __free(text);
}

void ix_xml_common_methods::DeleteElementList(IxSingleElementList* list) { DeleteList(list, DeleteElement); }

void ix_xml_common_methods::DeleteAttributeList(IxSingleElementList* list) { DeleteList(list, DeletePair); }

void ix_xml_common_methods::DeleteTextList(IxSingleElementList* list) { DeleteList(list, DeleteText); }

const char ix_xml_common_array_definition::arrXmlStrRef[kXmlStrRefCount][100] = {
    "IX_NULL",
    "1.0",
    "UTF-8",
    "xmlns",
    "xsi",
    "schemaLocation",
    "true",
    "false",
    "active",
    "simservs",
    "communication-waiting",
    "originating-identity-presentation",
    "originating-identity-presentation-restriction",
    "terminating-identity-presentation",
    "terminating-identity-presentation-restriction",
    "communication-diversion",
    "incoming-communication-barring",
    "outgoing-communication-barring",
    "NoReplyTimer",
    "ruleset",
    "rule",
    "id",
    "conditions",
    "actions",
    "transformations",
    "identity",
    "one",
    "many",
    "except",
    "domain",
    "sphere",
    "value",
    "validity",
    "from",
    "until",
    "media",
    "presence-status",
    "external-list",
    "busy",
    "not-registered",
    "anonymous",
    "no-answer",
    "rule-deactivated",
    "not-reachable",
    "roaming",
    "international",
    "international-exHC",
    "communication-diverted",
    "allow",
    "forward-to",
    "target",
    "notify-caller",
    "reveal-identity-to-caller",
    "reveal-served-user-identity-to-caller",
    "notify-served-user",
    "notify-served-user-on-outbound-call",
    "reveal-identity-to-target",
    "not-reveal-GRUU",
    "resource-lists",
    "list",
    "name",
    "display-name",
    "allow",
    "entry",
    "uri",
    "entry-ref",
    "ref",
    "external",
    "anchor",
    "conference-info",
    "entity",
    "state",
    "version",
    "conference-description",
    "display-text",
    "subject",
    "free-text",
    "keywords",
    "conf-uris",
    "service-uris",
    "maximum-user-count",
    "available-media",
    "label",
    "type",
    "status",
    "host-info",
    "web-page",
    "uris",
    "conference-state",
    "user-count",
    "locked",
    "users",
    "user",
    "associated-aors",
    "roles",
    "languages",
    "cascaded-focus",
    "endpoint",
    "referred",
    "joining-method",
    " ",
    "joining-info",
    "disconnection-method",
    "disconnection-info",
    "src-id",
    "call-info",
    "sip",
    "call-id",
    "from-tag",
    "to-tag",
    "when",
    "reason",
    "by",
    "purpose",
    "modified",
    "sidebars-by-ref",
    "sidebars-by-val",
    "isComposing",
    "lastactive",
    "contenttype",
    "refresh",
    "reginfo",
    "registration",
    "unknown-param",
    "aor",
    "event",
    "duration-registered",
    "expires",
    "retry-after",
    "q",
    "callid",
    "cseq",
    "rls-services",
    "service",
    "resource-list",
    "packages",
    "package",
    "imdn",
    "message-id",
    "datetime",
    "recipient-uri",
    "original-recipient-uri",
    "delivery-notification",
    "display-notification",
    "proessing-notification",
    "delivered",
    "failed",
    "displayed",
    "processed",
    "stored",
    "forbidden",
    "error",
    "xcap-error",
    "extension",
    "schema-validation-error",
    "not-xml-frag",
    "no-parent",
    "ancestor",
    "cannot-insert",
    "not-xml-att-value",
    "uniqueness-failure",
    "exists",
    "field",
    "alt-value",
    "not-well-formed",
    "constraint-failure",
    "cannot-delete",
    "not-utf-8",
    "phrase",
    "presence",
    "tuple",
    "contact",
    "note",
    "basic",
    "timestamp",
    "priority",
    "service-description",
    "service-id",
    "description",
    "servcaps",
    "audio",
    "video",
    "duplex",
    "supported",
    "notsupported",
    "full",
    "half",
    "receive-only",
    "send-only",
    "resource",
    "instance",
    "fullState",
    "cid",
    "xcap-directory",
    "folder",
    "error-code",
    "auid",
    "etag",
    "last-modified",
    "size",
    "file",
    "file-info",
    "file-size",
    "data",
    "media_control",
    "vc_primitive",
    "to_encoder",
    "picture_fast_update",
    "3gpp-ims",
    "ims-3gpp",
    "alternative-service",
    "action",
    "call-waiting-indication",
    "service-info",
    "pub-gruu",
    "temp-gruu",
    "first-cseq",
    "BootstrappingInfo",
    "btid",
    "lifetime",
    "rcs-terms-info",
    "termsVersion",
    "term",
    "simservs",
    "title",
    "url",
    "urn:ietf:params:xml:ns:im-iscomposing",
    "urn:ietf:params:xml:ns:im-composing  iscomposing.xsd",
    "http://www.w3.org/2001/XMLSchema-instance",
    "http://uri.etsi.org/ngn/params/xml/simservs/xcap",
    "urn:ietf:params:xml:ns:common-policy",
    "cp",
    "ss",
    "op",
    "opd",
    "opd11",
    "pdm",
    "rpid",
    "gp",
    "caps",
    "gml",
    "gs",
    "urn:oma:xml:xdm:common-policy",
    "ocp",
    "rl",
    "gr",
    "urn:ietf:params:xml:ns:resource-lists",
    "urn:ietf:params:xml:ns:xcap-error",
    "urn:ietf:params:xml:ns:copycontrol",
    "urn:ietf:params:xml:ns:conference-info",
    "urn:ietf:params:xml:ns:imdn",
    "urn:ietf:params:xml:ns:pidf",
    "urn:oma:xml:prs:pidf:oma-pres",
    "urn:oma:xml:pde:pidf:ext",
    "urn:oma:xml:pde:pidf:ext:1.1",
    "urn:ietf:params:xml:ns:pidf:data-model",
    "urn:ietf:params:xml:ns:pidf:rpid",
    "urn:ietf:params:xml:ns:pidf:geopriv10",
    "urn:ietf:params:xml:ns:pidf:caps",
    "http://www.opengis.net/gml",
    "http://www.opengis.net/pidflo/1.0",
    "urn:ietf:params:xml:ns:rls-services",
    "urn:ietf:params:xml:ns:rlmi",
    "urn:oma:xml:xdm:xcap-directory",
    "uri:3gpp-gba",
    "urn:ietf:params:xml:ns:reginfo",
    "urn:ietf:params:xml:ns:gruuinfo",
};
