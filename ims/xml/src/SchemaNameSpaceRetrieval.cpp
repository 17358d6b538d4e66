#include "SchemaNameSpaceRetrieval.h"

#include "XMLSchemaNameSpaceRetrieval.h"

namespace {

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info;
    info.source = kSource;
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLSchemaNamespaceRetrievalDecoder::XMLSchemaNamespaceRetrievalDecoder() : XmlFamilyDecoder(kInfo) {
    SetSessionData(ixNew<ix_schema_namespace_retrieval>(kSource));
}

bool XMLSchemaNamespaceRetrievalDecoder::IsDeclaration(const char* attribute) {
    const char* const xmlns = ixString(IX_STR_XMLNS);
    return attribute != nullptr && __strncmp(attribute, xmlns, __strlen(xmlns)) == 0;
}

int XMLSchemaNamespaceRetrievalDecoder::ProcessElement(char* element, char* /*text*/) {
    return element != nullptr ? 0 : -1;
}

int XMLSchemaNamespaceRetrievalDecoder::ProcessAttribute(char* element, char* attribute, char* value) {
    if (element == nullptr || attribute == nullptr) return -1;
    XMLElement* const root = GetSessionData();
    if (root != nullptr && IsDeclaration(attribute)) root->ProcessUnMarshallAttribute(attribute, value, nullptr);
    return 0;
}
