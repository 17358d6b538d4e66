#include "BenchFamilies.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <pugixml.hpp>

#include "BenchDocuments.h"
#include "XmlFields.h"

namespace {

/// The objects of a tree, its lists among them, and its texts.
std::size_t CountItems(const XMLElement& element);

std::size_t CountList(XmlFieldKind kind, const IxSingleElementList& list) {
    std::size_t items = 1;
    for (const auto* entry : XmlEntries<const void>(&list)) {
        // A pair is an object with two texts.
        items += kind == XmlFieldKind::AttributeList ? 3 : 1;
        if (kind == XmlFieldKind::ChildList) items += CountItems(*static_cast<const XMLElement*>(entry)) - 1;
    }
    return items;
}

std::size_t CountItems(const XMLElement& element) {
    std::size_t items = 1;
    for (const XmlFieldTable* table = ixRowsOf(element); table != nullptr; table = table->base) {
        for (const XmlField* field = table->fields; field != table->fields + table->count; ++field) {
            if (!XmlFields::IsSet(element, *field)) continue;
            switch (field->kind) {
                case XmlFieldKind::Text:
                    ++items;
                    break;
                case XmlFieldKind::Child:
                case XmlFieldKind::Presence:
                    items += CountItems(*XmlFields::Child(element, *field));
                    break;
                case XmlFieldKind::ChildList:
                case XmlFieldKind::TextList:
                case XmlFieldKind::AttributeList:
                    items += CountList(field->kind, *XmlFields::List(element, *field));
                    break;
                default:
                    break;
            }
        }
    }
    return items;
}

/// Our library, ready for a schema.
class Library {
  public:
    explicit Library(eXMLSchemaID schema, eXMLProfile profile = IX_XML_PROFILE_DEVICE)
        : m_context(XMLFactory::newInstance(schema, profile)) {
        m_unMarshaller = m_context->createUnMarshaller();
        m_marshaller = m_context->createMarshaller();
    }
    ~Library() {
        XMLFactory::DeleteElement(m_root);
        XMLFactory::deleteContext(m_context);
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    void DecodeAndRelease(const std::string& text) const {
        XMLElement* const root = m_unMarshaller->UnMarshall(text.c_str());
        if (root == nullptr) std::abort();
        XMLFactory::DeleteElement(root);
    }

    /// The tree stays until the next one.
    XMLElement* Decode(const std::string& text) {
        XMLFactory::DeleteElement(m_root);
        m_root = m_unMarshaller->UnMarshall(text.c_str());
        return m_root;
    }

    const char* Encode(XMLElement* root) const {
        const char* const text = m_marshaller->Marshall(root);
        if (text == nullptr || m_marshaller->IsTruncated() != 0) std::abort();
        return text;
    }

  private:
    XMLContext* m_context;
    XMLUnMarshaller* m_unMarshaller;
    XMLMarshaller* m_marshaller;
    XMLElement* m_root = nullptr;
};

/// A document that is made when it is first measured.
class Document {
  public:
    Document(std::string name, const BenchFamily& family, DocumentMaker make, std::size_t size,
             BenchDirections directions)
        : m_name(std::move(name)), m_family(family), m_make(make), m_size(size), m_directions(directions) {}

    const BenchFamily& Family() const { return m_family; }

    const std::string& Text() {
        if (m_text.empty()) {
            m_text = m_make(m_size);
            Library library(m_family.schema);
            const XMLElement* const root = library.Decode(m_text);
            if (root == nullptr) Fail("our library does not decode it");
            m_items = CountItems(*root);
            // Larger ones are made of the same pieces.
            if (m_text.size() < 65536) Check(*root);
        }
        return m_text;
    }

    /// The objects and texts of our tree.
    std::size_t Items() const { return m_items; }

  private:
    void Check(const XMLElement& tree) const {
        const std::string written = Rewrite(m_text, ReadWithExpat);
        Library library(m_family.schema);
        if (!XmlFields::Equal(&tree, library.Decode(written))) Fail("the structs do not hold what the tree holds");
        if (Rewrite(m_text, ReadWithPugixml) != written) Fail("pugixml and libexpat read different structs");
        if (m_directions == BenchDirections::Decode) return;
        if (Rewrite(library.Encode(library.Decode(m_text)), ReadWithExpat) != written) {
            Fail("our library writes another document than tinyxml2");
        }
    }

    /// What tinyxml2 writes of what `read` has read.
    std::string Rewrite(const std::string& text, RecordReader read) const {
        const RecordRoot& root = m_family.root;
        tinyxml2::XMLPrinter printer(nullptr, true);
        WriteWithTinyxml2(root.name, root.type, m_family.read(text, root, read).get(), printer);
        return printer.CStr();
    }

    [[noreturn]] void Fail(const char* what) const {
        std::fprintf(stderr, "%s: %s\n", m_name.c_str(), what);
        std::exit(1);
    }

