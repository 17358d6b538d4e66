/// @file
/// XCAP directory (OMA XML Document Management, OMA-TS-XDM_Core): the documents that a user holds on an XCAP server.
///
/// - Root element: `xcap-directory`, with a `folder` for each application usage, in it an `entry` for each document, or
///   the `error-code` that kept the server from listing them.
/// - Namespace: urn:oma:xml:xdm:xcap-directory. It is not expected; it is written as the default namespace.
/// - Prefixes: removed.
/// - Read and written, without XML declaration. An unknown attribute is kept on an `entry` and lost elsewhere; unknown
///   elements are lost.
#ifndef IX_XML_XCAP_DIRECTORY_H
#define IX_XML_XCAP_DIRECTORY_H

#include "XmlElementSupport.h"
#include "XmlOldFamily.h"
#include "XmlFields.h"

class ix_entry;
class ix_folder;

/// The element `xcap-directory`.
class IX_XML_EXPORT ix_xcap_directory : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_xcap_directory";

    ~ix_xcap_directory() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "XcapDirectory"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Takes over a list of `ix_folder`s; an earlier one is deleted. NULL: none. @return 1.
    int setFolderListValue(IxSingleElementList* list) { return ixSetElementList(mFolderList, list); }
    /// Appends a folder, which then belongs to the root. @return 1, or 0 without memory, when it stays with the caller.
    int addFolder(ix_folder* folder);

    IxSingleElementList* mFolderList = nullptr;  ///< Owned `ix_folder`s; NULL: none.
};

/// The element `folder`: the documents of one application usage.
class IX_XML_EXPORT ix_folder : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_folder";

    ~ix_folder() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "Folder"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// Takes over a list of `ix_entry`s; an earlier one is deleted. NULL: none. @return 1.
    int setEntryListValue(IxSingleElementList* list) { return ixSetElementList(mEntryList, list); }
    /// Appends an entry, which then belongs to the folder. @return 1, or 0 without memory, when it stays with the
    /// caller.
    int addEntry(ix_entry* entry);
    /// @name Setters of texts: NULL clears. @return 1, or 0 without memory, the earlier text kept.
    /// @{
    int setErrorCodeValue(const char* errorCode) { return ixSetText(mErrorCode, errorCode); }
    int setAuidValue(const char* auid) { return ixSetText(mAuid, auid); }
    /// @}

    IxSingleElementList* mEntryList = nullptr;  ///< Owned `ix_entry`s; NULL: none.
    char* mErrorCode = nullptr;                 ///< Owned: why there is no list; NULL: not set.
    char* mAuid = nullptr;  ///< Owned: application usage identifier; NULL: not set, written as an empty one.
};

/// The element `entry`: one document.
class IX_XML_EXPORT ix_entry : public XMLElement {
  public:
    static constexpr char kClassName[] = "ix_entry";

    ~ix_entry() override;
    const char* ClassName() const override { return kClassName; }
    const char* BaseClassName() const override { return "XMLElement"; }
    const char* TypeName() const override { return "Entry"; }
    int Reserved() const override { return 0; }
    const XmlFieldTable* FieldTable() const override;
    int ProcessUnMarshallAttribute(char* attribute, char* value, XMLAttribute* pair) override;

    /// @name Setters of texts: NULL clears. @return 1, or 0 without memory, the earlier text kept.
    /// @{
    int setUriValue(const char* uri) { return ixSetText(mUri, uri); }
    int setEtagValue(const char* etag) { return ixSetText(mEtag, etag); }
    int setLastModifiedValue(const char* lastModified) { return ixSetText(mLastModified, lastModified); }
    /// @}
    /// @return 1.
    int setSizeValue(int size);
    /// Takes over a list of `ix_AttributeValuePair`s; an earlier one is deleted. NULL: none. @return 1.
    int setExtensionListValue(IxSingleElementList* list) { return ixSetAttributeList(mExtensionList, list); }
    /// Appends a pair, which then belongs to the entry. @return 1, or 0 without memory, when it stays with the caller.
    int addExtension(ix_AttributeValuePair* pair);

    char* mUri = nullptr;                           ///< Owned; NULL: not set. Mandatory in a written document.
    char* mEtag = nullptr;                          ///< Owned; NULL: not set. Mandatory in a written document.
    char* mLastModified = nullptr;                  ///< Owned, as the server writes it; NULL: not set.
    int mSize = 0;                                  ///< In bytes; 0: not set.
    IxSingleElementList* mExtensionList = nullptr;  ///< Owned `ix_AttributeValuePair`s: every other attribute, to be
                                                    ///< written back. NULL: none.
};

/// Creates the elements of the schema, which the caller links. Each creator yields NULL without memory.
class IX_XML_EXPORT XcapDirectoryDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_xcap_directory`.
    XMLElement* CreateRootElement() override;
    ix_folder* CreateFolderElement();
    ix_entry* CreateEntryElement();
};

class IX_XML_EXPORT XcapDirectoryUnMarshaller : public XmlOldFamilyUnMarshaller {
  protected:
    const XmlOldUnMarshallerInfo& Info() const override;
};

/// Writes `<xcap-directory  xmlns="...">`, in it `<folder  auid="a">`, in it `<entry  uri="u"  size="12"  etag="e"/>`,
/// each on a line of its own. An entry without URI or entity tag fails the document.
class IX_XML_EXPORT XcapDirectoryMarshaller : public XmlOldFamilyMarshaller {
  public:
    XcapDirectoryMarshaller();

    /// @return 1, or 0 for NULL or when a folder failed.
    int AddXcapDirectoryElementToXml(ix_xcap_directory* element);
    /// @return 1, or 0 for NULL or when an entry failed.
    int AddFolderElementToXml(ix_folder* element);
    /// @return 1, or 0 for NULL or without URI or entity tag.
    int AddEntryElementToXml(ix_entry* element);
};

class IX_XML_EXPORT XcapDirectoryContext : public XmlOldFamilyContext {
  protected:
    XmlOldFamilyMarshaller* NewMarshaller() override;
    XmlOldFamilyUnMarshaller* NewUnMarshaller() override;
    XMLObjectFactory* NewBinderFactory() override;
};

#endif
