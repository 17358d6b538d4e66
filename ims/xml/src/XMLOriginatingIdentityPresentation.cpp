#include "XMLOriginatingIdentityPresentation.h"

#include "OriginatingIdentityPresentation.h"

namespace {

using namespace XmlRow;

constexpr XmlField kFields[] = {
    Attribute<&ix_ns_xcap_simservType::mActive>(IX_STR_ACTIVE, XmlFlag::TrueOrNot).Always(),
    Attributes<&ix_ns_xcap_simservType::mExtensionList>(),
};

constexpr XmlUnMarshallerInfo UnMarshallerInfo() {
    XmlUnMarshallerInfo info =
        ixUnMarshallerInfo<XMLOIPDecoder>(kSource, {4, "<XML Module>: StrDup failed in OIPUnMarshaller::UnMarshall"});
    info.textCopied = {2, "<XML Module>: OIPUnMarshaller::UnMarshall: pstring is %s"};
    info.fileEntered = {2, "<XML Module>: OIPUnMarshaller::UnMarshall(XMLFile* pfile): pstring is %s"};
    info.decoded = {2, "<XML Module>: XML Decode Success"};
    info.notDecoded = {2, "<XML Module>: XML Decode Failed"};
    return info;
}
constexpr XmlUnMarshallerInfo kUnMarshallerInfo = UnMarshallerInfo();

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&OIPMarshaller::AddOIPElementToXml>(),
};
constexpr XmlMarshallerInfo kMarshallerInfo =
    ixServiceMarshallerInfo(ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("OIPMarshaller", "mOIPXml")),
                            {2, "OIPMarshaller :: OIPMarshaller: Malloc cannot allocate memory"});

}  // namespace

constexpr XmlClass ix_originating_identity_presentation::kClass = ixServiceClass(
    ixClass<ix_originating_identity_presentation>("originating-identity-presentation",
                                                  "OriginatingIdentityPresentation", kSource, kFields, ixIgnoring())
        .Of(IX_STR_ORIGINATING_IDENTITY_PRESENTATION));

XMLElement* OIPDataBinder::CreateRootElement() { return ixNew<ix_originating_identity_presentation>(kSource); }

OIPUnMarshaller::OIPUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

OIPMarshaller::OIPMarshaller() : XmlServiceMarshaller(kMarshallerInfo) {}

OIPContext::OIPContext() : XmlBinderContext(ixFamily<OIPMarshaller, OIPUnMarshaller, OIPDataBinder>(kSource)) {}

int OIPMarshaller::AddOIPElementToXml(ix_originating_identity_presentation* element) {
    return AddSwitch({2, "<XML Module>: AddOriginatingIdentityPresentationElementToXml"},
                     IX_STR_ORIGINATING_IDENTITY_PRESENTATION, element);
}
