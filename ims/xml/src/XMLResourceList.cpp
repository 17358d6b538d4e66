#include "XMLResourceList.h"

#include "ResourceLists.h"

namespace {

using namespace XmlRow;

constexpr XmlField kMemberFields[] = {
    Attributes<&ix_listMemberType::mAnyAttribute>(),
    Child<&ix_listMemberType::mDisplayName>(IX_STR_DISPLAY_NAME).In(XmlNamespace::ResourceLists),
};

constexpr XmlField kEntryFields[] = {
    Attribute<&ix_entryType::mUri>(IX_STR_URI).Mandatory(),
};

constexpr XmlField kEntryRefFields[] = {
    Attribute<&ix_entry_refType::mRef>(IX_STR_REF).Mandatory(),
};

constexpr XmlField kExternalFields[] = {
    Attribute<&ix_externalType::mAnchor>(IX_STR_ANCHOR),
};

constexpr XmlNamedClass kChildClasses[] = {
    {IX_STR_LIST, &ix_listType::kClass, XmlNamespace::ResourceLists},
    {IX_STR_EXTERNAL, &ix_externalType::kClass, XmlNamespace::ResourceLists},
    {IX_STR_ENTRY, &ix_entryType::kClass, XmlNamespace::ResourceLists},
    {IX_STR_ENTRY_REF, &ix_entry_refType::kClass, XmlNamespace::ResourceLists},
};
constexpr XmlField kListFields[] = {
    Attribute<&ix_listType::mName>(IX_STR_NAME),
    Mixed<&ix_listType::mChildren>("children", kChildClasses),
    Others<&ix_listType::mAnyElementList>(),
};

constexpr XmlField kResourceListsFields[] = {
    Children<&ix_resource_lists::mListList, ix_listType>(IX_STR_LIST).In(XmlNamespace::ResourceLists),
};

/// An object in a display name belongs to no tree, but it takes what stands in it, so that the name does not get that.
constexpr XmlAnswers DisplayNameAnswers() {
    XmlAnswers answers;
    answers.object = 1;
    return answers;
}

/// Those of a list and its members; the end tag of the element itself is logged, too.
constexpr XmlAnswers MemberAnswers() {
    XmlAnswers answers;
    answers.object = 1;
    answers.missingIsUnknown = true;
    answers.unknown = {2, "Cannot accommodate the element %s with value %s"};
    answers.unknownObject = answers.unknown;
    return answers;
}

constexpr XmlUnMarshallerInfo kUnMarshallerInfo = ixUnMarshallerInfo<XMLResourceListsDecoder>(
    kSource, {4, "<XML Module>: StrDup failed in ResourceListsUnMarshaller::UnMarshall"});

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&Resource_listsMarshall::AddResource_listsElementToXml>(),
};
/// The writers of a list's children.
constexpr XmlWriterRow kChildWriters[] = {
    ixWriter<&Resource_listsMarshall::AddListElementToXml>(),
    ixWriter<&Resource_listsMarshall::AddExternalElementToXml>(),
    ixWriter<&Resource_listsMarshall::AddEntryElementToXml>(),
    ixWriter<&Resource_listsMarshall::AddEntryRefElementToXml>(),
};

constexpr XmlMarshallerInfo MarshallerInfo() {
    XmlMarshallerInfo info =
        ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("Resource_listsMarshall", "mResourceListsXml"));
    info.noRoot = {3, "<XML Module>: Resource_listsMarshall :: Marshall: Received Object is NULL"};
    return info;
}
constexpr XmlMarshallerInfo kMarshallerInfo = MarshallerInfo();

/// A list or one of its members.
template <class Member, std::size_t count>
constexpr XmlClass MemberClass(const char* name, const char* type, const XmlField (&rows)[count]) {
    return ixDerived(ixClass<Member>(name, type, kSource, rows, MemberAnswers()), ix_listMemberType::kClass);
}

}  // namespace

