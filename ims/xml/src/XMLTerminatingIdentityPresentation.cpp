#include "XMLTerminatingIdentityPresentation.h"

#include "TerminatingIdentityPresentation.h"

namespace {

using namespace XmlRow;

constexpr XmlField kFields[] = {
    Attribute<&ix_ns_xcap_simservType::mActive>(IX_STR_ACTIVE, XmlFlag::TrueOrNot).Always(),
    Attributes<&ix_ns_xcap_simservType::mExtensionList>(),
};

constexpr XmlUnMarshallerInfo UnMarshallerInfo() {
    XmlUnMarshallerInfo info =
        ixUnMarshallerInfo<XMLTIPDecoder>(kSource, {4, "<XML Module>: StrDup failed in TIPUnMarshaller::UnMarshall"});
    info.textCopied = {2, "<XML Module>: TIPUnMarshaller::UnMarshall: pstring is %s"};
    info.fileEntered = {2, "<XML Module>: TIPUnMarshaller::UnMarshall(XMLFile* pfile): pstring is %s"};
    info.decoded = {2, "<XML Module>: XML Decode Success"};
    info.notDecoded = {2, "<XML Module>: XML Decode Failed"};
    return info;
}
constexpr XmlUnMarshallerInfo kUnMarshallerInfo = UnMarshallerInfo();

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&TIPMarshaller::AddTIPElementToXml>(),
};
constexpr XmlMarshallerInfo kMarshallerInfo =
    ixServiceMarshallerInfo(ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("TIPMarshaller", "mTIPXml")),
                            {2, "TIPMarshaller :: TIPMarshaller: Malloc cannot allocate memory"});

}  // namespace

constexpr XmlClass ix_terminating_identity_presentation::kClass = ixServiceClass(
    ixClass<ix_terminating_identity_presentation>("terminating-identity-presentation",
                                                  "TerminatingIdentityPresentation", kSource, kFields, ixIgnoring())
        .Of(IX_STR_TERMINATING_IDENTITY_PRESENTATION));

XMLElement* TIPDataBinder::CreateRootElement() { return ixNew<ix_terminating_identity_presentation>(kSource); }

TIPUnMarshaller::TIPUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

TIPMarshaller::TIPMarshaller() : XmlServiceMarshaller(kMarshallerInfo) {}

TIPContext::TIPContext() : XmlBinderContext(ixFamily<TIPMarshaller, TIPUnMarshaller, TIPDataBinder>(kSource)) {}

int TIPMarshaller::AddTIPElementToXml(ix_terminating_identity_presentation* element) {
    return AddSwitch({2, "<XML Module>: AddTerminatingIdentityPresentationElementToXml"},
                     IX_STR_TERMINATING_IDENTITY_PRESENTATION, element);
}
