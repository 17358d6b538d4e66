#include "ReginfoDecoder.h"

#include "XMLReginfo.h"

namespace {

const char kSourceFile[] = "ims/xml/src/ReginfoDecoder";

constexpr XmlLogText kNoAnyElement = {3, kSchemaCode, __LINE__,
                                      "In XMLReginfoDecoder :: ProcessAnyElement, Element name is NULL"};

constexpr XmlOldContainerRow kContainers[] = {
    {{IX_STR_CONTACT}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_reginfo_contact)},
    {{IX_STR_UNKNOWN_PARAM}, XmlOldContainerRow::Text, nullptr, IX_OLD_CREATOR(ix_unknown_param)},
    {{IX_STR_REGISTRATION}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_registration)},
    {{IX_STR_REGINFO}, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_reginfo)},
};

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixOldDecoderInfo(kSourceFile, __LINE__, kContainers);
    info.names = XmlOldNamePolicy::Stripped;
    info.wrapsNameSize = true;
    info.texts.noElement = {3, kSchemaCode, __LINE__, "In XMLReginfoDecoder :: ProcessElement, Element name is NULL"};
    info.texts.noElementName = {3, kSchemaCode, __LINE__,
                                "<XML Module>XMLReginfoDecoder :: ProcessElement: m_PassName is NULL"};
    info.texts.noAttribute = {3, kSchemaCode, __LINE__,
                              "In XMLReginfoDecoder :: ProcessAttribute, Element name is NULL"};
    info.texts.noAttributeName = {3, kSchemaCode, __LINE__,
                                  "<XML Module>XMLReginfoDecoder :: ProcessAttribute: m_PassName is NULL"};
    // Required: this line names another decoder and has the event number of the tokenizer.
    info.texts.removeTagNoMemory = IX_OLD_REMOVE_TAG_TEXT("XMLCommunicationDiversionDecoder");
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLReginfoDecoder::XMLReginfoDecoder() : XmlOldFamilyDecoder(kInfo) {}

XMLElement* XMLReginfoDecoder::ProcessAnyElement(char* name, char* /*text*/) {
    if (name == nullptr) {
        ixLog(kSourceFile, kNoAnyElement);
        return nullptr;
    }
    // One that was refused is off the stack before its end tag, so the class is looked at.
    if (ixEndNameIs(name, IX_STR_PUB_GRUU)) Pop(ix_pub_gruu::kClassName);
    if (ixEndNameIs(name, IX_STR_TEMP_GRUU)) Pop(ix_temp_gruu::kClassName);
    XMLElement* object = nullptr;
    if (ixNameIs(name, IX_STR_PUB_GRUU)) object = IX_NEW(ix_pub_gruu);
    if (ixNameIs(name, IX_STR_TEMP_GRUU)) object = IX_NEW(ix_temp_gruu);
    if (object != nullptr) Push(object);
    return object;
}

int XMLReginfoDecoder::EndElement(char* name, char* text) {
    return Top() != nullptr ? XmlOldFamilyDecoder::EndElement(name, text) : 0;
}

/// `uri`, `display-name`, texts, and whatever is not of this schema.
int XMLReginfoDecoder::OtherElement(char* name, char* text) {
    XMLElement* const top = Top();
    if (top == nullptr) return 0;
    XMLElement* const object = ProcessAnyElement(name, text);
    if (object == nullptr) {
        top->ProcessUnMarshall(name, text, nullptr);
    } else {
        Offer(*top, name, object);
    }
    return 0;
}

/// Every attribute goes to the object of its element, which knows its own: no pair is made of the others.
int XMLReginfoDecoder::OtherAttribute(XMLElement& receiver, char* attribute, char* value) {
    receiver.ProcessUnMarshallAttribute(attribute, value, nullptr);
    return 0;
}