    std::string m_name;
    const BenchFamily& m_family;
    DocumentMaker m_make;
    std::size_t m_size;
    BenchDirections m_directions;
    std::string m_text;
    std::size_t m_items = 0;
};

/// Measures `step`, which handles `bytes` bytes.
template <class Step>
void Measure(benchmark::State& state, const Document& document, std::size_t bytes, const Step& step) {
    for (auto _ : state) step();
    CountBytes(state, bytes);
    const double allocations = CountAllocations(step);
    state.counters["allocations"] = allocations;
    state.counters["per_item"] = allocations / static_cast<double>(document.Items());
}

void Decode(benchmark::State& state, Document& document, eXMLProfile profile) {
    const std::string& text = document.Text();
    const Library library(document.Family().schema, profile);
    Measure(state, document, text.size(), [&] { library.DecodeAndRelease(text); });
}

void DecodePeer(benchmark::State& state, Document& document, RecordReader read) {
    const std::string& text = document.Text();
    const BenchFamily& family = document.Family();
    Measure(state, document, text.size(), [&] { family.readAndRelease(text, family.root, read); });
}

void Encode(benchmark::State& state, Document& document, eXMLProfile profile) {
    Library library(document.Family().schema, profile);
    XMLElement* const root = library.Decode(document.Text());
    const std::size_t size = std::string(library.Encode(root)).size();
    Measure(state, document, size, [&] { benchmark::DoNotOptimize(library.Encode(root)); });
}

void EncodeWithPugixml(benchmark::State& state, Document& document) {
    struct Writer : pugi::xml_writer {
        std::string text;
        void write(const void* data, std::size_t size) override { text.append(static_cast<const char*>(data), size); }
    };
    // What our tree holds, and no more.
    Library library(document.Family().schema);
    pugi::xml_document tree;
    if (!tree.load_string(library.Encode(library.Decode(document.Text())))) std::abort();
    Writer writer;
    const auto step = [&] {
        writer.text.clear();
        tree.save(writer, "", pugi::format_raw);
    };
    step();
    Measure(state, document, writer.text.size(), step);
}

void EncodeWithTinyxml2(benchmark::State& state, Document& document) {
    const RecordRoot& root = document.Family().root;
    const std::shared_ptr<void> record = document.Family().read(document.Text(), root, ReadWithExpat);
    Library library(document.Family().schema);
    const bool hasDeclaration =
        std::string_view(library.Encode(library.Decode(document.Text()))).substr(0, 5) == "<?xml";
    tinyxml2::XMLPrinter printer(nullptr, true);
    const auto step = [&] {
        printer.ClearBuffer();
        printer.PushHeader(false, hasDeclaration);
        WriteWithTinyxml2(root.name, root.type, record.get(), printer);
    };
    step();
    Measure(state, document, static_cast<std::size_t>(printer.CStrSize()) - 1, step);
}

}  // namespace

void AddDocument(const std::string& name, const BenchFamily& family, DocumentMaker make, std::size_t size,
                 BenchDirections directions) {
    const auto document = std::make_shared<Document>(name, family, make, size, directions);
    const auto add = [&](const char* suffix, auto run) {
        benchmark::RegisterBenchmark((name + suffix).c_str(),
                                     [document, run](benchmark::State& state) { run(state, *document); });
    };
    add("-decode/imsxml", [](auto& state, Document& of) { Decode(state, of, IX_XML_PROFILE_DEVICE); });
    add("-decode/standard", [](auto& state, Document& of) { Decode(state, of, IX_XML_PROFILE_STANDARD); });
    add("-decode/expat", [](auto& state, Document& of) { DecodePeer(state, of, ReadWithExpat); });
    add("-decode/pugixml", [](auto& state, Document& of) { DecodePeer(state, of, ReadWithPugixml); });
    add("-decode/rapidxml", [](auto& state, Document& of) { DecodePeer(state, of, ReadWithRapidxml); });
    if (directions == BenchDirections::Decode) return;
    add("-encode/imsxml", [](auto& state, Document& of) { Encode(state, of, IX_XML_PROFILE_DEVICE); });
    add("-encode/standard", [](auto& state, Document& of) { Encode(state, of, IX_XML_PROFILE_STANDARD); });
    add("-encode/pugixml", EncodeWithPugixml);
    add("-encode/tinyxml2", EncodeWithTinyxml2);
}

void AddSizes(const std::string& name, const BenchFamily& family, DocumentMaker make) {
    AddDocument(name + "-2k", family, make, 2 << 10);
    AddDocument(name + "-12k", family, make, 12 << 10);
    AddDocument(name + "-28k", family, make, 28 << 10);
}

void AddGrowth(const std::string& name, const BenchFamily& family, DocumentMaker make) {
    AddDocument(name + "-1m", family, make, 1 << 20, BenchDirections::Decode);
    AddDocument(name + "-16m", family, make, 16 << 20, BenchDirections::Decode);
}
