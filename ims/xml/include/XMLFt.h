/// @file
/// File transfer information (GSMA RCC.07, file transfer over HTTP): where a file can be downloaded.
///
/// - Root element: `file`, with `file-info` elements: attribute `type`, children `file-size` and `data`, which has the
///   attributes `url`, `etag`, `until`.
/// - Namespace: none is expected or written.
/// - Prefixes: removed.
/// - Read and written. Other elements (`file-name`, `content-type`) and other attributes are lost.
///
/// A program needs this header and XmlDocument.h.
#ifndef IX_XML_FT_H
#define IX_XML_FT_H

#include "XmlFamily.h"

/// The element `data`: where a file is, and how long.
class IX_XML_EXPORT ix_ns_ft_data : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_ft_data() : XmlDescribedElement(kClass) {}
    ~ix_ns_ft_data() override { ixRelease(*this, kClass); }

    /// @name Each copies the text; NULL clears it. @return 1, or 0 without memory, the earlier text kept.
    /// @{
    int setUrlValue(const char* url) { return ixSetText(mUrl, url); }
    int setEtagValue(const char* etag) { return ixSetText(mEtag, etag); }
    int setUntilValue(const char* until) { return ixSetText(mUntil, until); }
    /// @}

    char* mUrl = nullptr;    ///< Owned; NULL: not set. Mandatory in a written document.
    char* mEtag = nullptr;   ///< Version of the file on its server. Owned; NULL: not set.
    char* mUntil = nullptr;  ///< When the file is deleted (RFC 3339); unchecked. Owned; NULL: not set.
};

/// The element `file-info`: the file itself, or its thumbnail.
class IX_XML_EXPORT ix_ns_ft_file_info : public XmlDescribedElement {
  public:
    static const XmlClass kClass;

    ix_ns_ft_file_info() : XmlDescribedElement(kClass) {}
    ~ix_ns_ft_file_info() override { ixRelease(*this, kClass); }

    /// Copies the type; NULL clears it. @return 1, or 0 without memory, the earlier type kept.
    int setTypeValue(const char* type) { return ixSetText(mType, type); }
    /// @return 1.
    int setFileSizeValue(unsigned int size) { return ixSetNumber(mFileSize, size); }
    /// Takes over the data in place of earlier ones, which are deleted; NULL: none. @return 1.
    int setDataValue(ix_ns_ft_data* data) { return ixSetChild(mData, data); }

    char* mType = nullptr;           ///< "file" or "thumbnail"; unchecked. Owned; NULL: not set.
    unsigned int mFileSize = 0;      ///< Bytes; 0: not set. A larger number than fits is read as the largest one.
    ix_ns_ft_data* mData = nullptr;  ///< Owned; NULL: not set.
};

/// The element `file`.
class IX_XML_EXPORT ix_file : public XmlDescribedObject {
  public:
    static const XmlClass kClass;
    using Document = XmlDocumentOf<IX_XML_SCHEMA_FILE, class FileDataBinder>;

    ix_file() : XmlDescribedObject(kClass) {}
    ~ix_file() override { ixRelease(*this, kClass); }
    /// As the rows say; an object of another class is ignored.
    int ProcessUnMarshall(char* name, char* text, XMLElement* child) override;

    /// Takes over a list of `ix_ns_ft_file_info`s in place of an earlier one, which is deleted; NULL: none. @return 1.
    int setFileInfoListValue(IxSingleElementList* list) { return ixSetList(*this, mFileInfoList, list); }
    /// Appends an entry, which then belongs to the element. @return 1, or 0 for NULL or without memory, when it stays
    /// with the caller.
    int addFileInfo(ix_ns_ft_file_info* info) { return ixAdd(*this, mFileInfoList, info); }

    IxSingleElementList* mFileInfoList = nullptr;  ///< Owned `ix_ns_ft_file_info`s; NULL: none.
};

/// Creates the elements of the schema; each creator yields NULL without memory.
class IX_XML_EXPORT FileDataBinder : public XMLObjectFactory {
  public:
    /// A new `ix_file`.
    XMLElement* CreateRootElement() override;
    ix_ns_ft_file_info* CreateFileInfoElement();
    ix_ns_ft_data* CreateDataElement();
};

class IX_XML_EXPORT FileUnMarshaller : public XmlFamilyUnMarshaller {
  public:
    FileUnMarshaller();
};

/// Writes the XML declaration and the document. One `data` without a URL fails the whole document, and so does an
/// entry of another class.
class IX_XML_EXPORT FileMarshaller : public XmlFamilyMarshaller {
  public:
    FileMarshaller();

    /// @name Each gives up the document when what is below it fails. @return 1, or 0 for NULL, without a URL, and when
    /// something below it cannot be written.
    /// @{
    int AddFileElementToXml(ix_file* file);
    int AddFileInfoElementToXml(ix_ns_ft_file_info* info);
    int AddDataElementToXml(ix_ns_ft_data* data);
    /// @}
};

class IX_XML_EXPORT FileContext : public XmlFamilyContext {
  public:
    FileContext();
};

#endif
