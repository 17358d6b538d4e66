#include "FamilyTest.h"

#include "../../ims/tools/imsxml/Json.h"
#include "XmlFields.h"

std::string Sample(const std::string& name) { return ReadFile(PROJECT_DIR "/samples/" + name + ".xml"); }

Strings Pairs(const IxSingleElementList* list) {
    Strings texts;
    for (const auto* pair : XmlEntries<ix_AttributeValuePair>(list)) {
        texts.push_back(std::string(pair->mName != nullptr ? pair->mName : "-") + "=" + pair->mValue);
    }
    return texts;
}

nlohmann::ordered_json TreeOf(const XMLElement* root) {
    return root != nullptr ? ToJson(*root) : nlohmann::ordered_json();
}

int FamilyTest::Offer(XMLElement& element, const char* name, const char* text, XMLElement* child) {
    return element.ProcessUnMarshall(const_cast<char*>(name), const_cast<char*>(text), child);
}

void FamilyTest::ExpectAnswers(const std::vector<HookAnswer>& answers) {
    for (const HookAnswer& row : answers) {
        EXPECT_EQ(Offer(row.to, row.name, row.text, row.child), row.answer)
            << row.to.ClassName() << ": " << row.name << (row.child != nullptr ? " with an object" : "");
    }
}

int FamilyTest::OfferAttribute(XMLElement& element, const char* attribute, const char* value, XMLAttribute* pair) {
    return element.ProcessUnMarshallAttribute(const_cast<char*>(attribute), const_cast<char*>(value), pair);
}

void FamilyTest::ExpectTakesItsChildOnly(XMLElement& element, const std::string& name) {
    SCOPED_TRACE(element.ClassName() + (": " + name));
    ix_string other;
    NamelessElement nameless;
    EXPECT_EQ(Offer(element, name.c_str(), nullptr, nullptr), 0);
    EXPECT_EQ(Offer(element, name.c_str(), nullptr, &other), 0);
    EXPECT_EQ(Offer(element, name.c_str(), nullptr, &nameless), 1);
    EXPECT_EQ(Offer(element, (name + "s").c_str(), nullptr, &other), 1);
    EXPECT_EQ(Offer(element, nullptr, nullptr, nullptr), 1);
    for (const XmlFieldTable* table = ixRowsOf(element); table != nullptr; table = table->base) {
        for (std::size_t i = 0; i < table->count; ++i) EXPECT_FALSE(XmlFields::IsSet(element, table->fields[i])) << i;
    }
}

void FamilyTest::ExpectTakesText(XMLElement& element, const std::string& name, char* const& field) {
    SCOPED_TRACE(element.ClassName() + (": " + name));
    const std::string end = "/" + name;
    ix_string other;
    EXPECT_EQ(Offer(element, end.c_str(), "replaced", nullptr), 1);
    EXPECT_EQ(Offer(element, end.c_str(), "kept", nullptr), 1);
    EXPECT_EQ(Offer(element, end.c_str(), nullptr, nullptr), 1);
    EXPECT_EQ(Offer(element, end.c_str(), "refused", &other), 0);
    EXPECT_EQ(Offer(element, name.c_str(), "ignored", nullptr), 1);
    EXPECT_EQ(Offer(element, (end + "s").c_str(), "ignored", nullptr), 1);
    ixDplHostFailAllocation(1);
    EXPECT_EQ(Offer(element, end.c_str(), "no memory", nullptr), 0);
    ixDplHostStopCounting();
    EXPECT_STREQ(field, "kept");
}

Strings FamilyTest::RefusedEvents(XmlDecoderSchema& decoder) {
    // Longer than the room that a decoder begins with.
    std::string name(100, 'x');
    ClearLog();
    EXPECT_EQ(decoder.ProcessElement(nullptr, nullptr), -1);
    EXPECT_EQ(decoder.ProcessAttribute(nullptr, name.data(), nullptr), -1);
    ixDplHostFailAllocation(1, 2);
    EXPECT_EQ(decoder.ProcessElement(name.data(), nullptr), -1);
    EXPECT_EQ(decoder.ProcessAttribute(name.data(), name.data(), nullptr), -1);
    ixDplHostStopCounting();
    return Texts();
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
