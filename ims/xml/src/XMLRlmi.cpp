#include "XMLRlmi.h"

#include <iterator>

#include "Rlmi.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLRlmi";

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = IX_UNMARSHALLER_INFO(XMLListDecoder, "ListUnMarshaller");

constexpr XmlWriterRow kWriters[] = {
    {IX_WRITER_OF(ListMarshaller, AddListElementToXml, ix_list)},
};

constexpr XmlMarshallerInfo MarshallerInfo() {
    XmlMarshallerInfo info = ixMarshallerInfo(kSourceFile, kWriters);
    IX_MARSHALL_TEXTS(info, "ListMarshaller", "mListXml");
    return info;
}
constexpr XmlMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kAddList = {2, kSchemaCode, __LINE__, "<XML Module>: AddListElementToXml"};
constexpr XmlLogText kListWithoutUri = {4, kSchemaCode, __LINE__,
                                        "<XML Module>: AddListElementToXml Uri mandatory attribute"};
constexpr XmlLogText kAddResource = {2, kSchemaCode, __LINE__, "<XML Module>: AddResourceElementToXml"};
constexpr XmlLogText kResourceFailed = {2, kSchemaCode, __LINE__, "<XML Module>: AddResourceElementToXml XML Failed!"};
constexpr XmlLogText kResourceWithoutUri = {4, kSchemaCode, __LINE__,
                                            "<XML Module>: AddResourceElementToXml Uri mandatory attribute"};
constexpr XmlLogText kAddInstance = {2, kSchemaCode, __LINE__, "<XML Module>: AddInstanceElementToXml"};
constexpr XmlLogText kInstanceFailed = {2, kSchemaCode, __LINE__, "<XML Module>: AddInstanceElementToXml XML Failed!"};
constexpr XmlLogText kInstanceWithoutId = {4, kSchemaCode, __LINE__,
                                           "<XML Module>: AddInstanceElementToXml Id mandatory attribute"};
constexpr XmlLogText kInstanceWithoutState = {4, kSchemaCode, __LINE__,
                                              "<XML Module>: AddInstanceElementToXml state mandatory attribute"};
constexpr XmlLogText kAddName = {2, kSchemaCode, __LINE__, "<XML Module>: AddNameElementToXml"};
constexpr XmlLogText kNameFailed = {2, kSchemaCode, __LINE__, "<XML Module>: AddNameElementToXml XML Failed!"};

constexpr char kStateTexts[][32] = {"active", "pending", "terminated"};
constexpr XmlEnumeration kStates = {kStateTexts[0], sizeof kStateTexts[0], IX_RLMI_INSTANCE_NOT_SET};

constexpr XmlField kInstanceFields[] = {
    {XmlFieldKind::AttributeList, IX_STR_IX_NULL, XmlListMember(&ix_instance::mAnyAttribute), 0, nullptr, "attributes"},
    {XmlFieldKind::Text, IX_STR_REASON, XmlTextMember(&ix_instance::mReason)},
    {XmlFieldKind::Text, IX_STR_CID, XmlTextMember(&ix_instance::mCid)},
    {XmlFieldKind::Text, IX_STR_ID, XmlTextMember(&ix_instance::mId)},
    {XmlFieldKind::Enumeration, IX_STR_STATE, XmlIntMember(&ix_instance::mState), IX_RLMI_INSTANCE_NOT_SET, &kStates},
};
constexpr XmlFieldTable kInstanceTable = {nullptr, kInstanceFields, std::size(kInstanceFields)};

constexpr XmlField kResourceFields[] = {
    {XmlFieldKind::AttributeList, IX_STR_IX_NULL, XmlListMember(&ix_resource::mAnyAttribute), 0, nullptr, "attributes"},
    {XmlFieldKind::Text, IX_STR_URI, XmlTextMember(&ix_resource::mUri)},
    {XmlFieldKind::ChildList, IX_STR_NAME, XmlListMember(&ix_resource::mNameList)},
    {XmlFieldKind::ChildList, IX_STR_INSTANCE, XmlListMember(&ix_resource::mInstanceList)},
};
constexpr XmlFieldTable kResourceTable = {nullptr, kResourceFields, std::size(kResourceFields)};

