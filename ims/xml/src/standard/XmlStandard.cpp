#include "XmlStandard.h"

#include "XMLFile.h"
#include "XmlNamespaceTable.h"
#include "XmlWriter.h"

namespace {

bool DeclareServices(const XmlSchemaInfo& schema, XmlReader& reader) {
    constexpr XmlNamespace kServices[] = {XmlNamespace::Simservs, XmlNamespace::CommonPolicy,
                                          XmlNamespace::OmaCommonPolicy};
    for (const XmlNamespace known : kServices) {
        const XmlNamespaceInfo& info = kXmlNamespaces[ixUri(known)];
        if (!schema.takesBinder) break;
        if (!reader.Declare(info.prefix, std::strlen(info.prefix), info.uri, info.length)) return false;
    }
    return true;
}

/// Puts findings into words.
class Reporter : public XmlFindings {
  public:
    Reporter(XmlReader& reader, void (*report)(const XmlProblem& problem, void* context), void* context)
        : m_reader(reader), m_report(report), m_context(context) {}

    void Add(const char* place, const char* what, const XmlSlice& name) override {
        XmlProblem problem = {0, 0, m_text};
        m_reader.Locate(place, problem.line, problem.column);
        std::size_t length = 0;
        const auto add = [&](const char* text, std::size_t count) {
            for (std::size_t i = 0; i < count && length + 1 < sizeof m_text; ++i) m_text[length++] = text[i];
            m_text[length] = '\0';
        };
        add("\"", 1);
        std::size_t shown = name.length < kLongestName ? name.length : kLongestName;
        // No character is cut.
        while (shown != 0 && shown < name.length && (static_cast<unsigned char>(name.text[shown]) & 0xC0U) == 0x80U)
            --shown;
        add(name.text, shown);
        add("\" ", 2);
        add(what, std::strlen(what));
        Report(problem);
    }
    void Report(const XmlProblem& problem) {
        ++m_count;
        if (m_report != nullptr) m_report(problem, m_context);
    }
    int Count() const { return m_count; }

  private:
    static constexpr std::size_t kLongestName = 80;

    XmlReader& m_reader;
    void (*m_report)(const XmlProblem& problem, void* context);
    void* m_context;
    int m_count = 0;
    char m_text[200];
};

class StandardUnMarshaller : public XMLUnMarshaller {
  public:
    StandardUnMarshaller(const XmlSchemaInfo& schema, XMLObject* binder) : m_schema(schema), m_pBinder(binder) {}

    XMLElement* UnMarshall(const char* text) override { return UnMarshall(text, text != nullptr ? __strlen(text) : 0); }
    XMLElement* UnMarshall(XMLFile* file) override { return UnMarshall(file != nullptr ? file->Read() : nullptr); }
    XMLElement* UnMarshall(const char* text, std::size_t length) override;
    const XmlProblem* Problem() const override { return m_problem.text != nullptr ? &m_problem : nullptr; }

  private:
    bool Declare(XmlReader& reader) const;

    const XmlSchemaInfo& m_schema;
    XMLObject* m_pBinder;
    XmlProblem m_problem = {0, 0, nullptr};
};

/// The prefixes that something outside of the document binds: those of the services, and those of the binder.
bool StandardUnMarshaller::Declare(XmlReader& reader) const {
    if (!DeclareServices(m_schema, reader)) return false;
    const IxSingleElementList* const list = XmlNamespaceBinder::DeclarationsOf(m_pBinder);
    for (const auto* pair : XmlEntries<ix_AttributeValuePair>(list)) {
        if (pair == nullptr || pair->mName == nullptr || pair->mValue == nullptr || *pair->mValue == '\0') continue;
        const std::size_t length = std::strlen(pair->mName);
        if (!XmlReader::IsName(pair->mName, length)) continue;
        if (!reader.Declare(pair->mName, length, pair->mValue, std::strlen(pair->mValue))) return false;
    }
    return true;
}

XMLElement* StandardUnMarshaller::UnMarshall(const char* text, std::size_t length) {
    m_problem = {0, 0, nullptr};
    if (text == nullptr) {
        m_problem.text = "there is no text";
        return nullptr;
    }
    XmlReader reader;
    XmlBinding binding(m_schema, reader);
    XMLElement* const root = Declare(reader) && reader.Begin(text, length) ? binding.Read() : nullptr;
    if (root == nullptr) m_problem = *reader.Problem();
    return root;
}

class StandardMarshaller : public XMLMarshaller {
  public:
    explicit StandardMarshaller(const XmlSchemaInfo& schema) : m_schema(schema) {}
    ~StandardMarshaller() override { __free(m_pText); }

