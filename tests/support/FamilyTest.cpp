#include "FamilyTest.h"

#include "../../ims/tools/imsxml/Json.h"

std::string Sample(const std::string& name) {
    return ReadFile(PROJECT_DIR "/samples/" + name + ".xml");
}

Strings Pairs(const IxSingleElementList* list) {
    Strings texts;
    for (const IxSingleElementNode* node = list != nullptr ? list->GetPtrToListHead() : nullptr; node != nullptr;
         node = node->next) {
        const auto* const pair = static_cast<const ix_AttributeValuePair*>(node->key);
        texts.push_back(std::string(pair->mName != nullptr ? pair->mName : "-") + "=" + pair->mValue);
    }
    return texts;
}

nlohmann::ordered_json TreeOf(const XMLElement* root) {
    return root != nullptr ? ToJson(*root) : nlohmann::ordered_json();
}

XMLElement* FamilyTest::Decode(eXMLSchemaID id, const std::string& text, XMLObject* binder) {
    const OwnedContext context(id);
    context->SetNamespaceBinder(binder);
    return context->createUnMarshaller()->UnMarshall(text.c_str());
}

std::string FamilyTest::Write(eXMLSchemaID id, XMLElement* root, XMLObject* binder) {
    const OwnedContext context(id);
    context->SetNamespaceBinder(binder);
    XMLMarshaller* const marshaller = context->createMarshaller();
    const char* const text = marshaller != nullptr ? marshaller->Marshall(root) : nullptr;
    return text != nullptr ? text : "(null)";
}

XMLObject* FamilyTest::Binder(const std::string& text) {
    return static_cast<XMLObject*>(Decode(IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL, text));
}

std::string FamilyTest::Field(eXMLSchemaID id, const std::string& text, const std::string& pointer) {
    const OwnedElement root(Decode(id, text));
    if (root.get() == nullptr) return "(null)";
    const nlohmann::ordered_json tree = TreeOf(root.get());
    const nlohmann::ordered_json::json_pointer place(pointer);
    if (!tree.contains(place)) return "(absent)";
    const auto& value = tree.at(place);
    return value.is_string() ? value.get<std::string>() : value.dump();
}

std::string FamilyTest::Convert(eXMLSchemaID id, const std::string& text) {
    const OwnedElement root(Decode(id, text));
    return root.get() != nullptr ? Write(id, root.get()) : "(null)";
}