constexpr XmlField kListFields[] = {
    {XmlFieldKind::ChildList, IX_STR_NAME, XmlListMember(&ix_list::mNameList)},
    {XmlFieldKind::ChildList, IX_STR_RESOURCE, XmlListMember(&ix_list::mResourceList)},
    {XmlFieldKind::Text, IX_STR_URI, XmlTextMember(&ix_list::mUri)},
    {XmlFieldKind::Unsigned, IX_STR_VERSION, XmlUnsignedMember(&ix_list::mVersion), kXmlAlwaysSet},
    {XmlFieldKind::Flag, IX_STR_FULLSTATE, XmlIntMember(&ix_list::mFullState), kXmlAlwaysSet},
    {XmlFieldKind::Text, IX_STR_CID, XmlTextMember(&ix_list::mCid)},
    {XmlFieldKind::AttributeList, IX_STR_IX_NULL, XmlListMember(&ix_list::mAnyAttribute), 0, nullptr, "attributes"},
};
constexpr XmlFieldTable kListTable = {nullptr, kListFields, std::size(kListFields)};

}  // namespace

int ix_name::ProcessUnMarshall(char* name, char* text, XMLElement* /*child*/) {
    return ixEndNameIs(name, IX_STR_NAME) ? setValueValue(text) : 1;
}

ix_instance::~ix_instance() { XmlFields::Release(this, kInstanceTable); }

const XmlFieldTable* ix_instance::FieldTable() const { return &kInstanceTable; }

int ix_instance::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair != nullptr) return addAnyAttribute(ixAsPair(pair));
    if (ixNameIs(attribute, IX_STR_ID)) return setIdValue(value);
    if (ixNameIs(attribute, IX_STR_STATE)) return setStateValue(kStates.IndexOfPrefix(value));
    if (ixNameIs(attribute, IX_STR_REASON)) return setReasonValue(value);
    if (ixNameIs(attribute, IX_STR_CID)) return setCidValue(value);
    return 0;
}

int ix_instance::addAnyAttribute(ix_AttributeValuePair* pair) {
    return pair != nullptr ? ixAppend(mAnyAttribute, pair, kSourceFile, __LINE__) : 0;
}

ix_resource::~ix_resource() { XmlFields::Release(this, kResourceTable); }

const XmlFieldTable* ix_resource::FieldTable() const { return &kResourceTable; }

int ix_resource::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (child == nullptr) return 1;
    if (ixNameIs(name, IX_STR_NAME)) return ixTakeInto<ix_name>(mNameList, child, kSourceFile, __LINE__);
    return ixNameIs(name, IX_STR_INSTANCE) ? ixTakeInto<ix_instance>(mInstanceList, child, kSourceFile, __LINE__) : 0;
}

int ix_resource::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair != nullptr) return addAnyAttribute(ixAsPair(pair));
    return ixNameIs(attribute, IX_STR_URI) ? setUriValue(value) : 0;
}

int ix_resource::addAnyAttribute(ix_AttributeValuePair* pair) {
    return pair != nullptr ? ixAppend(mAnyAttribute, pair, kSourceFile, __LINE__) : 0;
}

int ix_resource::addName(ix_name* name) {
    return name != nullptr ? ixAppend(mNameList, name, kSourceFile, __LINE__) : 0;
}

int ix_resource::addInstance(ix_instance* instance) {
    return instance != nullptr ? ixAppend(mInstanceList, instance, kSourceFile, __LINE__) : 0;
}

ix_list::~ix_list() { XmlFields::Release(this, kListTable); }

const XmlFieldTable* ix_list::FieldTable() const { return &kListTable; }

int ix_list::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (child == nullptr) return 1;
    if (ixNameIs(name, IX_STR_NAME)) return ixTakeInto<ix_name>(mNameList, child, kSourceFile, __LINE__);
    return ixNameIs(name, IX_STR_RESOURCE) ? ixTakeInto<ix_resource>(mResourceList, child, kSourceFile, __LINE__) : 0;
}

int ix_list::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair != nullptr) return addAnyAttribute(ixAsPair(pair));
    if (ixNameIs(attribute, IX_STR_URI)) return setUriValue(value);
    if (ixNameIs(attribute, IX_STR_VERSION)) return setVersionValue(ixToUnsigned(value));
    if (ixNameIs(attribute, IX_STR_FULLSTATE)) return setFullStateValue(ixNameIs(value, IX_STR_TRUE) ? 1 : 0);
    if (ixNameIs(attribute, IX_STR_CID)) return setCidValue(value);
    return 0;
}

int ix_list::addName(ix_name* name) { return name != nullptr ? ixAppend(mNameList, name, kSourceFile, __LINE__) : 0; }

int ix_list::addResource(ix_resource* resource) {
    return resource != nullptr ? ixAppend(mResourceList, resource, kSourceFile, __LINE__) : 0;
}

