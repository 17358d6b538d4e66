#include "XMLResourceList.h"

#include <iterator>

#include "ResourceLists.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLResourceList";

constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo =
    IX_OLD_UNMARSHALLER_INFO(XMLResourceListsDecoder, "ResourceListsUnMarshaller");

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(Resource_listsMarshall, AddResource_listsElementToXml, ix_resource_lists)},
};

/// The writers of a list's children.
constexpr XmlOldWriterRow kChildWriters[] = {
    {IX_OLD_WRITER_OF(Resource_listsMarshall, AddListElementToXml, ix_listType)},
    {IX_OLD_WRITER_OF(Resource_listsMarshall, AddExternalElementToXml, ix_externalType)},
    {IX_OLD_WRITER_OF(Resource_listsMarshall, AddEntryElementToXml, ix_entryType)},
    {IX_OLD_WRITER_OF(Resource_listsMarshall, AddEntryRefElementToXml, ix_entry_refType)},
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixOldMarshallerInfo(kSourceFile, kWriters);
    info.noRoot = {3, kSchemaCode, __LINE__,
                   "<XML Module>: Resource_listsMarshall :: Marshall: Received Object is NULL"};
    IX_OLD_MARSHALL_TEXTS(info, "Resource_listsMarshall", "mResourceListsXml");
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kCannotAccommodate = {2, kSchemaCode, __LINE__, "Cannot accommodate the element %s with value %s"};
constexpr XmlLogText kAddResourceLists = {2, kSchemaCode, __LINE__, "<XML Module>: AddResource_listsElementToXml"};
constexpr XmlLogText kListFailed = {2, kSchemaCode, __LINE__,
                                    "<XML Module>: AddResource_listsElementToXml tempNum: %d "};
constexpr XmlLogText kAddList = {2, kSchemaCode, __LINE__, "<XML Module>: AddListElementToXml"};
constexpr XmlLogText kAddEntry = {2, kSchemaCode, __LINE__, "<XML Module>: AddEntryElementToXml"};
constexpr XmlLogText kNoUri = {4, kSchemaCode, __LINE__, "<XML Module>: AddEntryElementToXml Uri mandatory attribute"};
constexpr XmlLogText kAddEntryRef = {2, kSchemaCode, __LINE__, "<XML Module>: AddEntryRefElementToXml"};
constexpr XmlLogText kNoRef = {4, kSchemaCode, __LINE__,
                               "<XML Module>: AddEntryRefElementToXml attribute: ref mandatory attribute"};
constexpr XmlLogText kAddExternal = {2, kSchemaCode, __LINE__, "<XML Module>: AddExternalElementToXml"};

constexpr XmlField kEntryFields[] = {
    {XmlFieldKind::Text, IX_STR_URI, XmlTextMember(&ix_entryType::mUri)},
    {XmlFieldKind::AttributeList, IX_STR_IX_NULL, XmlListMember(&ix_entryType::mAnyAttribute), 0, nullptr,
     "attributes"},
    {XmlFieldKind::Child, IX_STR_DISPLAY_NAME, IX_CHILD_MEMBER(ix_entryType, mDisplayName)},
};
constexpr XmlFieldTable kEntryTable = {nullptr, kEntryFields, std::size(kEntryFields)};

constexpr XmlField kEntryRefFields[] = {
    {XmlFieldKind::Text, IX_STR_REF, XmlTextMember(&ix_entry_refType::mRef)},
    {XmlFieldKind::AttributeList, IX_STR_IX_NULL, XmlListMember(&ix_entry_refType::mAnyAttribute), 0, nullptr,
     "attributes"},
    {XmlFieldKind::Child, IX_STR_DISPLAY_NAME, IX_CHILD_MEMBER(ix_entry_refType, mDisplayName)},
};
constexpr XmlFieldTable kEntryRefTable = {nullptr, kEntryRefFields, std::size(kEntryRefFields)};

constexpr XmlField kExternalFields[] = {
    {XmlFieldKind::Text, IX_STR_ANCHOR, XmlTextMember(&ix_externalType::mAnchor)},
    {XmlFieldKind::AttributeList, IX_STR_IX_NULL, XmlListMember(&ix_externalType::mAnyAttribute), 0, nullptr,
     "attributes"},
    {XmlFieldKind::Child, IX_STR_DISPLAY_NAME, IX_CHILD_MEMBER(ix_externalType, mDisplayName)},
};
constexpr XmlFieldTable kExternalTable = {nullptr, kExternalFields, std::size(kExternalFields)};

constexpr XmlField kListFields[] = {
    {XmlFieldKind::Text, IX_STR_NAME, XmlTextMember(&ix_listType::mName)},
    {XmlFieldKind::AttributeList, IX_STR_IX_NULL, XmlListMember(&ix_listType::mAnyAttribute), 0, nullptr, "attributes"},
    {XmlFieldKind::Child, IX_STR_DISPLAY_NAME, IX_CHILD_MEMBER(ix_listType, mDisplayName)},
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_listType::mChildren), 0, nullptr, "children"},
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_listType::mAnyElementList), 0, nullptr, "any"},
};
constexpr XmlFieldTable kListTable = {nullptr, kListFields, std::size(kListFields)};

