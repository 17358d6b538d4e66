// What the tests of the families share: decode, write, look at a tree.
#ifndef FAMILY_TEST_H
#define FAMILY_TEST_H

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "XMLList.h"
#include "XmlDecoder.h"
#include "XmlElementSupport.h"
#include "XmlFields.h"
#include "XmlTest.h"

using Strings = std::vector<std::string>;

/// One of the project's own documents, "gruu/odd" for example.
std::string Sample(const std::string& name);

/// "name=value" for each pair, "-" for no name.
Strings Pairs(const IxSingleElementList* list);

/// The tree as the command prints it; null for NULL.
nlohmann::ordered_json TreeOf(const XMLElement* root);

/// An element without class name.
class NamelessElement : public ix_string {
  public:
    const char* ClassName() const override { return nullptr; }
};

/// What `ProcessUnMarshall` of `to` answers.
struct HookAnswer {
    XMLElement& to;
    const char* name;
    XMLElement* child;
    int answer;
    const char* text = nullptr;
};

class FamilyTest : public XmlTest {
  protected:
    /// Calls `ProcessUnMarshall`, which changes none of the texts.
    static int Offer(XMLElement& element, const char* name, const char* text, XMLElement* child = nullptr);

    static void ExpectAnswers(const std::vector<HookAnswer>& answers);

    /// Calls `ProcessUnMarshallAttribute`, which changes none of the texts.
    static int OfferAttribute(XMLElement& element, const char* attribute, const char* value,
                              XMLAttribute* pair = nullptr);

    /// Checks that a hook takes no child `name` but of its class, and answers 1 to what it does not know.
    static void ExpectTakesItsChildOnly(XMLElement& element, const std::string& name);

    /// Checks that a hook copies the text of the element `name` into `field`, at its end tag only.
    static void ExpectTakesText(XMLElement& element, const std::string& name, char* const& field);

    /// Gives `decoder` events without a name, and events with names that there is no memory for: an element and an
    /// attribute each. Checks that it refuses them. @return what it logged.
    Strings RefusedEvents(XmlDecoderSchema& decoder);

    /// Decodes with a fresh context, and with a namespace binder when there is one.
    static XMLElement* Decode(eXMLSchemaID id, const std::string& text, XMLObject* binder = nullptr);

    /// The text of a fresh marshaller; "(null)" for none.
    static std::string Write(eXMLSchemaID id, XMLElement* root, XMLObject* binder = nullptr);

    /// The declarations of a document, as a namespace binder.
    static XMLObject* Binder(const std::string& text);

    /// The field of the tree that `text` decodes to, by JSON pointer ("/rule/0/id"), as text; "(null)" when there is no
    /// tree, "(absent)" when there is no such field.
    static std::string Field(eXMLSchemaID id, const std::string& text, const std::string& pointer);

    /// Decodes and writes a text.
    static std::string Convert(eXMLSchemaID id, const std::string& text);
};

#endif
