/// @file
/// A file of XML text, for the unmarshallers that read a document from a file and for callers that write one.
#ifndef IX_XML_FILE_H
#define IX_XML_FILE_H

#include "XmlPlatform.h"

/// What a file is opened for: `Read` as it is, `Write` from nothing (a file that is there is emptied), `ReadWrite` as
/// it is, to be overwritten from its beginning.
enum eXMLFileAccessMode : int { eXMLFileRead = 0, eXMLFileWrite = 1, eXMLFileReadWrite = 2 };

/// A thin wrapper over the platform layer's IO device. Every failure is logged, and a result of 0 or NULL.
///
/// `Read` and `Write` open the file themselves and leave it open; call `CloseFile` before the object goes, because the
/// destructor does not.
class IX_XML_EXPORT XMLFile : public XmlHeapObject {
  public:
    /// Copies the name; opens nothing.
    XMLFile(const char* fileName, eXMLFileAccessMode mode);
    /// Frees name and buffer. Does not close the file.
    ~XMLFile();
    XMLFile(const XMLFile&) = delete;
    XMLFile& operator=(const XMLFile&) = delete;

    /// @return 1, or 0. Required: a mode outside the enumeration opens nothing and answers 1.
    unsigned int OpenFile();

    /// Reads the whole file. @return its text with a NUL behind it, valid until the next `Read`, `CloseFile` or the end
    /// of the object; NULL on failure, when the file is closed. An empty file is a failure.
    char* Read();

    /// Writes `text` in the file's mode. @return 1, or 0, also for NULL.
    int Write(const char* text);

    /// Closes the file and frees the buffer. @return 1.
    int CloseFile();

  private:
    unsigned int Open(int access, const XmlLogText& failed, const XmlLogText& opened);
    void FreeBuffer();

    char* m_pFileName;
    char* m_pFileData = nullptr;
    eXMLFileAccessMode m_eMode;
    ixDplIODevice m_device;
};

#endif