constexpr XmlClass ix_display_nameType::kClass =
    ixDerived(ixClass<ix_display_nameType>("ix_display_nameType", "display-nameType", kSource, DisplayNameAnswers())
                  .Of(IX_STR_DISPLAY_NAME),
              ix_string::kClass);
constexpr XmlClass ix_listMemberType::kClass =
    ixClass<ix_listMemberType>("ix_listMemberType", "listMemberType", kSource, kMemberFields);
constexpr XmlClass ix_entryType::kClass = MemberClass<ix_entryType>("ix_entryType", "entryType", kEntryFields);
constexpr XmlClass ix_entry_refType::kClass =
    MemberClass<ix_entry_refType>("ix_entry_refType", "entry-refType", kEntryRefFields);
constexpr XmlClass ix_externalType::kClass =
    MemberClass<ix_externalType>("ix_externalType", "externalType", kExternalFields);
constexpr XmlClass ix_listType::kClass = MemberClass<ix_listType>("ix_listType", "listType", kListFields);
constexpr XmlClass ix_resource_lists::kClass =
    ixClass<ix_resource_lists>("ix_resource_lists", "resource-lists", kSource, kResourceListsFields);

int ix_listType::addChild(XMLElement* child) {
    for (const XmlNamedClass& row : kChildClasses) {
        if (ixIsClass(child, *row.description)) return ixAdd(*this, mChildren, child);
    }
    return 0;
}

XMLElement* ResourceListsDataBinder::CreateRootElement() { return ixNew<ix_resource_lists>(kSource); }
ix_listType* ResourceListsDataBinder::CreateListType() { return ixNew<ix_listType>(kSource); }
ix_entryType* ResourceListsDataBinder::CreateEntryType() { return ixNew<ix_entryType>(kSource); }
ix_entry_refType* ResourceListsDataBinder::CreateEntryRefType() { return ixNew<ix_entry_refType>(kSource); }
ix_externalType* ResourceListsDataBinder::CreateExternalType() { return ixNew<ix_externalType>(kSource); }
ix_display_nameType* ResourceListsDataBinder::CreateDisplayNameType() { return ixNew<ix_display_nameType>(kSource); }

ResourceListsUnMarshaller::ResourceListsUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

Resource_listsMarshall::Resource_listsMarshall() : XmlFamilyMarshaller(kMarshallerInfo) {}

ResourceListsContext::ResourceListsContext()
    : XmlFamilyContext(ixFamily<Resource_listsMarshall, ResourceListsUnMarshaller, ResourceListsDataBinder>(kSource)) {}

