#include "XMLIdentityPresentation.h"

#include "XmlElementSupport.h"

int ix_ns_identity_presentationType::ProcessUnMarshall(char* /*name*/, char* /*text*/, XMLElement* /*child*/) {
    return 1;
}

int ix_ns_identity_presentationType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair != nullptr) return TakeExtension(attribute, pair);
    if (ixNameIs(attribute, IX_STR_ACTIVE)) setActiveValue(ixNameIs(value, IX_STR_TRUE) ? 1 : 0);
    return 1;
}

int ix_ns_identity_presentationType::ExtensionListLine() const { return __LINE__; }

int XmlIdentityPresentationMarshaller::AddIdentityElementToXml(const XmlLogText& entered, e_XmlStrRef name,
                                                               const ix_ns_identity_presentationType* element) {
    ixLog(Source(), entered);
    if (element == nullptr) return 0;
    AddServiceStart(name, *element, Attribute::SelfClosing);
    return 1;
}
