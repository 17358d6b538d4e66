#include "Classes.h"

#include <algorithm>
#include <map>

#include "BootstrappingInfo.h"
#include "CWIndication.h"
#include "CallWaitingIndication.h"
#include "CommunicationBarring.h"
#include "CommunicationDiversion.h"
#include "CommunicationWaiting.h"
#include "ConferenceInfo.h"
#include "Ft.h"
#include "Gruu.h"
#include "Imdn.h"
#include "IsComposing.h"
#include "Json.h"
#include "MediaControl.h"
#include "OriginatingIdentityPresentation.h"
#include "Presence.h"
#include "RcsTermsInfo.h"
#include "ReginfoDecoder.h"
#include "ResourceLists.h"
#include "Rlmi.h"
#include "RlsServices.h"
#include "Schema.h"
#include "SchemaNameSpaceRetrieval.h"
#include "Simservs.h"
#include "TerminatingIdentityPresentation.h"
#include "VolteConfigInfo.h"
#include "WapProvisioningDoc.h"
#include "XcapDirectory.h"
#include "XcapError.h"
#include "XmlFields.h"
#include "XmlHooks.h"

namespace {

/// An element with the class name that its value says; NULL: none.
class NamedElement : public XMLElement {
  public:
    ~NamedElement() override { __free(mValue); }
    const char* ClassName() const override { return mValue; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "string_class"; }
    int Reserved() const override { return 0; }

    char* mValue = nullptr;
};

template <class Decoder>
std::unique_ptr<XmlDecoderSchema> Make() {
    return std::unique_ptr<XmlDecoderSchema>(new Decoder);
}

const std::map<eXMLSchemaID, std::unique_ptr<XmlDecoderSchema> (*)()> kDecoders = {
    {IX_XML_SCHEMA_IS_COMPOSING, &Make<XMLIsComposingDecoder>},
    {IX_XML_SCHEMA_RESOURCE_LISTS, &Make<XMLResourceListsDecoder>},
    {IX_XML_SCHEMA_CONFERENCE_INFO, &Make<XMLConferenceInfoDecoder>},
    {IX_XML_SCHEMA_IMDN, &Make<XMLImdnDecoder>},
    {IX_XML_SCHEMA_COMMUNICATION_WAITING, &Make<XMLCommunicationWaitingDecoder>},
    {IX_XML_SCHEMA_OIP, &Make<XMLOIPDecoder>},
    {IX_XML_SCHEMA_TIP, &Make<XMLTIPDecoder>},
    {IX_XML_SCHEMA_COMMUNICATION_DIVERSION, &Make<XMLCommunicationDiversionDecoder>},
    {IX_XML_SCHEMA_COMMUNICATION_BARRING, &Make<XMLCommunicationBarringDecoder>},
    {IX_XML_SCHEMA_SIMSERVS, &Make<XMLSimservsDecoder>},
    {IX_XML_SCHEMA_XCAP_ERROR, &Make<XMLXcapErrorDecoder>},
    {IX_XML_SCHEMA_WAP_PROVISIONING_DOC, &Make<XMLWapProvisioningDocDecoder>},
    {IX_XML_SCHEMA_VOLTE_CONFIG_INFO, &Make<XMLVolteConfigInfoDecoder>},
    {IX_XML_SCHEMA_PRESENCE, &Make<XMLPresenceDecoder>},
    {IX_XML_SCHEMA_RLS_SERVICES, &Make<XMLRlsServicesDecoder>},
    {IX_XML_SCHEMA_LIST, &Make<XMLListDecoder>},
    {IX_XML_SCHEMA_XCAP_DIRECTORY, &Make<XMLXcapDirectoryDecoder>},
    {IX_XML_SCHEMA_FILE, &Make<XMLFileDecoder>},
    {IX_XML_SCHEMA_MEDIA_CONTROL, &Make<XMLMediaControlDecoder>},
    {IX_XML_SCHEMA_CALL_WAITING_INDICATION, &Make<XMLCallWaitingIndicationDecoder>},
    {IX_XML_SCHEMA_CW_INDICATION, &Make<XMLCWIndicationDecoder>},
    {IX_XML_SCHEMA_RCS_TERMS_INFO, &Make<XMLRcsTermsInfoDecoder>},
    {IX_XML_SCHEMA_BOOTSTRAPPING_INFO, &Make<XMLBootstrappingInfoDecoder>},
    {IX_XML_SCHEMA_GRUU, &Make<XMLGruuDecoder>},
    {IX_XML_SCHEMA_REGINFO, &Make<XMLReginfoDecoder>},
    {IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL, &Make<XMLSchemaNamespaceRetrievalDecoder>},
};

char* Copy(const Json& text) { return text.is_null() ? nullptr : __strdup(text.get<std::string>().c_str()); }

XMLElement* NewOfClass(eXMLSchemaID id, const Json& name) {
    for (const XmlClass* const description : ClassesOf(id)) {
        if (name == description->name) return New(description);
    }
    auto* const other = static_cast<NamedElement*>(New(nullptr));
    other->mValue = Copy(name);
    return other;
}

void* EntryFromJson(eXMLSchemaID id, XmlFieldKind kind, const Json& entry) {
    if (entry.is_null()) return nullptr;
    if (kind == XmlFieldKind::TextList) return Copy(entry);
    if (kind != XmlFieldKind::AttributeList) return TreeFromJson(id, entry);
    auto* const pair = ixNew<ix_AttributeValuePair>("tests");
    pair->mName = Copy(entry.at("name"));
    pair->mValue = Copy(entry.at("value"));
    return pair;
}

/// A child that is only said to be present is an element of the row's class, an empty one with the field's name.
XMLElement* ChildFromJson(eXMLSchemaID id, const XmlField& row, const Json& child) {
    if (child.is_object()) return TreeFromJson(id, child);
    if (row.description != &ix_empty_element_type::kClass) return New(row.description);
    return TreeFromJson(id, {{"class", "ix_empty_element_type"}, {"name", row.Name()}, {"present", true}});
}

long long NumberFromJson(const XmlField& field, const Json& value) {
    if (value.is_string()) return field.enumeration->IndexOf(value.get<std::string>().c_str());
    return value.is_boolean() ? value.get<bool>() : value.get<long long>();
}

void SetField(eXMLSchemaID id, XMLElement& element, const XmlField& field, const Json& value) {
    switch (field.kind) {
        case XmlFieldKind::Text:
            element.*field.member.text = Copy(value);
            break;
        case XmlFieldKind::Flag:
        case XmlFieldKind::Number:
        case XmlFieldKind::Enumeration:
            element.*field.member.number = static_cast<int>(NumberFromJson(field, value));
            break;
        case XmlFieldKind::Unsigned:
            element.*field.member.unsignedNumber = value;
            break;
        case XmlFieldKind::Number64:
            element.*field.member.number64 = value;
            break;
        case XmlFieldKind::Child:
        case XmlFieldKind::Presence:
            field.store(element, ChildFromJson(id, field, value));
            break;
        default:
            IxSingleElementList*& list = element.*field.member.list;
            list = ixNew<IxSingleElementList>("tests");
            for (const Json& entry : value) list->Add(EntryFromJson(id, field.kind, entry));
    }
}

}  // namespace

