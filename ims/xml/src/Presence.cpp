#include "Presence.h"

#include <iterator>

#include "XMLPresence.h"

namespace {

using namespace XmlContainer;
using PresenceNameSpace::ix_status;

constexpr XmlContainerRow kPidfContainers[] = {
    Root<ix_presence>(IX_STR_PRESENCE), Text<ix_tuple>(IX_STR_TUPLE), Text<ix_status>(IX_STR_STATUS),
    Text<ix_contact>(IX_STR_CONTACT),   Text<ix_note>(IX_STR_NOTE),
};
constexpr XmlContainerRow kExtensionContainers[] = {
    Child<ix_ns_oma_pres_service_description>(IX_STR_SERVICE_DESCRIPTION),
    Child<ix_ns_caps_servcaps>(IX_STR_SERVCAPS),
    Child<ix_ns_caps_duplextype>(IX_STR_DUPLEX),
    Child<ix_ns_caps_duplextypes>(IX_STR_SUPPORTED),
};
constexpr XmlName kPidfTexts[] = {IX_STR_BASIC, IX_STR_TIMESTAMP};
constexpr XmlName kExtensionTexts[] = {IX_STR_SERVICE_ID, IX_STR_DESCRIPTION, IX_STR_VERSION, IX_STR_AUDIO,
                                       IX_STR_FULL};

/// The elements that are known: those that objects are made of, and those whose text goes to the object on top.
struct Vocabulary {
    XmlContainerTable containers;
    const XmlName* texts;
    std::size_t textCount;

    bool Has(XmlName name) const {
        if (!name.IsKnown()) return false;
        if (containers.firstOf[name.number] != 0) return true;
        std::size_t i = 0;
        while (i < textCount && texts[i] != name) ++i;
        return i < textCount;
    }
};
constexpr Vocabulary kPidf = {ixContainers<kPidfContainers>(), kPidfTexts, std::size(kPidfTexts)};
constexpr Vocabulary kExtensions = {ixContainers<kExtensionContainers>(), kExtensionTexts, std::size(kExtensionTexts)};

constexpr XmlDecoderInfo Info() {
    XmlDecoderInfo info = ixDecoderInfo<kPidfContainers>(kSource);
    info.shared = &kExtensions.containers;
    info.names = XmlNamePolicy::Stripped;
    info.attributes = XmlAttributePolicy::OwnNoPairs;
    info.texts.noElement = IX_NO_ELEMENT_TEXT("XMLPresenceDecoder");
    info.texts.noElementName = IX_NO_ELEMENT_NAME_TEXT("XMLPresenceDecoder", "m_PassName");
    info.texts.noAttribute = IX_NO_ATTRIBUTE_TEXT("XMLPresenceDecoder");
    // Required: this text ends in a blank.
    info.texts.noAttributeName = {3, "<XML Module>XMLPresenceDecoder :: ProcessAttribute: m_PassName is NULL "};
    info.texts.removeTagNoMemory = IX_REMOVE_TAG_TEXT("XMLPresenceDecoder");
    return info;
}
constexpr XmlDecoderInfo kInfo = Info();

}  // namespace

XMLPresenceDecoder::XMLPresenceDecoder() : XmlFamilyDecoder(kInfo) {}

int XMLPresenceDecoder::StartElement(const XmlTag& tag) {
    return kPidf.Has(tag.name) ? XmlFamilyDecoder::StartElement(tag) : ForeignElement(tag, nullptr);
}

int XMLPresenceDecoder::EndElement(const XmlTag& tag, char* text) {
    return kPidf.Has(tag.name) ? XmlFamilyDecoder::EndElement(tag, text) : ForeignElement(tag, text);
}

/// An element that is none of PIDF. One that is unknown, or stands outside of the root, is dropped with a line.
int XMLPresenceDecoder::ForeignElement(const XmlTag& tag, char* text) {
    if (ProcessAnyElement(tag.text, text) == nullptr) {
        ixLog(kSource, {3, "<XML Module>XMLPresenceDecoder :: m_any is NULL when %s"}, tag.text);
    }
    return 0;
}

XMLElement* XMLPresenceDecoder::ProcessAnyElement(char* name, char* data) {
    if (name == nullptr) {
        ixLog(kSource, {3, "XMLPresenceDecoder :: ProcessAnyElement: n_strElement is NULL"});
        return nullptr;
    }
    const XmlTag tag(name);
    if (!kExtensions.Has(tag.name)) {
        ixLog(kSource, {3, "<XML Module>XMLPresenceDecoder :: ProcessAnyElement is not supported when %s"}, name);
        return nullptr;
    }
    if (tag.isEnd) {
        XmlFamilyDecoder::EndElement(tag, data);
    } else {
        XmlFamilyDecoder::StartElement(tag);
    }
    return Top();
}
