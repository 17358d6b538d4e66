#include "XMLWapProvisioningDoc.h"

#include "WapProvisioningDoc.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLWapProvisioningDoc";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo =
    IX_OLD_UNMARSHALLER_INFO(XMLWapProvisioningDocDecoder, "WapProvisioningDocUnMarshaller");

}  // namespace

XMLElement* WapProvisioningDocDataBinder::CreateRootElement() { return IX_NEW(ix_wap_provisioning_doc); }

IX_OLD_READING_FAMILY(WapProvisioningDocContext, WapProvisioningDocUnMarshaller, WapProvisioningDocDataBinder);
