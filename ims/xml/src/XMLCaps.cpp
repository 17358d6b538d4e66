#include "XMLCaps.h"

#include "XmlHooks.h"

namespace {

using namespace XmlRow;

constexpr XmlField kDuplexTypesFields[] = {
    Child<&ix_ns_caps_duplextypes::mFull>(IX_STR_FULL),
    Child<&ix_ns_caps_duplextypes::mHalf>(IX_STR_HALF),
    Child<&ix_ns_caps_duplextypes::mReceiveOnly>(IX_STR_RECEIVE_ONLY),
    Child<&ix_ns_caps_duplextypes::mSendOnly>(IX_STR_SEND_ONLY),
    Others<&ix_ns_caps_duplextypes::mAnyElementList>(),
};

constexpr XmlField kDuplexFields[] = {
    Child<&ix_ns_caps_duplextype::mSupported>(IX_STR_SUPPORTED),
    Child<&ix_ns_caps_duplextype::mNotsupported>(IX_STR_NOTSUPPORTED),
};

constexpr XmlField kServcapsFields[] = {
    Element<&ix_ns_caps_servcaps::mAudio>(IX_STR_AUDIO, XmlFlag::TrueFalseOrUnset).NotSet(ix_ns_caps_servcaps::kNotSet),
    Child<&ix_ns_caps_servcaps::mDuplex>(IX_STR_DUPLEX),
    Element<&ix_ns_caps_servcaps::mVideo>(IX_STR_VIDEO, XmlFlag::TrueFalseOrUnset).NotSet(ix_ns_caps_servcaps::kNotSet),
};

/// Replaces `field` by a new object with `text`. @return 1, or 0 without memory, the earlier object kept.
int SetTextObject(ix_string*& field, const char* text) {
    auto* const object = ixNew<ix_string>(kSource);
    if (object != nullptr && object->setValueValue(text) != 0) return ixSetChild(field, object);
    ixDelete(object);
    return 0;
}

}  // namespace

constexpr XmlClass ix_ns_caps_duplextypes::kClass =
    ixClass<ix_ns_caps_duplextypes>("ix_ns_caps_duplextypes", "DuplexTypes", kSource, kDuplexTypesFields);
constexpr XmlClass ix_ns_caps_duplextype::kClass =
    ixClass<ix_ns_caps_duplextype>("ix_ns_caps_duplextype", "DuplexType", kSource, kDuplexFields);
constexpr XmlClass ix_ns_caps_servcaps::kClass =
    ixClass<ix_ns_caps_servcaps>("ix_ns_caps_servcaps", "ServcapsType", kSource, kServcapsFields)
        .Also(
            "actor application automata class control data description event-packages extensions isfocus message "
            "methods languages priority schemes text type");

// Required: a kind is made of the text at its end tag; an object that is offered is none, whatever its name.
int ix_ns_caps_duplextypes::ProcessUnMarshall(char* name, char* text, XMLElement* child) {
    if (child != nullptr) return addAnyElement(child);
    const XmlTag tag(name);
    if (tag.Ends(IX_STR_FULL)) return SetTextObject(mFull, text);
    if (tag.Ends(IX_STR_HALF)) return SetTextObject(mHalf, text);
    if (tag.Ends(IX_STR_RECEIVE_ONLY)) return SetTextObject(mReceiveOnly, text);
    if (tag.Ends(IX_STR_SEND_ONLY)) return SetTextObject(mSendOnly, text);
    return 1;
}
