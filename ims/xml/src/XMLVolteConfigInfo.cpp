#include "XMLVolteConfigInfo.h"

#include "VolteConfigInfo.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLVolteConfigInfo";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo =
    IX_OLD_UNMARSHALLER_INFO(XMLVolteConfigInfoDecoder, "VolteConfigInfoUnMarshaller");

}  // namespace

XMLElement* VolteConfigInfoDataBinder::CreateRootElement() { return IX_NEW(ix_volte_config_info); }

IX_OLD_READING_FAMILY(VolteConfigInfoContext, VolteConfigInfoUnMarshaller, VolteConfigInfoDataBinder);
