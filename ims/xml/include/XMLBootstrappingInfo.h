/// @file
/// Bootstrapping information (3GPP TS 24.109, generic bootstrapping architecture): the answer of the bootstrapping
/// server.
///
/// - Root element: `BootstrappingInfo`, with the texts `btid` and `lifetime`.
/// - Namespace: uri:3gpp-gba. It is not expected; it is written as the default namespace.
/// - Prefixes: removed. Of an element name of 65534 characters or more only the beginning is looked at.
/// - Read and written. Other elements are logged and lost; attributes are lost.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_BOOTSTRAPPING_INFO_H
#define IX_XML_BOOTSTRAPPING_INFO_H

#include "XmlFamily.h"

/// The element `BootstrappingInfo`.
class IX_XML_EXPORT ix_bootstrappinginfo : public XmlDescribedObject {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_BOOTSTRAPPING_INFO, class BootstrappingInfoDataBinder>;

    ix_bootstrappinginfo() : XmlDescribedObject(kClass) {}
    ~ix_bootstrappinginfo() override { ixRelease(*this, kClass); }

    /// Copies `btid`; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    int setBtidValue(const char* btid) { return ixSetText(mBtid, btid); }
    /// Copies `lifetime`; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    int setLifetimeValue(const char* lifetime) { return ixSetText(mLifetime, lifetime); }
    /// Takes over a list of elements in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setAnyElementListValue(IxSingleElementList* list) { return ixSetList(*this, mAnyElementList, list); }
    /// Appends `element`, which then belongs to the root. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addAnyElement(XMLElement* element) { return ixAdd(*this, mAnyElementList, element); }

    char* mBtid = nullptr;      ///< Owned; the identifier of the bootstrapping transaction. NULL: not set.
    char* mLifetime = nullptr;  ///< Owned; date and time of its expiry, as in the text. NULL: not set.
    IxSingleElementList* mAnyElementList = nullptr;  ///< Owned elements that a caller added, not written; NULL: none.
};

class IX_XML_EXPORT BootstrappingInfoDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_bootstrappinginfo`; NULL without memory.
    XMLElement* CreateRootElement() override;
};

class IX_XML_EXPORT BootstrappingInfoUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    BootstrappingInfoUnMarshaller();
};

/// Writes the XML declaration and the document. A text that is not set is logged and left out.
class IX_XML_EXPORT BootstrappingInfoMarshaller : public XmlFamilyMarshaller {
  public:
    BootstrappingInfoMarshaller();

    /// @return 1, or 0 for NULL.
    int AddBootstrappingInfoElementToXml(ix_bootstrappinginfo* element);
    /// @return 1, or 0 for NULL.
    int AddBtidElementToXml(const char* btid);
    /// @return 1, or 0 for NULL.
    int AddLifetimeElementToXml(const char* lifetime);
};

class IX_XML_EXPORT BootstrappingInfoContext : public XmlFamilyContext {
  public:
    BootstrappingInfoContext();
};

#endif