int Resource_listsMarshall::AddResource_listsElementToXml(ix_resource_lists* lists) {
    if (!Enter(lists, {2, "<XML Module>: AddResource_listsElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_RESOURCE_LISTS);
    tag.Add(IX_STR_XMLNS, IX_STR_URN_IETF_PARAMS_XML_NS_RESOURCE_LISTS);
    tag.AddPrefixed(IX_STR_XMLNS, IX_STR_XSI, IX_STR_HTTP_WWW_W3_ORG_2001_XMLSCHEMA_INSTANCE);
    tag.AddPrefixed(IX_STR_XMLNS, IX_STR_CP, IX_STR_URN_IETF_PARAMS_XML_NS_COPYCONTROL);
    tag.Close();
    int index = 0;
    for (auto* const entry : XmlEntries<XMLElement>(lists->mListList)) {
        // A list that fails is left out, and the next one is written.
        if (AddListElementToXml(ixAs<ix_listType>(entry)) == 0) {
            Log({2, "<XML Module>: AddResource_listsElementToXml tempNum: %d "}, index);
        }
        ++index;
    }
    EndElement(IX_STR_RESOURCE_LISTS);
    return 1;
}

int Resource_listsMarshall::AddListElementToXml(ix_listType* list) {
    if (!Enter(list, {2, "<XML Module>: AddListElementToXml"})) return 0;
    // Where nothing more can be written, there is no need to go deeper.
    if (m_generator.Text() == nullptr || m_generator.IsTruncated()) return 1;
    StartMember(IX_STR_LIST, IX_STR_NAME, list->mName, *list);
    for (auto* const child : XmlEntries<XMLElement>(list->mChildren)) AddChild(child);
    EndElement(IX_STR_LIST);
    return 1;
}

/// Writes a child of a list with the writer of its class, whose result does not matter.
void Resource_listsMarshall::AddChild(XMLElement* child) {
    const char* const className = child != nullptr ? child->ClassName() : nullptr;
    if (className == nullptr) return;
    for (const XmlWriterRow& row : kChildWriters) {
        // Required: a class name that is only the beginning of a row's selects its writer as well. Such an object is
        // none of ours, so the writer gets nothing to read from.
        if (__strncmp(row.description->name, className, __strlen(className)) != 0) continue;
        row.write(*this, child);
        return;
    }
}

int Resource_listsMarshall::AddEntryElementToXml(ix_entryType* entry) {
    if (!Enter(entry, {2, "<XML Module>: AddEntryElementToXml"})) return 0;
    if (entry->mUri == nullptr) return Fail({4, "<XML Module>: AddEntryElementToXml Uri mandatory attribute"});
    StartMember(IX_STR_ENTRY, IX_STR_URI, entry->mUri, *entry);
    EndElement(IX_STR_ENTRY);
    return 1;
}

int Resource_listsMarshall::AddEntryRefElementToXml(ix_entry_refType* reference) {
    if (!Enter(reference, {2, "<XML Module>: AddEntryRefElementToXml"})) return 0;
    if (reference->mRef == nullptr) {
        return Fail({4, "<XML Module>: AddEntryRefElementToXml attribute: ref mandatory attribute"});
    }
    StartMember(IX_STR_ENTRY_REF, IX_STR_REF, reference->mRef, *reference);
    EndElement(IX_STR_ENTRY_REF);
    return 1;
}

int Resource_listsMarshall::AddExternalElementToXml(ix_externalType* external) {
    if (!Enter(external, {2, "<XML Module>: AddExternalElementToXml"})) return 0;
    StartMember(IX_STR_EXTERNAL, IX_STR_ANCHOR, external->mAnchor, *external);
    EndElement(IX_STR_EXTERNAL);
    return 1;
}

/// What the writers of a list and its members begin with: the start tag and the display name.
void Resource_listsMarshall::StartMember(e_XmlStrRef name, e_XmlStrRef attribute, const char* value,
                                         const ix_listMemberType& member) {
    XmlStartTag tag(*this, name);
    tag.Add(attribute, value);
    tag.AddAll(member.mAnyAttribute);
    // Required: a list of other attributes is trusted to hold some. An empty one leaves the start tag open.
    if (member.mAnyAttribute != nullptr && ixNodesOf(member.mAnyAttribute) == nullptr) {
        tag.LeaveOpen();
    } else {
        tag.Close();
    }
    if (member.mDisplayName != nullptr) AddTextElement(IX_STR_DISPLAY_NAME, member.mDisplayName->mValue);
}

namespace {

/// Appends `child`, or deletes it without memory. @return `child`, or NULL.
XMLElement* AddTo(ix_listType* list, XMLElement* child) {
    if (list != nullptr && list->addChild(child) != 0) return child;
    ixDelete(child);
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
        ixDelete(friends);
        return false;
    }
    auto* const entry = ixAs<ix_entryType>(AddTo(friends, binder.CreateEntryType()));
    auto* const family = ixAs<ix_listType>(AddTo(friends, binder.CreateListType()));
    auto* const reference = ixAs<ix_entry_refType>(AddTo(family, binder.CreateEntryRefType()));
    auto* const external = ixAs<ix_externalType>(AddTo(friends, binder.CreateExternalType()));
    ix_AttributeValuePair* const copy = ixCreatePair("cp:copyControl", "to", kSource);
    if (entry == nullptr || entry->addAnyAttribute(copy) == 0) {
        ixDelete(copy);
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
    ixDelete(root);
    return copy;
}
