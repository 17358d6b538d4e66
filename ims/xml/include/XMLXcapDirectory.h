/// @file
/// XCAP directory (OMA XML Document Management, OMA-TS-XDM_Core): the documents that a user holds on an XCAP server.
///
/// - Root element: `xcap-directory`, with a `folder` for each application usage, in it an `entry` for each document, or
///   the `error-code` that kept the server from listing them.
/// - Namespace: urn:oma:xml:xdm:xcap-directory. It is not expected; it is written as the default namespace.
/// - Prefixes: removed.
/// - Read and written, without XML declaration. An unknown attribute is kept on an `entry` and lost elsewhere; unknown
///   elements are lost.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_XCAP_DIRECTORY_H
#define IX_XML_XCAP_DIRECTORY_H

#include "XmlFamily.h"

/// The element `entry`: one document.
class IX_XML_EXPORT ix_entry : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_entry() : XmlDescribedElement(kClass) {}
    ~ix_entry() override { ixRelease(*this, kClass); }

    /// @name Setters of texts: NULL clears. @return 1, or 0 without memory, the earlier text kept.
    /// @{
    int setUriValue(const char* uri) { return ixSetText(mUri, uri); }
    int setEtagValue(const char* etag) { return ixSetText(mEtag, etag); }
    int setLastModifiedValue(const char* lastModified) { return ixSetText(mLastModified, lastModified); }
    /// @}
    /// @return 1.
    int setSizeValue(int size) { return ixSetNumber(mSize, size); }
    /// Takes over a list of `ix_AttributeValuePair`s; an earlier one is deleted. NULL: none. @return 1.
    int setExtensionListValue(IxSingleElementList* list) { return ixSetList(*this, mExtensionList, list); }
    /// Appends a pair, which then belongs to the entry. @return 1, or 0 for NULL or without memory, when it stays with
    /// the caller.
    int addExtension(ix_AttributeValuePair* pair) { return ixAdd(*this, mExtensionList, pair); }

    char* mUri = nullptr;                           ///< Owned; NULL: not set. Mandatory in a written document.
    char* mEtag = nullptr;                          ///< Owned; NULL: not set. Mandatory in a written document.
    char* mLastModified = nullptr;                  ///< Owned, as the server writes it; NULL: not set.
    int mSize = 0;                                  ///< In bytes; 0: not set, and not written.
    IxSingleElementList* mExtensionList = nullptr;  ///< Owned `ix_AttributeValuePair`s: every other attribute, to be
                                                    ///< written back. NULL: none.
};

/// The element `folder`: the documents of one application usage.
class IX_XML_EXPORT ix_folder : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_folder() : XmlDescribedElement(kClass) {}
    ~ix_folder() override { ixRelease(*this, kClass); }
    /// As the rows say, and always 1.
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// Takes over a list of `ix_entry`s; an earlier one is deleted. NULL: none. @return 1.
    int setEntryListValue(IxSingleElementList* list) { return ixSetList(*this, mEntryList, list); }
    /// Appends an entry, which then belongs to the folder. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addEntry(ix_entry* entry) { return ixAdd(*this, mEntryList, entry); }
    /// @name Setters of texts: NULL clears. @return 1, or 0 without memory, the earlier text kept.
    /// @{
    int setErrorCodeValue(const char* errorCode) { return ixSetText(mErrorCode, errorCode); }
    int setAuidValue(const char* auid) { return ixSetText(mAuid, auid); }
    /// @}

    IxSingleElementList* mEntryList = nullptr;  ///< Owned `ix_entry`s; NULL: none.
    char* mErrorCode = nullptr;                 ///< Owned: why there is no list; NULL: not set.
    char* mAuid = nullptr;  ///< Owned: application usage identifier; NULL: not set, written as an empty one.
};

/// The element `xcap-directory`.
class IX_XML_EXPORT ix_xcap_directory : public XmlDescribedElement {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_XCAP_DIRECTORY, class XcapDirectoryDataBinder>;

    ix_xcap_directory() : XmlDescribedElement(kClass) {}
    ~ix_xcap_directory() override { ixRelease(*this, kClass); }

    /// Takes over a list of `ix_folder`s; an earlier one is deleted. NULL: none. @return 1.
    int setFolderListValue(IxSingleElementList* list) { return ixSetList(*this, mFolderList, list); }
    /// Appends a folder, which then belongs to the root. @return 1, or 0 for NULL or without memory, when it stays with
    /// the caller.
    int addFolder(ix_folder* folder) { return ixAdd(*this, mFolderList, folder); }

    IxSingleElementList* mFolderList = nullptr;  ///< Owned `ix_folder`s; NULL: none.
};

/// Creates the elements of the schema, which the caller links. Each creator yields NULL without memory.
class IX_XML_EXPORT XcapDirectoryDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_xcap_directory`.
    XMLElement* CreateRootElement() override;
    ix_folder* CreateFolderElement();
    ix_entry* CreateEntryElement();
};

class IX_XML_EXPORT XcapDirectoryUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    XcapDirectoryUnMarshaller();
};

/// Writes `<xcap-directory  xmlns="...">`, in it `<folder  auid="a">`, in it `<entry  uri="u"  size="12"  etag="e"/>`,
/// each on a line of its own. An entry without URI or entity tag fails the document.
class IX_XML_EXPORT XcapDirectoryMarshaller : public XmlFamilyMarshaller {
  public:
    XcapDirectoryMarshaller();

    /// @return 1, or 0 for NULL or when a folder failed.
    int AddXcapDirectoryElementToXml(ix_xcap_directory* directory);
    /// @return 1, or 0 for NULL or when an entry failed.
    int AddFolderElementToXml(ix_folder* folder);
    /// @return 1, or 0 for NULL or without URI or entity tag.
    int AddEntryElementToXml(ix_entry* entry);
};

class IX_XML_EXPORT XcapDirectoryContext : public XmlFamilyContext {
  public:
    XcapDirectoryContext();
};

#endif