constexpr XmlField kResourceListsFields[] = {
    {XmlFieldKind::ChildList, IX_STR_LIST, XmlListMember(&ix_resource_lists::mListList)},
};
constexpr XmlFieldTable kResourceListsTable = {nullptr, kResourceListsFields, std::size(kResourceListsFields)};

}  // namespace

int ix_display_nameType::ProcessUnMarshall(char* name, char* text, XMLElement* /*child*/) {
    return ixEndNameIs(name, IX_STR_DISPLAY_NAME) ? setValueValue(text) : 1;
}

int ix_listMemberType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (child != nullptr && ixNameIs(name, IX_STR_DISPLAY_NAME)) {
        return ixTakeChild(mDisplayName, child);
    }
    // The end tag of the element itself comes by here, too.
    ixLog(kSourceFile, kCannotAccommodate, name, text);
    return 1;
}

int ix_listMemberType::ProcessUnMarshallAttribute(char* /*attribute*/, char* /*value*/, XMLAttribute* pair) {
    return addAnyAttribute(ixAsPair(pair));
}

int ix_listMemberType::addAnyAttribute(ix_AttributeValuePair* pair) {
    return pair != nullptr ? ixAppend(mAnyAttribute, pair, kSourceFile, __LINE__) : 0;
}

ix_entryType::~ix_entryType() { XmlFields::Release(this, kEntryTable); }

const XmlFieldTable* ix_entryType::FieldTable() const { return &kEntryTable; }

int ix_entryType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair == nullptr && ixNameIs(attribute, IX_STR_URI)) return setUriValue(value);
    return ix_listMemberType::ProcessUnMarshallAttribute(attribute, value, pair);
}

ix_entry_refType::~ix_entry_refType() { XmlFields::Release(this, kEntryRefTable); }

const XmlFieldTable* ix_entry_refType::FieldTable() const { return &kEntryRefTable; }

int ix_entry_refType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair == nullptr && ixNameIs(attribute, IX_STR_REF)) return setRefValue(value);
    return ix_listMemberType::ProcessUnMarshallAttribute(attribute, value, pair);
}

ix_externalType::~ix_externalType() { XmlFields::Release(this, kExternalTable); }

const XmlFieldTable* ix_externalType::FieldTable() const { return &kExternalTable; }

int ix_externalType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair == nullptr && ixNameIs(attribute, IX_STR_ANCHOR)) return setAnchorValue(value);
    return ix_listMemberType::ProcessUnMarshallAttribute(attribute, value, pair);
}

ix_listType::~ix_listType() { XmlFields::Release(this, kListTable); }

const XmlFieldTable* ix_listType::FieldTable() const { return &kListTable; }

int ix_listType::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (child == nullptr || ixNameIs(name, IX_STR_DISPLAY_NAME)) {
        return ix_listMemberType::ProcessUnMarshall(name, text, child);
    }
    if (ixNameIs(name, IX_STR_EXTERNAL)) return ixTakeInto<ix_externalType>(mChildren, child, kSourceFile, __LINE__);
    if (ixNameIs(name, IX_STR_ENTRY)) return ixTakeInto<ix_entryType>(mChildren, child, kSourceFile, __LINE__);
    if (ixNameIs(name, IX_STR_ENTRY_REF)) return ixTakeInto<ix_entry_refType>(mChildren, child, kSourceFile, __LINE__);
    if (ixNameIs(name, IX_STR_LIST)) return ixTakeInto<ix_listType>(mChildren, child, kSourceFile, __LINE__);
    return addAnyElement(child);
}

int ix_listType::ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) {
    if (pair == nullptr && ixNameIs(attribute, IX_STR_NAME)) return setNameValue(value);
    return ix_listMemberType::ProcessUnMarshallAttribute(attribute, value, pair);
}

int ix_listType::addChild(XMLElement* child) {
    for (const XmlOldWriterRow& row : kChildWriters) {
        if (ixIsClass(child, row.className)) return ixAppend(mChildren, child, kSourceFile, __LINE__);
    }
    return 0;
}

