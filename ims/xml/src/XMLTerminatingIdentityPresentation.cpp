#include "XMLTerminatingIdentityPresentation.h"

#include <iterator>

#include "TerminatingIdentityPresentation.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLTerminatingIdentityPresentation";

constexpr char kClass[] = "terminating-identity-presentation";

constexpr XmlUnMarshallerInfo UnMarshallerInfo() {
    XmlUnMarshallerInfo info;
    info.source = kSourceFile;
    info.createDecoder = [](int line) -> XmlFamilyDecoder* { return IX_NEW_AT(line, XMLTIPDecoder); };
    info.textTokenizerLine = info.textDecoderLine = __LINE__;
    info.fileTokenizerLine = info.fileDecoderLine = __LINE__;
    IX_IDENTITY_UNMARSHALLER_TEXTS(info, "TIP");
    return info;
}
constexpr XmlUnMarshallerInfo kUnMarshallerInfo = UnMarshallerInfo();

constexpr XmlWriterRow kWriters[] = {
    {kClass, IX_WRITER(TIPMarshaller, AddTIPElementToXml, ix_terminating_identity_presentation)},
};

constexpr XmlMarshallerInfo MarshallerInfo() {
    XmlMarshallerInfo info;
    info.source = kSourceFile;
    info.writers = kWriters;
    info.writerCount = std::size(kWriters);
    info.namespaces = kSimservsNamespaces;
    info.namespaceCount = kSimservsNamespaceCount;
    info.noFirstNamespace =
        info.noNamespace = {2, kSchemaCode, __LINE__, "TIPMarshaller :: TIPMarshaller: Malloc cannot allocate memory"};
    IX_MARSHALL_TEXTS(info, "TIPMarshaller", "mTIPXml");
    return info;
}
constexpr XmlMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kAddElement = {2, kSchemaCode, __LINE__,
                                    "<XML Module>: AddTerminatingIdentityPresentationElementToXml"};

}  // namespace

const char* ix_terminating_identity_presentation::ClassName() const {
    return kClass;
}

const char* ix_terminating_identity_presentation::SourceFile() const {
    return kSourceFile;
}

XMLElement* TIPDataBinder::CreateRootElement() {
    return IX_NEW(ix_terminating_identity_presentation);
}

const XmlUnMarshallerInfo& TIPUnMarshaller::Info() const {
    return kUnMarshallerInfo;
}

TIPMarshaller::TIPMarshaller() : XmlIdentityPresentationMarshaller(kMarshallerInfo) {}

int TIPMarshaller::AddTIPElementToXml(ix_terminating_identity_presentation* element) {
    return AddIdentityElementToXml(kAddElement, IX_STR_TERMINATING_IDENTITY_PRESENTATION, *element);
}

XmlFamilyMarshaller* TIPContext::NewMarshaller() {
    return IX_NEW(TIPMarshaller);
}

XmlFamilyUnMarshaller* TIPContext::NewUnMarshaller() {
    return IX_NEW(TIPUnMarshaller);
}

XMLObjectFactory* TIPContext::NewBinderFactory() {
    return IX_NEW(TIPDataBinder);
}
