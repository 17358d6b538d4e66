#include "XMLWapProvisioningDoc.h"

#include "WapProvisioningDoc.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLWapProvisioningDoc";

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixCharacteristicUnMarshallerInfo(
    kSourceFile, __LINE__, [](int line) -> XmlFamilyDecoder* { return IX_NEW_AT(line, XMLWapProvisioningDocDecoder); },
    "<XML Module>: StrDup failed in WapProvisioningDocUnMarshaller::UnMarshall");

}  // namespace

XMLElement* WapProvisioningDocDataBinder::CreateRootElement() {
    return IX_NEW(ix_wap_provisioning_doc);
}

const XmlUnMarshallerInfo& WapProvisioningDocUnMarshaller::Info() const {
    return kUnMarshallerInfo;
}

XmlFamilyUnMarshaller* WapProvisioningDocContext::NewUnMarshaller() {
    return IX_NEW(WapProvisioningDocUnMarshaller);
}

XMLObjectFactory* WapProvisioningDocContext::NewBinderFactory() {
    return IX_NEW(WapProvisioningDocDataBinder);
}
