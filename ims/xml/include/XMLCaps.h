/// @file
/// The capability extensions (RFC 5196) of a presence document (XMLPresence.h).
///
/// - Element: `servcaps` inside a tuple, with `audio`, `video` and `duplex`.
/// - Namespace: urn:ietf:params:xml:ns:pidf:caps.
/// - Prefixes: removed when read; written with `caps`.
/// - All fields are written. A document is decoded into `audio` and, inside `duplex` and `supported`, `full`; `video`,
///   `notsupported`, the other kinds of duplex and all further capabilities are passed over with a log line.
#ifndef IX_XML_CAPS_H
#define IX_XML_CAPS_H

#include "XmlElementSupport.h"

/// The content of `supported` and `notsupported` inside `duplex`: kinds of duplex, each there or not.
class IX_XML_EXPORT ix_ns_caps_duplextypes : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_caps_duplextypes() : XmlDescribedElement(kClass) {}
    ~ix_ns_caps_duplextypes() override { ixRelease(*this, kClass); }
    /// Takes the text at the end tag of a kind as that kind; any object becomes one of the other children.
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Each takes over its object in place of the earlier one, which is deleted; NULL: the kind is not there.
    /// @return 1.
    int setFullValue(ix_string* full) { return ixSetChild(mFull, full); }
    int setHalfValue(ix_string* half) { return ixSetChild(mHalf, half); }
    int setReceiveOnlyValue(ix_string* receiveOnly) { return ixSetChild(mReceiveOnly, receiveOnly); }
    int setSendOnlyValue(ix_string* sendOnly) { return ixSetChild(mSendOnly, sendOnly); }
    /// Takes over the list in place of the earlier one, which is deleted; NULL: none. @return 1.
    int setAnyElementListValue(IxSingleElementList* list) { return ixSetList(*this, mAnyElementList, list); }
    /// Appends an element, which then belongs to this one. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addAnyElement(XMLElement* element) { return ixAdd(*this, mAnyElementList, element); }

    /// @name The kinds of duplex, with the text of their element, usually empty. Owned; NULL: not there.
    /// @{
    ix_string* mFull = nullptr;         ///< Element `full`.
    ix_string* mHalf = nullptr;         ///< Element `half`.
    ix_string* mReceiveOnly = nullptr;  ///< Element `receive-only`.
    ix_string* mSendOnly = nullptr;     ///< Element `send-only`.
    /// @}
    IxSingleElementList* mAnyElementList = nullptr;  ///< Other children. Owned, not written; NULL: none.
};

/// The element `duplex`: which kinds of duplex a service supports.
class IX_XML_EXPORT ix_ns_caps_duplextype : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_caps_duplextype() : XmlDescribedElement(kClass) {}
    ~ix_ns_caps_duplextype() override { ixRelease(*this, kClass); }

    /// Each takes over its object in place of the earlier one, which is deleted; NULL: none. @return 1.
    int setSupportedValue(ix_ns_caps_duplextypes* supported) { return ixSetChild(mSupported, supported); }
    int setNotsupportedValue(ix_ns_caps_duplextypes* notsupported) { return ixSetChild(mNotsupported, notsupported); }

    ix_ns_caps_duplextypes* mSupported = nullptr;     ///< Element `supported`. Owned; NULL: none.
    ix_ns_caps_duplextypes* mNotsupported = nullptr;  ///< Element `notsupported`. Owned; NULL: none.
};

/// The element `servcaps`: what the service of a tuple is capable of.
class IX_XML_EXPORT ix_ns_caps_servcaps : public XmlDescribedElement {
  public:
    static const XmlClass kClass;
    static constexpr int kNotSet = 2;

    ix_ns_caps_servcaps() : XmlDescribedElement(kClass) {}
    ~ix_ns_caps_servcaps() override { ixRelease(*this, kClass); }

    /// @return 1.
    int setAudioValue(int audio) { return ixSetNumber(mAudio, audio); }
    /// @return 1.
    int setVideoValue(int video) { return ixSetNumber(mVideo, video); }
    /// Takes over `duplex` in place of the earlier one, which is deleted; NULL: none. @return 1.
    int setDuplexValue(ix_ns_caps_duplextype* duplex) { return ixSetChild(mDuplex, duplex); }

    int mAudio = kNotSet;                      ///< Element `audio`: 0 "false", 1 "true", `kNotSet`.
    int mVideo = kNotSet;                      ///< Element `video`: 0 "false", 1 "true", `kNotSet`.
    ix_ns_caps_duplextype* mDuplex = nullptr;  ///< Element `duplex`. Owned; NULL: none.
};

#endif
