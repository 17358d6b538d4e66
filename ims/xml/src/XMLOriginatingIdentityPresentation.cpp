#include "XMLOriginatingIdentityPresentation.h"

#include "OriginatingIdentityPresentation.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLOriginatingIdentityPresentation";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo = IX_IDENTITY_UNMARSHALLER_INFO("OIP", XMLOIPDecoder);

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(OIPMarshaller, AddOIPElementToXml, ix_originating_identity_presentation)},
};

constexpr XmlOldMarshallerInfo kMarshallerInfo = IX_IDENTITY_MARSHALLER_INFO("OIP", kWriters);

constexpr XmlLogText kAddElement = {2, kSchemaCode, __LINE__,
                                    "<XML Module>: AddOriginatingIdentityPresentationElementToXml"};

}  // namespace

const char* ix_originating_identity_presentation::SourceFile() const { return kSourceFile; }

XMLElement* OIPDataBinder::CreateRootElement() { return IX_NEW(ix_originating_identity_presentation); }

OIPMarshaller::OIPMarshaller() : XmlIdentityPresentationMarshaller(kMarshallerInfo) {}

int OIPMarshaller::AddOIPElementToXml(ix_originating_identity_presentation* element) {
    return AddIdentityElementToXml(kAddElement, IX_STR_ORIGINATING_IDENTITY_PRESENTATION, element);
}

IX_OLD_FAMILY(OIPContext, OIPMarshaller, OIPUnMarshaller, OIPDataBinder);
