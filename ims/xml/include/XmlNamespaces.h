/// @file
/// The namespaces of the documents, by numbers.
#ifndef IX_XML_NAMESPACES_H
#define IX_XML_NAMESPACES_H

#include <cstddef>

#include "XmlPlatform.h"

/// A namespace that a document's standard defines or uses.
enum class XmlNamespace : unsigned char {
    None,  ///< No namespace.
    Xml,   ///< Of `xml:lang` and `xml:space`.
    Xmlns,
    Simservs,      ///< 3GPP TS 24.623 and the services.
    CommonPolicy,  ///< RFC 4745.
    OmaCommonPolicy,
    XcapError,       ///< RFC 4825.
    XcapDirectory,   ///< OMA XDM.
    Reginfo,         ///< RFC 3680.
    GruuInfo,        ///< RFC 5628.
    ConferenceInfo,  ///< RFC 4575.
    Pidf,            ///< RFC 3863.
    OmaPresence,     ///< OMA Presence SIMPLE.
    Caps,            ///< RFC 5196.
    ResourceLists,   ///< RFC 4826.
    RlsServices,     ///< RFC 4826.
    Rlmi,            ///< RFC 4662.
    Imdn,            ///< RFC 5438.
    IsComposing,     ///< RFC 3994.
    FileTransfer,    ///< GSMA RCC.07.
    Gba,             ///< 3GPP TS 24.109.
    Count,
    Parent = 255  ///< In rows: that of the element around.
};

/// A namespace and the prefix that its elements usually have.
struct XmlNamespaceInfo {
    const char* uri;
    std::size_t length;
    const char* prefix;
};

constexpr std::size_t kXmlNamespaceCount = static_cast<std::size_t>(XmlNamespace::Count);

/// By number.
IX_XML_EXPORT extern const XmlNamespaceInfo kXmlNamespaces[kXmlNamespaceCount];

#endif
