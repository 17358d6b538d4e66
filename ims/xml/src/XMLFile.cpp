#include "XMLFile.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLFile";

constexpr XmlLogText kRead = {2, kSchemaCode, 84, "XMLFile::Read() - Successful"};
constexpr XmlLogText kReadFailed = {2, kSchemaCode, 88, "XMLFile::Read() - UnSuccessful"};
constexpr XmlLogText kNoMemory = {2, kSchemaCode, 94, "XMLFile::Read() - m_pFileData - Malloc cannot allocate memory"};
constexpr XmlLogText kNoSpecificInfo = {2, kSchemaCode, 101, "XMLFile::Read() - Error pSpecificInfo is NULL"};
constexpr XmlLogText kReadNotOpened = {2, kSchemaCode, 108, "XMLFile::Read()- File Opening failed"};
constexpr XmlLogText kWriteFailed = {2, kSchemaCode, 122, "XMLFile::Write - File Writing failed"};
constexpr XmlLogText kWriteNotOpened = {2, kSchemaCode, 128, "XMLFile::Write - File Opening failed"};
// Required: the texts of OpenFile() name an operation Init().
constexpr XmlLogText kNoName = {2, kSchemaCode, 144, "XMLFile::Init() - invalid filename"};
constexpr XmlLogText kOpenFailed = {2, kSchemaCode, 152, "XMLFile::Init() - Error opening file [%d]"};
constexpr XmlLogText kOpenedForWrite = {2, kSchemaCode, 175, "XMLFile::Init() - Opened file "};
constexpr XmlLogText kOpenForWriteFailed = {2, kSchemaCode, 179,
                                            "XMLFile::Init() - Unable to open file for write [%d] "};
constexpr XmlLogText kOpenedForBoth = {2, kSchemaCode, 202, "XMLFile::Init() - Opened file "};
constexpr XmlLogText kOpenForBothFailed = {2, kSchemaCode, 206,
                                           "XMLFile::Init() - Unable to open file for Read and Write [%d] "};

/// Required: what the byte count holds before a read, which a device that reads nothing leaves there.
constexpr std::int32_t kCountBeforeRead = 1025;

}  // namespace

XMLFile::XMLFile(const char* fileName, eXMLFileAccessMode mode)
    : m_pFileName(fileName != nullptr ? __strdup(fileName) : nullptr), m_eMode(mode), m_device{0, IX_DPL_IO_FILE,
                                                                                               0, nullptr,
                                                                                               0, 0} {}

XMLFile::~XMLFile() {
    __free(m_pFileName);
    FreeBuffer();
}

void XMLFile::FreeBuffer() {
    __free(m_pFileData);
    m_pFileData = nullptr;
}

unsigned int XMLFile::OpenFile() {
    if (m_pFileName == nullptr) {
        ixLog(kSourceFile, kNoName);
        return 0;
    }
    switch (m_eMode) {
        case eXMLFileRead:
            return Open(IX_DPL_IO_READ, kOpenFailed, nullptr);
        case eXMLFileWrite:
            return Open(IX_DPL_IO_WRITE, kOpenForWriteFailed, &kOpenedForWrite);
        case eXMLFileReadWrite:
            return Open(IX_DPL_IO_READ_WRITE, kOpenForBothFailed, &kOpenedForBoth);
        default:
            return 1;
    }
}

unsigned int XMLFile::Open(int access, const XmlLogText& failed, const XmlLogText* opened) {
    const int result = ixDplIODeviceOpen(&m_device, m_pFileName, access, 0);
    if (result != 0) {
        ixLog(kSourceFile, failed, result);
        return 0;
    }
    if (opened != nullptr) ixLog(kSourceFile, *opened);
    return 1;
}

char* XMLFile::Read() {
    FreeBuffer();
    if (OpenFile() == 0) {
        ixLog(kSourceFile, kReadNotOpened);
        return nullptr;
    }
    if (m_device.pSpecificInfo == nullptr) {
        ixLog(kSourceFile, kNoSpecificInfo);
        CloseFile();
        return nullptr;
    }
    const std::uint32_t size = m_device.pSpecificInfo->fileSize;
    m_pFileData = static_cast<char*>(__malloc(static_cast<std::size_t>(size) + 1));
    if (m_pFileData == nullptr) {
        ixLog(kSourceFile, kNoMemory);
        CloseFile();
        return nullptr;
    }
    std::int32_t count = kCountBeforeRead;
    if (ixDplIODeviceRead(&m_device, m_pFileData, size, &count) != 0 || count <= 0) {
        ixLog(kSourceFile, kReadFailed);
        CloseFile();
        return nullptr;
    }
    // The file may have become shorter since it was opened.
    m_pFileData[static_cast<std::uint32_t>(count) < size ? static_cast<std::uint32_t>(count) : size] = '\0';
    ixLog(kSourceFile, kRead);
    return m_pFileData;
}

int XMLFile::Write(const char* text) {
    if (OpenFile() == 0) {
        ixLog(kSourceFile, kWriteNotOpened);
        return 0;
    }
    const std::size_t length = __strlen(text);
    std::int32_t written = 0;
    if (length > UINT32_MAX ||
        ixDplIODeviceWrite(&m_device, text, static_cast<std::uint32_t>(length), &written, 1) != 0) {
        ixLog(kSourceFile, kWriteFailed);
        return 0;
    }
    return 1;
}

int XMLFile::CloseFile() {
    ixDplIODeviceClose(&m_device);
    FreeBuffer();
    return 1;
}
