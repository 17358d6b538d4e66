#include "XMLSimservsXcap.h"

#include <iterator>

#include "XmlElementSupport.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLSimservsXcap";

constexpr XmlLogText kNoPlace = {2, kSchemaCode, __LINE__, "Cannot accommodate the element %s with value %s"};

constexpr XmlField kSimservFields[] = {
    {XmlFieldKind::Flag, IX_STR_ACTIVE, XmlIntMember(&ix_ns_xcap_simservType::mActive), kXmlAlwaysSet},
    {XmlFieldKind::AttributeList, IX_STR_IX_NULL, XmlListMember(&ix_ns_xcap_simservType::mExtensionList), 0, nullptr,
     "attributes"},
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_ns_xcap_simservType::mAnyList), 0, nullptr, "any"},
};

}  // namespace

const XmlFieldTable kSimservTable = {nullptr, kSimservFields, std::size(kSimservFields)};

const XmlNamespaceRow kSimservsNamespaces[kSimservsNamespaceCount] = {
    {IX_STR_SS, IX_STR_SS, IX_STR_HTTP_URI_ETSI_ORG_NGN_PARAMS_XML_SIMSERVS_XCAP},
    {IX_STR_CP, IX_STR_CP, IX_STR_URN_IETF_PARAMS_XML_NS_COMMON_POLICY},
    {IX_STR_OCP, IX_STR_OCP, IX_STR_URN_OMA_XML_XDM_COMMON_POLICY},
};

ix_ns_xcap_simservType::~ix_ns_xcap_simservType() { XmlFields::Release(this, kSimservTable); }

const XmlFieldTable* ix_ns_xcap_simservType::FieldTable() const { return &kSimservTable; }

int ix_ns_xcap_simservType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (name == nullptr) return 1;
    if (ixNameIs(name, IX_STR_ACTIVE)) {
        if (child != nullptr) return 0;
        if (ixNameIs(text, IX_STR_TRUE)) setActiveValue(1);
        if (ixNameIs(text, IX_STR_FALSE)) setActiveValue(0);
        return 1;
    }
    if (child != nullptr) return ixAppend(mAnyList, child, SourceFile(), ExtensionListLine());
    ixLog(kSourceFile, kNoPlace, name, text);
    return 1;
}

int ix_ns_xcap_simservType::setActiveValue(int active) {
    mActive = active;
    return 1;
}

int ix_ns_xcap_simservType::setExtensionListValue(IxSingleElementList* list) {
    return ixSetAttributeList(mExtensionList, list);
}

int ix_ns_xcap_simservType::addExtension(ix_AttributeValuePair* pair) {
    return ixAppend(mExtensionList, pair, SourceFile(), ExtensionListLine());
}

int ix_ns_xcap_simservType::TakeExtension(const char* attribute, XMLAttribute* pair) {
    if (ixNameIs(attribute, IX_STR_ACTIVE)) return 0;
    ix_AttributeValuePair* const extension = ixAsPair(pair);
    if (extension != nullptr) addExtension(extension);
    return 1;
}

void XmlServiceMarshaller::AddServiceStart(e_XmlStrRef name, const ix_ns_xcap_simservType& service, Attribute end) {
    SetElementPrefix(IX_STR_SS);
    StartElementOpen(name);
    ClearElementPrefix();
    AddAttributeList(service.mExtensionList);
    AddAttribute(IX_STR_ACTIVE,
                 ix_xml_common_array_definition::getStringName(service.mActive != 0 ? IX_STR_TRUE : IX_STR_FALSE), end);
}
