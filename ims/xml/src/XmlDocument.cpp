#include "XmlDocument.h"

#include <cstring>

#include "XMLFile.h"
#include "standard/XmlRoots.h"
#include "standard/XmlStandard.h"

XmlDocumentBase::XmlDocumentBase(XmlDocumentBase&& other) noexcept
    : XmlDocumentBase(other.m_schema, other.m_profile, *other.m_pClass) {
    *this = std::move(other);
}

XmlDocumentBase& XmlDocumentBase::operator=(XmlDocumentBase&& other) noexcept {
    if (this == &other) return *this;
    m_profile = other.m_profile;
    m_pBinder = std::exchange(other.m_pBinder, nullptr);
    m_context = std::move(other.m_context);
    m_pReader = std::exchange(other.m_pReader, nullptr);
    m_pWriter = std::exchange(other.m_pWriter, nullptr);
    m_pFactory = std::exchange(other.m_pFactory, nullptr);
    m_root = std::move(other.m_root);
    m_line = other.m_line;
    m_column = other.m_column;
    std::memcpy(m_problem, other.m_problem, sizeof m_problem);
    other.Clear();
    return *this;
}

// --- Problems --------------------------------------------------------------------------------------------------------

void XmlDocumentBase::Clear() {
    m_line = m_column = 0;
    m_problem[0] = '\0';
}

/// Appends as much as there is room for.
void XmlDocumentBase::Say(const char* text, std::size_t length) {
    const std::size_t at = std::strlen(m_problem);
    const std::size_t room = sizeof m_problem - 1 - at;
    const std::size_t said = length < room ? length : room;
    std::memcpy(m_problem + at, text, said);
    m_problem[at + said] = '\0';
}

void XmlDocumentBase::Say(const char* text) { Say(text, std::strlen(text)); }

void XmlDocumentBase::SayNumber(int number) {
    char digits[16];
    Say(__itoaL(number, digits, sizeof digits, 10));
}

bool XmlDocumentBase::Fail(const XmlProblem& problem) {
    Clear();
    m_line = problem.line;
    m_column = problem.column;
    if (m_line != 0) {
        Say("line ");
        SayNumber(m_line);
        Say(", column ");
        SayNumber(m_column);
        Say(": ");
    }
    Say(problem.text);
    return false;
}

// --- Context ---------------------------------------------------------------------------------------------------------

XMLContext* XmlDocumentBase::Context() {
    Clear();
    if (m_context != nullptr) return m_context.get();
    const bool isStandard = m_profile == IX_XML_PROFILE_STANDARD;
    if (isStandard && !ixHasStandardProfile(*XMLFactory::SchemaInfo(m_schema))) {
        Fail("documents of this kind have no standard profile");
        return nullptr;
    }
    m_context.reset(XMLFactory::newInstance(m_schema, m_profile));
    if (m_context == nullptr) {
        Fail("no memory");
    } else {
        m_context->SetNamespaceBinder(m_pBinder);
    }
    return m_context.get();
}

XMLUnMarshaller* XmlDocumentBase::Reader() {
    m_root.reset();
    XMLContext* const context = Context();
    if (m_pReader == nullptr && context != nullptr) {
        m_pReader = context->createUnMarshaller();
        if (m_pReader == nullptr) Fail("no memory");
    }
    return m_pReader;
}

XMLMarshaller* XmlDocumentBase::Writer() {
    XMLContext* const context = Context();
    if (m_pWriter == nullptr && context != nullptr) {
        m_pWriter = context->createMarshaller();
        const XmlSchemaInfo& schema = *XMLFactory::SchemaInfo(m_schema);
        const bool isAny = std::strcmp(schema.rootElements, "*") == 0;
        const bool isWritten = schema.writes || (m_profile == IX_XML_PROFILE_STANDARD && !isAny);
        if (m_pWriter == nullptr) Fail(isWritten ? "no memory" : "documents of this kind are only read");
    }
    return m_pWriter;
}

XMLObjectFactory* XmlDocumentBase::BinderFactory() {
    XMLContext* const context = Context();
    if (m_pFactory == nullptr && context != nullptr) {
        m_pFactory = context->createBinderFactory();
        if (m_pFactory == nullptr) Fail("no memory");
    }
    return m_pFactory;
}

bool XmlDocumentBase::SetNamespaceBinder(XMLObject* binder) {
    m_pBinder = binder;
    m_pReader = nullptr;
    m_pWriter = nullptr;
    m_pFactory = nullptr;
    m_context.reset();
    Clear();
    const bool takesOne = m_profile == IX_XML_PROFILE_STANDARD || XMLFactory::SchemaInfo(m_schema)->takesBinder;
    return takesOne || Fail("the device profile takes no namespace binder for documents of this kind");
}

// --- Documents -------------------------------------------------------------------------------------------------------

/// Takes over what has been read, if it is a document of this kind.
bool XmlDocumentBase::Keep(XMLElement* root, const XMLUnMarshaller& reader) {
    m_root.reset(root);
    if (ixIsClass(root, *m_pClass)) return true;
    m_root.reset();
    if (root == nullptr && reader.Problem() != nullptr) return Fail(*reader.Problem());
    const XmlSlice name = ixRootOf(*XMLFactory::SchemaInfo(m_schema), *m_pClass).name;
    Fail(root != nullptr ? "another root than \""
                         : "not complete and balanced XML, no memory, or another root than \"");
    Say(name.text, name.length);
    Say("\"");
    return false;
}

bool XmlDocumentBase::Read(const char* text) {
    XMLUnMarshaller* const reader = Reader();
    if (reader == nullptr) return false;
    return text != nullptr ? Keep(reader->UnMarshall(text), *reader) : Fail("there is no text");
}

bool XmlDocumentBase::Read(const char* text, std::size_t length) {
    XMLUnMarshaller* const reader = Reader();
    if (reader == nullptr) return false;
    return text != nullptr ? Keep(reader->UnMarshall(text, length), *reader) : Fail("there is no text");
}

bool XmlDocumentBase::ReadFile(const char* fileName) {
    XMLUnMarshaller* const reader = Reader();
    if (reader == nullptr) return false;
    if (fileName == nullptr) return Fail("there is no file");
    XMLFile file(fileName, eXMLFileRead);
    // What the file has been read into stays until it is closed, so this one finds out whether there is any.
    const char* const text = file.Read();
    const bool isRead = text != nullptr ? Keep(reader->UnMarshall(text), *reader) : Fail("the file cannot be read");
    file.CloseFile();
    return isRead;
}

bool XmlDocumentBase::Create() {
    Clear();
    m_root.reset(XmlEdit::New(*m_pClass));
    return m_root != nullptr || Fail("no memory");
}

const char* XmlDocumentBase::WriteTree(XMLElement* root) {
    XMLMarshaller* const writer = Writer();
    if (writer == nullptr) return nullptr;
    const char* const text = root != nullptr ? writer->Marshall(root) : nullptr;
    if (root == nullptr) {
        Fail("there is no document");
    } else if (writer->Problem() != nullptr) {
        Fail(*writer->Problem());
    } else if (text == nullptr) {
        Fail("something is missing that has to be written, is of a class that has no place there, or no memory");
    } else if (writer->IsTruncated() != 0) {
        Fail("the text is longer than the device profile writes");
    }
    return m_problem[0] == '\0' ? text : nullptr;
}
