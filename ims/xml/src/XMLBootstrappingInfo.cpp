#include "XMLBootstrappingInfo.h"

#include "BootstrappingInfo.h"

namespace {

using namespace XmlRow;

constexpr XmlField kFields[] = {
    Element<&ix_bootstrappinginfo::mBtid>(IX_STR_BTID).Mandatory(),
    Element<&ix_bootstrappinginfo::mLifetime>(IX_STR_LIFETIME).Mandatory(),
    Others<&ix_bootstrappinginfo::mAnyElementList>(),
};

constexpr XmlAnswers Answers() {
    XmlAnswers answers;
    answers.unknown = {2, "Cannot accommodate the element %s with value %s"};
    return answers;
}

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLBootstrappingInfoDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in BootstrappingInfoUnMarshaller::UnMarshall"});

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&BootstrappingInfoMarshaller::AddBootstrappingInfoElementToXml>(),
};
constexpr XmlMarshallerInfo MarshallerInfo() {
    XmlMarshallerInfo info =
        ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("BootstrappingInfoMarshaller", "mBootstrappingInfoXml"));
    info.entersFirst = true;
    info.noRoot = {3, "<XML Module>: BootstrappingInfoMarshaller pObj is NULL"};
    return info;
}
constexpr XmlMarshallerInfo kMarshallerInfo = MarshallerInfo();

}  // namespace

constexpr XmlClass ix_bootstrappinginfo::kClass =
    ixClass<ix_bootstrappinginfo>("ix_bootstrappinginfo", "BootstrappingInfo", kSource, kFields, Answers());

XMLElement* BootstrappingInfoDataBinder::CreateRootElement() { return ixNew<ix_bootstrappinginfo>(kSource); }

BootstrappingInfoUnMarshaller::BootstrappingInfoUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

BootstrappingInfoMarshaller::BootstrappingInfoMarshaller() : XmlFamilyMarshaller(kMarshallerInfo) {}

BootstrappingInfoContext::BootstrappingInfoContext()
    : XmlFamilyContext(
          ixFamily<BootstrappingInfoMarshaller, BootstrappingInfoUnMarshaller, BootstrappingInfoDataBinder>(kSource)) {}

int BootstrappingInfoMarshaller::AddBootstrappingInfoElementToXml(ix_bootstrappinginfo* element) {
    if (!Enter(element, {2, "<XML Module>: AddBootstrappingInfoElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_BOOTSTRAPPINGINFO);
    tag.Add(IX_STR_XMLNS, IX_STR_URI_3GPP_GBA);
    tag.Close();
    if (element->mBtid != nullptr) {
        AddBtidElementToXml(element->mBtid);
    } else {
        Log({1, "<XML Module>: BootstrappingInfoElement btid not present"});
    }
    if (element->mLifetime != nullptr) {
        AddLifetimeElementToXml(element->mLifetime);
    } else {
        Log({1, "<XML Module>: BootstrappingInfoElement lifetime not present"});
    }
    EndElement(IX_STR_BOOTSTRAPPINGINFO);
    return 1;
}

int BootstrappingInfoMarshaller::AddBtidElementToXml(const char* btid) {
    if (!Enter(btid, {2, "<XML Module>: AddBtidElementToXml"})) return 0;
    AddTextElement(IX_STR_BTID, btid);
    return 1;
}

int BootstrappingInfoMarshaller::AddLifetimeElementToXml(const char* lifetime) {
    if (!Enter(lifetime, {2, "<XML Module>: AddLifetimeElementToXml"})) return 0;
    AddTextElement(IX_STR_LIFETIME, lifetime);
    return 1;
}