int ix_list::addAnyAttribute(ix_AttributeValuePair* pair) {
    return pair != nullptr ? ixAppend(mAnyAttribute, pair, kSourceFile, __LINE__) : 0;
}

XMLElement* ListDataBinder::CreateRootElement() { return IX_NEW(ix_list); }

ix_resource* ListDataBinder::CreateResourceElement() { return IX_NEW(ix_resource); }

ix_instance* ListDataBinder::CreateInstanceElement() { return IX_NEW(ix_instance); }

ix_name* ListDataBinder::CreateNameElement() { return IX_NEW(ix_name); }

ListMarshaller::ListMarshaller() : XmlFamilyMarshaller(kMarshallerInfo) {}

int ListMarshaller::AddListElementToXml(ix_list* list) {
    ixLog(kSourceFile, kAddList);
    if (list == nullptr) return 0;
    const char* const uri = ix_xml_common_array_definition::getStringName(IX_STR_URN_IETF_PARAMS_XML_NS_RLMI);
    StartElementOpen(IX_STR_LIST);
    AddAttribute(IX_STR_XMLNS, uri, Attribute::Open);
    // Required: the namespace is declared once more in place of the cid, which is never written.
    if (list->mCid != nullptr) AddAttribute(IX_STR_XMLNS, uri, Attribute::Open);
    if (list->mUri == nullptr) {
        ixLog(kSourceFile, kListWithoutUri);
        return 0;
    }
    AddAttribute(IX_STR_URI, list->mUri, Attribute::Open);
    AddDecimalAttribute(IX_STR_VERSION, list->mVersion, Attribute::Open);
    AddAttribute(IX_STR_FULLSTATE,
                 ix_xml_common_array_definition::getStringName(list->mFullState == 1 ? IX_STR_TRUE : IX_STR_FALSE),
                 Attribute::Closing);
    if (AddChildList(list->mNameList, IX_WRITER(ListMarshaller, AddNameElementToXml, ix_name), kNameFailed) == 0 ||
        AddChildList(list->mResourceList, IX_WRITER(ListMarshaller, AddResourceElementToXml, ix_resource),
                     kResourceFailed) == 0) {
        return 0;
    }
    EndElement(IX_STR_LIST);
    return 1;
}

int ListMarshaller::AddResourceElementToXml(ix_resource* resource) {
    ixLog(kSourceFile, kAddResource);
    if (resource == nullptr) return 0;
    StartElementOpen(IX_STR_RESOURCE);
    AddAttributeList(resource->mAnyAttribute);
    if (resource->mUri == nullptr) {
        ixLog(kSourceFile, kResourceWithoutUri);
        return 0;
    }
    AddAttribute(IX_STR_URI, resource->mUri, Attribute::Closing);
    if (AddChildList(resource->mNameList, IX_WRITER(ListMarshaller, AddNameElementToXml, ix_name), kNameFailed) == 0 ||
        AddChildList(resource->mInstanceList, IX_WRITER(ListMarshaller, AddInstanceElementToXml, ix_instance),
                     kInstanceFailed) == 0) {
        return 0;
    }
    EndElement(IX_STR_RESOURCE);
    return 1;
}

int ListMarshaller::AddInstanceElementToXml(ix_instance* instance) {
    ixLog(kSourceFile, kAddInstance);
    if (instance == nullptr) return 0;
    StartElementOpen(IX_STR_INSTANCE);
    AddAttributeList(instance->mAnyAttribute);
    if (instance->mReason != nullptr) AddAttribute(IX_STR_REASON, instance->mReason, Attribute::Open);
    if (instance->mCid != nullptr) AddAttribute(IX_STR_CID, instance->mCid, Attribute::Open);
    if (instance->mId == nullptr) {
        ixLog(kSourceFile, kInstanceWithoutId);
        return 0;
    }
    AddAttribute(IX_STR_ID, instance->mId, Attribute::Open);
    const char* const state = kStates.TextOf(instance->mState);
    if (state == nullptr) {
        ixLog(kSourceFile, kInstanceWithoutState);
        return 0;
    }
    AddAttribute(IX_STR_STATE, state, Attribute::Closing);
    EndElement(IX_STR_INSTANCE);
    return 1;
}

int ListMarshaller::AddNameElementToXml(ix_name* name) {
    ixLog(kSourceFile, kAddName);
    if (name == nullptr) return 0;
    AddTextOrEmptyElement(IX_STR_NAME, name->mValue);
    return 1;
}

IX_FAMILY(ListContext, ListMarshaller, ListUnMarshaller, ListDataBinder);
