#include "XMLCaps.h"

#include <iterator>

namespace {

const char kSourceFile[] = "ims/xml/src/XMLCaps";

constexpr XmlField kDuplexTypesFields[] = {
    {XmlFieldKind::Child, IX_STR_FULL, IX_CHILD_MEMBER(ix_ns_caps_duplextypes, mFull)},
    {XmlFieldKind::Child, IX_STR_HALF, IX_CHILD_MEMBER(ix_ns_caps_duplextypes, mHalf)},
    {XmlFieldKind::Child, IX_STR_RECEIVE_ONLY, IX_CHILD_MEMBER(ix_ns_caps_duplextypes, mReceiveOnly)},
    {XmlFieldKind::Child, IX_STR_SEND_ONLY, IX_CHILD_MEMBER(ix_ns_caps_duplextypes, mSendOnly)},
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_ns_caps_duplextypes::mAnyElementList), 0, nullptr,
     "any"},
};
constexpr XmlFieldTable kDuplexTypesTable = {nullptr, kDuplexTypesFields, std::size(kDuplexTypesFields)};

constexpr XmlField kDuplexFields[] = {
    {XmlFieldKind::Child, IX_STR_SUPPORTED, IX_CHILD_MEMBER(ix_ns_caps_duplextype, mSupported)},
    {XmlFieldKind::Child, IX_STR_NOTSUPPORTED, IX_CHILD_MEMBER(ix_ns_caps_duplextype, mNotsupported)},
};
constexpr XmlFieldTable kDuplexTable = {nullptr, kDuplexFields, std::size(kDuplexFields)};

constexpr XmlField kServcapsFields[] = {
    {XmlFieldKind::Flag, IX_STR_AUDIO, XmlIntMember(&ix_ns_caps_servcaps::mAudio), ix_ns_caps_servcaps::kNotSet},
    {XmlFieldKind::Flag, IX_STR_VIDEO, XmlIntMember(&ix_ns_caps_servcaps::mVideo), ix_ns_caps_servcaps::kNotSet},
    {XmlFieldKind::Child, IX_STR_DUPLEX, IX_CHILD_MEMBER(ix_ns_caps_servcaps, mDuplex)},
};
constexpr XmlFieldTable kServcapsTable = {nullptr, kServcapsFields, std::size(kServcapsFields)};

/// Replaces `field` by a new object with `text`. @return 1, or 0 without memory, the earlier object kept.
int SetTextObject(ix_string*& field, const char* text) {
    ix_string* const object = IX_NEW(ix_string);
    if (object != nullptr && object->setValueValue(text) != 0) return ixSetChild(field, object);
    IX_DELETE(object);
    return 0;
}

int FlagOf(const char* text) {
    if (ixNameIs(text, IX_STR_FALSE)) return 0;
    return ixNameIs(text, IX_STR_TRUE) ? 1 : ix_ns_caps_servcaps::kNotSet;
}

}  // namespace

ix_ns_caps_duplextypes::~ix_ns_caps_duplextypes() { XmlFields::Release(this, kDuplexTypesTable); }

const XmlFieldTable* ix_ns_caps_duplextypes::FieldTable() const { return &kDuplexTypesTable; }

int ix_ns_caps_duplextypes::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_FULL)) return SetTextObject(mFull, text);
    if (ixEndNameIs(name, IX_STR_HALF)) return SetTextObject(mHalf, text);
    if (ixEndNameIs(name, IX_STR_RECEIVE_ONLY)) return SetTextObject(mReceiveOnly, text);
    if (ixEndNameIs(name, IX_STR_SEND_ONLY)) return SetTextObject(mSendOnly, text);
    return child != nullptr ? addAnyElement(child) : 1;
}

int ix_ns_caps_duplextypes::addAnyElement(XMLElement* element) {
    return ixAppend(mAnyElementList, element, kSourceFile, __LINE__);
}

ix_ns_caps_duplextype::~ix_ns_caps_duplextype() { XmlFields::Release(this, kDuplexTable); }

const XmlFieldTable* ix_ns_caps_duplextype::FieldTable() const { return &kDuplexTable; }

int ix_ns_caps_duplextype::ProcessUnMarshall(char* name, char* /*text*/, XMLElement* child) {
    if (ixNameIs(name, IX_STR_SUPPORTED)) return ixTakeChild(mSupported, child);
    if (ixNameIs(name, IX_STR_NOTSUPPORTED)) {
        return ixTakeChild(mNotsupported, child);
    }
    return child == nullptr ? 1 : 0;
}

ix_ns_caps_servcaps::~ix_ns_caps_servcaps() { XmlFields::Release(this, kServcapsTable); }

const XmlFieldTable* ix_ns_caps_servcaps::FieldTable() const { return &kServcapsTable; }

int ix_ns_caps_servcaps::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (ixEndNameIs(name, IX_STR_AUDIO)) return setAudioValue(FlagOf(text));
    if (ixEndNameIs(name, IX_STR_VIDEO)) return setVideoValue(FlagOf(text));
    if (ixNameIs(name, IX_STR_DUPLEX)) return ixTakeChild(mDuplex, child);
    return child == nullptr ? 1 : 0;
}
