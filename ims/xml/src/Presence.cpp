#include "Presence.h"

#include <iterator>

#include "XMLPresence.h"

using PresenceNameSpace::ix_status;

namespace {

const char kSourceFile[] = "ims/xml/src/Presence";

constexpr XmlLogText kDropped = {3, kSchemaCode, __LINE__, "<XML Module>XMLPresenceDecoder :: m_any is NULL when %s"};
constexpr XmlLogText kUnknown = {3, kSchemaCode, __LINE__,
                                 "<XML Module>XMLPresenceDecoder :: ProcessAnyElement is not supported when %s"};
constexpr XmlLogText kNoName = {3, kSchemaCode, __LINE__,
                                "XMLPresenceDecoder :: ProcessAnyElement: n_strElement is NULL"};

constexpr XmlOldKnownName kPresence = {IX_STR_PRESENCE};
constexpr XmlOldKnownName kTuple = {IX_STR_TUPLE};
constexpr XmlOldKnownName kContact = {IX_STR_CONTACT};

constexpr XmlOldContainerRow kContainers[] = {
    {kPresence, XmlOldContainerRow::Root, nullptr, IX_OLD_CREATOR(ix_presence)},
    {kTuple, XmlOldContainerRow::Text, IX_OLD_OBJECT(ix_tuple)},
    {{IX_STR_STATUS}, XmlOldContainerRow::Text, IX_OLD_OBJECT(ix_status)},
    {kContact, XmlOldContainerRow::Text, IX_OLD_OBJECT(ix_contact)},
    {{IX_STR_NOTE}, XmlOldContainerRow::Text, IX_OLD_OBJECT(ix_note)},
    {{IX_STR_SERVICE_DESCRIPTION}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_oma_pres_service_description)},
    {{IX_STR_SERVCAPS}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_caps_servcaps)},
    {{IX_STR_DUPLEX}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_caps_duplextype)},
    {{IX_STR_SUPPORTED}, XmlOldContainerRow::Child, IX_OLD_OBJECT(ix_ns_caps_duplextypes)},
};

constexpr XmlOldAttributeRow kAttributes[] = {
    {kPresence, IX_STR_ENTITY},
    {kTuple, IX_STR_ID},
    {kContact, IX_STR_PRIORITY},
};

/// The elements that are known, objects and texts: those of PIDF, then those of extensions.
constexpr e_XmlStrRef kNames[] = {IX_STR_PRESENCE,   IX_STR_TUPLE,       IX_STR_STATUS,    IX_STR_CONTACT,
                                  IX_STR_NOTE,       IX_STR_BASIC,       IX_STR_TIMESTAMP, IX_STR_SERVICE_DESCRIPTION,
                                  IX_STR_SERVICE_ID, IX_STR_DESCRIPTION, IX_STR_VERSION,   IX_STR_SERVCAPS,
                                  IX_STR_AUDIO,      IX_STR_DUPLEX,      IX_STR_SUPPORTED, IX_STR_FULL};
constexpr std::size_t kFirstExtension = 7;
static_assert(kNames[kFirstExtension] == IX_STR_SERVICE_DESCRIPTION, "PIDF ends before this one");

constexpr XmlOldDecoderInfo Info() {
    XmlOldDecoderInfo info = ixOldDecoderInfo(kSourceFile, __LINE__, kContainers, kAttributes);
    info.names = XmlOldNamePolicy::Stripped;
    info.attributePolicy = XmlOldAttributePolicy::OwnNoPairs;
    // Required: one of the four texts ends in a blank.
    IX_OLD_DECODER_TEXTS(info.texts, "XMLPresenceDecoder", "m_PassName", "m_PassName");
    info.texts.noAttributeName = {3, kSchemaCode, __LINE__,
                                  "<XML Module>XMLPresenceDecoder :: ProcessAttribute: m_PassName is NULL "};
    info.texts.removeTagNoMemory = IX_OLD_REMOVE_TAG_TEXT("XMLPresenceDecoder");
    return info;
}
constexpr XmlOldDecoderInfo kInfo = Info();

}  // namespace

XMLPresenceDecoder::XMLPresenceDecoder() : XmlOldFamilyDecoder(kInfo) {
    for (std::size_t i = 0; i < std::size(kNames); ++i) m_names.Add(i, XmlOldKnownName{kNames[i]});
}

/// @param name of a start or an end tag.
XMLPresenceDecoder::Origin XMLPresenceDecoder::OriginOf(const char* name) const {
    if (*name == '/') ++name;
    const unsigned key = XmlOldRowIndex::Key(name);
    for (std::size_t i = m_names.Next(key, 0); i < std::size(kNames); i = m_names.Next(key, i + 1)) {
        if (ixNameIs(name, kNames[i])) return i < kFirstExtension ? Pidf : Extension;
    }
    return Unknown;
}

int XMLPresenceDecoder::StartElement(char* name) {
    XmlOldFamilyDecoder::StartElement(name);
    LogOutside(name);
    return 0;
}

int XMLPresenceDecoder::EndElement(char* name, char* text) {
    XmlOldFamilyDecoder::EndElement(name, text);
    LogOutside(name);
    return 0;
}

/// An extension that stands outside of the root is dropped with a line.
void XMLPresenceDecoder::LogOutside(const char* name) const {
    if (Top() == nullptr && OriginOf(name) == Extension) ixLog(kSourceFile, kDropped, name);
}

int XMLPresenceDecoder::OtherElement(char* name, char* text) {
    if (OriginOf(name) != Unknown) return XmlOldFamilyDecoder::OtherElement(name, text);
    ixLog(kSourceFile, kUnknown, name);
    ixLog(kSourceFile, kDropped, name);
    return 0;
}

XMLElement* XMLPresenceDecoder::ProcessAnyElement(char* name, char* data) {
    if (name == nullptr) {
        ixLog(kSourceFile, kNoName);
        return nullptr;
    }
    if (OriginOf(name) != Extension) {
        ixLog(kSourceFile, kUnknown, name);
        return nullptr;
    }
    if (*name == '/') {
        XmlOldFamilyDecoder::EndElement(name, data);
    } else {
        XmlOldFamilyDecoder::StartElement(name);
    }
    return Top();
}
