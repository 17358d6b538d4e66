#include "XMLVolteConfigInfo.h"

#include "VolteConfigInfo.h"

namespace {

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLVolteConfigInfoDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in VolteConfigInfoUnMarshaller::UnMarshall"});

}  // namespace

constexpr XmlClass ix_volte_config_info::kClass =
    ixDerived(ixClass<ix_volte_config_info>("ix_volte_config_info", "VolteConfigInfo", kSource, ixSettingAnswers()),
              ix_characteristicDocType::kClass);

XMLElement* VolteConfigInfoDataBinder::CreateRootElement() { return ixNew<ix_volte_config_info>(kSource); }

VolteConfigInfoUnMarshaller::VolteConfigInfoUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

VolteConfigInfoContext::VolteConfigInfoContext()
    : XmlFamilyContext(ixReadFamily<VolteConfigInfoUnMarshaller, VolteConfigInfoDataBinder>(kSource)) {}
