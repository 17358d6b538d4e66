#include "XMLOriginatingIdentityPresentation.h"

#include <iterator>

#include "OriginatingIdentityPresentation.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLOriginatingIdentityPresentation";

constexpr char kClass[] = "originating-identity-presentation";

constexpr XmlUnMarshallerInfo UnMarshallerInfo() {
    XmlUnMarshallerInfo info;
    info.source = kSourceFile;
    info.createDecoder = [](int line) -> XmlFamilyDecoder* { return IX_NEW_AT(line, XMLOIPDecoder); };
    info.textTokenizerLine = info.textDecoderLine = __LINE__;
    info.fileTokenizerLine = info.fileDecoderLine = __LINE__;
    IX_IDENTITY_UNMARSHALLER_TEXTS(info, "OIP");
    return info;
}
constexpr XmlUnMarshallerInfo kUnMarshallerInfo = UnMarshallerInfo();

constexpr XmlWriterRow kWriters[] = {
    {kClass, IX_WRITER(OIPMarshaller, AddOIPElementToXml, ix_originating_identity_presentation)},
};

constexpr XmlMarshallerInfo MarshallerInfo() {
    XmlMarshallerInfo info;
    info.source = kSourceFile;
    info.writers = kWriters;
    info.writerCount = std::size(kWriters);
    info.namespaces = kSimservsNamespaces;
    info.namespaceCount = kSimservsNamespaceCount;
    info.noFirstNamespace =
        info.noNamespace = {2, kSchemaCode, __LINE__, "OIPMarshaller :: OIPMarshaller: Malloc cannot allocate memory"};
    IX_MARSHALL_TEXTS(info, "OIPMarshaller", "mOIPXml");
    return info;
}
constexpr XmlMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kAddElement = {2, kSchemaCode, __LINE__,
                                    "<XML Module>: AddOriginatingIdentityPresentationElementToXml"};

}  // namespace

const char* ix_originating_identity_presentation::ClassName() const {
    return kClass;
}

const char* ix_originating_identity_presentation::SourceFile() const {
    return kSourceFile;
}

XMLElement* OIPDataBinder::CreateRootElement() {
    return IX_NEW(ix_originating_identity_presentation);
}

const XmlUnMarshallerInfo& OIPUnMarshaller::Info() const {
    return kUnMarshallerInfo;
}

OIPMarshaller::OIPMarshaller() : XmlIdentityPresentationMarshaller(kMarshallerInfo) {}

int OIPMarshaller::AddOIPElementToXml(ix_originating_identity_presentation* element) {
    return AddIdentityElementToXml(kAddElement, IX_STR_ORIGINATING_IDENTITY_PRESENTATION, *element);
}

XmlFamilyMarshaller* OIPContext::NewMarshaller() {
    return IX_NEW(OIPMarshaller);
}

XmlFamilyUnMarshaller* OIPContext::NewUnMarshaller() {
    return IX_NEW(OIPUnMarshaller);
}

XMLObjectFactory* OIPContext::NewBinderFactory() {
    return IX_NEW(OIPDataBinder);
}