    char* Marshall(XMLElement* root) override {
        __free(m_pText);
        XmlWriter writer(m_schema);
        m_pText = writer.Write(root);
        std::memcpy(m_reason, writer.Problem(), sizeof m_reason);
        return m_pText;
    }
    int Reserved() override { return 0; }
    const XmlProblem* Problem() const override { return m_reason[0] != '\0' ? &m_problem : nullptr; }

  private:
    const XmlSchemaInfo& m_schema;
    char* m_pText = nullptr;
    char m_reason[XmlWriter::kLongestProblem] = {};
    XmlProblem m_problem = {0, 0, m_reason};
};

/// Objects are made by the factory of the device profile, which has the same classes.
class StandardContext : public XMLContext {
  public:
    explicit StandardContext(const XmlSchemaInfo& schema) : m_schema(schema) {}
    ~StandardContext() override { ixDelete(m_pDevice); }

    XMLMarshaller* createMarshaller() override {
        // A document of any kind has no root that could be written.
        if (std::strcmp(m_schema.rootElements, "*") == 0) return nullptr;
        return Keep(m_pMarshaller, new (std::nothrow) StandardMarshaller(m_schema));
    }
    XMLUnMarshaller* createUnMarshaller() override {
        return Keep(m_pUnMarshaller, new (std::nothrow) StandardUnMarshaller(m_schema, m_pBinder));
    }
    XMLObjectFactory* createBinderFactory() override {
        if (m_pDevice == nullptr) m_pDevice = m_schema.create();
        return m_pDevice != nullptr ? m_pDevice->createBinderFactory() : nullptr;
    }
    int SetNamespaceBinder(XMLObject* binder) override {
        if (binder != nullptr) m_pBinder = binder;
        return 1;
    }

  private:
    template <class Base, class Object>
    static Base* Keep(Base*& place, Object* object) {
        ixTrack(kSchemaModule, kSource, __LINE__, object, sizeof(Object));
        place = object;
        return object;
    }

    const XmlSchemaInfo& m_schema;
    XMLContext* m_pDevice = nullptr;
    XMLObject* m_pBinder = nullptr;
};

}  // namespace

bool ixHasStandardProfile(const XmlSchemaInfo& schema) { return schema.id != IX_XML_SCHEMA_CALL_WAITING_INDICATION; }

XMLContext* ixNewStandardContext(const XmlSchemaInfo& schema) {
    if (!ixHasStandardProfile(schema)) return nullptr;
    auto* const context = new (std::nothrow) StandardContext(schema);
    ixTrack(kSchemaModule, kSource, __LINE__, context, sizeof *context);
    return context;
}

int ixValidate(const XmlSchemaInfo& schema, const char* text, std::size_t length,
               void (*report)(const XmlProblem& problem, void* context), void* context) {
    XmlReader reader;
    Reporter reporter(reader, report, context);
    XmlBinding binding(schema, reader, &reporter);
    XMLElement* const root = DeclareServices(schema, reader) && reader.Begin(text, length) ? binding.Read() : nullptr;
    if (root == nullptr) {
        reporter.Report(*reader.Problem());
        return -1;
    }
    ixDelete(root);
    return reporter.Count();
}