std::vector<eXMLSchemaID> AllSchemas() {
    std::vector<eXMLSchemaID> ids;
    for (int id = 0; id < kXmlSchemaCount; ++id) {
        if (XMLFactory::SchemaInfo(id) != nullptr) ids.push_back(static_cast<eXMLSchemaID>(id));
    }
    return ids;
}

std::string SchemaName(const testing::TestParamInfo<eXMLSchemaID>& schema) {
    std::string name = XMLFactory::SchemaInfo(schema.param)->name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

std::vector<const XmlClass*> ClassesOf(eXMLSchemaID id) { return ClassesOf(*XMLFactory::SchemaInfo(id)); }

std::unique_ptr<XmlDecoderSchema> NewDecoder(eXMLSchemaID id) { return kDecoders.at(id)(); }

XMLElement* New(const XmlClass* description) {
    return description != nullptr ? description->create("tests", __LINE__) : ixNew<NamedElement>("tests");
}

XMLElement* TreeFromJson(eXMLSchemaID id, const Json& tree) {
    XMLElement* const element = tree.is_null() ? nullptr : NewOfClass(id, tree.at("class"));
    if (element == nullptr) return nullptr;
    for (const auto& [name, value] : tree.items()) {
        const XmlField* const field = XmlFields::Find(*element, name.c_str());
        EXPECT_TRUE(field != nullptr || name == "class") << name;
        if (field != nullptr) SetField(id, *element, *field, value);
    }
    return element;
}

Json JsonOf(const XMLElement* root) {
    bool replaced = false;
    return root != nullptr ? ToJson(*root, replaced) : Json();
}

std::map<std::string, const XmlField*> FieldsOf(const XMLElement& element) {
    std::map<std::string, const XmlField*> fields;
    for (const XmlFieldTable* table = ixRowsOf(element); table != nullptr; table = table->base) {
        for (std::size_t i = 0; i < table->count; ++i) fields[table->fields[i].Name()] = &table->fields[i];
    }
    return fields;
}

Json StateOf(const XMLElement& element) {
    Json state = JsonOf(&element);
    for (const auto& [name, field] : FieldsOf(element)) {
        if (XmlFields::IsSet(element, *field)) continue;
        const bool isList = field->kind == XmlFieldKind::ChildList || field->kind == XmlFieldKind::TextList ||
                            field->kind == XmlFieldKind::AttributeList;
        if (isList && XmlFields::List(element, *field) != nullptr) state[name] = Json::array();
        if (field->kind == XmlFieldKind::Enumeration) state[name] = XmlFields::Number(element, *field);
    }
    return state;
}

std::string Changes(const Json& before, const Json& after) {
    Json changes = Json::object();
    for (const auto& [key, value] : after.items()) {
        if (!before.contains(key) || before[key] != value) changes[key] = value;
    }
    for (const auto& item : before.items()) {
        if (!after.contains(item.key())) changes[item.key()] = nullptr;
    }
    return changes.empty() ? "" : ' ' + changes.dump();
}
