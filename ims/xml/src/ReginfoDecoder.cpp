#include "ReginfoDecoder.h"

#include "XMLReginfo.h"

namespace {

using namespace XmlContainer;

constexpr XmlContainerRow kContainers[] = {
    Root<ix_reginfo>(IX_STR_REGINFO),
    Child<ix_registration>(IX_STR_REGISTRATION),
    Child<ix_ns_reginfo_contact>(IX_STR_CONTACT),
    // Required: its end tag pops whatever is on top, so that of a parameter in a parameter ends the outer one.
    Text<ix_unknown_param>(IX_STR_UNKNOWN_PARAM).EndsAnything(),
};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kContainers>(kSource);
    info.names = XmlNamePolicy::Stripped;
    info.wrapsNameSize = true;
    info.texts.noElement = {3, "In XMLReginfoDecoder :: ProcessElement, Element name is NULL"};
    info.texts.noElementName = IX_NO_ELEMENT_NAME_TEXT("XMLReginfoDecoder", "m_PassName");
    info.texts.noAttribute = {3, "In XMLReginfoDecoder :: ProcessAttribute, Element name is NULL"};
    info.texts.noAttributeName = IX_NO_ATTRIBUTE_NAME_TEXT("XMLReginfoDecoder", "m_PassName");
    // Required: this line names another decoder and has the event number of the tokenizer.
    info.texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLCommunicationDiversionDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLReginfoDecoder::XMLReginfoDecoder() : XmlFamilyDecoder(kInfo) {}

XMLElement* XMLReginfoDecoder::ProcessAnyElement(char* name, char* /*text*/) {
    if (name != nullptr) return AnyElement(XmlTag(name));
    ixLog(kSource, {3, "In XMLReginfoDecoder :: ProcessAnyElement, Element name is NULL"});
    return nullptr;
}

XMLElement* XMLReginfoDecoder::AnyElement(const XmlTag& tag) {
    // One that was refused is off the stack before its end tag, so the class is looked at.
    if (tag.Ends(IX_STR_PUB_GRUU)) Pop(ix_pub_gruu::kClass);
    if (tag.Ends(IX_STR_TEMP_GRUU)) Pop(ix_temp_gruu::kClass);
    XMLElement* object = nullptr;
    if (tag.Starts(IX_STR_PUB_GRUU)) object = ixNew<ix_pub_gruu>(kSource);
    if (tag.Starts(IX_STR_TEMP_GRUU)) object = ixNew<ix_temp_gruu>(kSource);
    if (object != nullptr) Push(object);
    return object;
}

/// Once parameters in parameters have emptied the stack, end tags are dropped.
int XMLReginfoDecoder::EndElement(const XmlTag& tag, char* text) {
    return Top() != nullptr ? XmlFamilyDecoder::EndElement(tag, text) : 0;
}

/// `uri`, `display-name`, GRUUs, and whatever is not of this schema.
int XMLReginfoDecoder::OtherElement(const XmlTag& tag, char* text) {
    XMLElement* const top = Top();
    if (top == nullptr) return 0;
    XMLElement* const object = AnyElement(tag);
    if (object == nullptr) {
        XmlHooks::OfferTo(*top, tag, text, nullptr);
    } else {
        Offer(*top, tag, object);
    }
    return 0;
}

/// Every attribute goes to the object of its element, which knows its own: no pair is made of the others.
int XMLReginfoDecoder::OtherAttribute(XMLElement& receiver, const XmlTag& attribute, char* value) {
    XmlHooks::OfferAttributeTo(receiver, attribute, value, nullptr);
    return 0;
}
