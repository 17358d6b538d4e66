#include "XMLWapProvisioningDoc.h"

#include "WapProvisioningDoc.h"

namespace {

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLWapProvisioningDocDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in WapProvisioningDocUnMarshaller::UnMarshall"});

}  // namespace

constexpr XmlClass ix_wap_provisioning_doc::kClass = ixDerived(
    ixClass<ix_wap_provisioning_doc>("ix_wap_provisioning_doc", "WapProvisioningDoc", kSource, ixSettingAnswers()),
    ix_characteristicDocType::kClass);

XMLElement* WapProvisioningDocDataBinder::CreateRootElement() { return ixNew<ix_wap_provisioning_doc>(kSource); }

WapProvisioningDocUnMarshaller::WapProvisioningDocUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

WapProvisioningDocContext::WapProvisioningDocContext()
    : XmlFamilyContext(ixReadFamily<WapProvisioningDocUnMarshaller, WapProvisioningDocDataBinder>(kSource)) {}