int ix_listType::addAnyElement(XMLElement* element) {
    return element != nullptr ? ixAppend(mAnyElementList, element, kSourceFile, __LINE__) : 0;
}

ix_resource_lists::~ix_resource_lists() { XmlFields::Release(this, kResourceListsTable); }

const XmlFieldTable* ix_resource_lists::FieldTable() const { return &kResourceListsTable; }

int ix_resource_lists::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (child == nullptr) return 1;
    return ixNameIs(name, IX_STR_LIST) ? ixTakeInto<ix_listType>(mListList, child, kSourceFile, __LINE__) : 0;
}

int ix_resource_lists::addList(ix_listType* list) {
    return list != nullptr ? ixAppend(mListList, list, kSourceFile, __LINE__) : 0;
}

XMLElement* ResourceListsDataBinder::CreateRootElement() { return IX_NEW(ix_resource_lists); }

ix_listType* ResourceListsDataBinder::CreateListType() { return IX_NEW(ix_listType); }

ix_entryType* ResourceListsDataBinder::CreateEntryType() { return IX_NEW(ix_entryType); }

ix_entry_refType* ResourceListsDataBinder::CreateEntryRefType() { return IX_NEW(ix_entry_refType); }

ix_externalType* ResourceListsDataBinder::CreateExternalType() { return IX_NEW(ix_externalType); }

ix_display_nameType* ResourceListsDataBinder::CreateDisplayNameType() { return IX_NEW(ix_display_nameType); }

Resource_listsMarshall::Resource_listsMarshall() : XmlOldFamilyMarshaller(kMarshallerInfo) {}

int Resource_listsMarshall::AddResource_listsElementToXml(ix_resource_lists* lists) {
    ixLog(kSourceFile, kAddResourceLists);
    if (lists == nullptr) return 0;
    StartElementOpen(IX_STR_RESOURCE_LISTS);
    AddAttribute(IX_STR_XMLNS,
                 ix_xml_common_array_definition::getStringName(IX_STR_URN_IETF_PARAMS_XML_NS_RESOURCE_LISTS),
                 Attribute::Open);
    AddPrefixedAttribute(IX_STR_XMLNS, IX_STR_XSI,
                         ix_xml_common_array_definition::getStringName(IX_STR_HTTP_WWW_W3_ORG_2001_XMLSCHEMA_INSTANCE),
                         Attribute::Open);
    AddPrefixedAttribute(IX_STR_XMLNS, IX_STR_CP,
                         ix_xml_common_array_definition::getStringName(IX_STR_URN_IETF_PARAMS_XML_NS_COPYCONTROL),
                         Attribute::Closing);
    int index = 0;
    for (auto* const list : XmlEntries<ix_listType>(lists->mListList)) {
        // A list that fails is left out, and the next one is written.
        if (AddListElementToXml(list) == 0) ixLog(kSourceFile, kListFailed, index);
        ++index;
    }
    EndElement(IX_STR_RESOURCE_LISTS);
    return 1;
}

int Resource_listsMarshall::AddListElementToXml(ix_listType* list) {
    ixLog(kSourceFile, kAddList);
    if (list == nullptr) return 0;
    // Where nothing more can be written, nothing is descended into.
    if (m_generator.Text() == nullptr || m_generator.IsTruncated()) return 1;
    AddStartTag(IX_STR_LIST, IX_STR_NAME, list->mName, *list);
    for (auto* const child : XmlEntries<XMLElement>(list->mChildren)) AddChild(child);
    EndElement(IX_STR_LIST);
    return 1;
}

int Resource_listsMarshall::AddEntryElementToXml(ix_entryType* entry) {
    ixLog(kSourceFile, kAddEntry);
    if (entry == nullptr || entry->mUri == nullptr) {
        ixLog(kSourceFile, kNoUri);
        return 0;
    }
    AddStartTag(IX_STR_ENTRY, IX_STR_URI, entry->mUri, *entry);
    EndElement(IX_STR_ENTRY);
    return 1;
}

int Resource_listsMarshall::AddEntryRefElementToXml(ix_entry_refType* reference) {
    ixLog(kSourceFile, kAddEntryRef);
    if (reference == nullptr || reference->mRef == nullptr) {
        ixLog(kSourceFile, kNoRef);
        return 0;
    }
    AddStartTag(IX_STR_ENTRY_REF, IX_STR_REF, reference->mRef, *reference);
    EndElement(IX_STR_ENTRY_REF);
    return 1;
}

