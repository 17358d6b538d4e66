#include "XMLFile.h"

namespace {

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
        // Required: the texts of OpenFile() name an operation Init().
        ixLog(kSource, {2, "XMLFile::Init() - invalid filename", 144});
        return 0;
    }
    switch (m_eMode) {
        case eXMLFileRead:
            return Open(IX_DPL_IO_READ, {2, "XMLFile::Init() - Error opening file [%d]", 152}, {});
        case eXMLFileWrite:
            return Open(IX_DPL_IO_WRITE, {2, "XMLFile::Init() - Unable to open file for write [%d] ", 179},
                        {2, "XMLFile::Init() - Opened file ", 175});
        case eXMLFileReadWrite:
            return Open(IX_DPL_IO_READ_WRITE,
                        {2, "XMLFile::Init() - Unable to open file for Read and Write [%d] ", 206},
                        {2, "XMLFile::Init() - Opened file ", 202});
        default:
            return 1;
    }
}

unsigned int XMLFile::Open(int access, const XmlLogText& failed, const XmlLogText& opened) {
    const int result = ixDplIODeviceOpen(&m_device, m_pFileName, access, 0);
    if (result != 0) {
        ixLog(kSource, failed, result);
        return 0;
    }
    ixLog(kSource, opened);
    return 1;
}

char* XMLFile::Read() {
    FreeBuffer();
    if (OpenFile() == 0) {
        ixLog(kSource, {2, "XMLFile::Read()- File Opening failed", 108});
        return nullptr;
    }
    if (m_device.pSpecificInfo == nullptr) {
        ixLog(kSource, {2, "XMLFile::Read() - Error pSpecificInfo is NULL", 101});
        CloseFile();
        return nullptr;
    }
    const std::uint32_t size = m_device.pSpecificInfo->fileSize;
    m_pFileData = static_cast<char*>(__malloc(static_cast<std::size_t>(size) + 1));
    if (m_pFileData == nullptr) {
        ixLog(kSource, {2, "XMLFile::Read() - m_pFileData - Malloc cannot allocate memory", 94});
        CloseFile();
        return nullptr;
    }
    std::int32_t count = kCountBeforeRead;
    if (ixDplIODeviceRead(&m_device, m_pFileData, size, &count) != 0 || count <= 0) {
        ixLog(kSource, {2, "XMLFile::Read() - UnSuccessful", 88});
        CloseFile();
        return nullptr;
    }
    // The file may have become shorter since it was opened.
    m_pFileData[static_cast<std::uint32_t>(count) < size ? static_cast<std::uint32_t>(count) : size] = '\0';
    ixLog(kSource, {2, "XMLFile::Read() - Successful", 84});
    return m_pFileData;
}

int XMLFile::Write(const char* text) {
    if (OpenFile() == 0) {
        ixLog(kSource, {2, "XMLFile::Write - File Opening failed", 128});
        return 0;
    }
    const std::size_t length = __strlen(text);
    std::int32_t written = 0;
    if (length > UINT32_MAX ||
        ixDplIODeviceWrite(&m_device, text, static_cast<std::uint32_t>(length), &written, 1) != 0) {
        ixLog(kSource, {2, "XMLFile::Write - File Writing failed", 122});
        return 0;
    }
    return 1;
}

int XMLFile::CloseFile() {
    ixDplIODeviceClose(&m_device);
    FreeBuffer();
    return 1;
}
