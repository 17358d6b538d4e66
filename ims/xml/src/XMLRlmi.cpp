#include "XMLRlmi.h"

#include "Rlmi.h"

namespace {

using namespace XmlRow;

constexpr char kStateTexts[][32] = {"active", "pending", "terminated"};
constexpr XmlEnumeration kStates = {kStateTexts[0], sizeof kStateTexts[0], IX_RLMI_INSTANCE_NOT_SET};

constexpr XmlField kInstanceFields[] = {
    Attributes<&ix_instance::mAnyAttribute>(),
    Attribute<&ix_instance::mReason>(IX_STR_REASON),
    Attribute<&ix_instance::mCid>(IX_STR_CID),
    Attribute<&ix_instance::mId>(IX_STR_ID).Mandatory(),
    Attribute<&ix_instance::mState>(IX_STR_STATE, kStates).Mandatory(),
};

constexpr XmlField kResourceFields[] = {
    Attributes<&ix_resource::mAnyAttribute>(),
    Attribute<&ix_resource::mUri>(IX_STR_URI).Mandatory(),
    Children<&ix_resource::mNameList, ix_name>(IX_STR_NAME),
    Children<&ix_resource::mInstanceList, ix_instance>(IX_STR_INSTANCE),
};

constexpr XmlField kListFields[] = {
    Attribute<&ix_list::mUri>(IX_STR_URI).Mandatory(),
    Attribute<&ix_list::mVersion>(IX_STR_VERSION).Always().Mandatory(),
    Attribute<&ix_list::mFullState>(IX_STR_FULLSTATE, XmlFlag::TrueOrNot).Always().Mandatory(),
    Attribute<&ix_list::mCid>(IX_STR_CID),
    Attributes<&ix_list::mAnyAttribute>(),
    Children<&ix_list::mNameList, ix_name>(IX_STR_NAME),
    Children<&ix_list::mResourceList, ix_resource>(IX_STR_RESOURCE),
};

constexpr XmlUnMarshallerInfo kUnMarshallerInfo =
    ixUnMarshallerInfo<XMLListDecoder>(kSource, {4, "<XML Module>: StrDup failed in ListUnMarshaller::UnMarshall"});

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&ListMarshaller::AddListElementToXml>(),
};
constexpr XmlMarshallerInfo kMarshallerInfo =
    ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("ListMarshaller", "mListXml"));

}  // namespace

constexpr XmlClass ix_name::kClass =
    ixDerived(ixClass<ix_name>("ix_name", "name", kSource).Of(IX_STR_NAME), ix_string::kClass);
constexpr XmlClass ix_instance::kClass = ixClass<ix_instance>("ix_instance", "instance", kSource, kInstanceFields);
constexpr XmlClass ix_resource::kClass = ixClass<ix_resource>("ix_resource", "resource", kSource, kResourceFields);
constexpr XmlClass ix_list::kClass = ixClass<ix_list>("ix_list", "list", kSource, kListFields);

XMLElement* ListDataBinder::CreateRootElement() { return ixNew<ix_list>(kSource); }
ix_resource* ListDataBinder::CreateResourceElement() { return ixNew<ix_resource>(kSource); }
ix_instance* ListDataBinder::CreateInstanceElement() { return ixNew<ix_instance>(kSource); }
ix_name* ListDataBinder::CreateNameElement() { return ixNew<ix_name>(kSource); }

ListUnMarshaller::ListUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

ListMarshaller::ListMarshaller() : XmlFamilyMarshaller(kMarshallerInfo) {}

ListContext::ListContext() : XmlFamilyContext(ixFamily<ListMarshaller, ListUnMarshaller, ListDataBinder>(kSource)) {}

int ListMarshaller::AddListElementToXml(ix_list* list) {
    if (!Enter(list, {2, "<XML Module>: AddListElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_LIST);
    tag.Add(IX_STR_XMLNS, IX_STR_URN_IETF_PARAMS_XML_NS_RLMI);
    // Required: the namespace is declared once more in place of the cid, which is never written.
    if (list->mCid != nullptr) tag.Add(IX_STR_XMLNS, IX_STR_URN_IETF_PARAMS_XML_NS_RLMI);
    if (list->mUri == nullptr) return Fail({4, "<XML Module>: AddListElementToXml Uri mandatory attribute"});
    tag.Add(IX_STR_URI, list->mUri);
    tag.AddDecimal(IX_STR_VERSION, list->mVersion);
    tag.Add(IX_STR_FULLSTATE, list->mFullState == 1 ? IX_STR_TRUE : IX_STR_FALSE);
    tag.Close();
    if (!AddNames(list->mNameList)) return 0;
    if (!AddChildren<&ListMarshaller::AddResourceElementToXml>(
            list->mResourceList, {2, "<XML Module>: AddResourceElementToXml XML Failed!"})) {
        return 0;
    }
    EndElement(IX_STR_LIST);
    return 1;
}

int ListMarshaller::AddResourceElementToXml(ix_resource* resource) {
    if (!Enter(resource, {2, "<XML Module>: AddResourceElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_RESOURCE);
    tag.AddAll(resource->mAnyAttribute);
    if (resource->mUri == nullptr) return Fail({4, "<XML Module>: AddResourceElementToXml Uri mandatory attribute"});
    tag.Add(IX_STR_URI, resource->mUri);
    tag.Close();
    if (!AddNames(resource->mNameList)) return 0;
    if (!AddChildren<&ListMarshaller::AddInstanceElementToXml>(
            resource->mInstanceList, {2, "<XML Module>: AddInstanceElementToXml XML Failed!"})) {
        return 0;
    }
    EndElement(IX_STR_RESOURCE);
    return 1;
}

int ListMarshaller::AddInstanceElementToXml(ix_instance* instance) {
    if (!Enter(instance, {2, "<XML Module>: AddInstanceElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_INSTANCE);
    tag.AddAll(instance->mAnyAttribute);
    tag.Add(IX_STR_REASON, instance->mReason);
    tag.Add(IX_STR_CID, instance->mCid);
    if (instance->mId == nullptr) return Fail({4, "<XML Module>: AddInstanceElementToXml Id mandatory attribute"});
    tag.Add(IX_STR_ID, instance->mId);
    const char* const state = kStates.TextOf(instance->mState);
    if (state == nullptr) return Fail({4, "<XML Module>: AddInstanceElementToXml state mandatory attribute"});
    tag.Add(IX_STR_STATE, state);
    tag.Close();
    EndElement(IX_STR_INSTANCE);
    return 1;
}

int ListMarshaller::AddNames(const IxSingleElementList* names) {
    return AddChildren<&ListMarshaller::AddNameElementToXml>(names,
                                                             {2, "<XML Module>: AddNameElementToXml XML Failed!"});
}

int ListMarshaller::AddNameElementToXml(ix_name* name) {
    if (!Enter(name, {2, "<XML Module>: AddNameElementToXml"})) return 0;
    AddTextOrEmptyElement(IX_STR_NAME, name->mValue);
    return 1;
}
