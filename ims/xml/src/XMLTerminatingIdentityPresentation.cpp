#include "XMLTerminatingIdentityPresentation.h"

#include "TerminatingIdentityPresentation.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLTerminatingIdentityPresentation";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo = IX_IDENTITY_UNMARSHALLER_INFO("TIP", XMLTIPDecoder);

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(TIPMarshaller, AddTIPElementToXml, ix_terminating_identity_presentation)},
};

constexpr XmlOldMarshallerInfo kMarshallerInfo = IX_IDENTITY_MARSHALLER_INFO("TIP", kWriters);

constexpr XmlLogText kAddElement = {2, kSchemaCode, __LINE__,
                                    "<XML Module>: AddTerminatingIdentityPresentationElementToXml"};

}  // namespace

const char* ix_terminating_identity_presentation::SourceFile() const { return kSourceFile; }

XMLElement* TIPDataBinder::CreateRootElement() { return IX_NEW(ix_terminating_identity_presentation); }

TIPMarshaller::TIPMarshaller() : XmlIdentityPresentationMarshaller(kMarshallerInfo) {}

int TIPMarshaller::AddTIPElementToXml(ix_terminating_identity_presentation* element) {
    return AddIdentityElementToXml(kAddElement, IX_STR_TERMINATING_IDENTITY_PRESENTATION, element);
}

IX_OLD_FAMILY(TIPContext, TIPMarshaller, TIPUnMarshaller, TIPDataBinder);