int Resource_listsMarshall::AddExternalElementToXml(ix_externalType* external) {
    ixLog(kSourceFile, kAddExternal);
    if (external == nullptr) return 0;
    AddStartTag(IX_STR_EXTERNAL, IX_STR_ANCHOR, external->mAnchor, *external);
    EndElement(IX_STR_EXTERNAL);
    return 1;
}

/// The start tag, closed by the last of its attributes, and the display name.
void Resource_listsMarshall::AddStartTag(e_XmlStrRef name, e_XmlStrRef attribute, const char* value,
                                         const ix_listMemberType& member) {
    const IxSingleElementList* const others = member.mAnyAttribute;
    // Required: a list of other attributes is trusted to hold some. An empty one leaves the start tag open.
    const bool isEmpty = others != nullptr && ixNodesOf(others) == nullptr;
    const bool hasOthers = isEmpty || LastAttribute(others) != nullptr;
    if (value == nullptr && !hasOthers) {
        StartElement(name);
    } else {
        StartElementOpen(name);
        if (value != nullptr) AddAttribute(attribute, value, hasOthers ? Attribute::Open : Attribute::Closing);
        AddAttributeList(others, Attribute::Closing);
    }
    if (member.mDisplayName != nullptr) AddTextElement(IX_STR_DISPLAY_NAME, member.mDisplayName->mValue);
}

/// Writes a child of a list with the writer of its class, whose result does not matter.
void Resource_listsMarshall::AddChild(XMLElement* child) {
    const char* const className = child != nullptr ? child->ClassName() : nullptr;
    if (className == nullptr) return;
    for (const XmlOldWriterRow& row : kChildWriters) {
        // Required: a class name that is only the beginning of a row's selects its writer as well. Such an object is
        // none of ours, so the writer gets nothing to read from.
        if (__strncmp(row.className, className, __strlen(className)) != 0) continue;
        row.write(*this, ixIsClass(child, row.className) ? child : nullptr);
        return;
    }
}

IX_OLD_FAMILY(ResourceListsContext, Resource_listsMarshall, ResourceListsUnMarshaller, ResourceListsDataBinder);

namespace {

/// Appends `child`, or deletes it without memory. @return `child`, or NULL.
template <class Element>
Element* AddTo(ix_listType* list, Element* child) {
    if (list != nullptr && list->addChild(child) != 0) return child;
    IX_DELETE(child);
    return nullptr;
}

/// @return true, or false for NULL or without memory.
bool SetDisplayName(ResourceListsDataBinder& binder, ix_listMemberType* member, const char* text) {
    ix_display_nameType* const name = member != nullptr ? binder.CreateDisplayNameType() : nullptr;
    return name != nullptr && member->setDisplayNameValue(name) != 0 && name->setValueValue(text) != 0;
}

/// The document of the sample builder below the root. @return false without memory.
bool BuildSample(ResourceListsDataBinder& binder, ix_resource_lists& root) {
    ix_listType* const friends = binder.CreateListType();
    if (root.addList(friends) == 0) {
        IX_DELETE(friends);
        return false;
    }
    ix_entryType* const entry = AddTo(friends, binder.CreateEntryType());
    ix_listType* const family = AddTo(friends, binder.CreateListType());
    ix_entry_refType* const reference = AddTo(family, binder.CreateEntryRefType());
    ix_externalType* const external = AddTo(friends, binder.CreateExternalType());
    ix_AttributeValuePair* const copy = ixCreatePair("cp:copyControl", "to", kSourceFile, __LINE__);
    if (entry == nullptr || entry->addAnyAttribute(copy) == 0) {
        IX_DELETE(copy);
        return false;
    }
    return friends->setNameValue("friends") != 0 && SetDisplayName(binder, friends, "Friends") &&
           entry->setUriValue("sip:alice@example.net") != 0 && SetDisplayName(binder, entry, "Alice") &&
           family != nullptr && family->setNameValue("family") != 0 &&  //
           reference != nullptr && reference->setRefValue("resource-lists/users/sip:bob@example.net/index") != 0 &&
           external != nullptr && external->setAnchorValue("http://xcap.example.org/lists/club") != 0 &&
           SetDisplayName(binder, external, "Club");
}

}  // namespace

char* TestResource_listsMarshall() {
    ResourceListsDataBinder binder;
    auto* const root = static_cast<ix_resource_lists*>(binder.CreateRootElement());
    Resource_listsMarshall marshaller;
    const bool built = root != nullptr && BuildSample(binder, *root);
    char* const copy = __strdup(built ? marshaller.Marshall(root) : nullptr);
    IX_DELETE(root);
    return copy;
}
