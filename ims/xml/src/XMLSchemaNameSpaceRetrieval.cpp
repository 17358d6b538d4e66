#include "XMLSchemaNameSpaceRetrieval.h"

#include "SchemaNameSpaceRetrieval.h"
#include "XmlElementSupport.h"
#include "XmlFields.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLSchemaNameSpaceRetrieval";

constexpr XmlUnMarshallerInfo kUnMarshallerInfo =
    IX_UNMARSHALLER_INFO(XMLSchemaNamespaceRetrievalDecoder, "SchemaNamespaceRetrievalUnMarshaller");

constexpr XmlLogText kSetInfo = {3, kSchemaCode, __LINE__,
                                 "<XML Module>: ix_schema_namespace_retrieval::setNameSpaceInfo"};
constexpr XmlLogText kGetInfo = {3, kSchemaCode, __LINE__,
                                 "<XML Module>: ix_schema_namespace_retrieval::getNameSpaceInfo"};
constexpr XmlLogText kNoPair = {3, kSchemaCode, __LINE__,
                                "<XML Module>: ix_schema_namespace_retrieval::ProcessUnMarshallAttribute: "
                                "cannot allocate memory to pXMLNSValuePair "};

constexpr XmlField kFields[] = {
    {XmlFieldKind::AttributeList, IX_STR_XMLNS, XmlListMember(&ix_schema_namespace_retrieval::mNameSpaceInfo)},
};
constexpr XmlFieldTable kTable = {nullptr, kFields, 1};

}  // namespace

ix_schema_namespace_retrieval::~ix_schema_namespace_retrieval() { XmlFields::Release(this, kTable); }

const XmlFieldTable* ix_schema_namespace_retrieval::FieldTable() const { return &kTable; }

int ix_schema_namespace_retrieval::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* /*pair*/) {
    if (!XMLSchemaNamespaceRetrievalDecoder::IsDeclaration(attribute)) return 1;
    const char* const colon = __strchr(attribute, ':');
    ix_AttributeValuePair* const declaration =
        ixCreatePair(colon != nullptr ? colon + 1 : nullptr, value, kSourceFile, __LINE__);
    if (declaration != nullptr && addNameSpaceInfo(declaration) != 0) return 1;
    IX_DELETE(declaration);
    ixLog(kSourceFile, kNoPair);
    return 0;
}

int ix_schema_namespace_retrieval::setNameSpaceInfo(IxSingleElementList* list) {
    ixLog(kSourceFile, kSetInfo);
    return list != nullptr ? ixSetAttributeList(mNameSpaceInfo, list) : 1;
}

int ix_schema_namespace_retrieval::addNameSpaceInfo(ix_AttributeValuePair* declaration) {
    return ixAppend(mNameSpaceInfo, declaration, kSourceFile, __LINE__);
}

IxSingleElementList* ix_schema_namespace_retrieval::getNameSpaceInfo() const {
    ixLog(kSourceFile, kGetInfo);
    return mNameSpaceInfo;
}

XMLElement* SchemaNamespaceRetrievalDataBinder::CreateRootElement() { return IX_NEW(ix_schema_namespace_retrieval); }

IX_READING_FAMILY(SchemaNamespaceRetrievalContext, SchemaNamespaceRetrievalUnMarshaller,
                  SchemaNamespaceRetrievalDataBinder);
