#include "XMLSchemaNameSpaceRetrieval.h"

#include "SchemaNameSpaceRetrieval.h"

namespace {

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLSchemaNamespaceRetrievalDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in SchemaNamespaceRetrievalUnMarshaller::UnMarshall"});

constexpr XmlField kFields[] = {
    XmlRow::Declarations<&ix_schema_namespace_retrieval::mNameSpaceInfo>(),
};

}  // namespace

constexpr XmlClass ix_schema_namespace_retrieval::kClass =
    ixDerived(ixClass<ix_schema_namespace_retrieval>("ix_schema_namespace_retrieval", "SchemaNamespaceRetrieval",
                                                     kSource, kFields),
              XmlNamespaceBinder::kClass);

// Required: every name that begins like a declaration is one, and no object is taken.
int ix_schema_namespace_retrieval::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* /*pair*/) {
    if (!XMLSchemaNamespaceRetrievalDecoder::IsDeclaration(attribute)) return 1;
    const char* const colon = __strchr(attribute, ':');
    ix_AttributeValuePair* const declaration = ixCreatePair(colon != nullptr ? colon + 1 : nullptr, value, kSource);
    if (declaration != nullptr && addNameSpaceInfo(declaration) != 0) return 1;
    ixDelete(declaration);
    ixLog(kSource, {3,
                    "<XML Module>: ix_schema_namespace_retrieval::ProcessUnMarshallAttribute: "
                    "cannot allocate memory to pXMLNSValuePair "});
    return 0;
}

int ix_schema_namespace_retrieval::setNameSpaceInfo(IxSingleElementList* list) {
    ixLog(kSource, {3, "<XML Module>: ix_schema_namespace_retrieval::setNameSpaceInfo"});
    return list != nullptr ? ixSetList(*this, mNameSpaceInfo, list) : 1;
}

int ix_schema_namespace_retrieval::addNameSpaceInfo(ix_AttributeValuePair* declaration) {
    return ixAdd(*this, mNameSpaceInfo, declaration);
}

IxSingleElementList* ix_schema_namespace_retrieval::getNameSpaceInfo() const {
    ixLog(kSource, {3, "<XML Module>: ix_schema_namespace_retrieval::getNameSpaceInfo"});
    return mNameSpaceInfo;
}

XMLElement* SchemaNamespaceRetrievalDataBinder::CreateRootElement() {
    return ixNew<ix_schema_namespace_retrieval>(kSource);
}

SchemaNamespaceRetrievalUnMarshaller::SchemaNamespaceRetrievalUnMarshaller()
    : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

SchemaNamespaceRetrievalContext::SchemaNamespaceRetrievalContext()
    : XmlFamilyContext(
          ixReadFamily<SchemaNamespaceRetrievalUnMarshaller, SchemaNamespaceRetrievalDataBinder>(kSource)) {}
