#include "XMLVolteConfigInfo.h"

#include "VolteConfigInfo.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLVolteConfigInfo";

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixCharacteristicUnMarshallerInfo(
    kSourceFile, __LINE__, [](int line) -> XmlFamilyDecoder* { return IX_NEW_AT(line, XMLVolteConfigInfoDecoder); },
    "<XML Module>: StrDup failed in VolteConfigInfoUnMarshaller::UnMarshall");

}  // namespace

XMLElement* VolteConfigInfoDataBinder::CreateRootElement() {
    return IX_NEW(ix_volte_config_info);
}

const XmlUnMarshallerInfo& VolteConfigInfoUnMarshaller::Info() const {
    return kUnMarshallerInfo;
}

XmlFamilyUnMarshaller* VolteConfigInfoContext::NewUnMarshaller() {
    return IX_NEW(VolteConfigInfoUnMarshaller);
}

XMLObjectFactory* VolteConfigInfoContext::NewBinderFactory() {
    return IX_NEW(VolteConfigInfoDataBinder);
}
