#include "XMLSimservs.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "Simservs.h"
#include "XMLFile.h"
#include "XmlElementSupport.h"

namespace {

const char kSourceFile[] = "ims/xml/src/XMLSimservs";

constexpr XmlOldUnMarshallerInfo UnMarshallerInfo() {
    XmlOldUnMarshallerInfo info = IX_OLD_UNMARSHALLER_INFO(XMLSimservsDecoder, "SimservsUnMarshaller");
    info.decoded = {2, kSchemaCode, __LINE__, "<XML Module>: XML Decode Success"};
    info.notDecoded = {2, kSchemaCode, __LINE__, "<XML Module>: XML Decode Failed"};
    return info;
}
constexpr XmlOldUnMarshallerInfo kUnMarshallerInfo = UnMarshallerInfo();

constexpr XmlOldWriterRow kWriters[] = {
    {IX_OLD_WRITER_OF(SimservsMarshaller, AddSimservsElementToXml, ix_Simservs)},
};

constexpr XmlOldMarshallerInfo MarshallerInfo() {
    XmlOldMarshallerInfo info = ixOldMarshallerInfo(kSourceFile, kWriters);
    info.namespaces = kSimservsNamespaces;
    info.namespaceCount = kSimservsNamespaceCount;
    info.noFirstNamespace = info.noNamespace = {
        2, kSchemaCode, __LINE__, "SimservsMarshaller :: SimservsMarshaller: Malloc cannot allocate memory"};
    IX_OLD_MARSHALL_TEXTS(info, "SimservsMarshaller", "SimservsXml");
    // The text is complete, and logged, only with its services.
    info.written = {};
    return info;
}
constexpr XmlOldMarshallerInfo kMarshallerInfo = MarshallerInfo();

constexpr XmlLogText kSetBinder = {3, kSchemaCode, __LINE__, "<XML Module>: SimservsContext :: SetNamespaceBinder"};
constexpr XmlLogText kNoPieces = {2, kSchemaCode, __LINE__,
                                  "<XML Module>: Malloc failed in SimservsUnMarshaller::UnMarshall %s"};
constexpr XmlLogText kNoPiece = {
    2, kSchemaCode, __LINE__,
    "<XML Module>: SimservsUnMarshaller :: replaceSubStringWithNull malloc failed returning pString"};
constexpr XmlLogText kNoText = {2, kSchemaCode, __LINE__, "<XML Module>: XML Decode Failed pstring NULL"};
constexpr XmlLogText kTooMany = {
    3, kSchemaCode, __LINE__, "<XML Module>: XML SimservsUnmarshall more than ten services of a kind: %s is left out"};
constexpr XmlLogText kNoEntry = {2, kSchemaCode, __LINE__, "<XML Module>: SimservsMarshaller GetKeyAtIndex failed"};
constexpr XmlLogText kNoClassName = {2, kSchemaCode, __LINE__, "<XML Module>: SimservsMarshaller get ClassName failed"};
constexpr XmlLogText kNoBuffer = {2, kSchemaCode, __LINE__, "<XML Module>: pString calloc failed"};
constexpr XmlLogText kWritten = {2, kSchemaCode, __LINE__, "<XML Module>: SimservsMarshaller XML %s"};
constexpr XmlLogText kNothingToInsert = {2, kSchemaCode, __LINE__,
                                         "SimservsMarshaller :: InsertString mSimservsXml or pString NULL "};
constexpr XmlLogText kNoMemoryToInsert = {
    2, kSchemaCode, __LINE__, "SimservsMarshaller :: InsertString malloc failed for pTempStr returning mSimservsXml "};

/// The arrays that pieces are collected in, in the order in which they are decoded.
enum PieceArray { kBarring, kDiversion, kWaiting, kOip, kTip, kPieceArrays };

constexpr const char* kPieceArrayNames[kPieceArrays] = {"pCommunicationBarring", "pCommunicationDiversion",
                                                        "pCommunicationWaiting", "pOIP", "pTIP"};

/// Pieces of a kind.
constexpr int kSlots = 10;

/// A service: its element, which is the name of its class, too, and the schema that it has of its own.
struct Service {
    e_XmlStrRef name;
    eXMLSchemaID schema;
    PieceArray pieces;
    XmlLogText cut;
    XmlLogText notCut;
    XmlLogText decoded;
    XmlLogText notDecoded;
    XmlLogText written;
    XmlLogText notWritten;

    const char* Name() const { return ix_xml_common_array_definition::getStringName(name); }
};

#define IX_SERVICE(name, schema, pieces, cutWord, decodedWord, writtenWord)                                            \
    {                                                                                                                  \
        name, schema, pieces,                                                                                          \
            {2, kSchemaCode, __LINE__, "<XML Module>: XML SimservsUnmarshall Success replace Substring " cutWord " "}, \
            {2, kSchemaCode, __LINE__, "<XML Module>: XML SimservsUnmarshall Error replace Substring " cutWord " "},   \
            {2, kSchemaCode, __LINE__, "<XML Module>: XML Decode Success in " decodedWord},                            \
            {2, kSchemaCode, __LINE__, "<XML Module>: XML Decode Failure in " decodedWord},                            \
            {2, kSchemaCode, __LINE__, "<XML Module>: SimservsMarshaller XML - " writtenWord " Marshalling Success"},  \
            {2, kSchemaCode, __LINE__, "<XML Module>: SimservsMarshaller XML - " writtenWord " Marshalling error"},    \
    }

/// In the order in which they are looked for.
constexpr Service kServices[] = {
    IX_SERVICE(IX_STR_INCOMING_COMMUNICATION_BARRING, IX_XML_SCHEMA_COMMUNICATION_BARRING, kBarring,
               "Incoming Communication Barring", "Communication Barring (Incoming)", "Communication Barring"),
    IX_SERVICE(IX_STR_OUTGOING_COMMUNICATION_BARRING, IX_XML_SCHEMA_COMMUNICATION_BARRING, kBarring,
               "Outgoing Communication Barring", "Communication Barring (Outgoing)", "Communication Barring"),
    IX_SERVICE(IX_STR_COMMUNICATION_DIVERSION, IX_XML_SCHEMA_COMMUNICATION_DIVERSION, kDiversion,
               "Communication Diversion", "Communication Diversion", "Communication Diversion"),
    IX_SERVICE(IX_STR_COMMUNICATION_WAITING, IX_XML_SCHEMA_COMMUNICATION_WAITING, kWaiting, "Communication Waiting",
               "Communication Waiting", "Communication Waiting"),
    IX_SERVICE(IX_STR_ORIGINATING_IDENTITY_PRESENTATION, IX_XML_SCHEMA_OIP, kOip, "OIP", "poip", "OIP"),
    IX_SERVICE(IX_STR_TERMINATING_IDENTITY_PRESENTATION, IX_XML_SCHEMA_TIP, kTip, "TIP", "ptip", "TIP"),
};
constexpr std::size_t kServiceCount = std::size(kServices);

constexpr XmlField kSimservsFields[] = {
    {XmlFieldKind::ChildList, IX_STR_IX_NULL, XmlListMember(&ix_Simservs::mServiceList), 0, nullptr, "service"},
};
constexpr XmlFieldTable kSimservsTable = {nullptr, kSimservsFields, std::size(kSimservsFields)};

/// The last character of the element whose name ends at `afterName`: of its end tag, if the name comes again, or of its
/// own tag, if that is closed by "/>" before another one begins; whichever is first. NULL: neither is there.
char* EndOfService(char* afterName, const char* name) {
    char* const again = std::strstr(afterName, name);
    char* const endTag = again != nullptr ? std::strchr(again, '>') : nullptr;
    char* ownTag = std::strpbrk(afterName, "<>");
    while (ownTag != nullptr && *ownTag == '>' && (ownTag == afterName || ownTag[-1] != '/')) {
        ownTag = std::strpbrk(ownTag + 1, "<>");
    }
    if (ownTag == nullptr || *ownTag == '<') return endTag;
    return endTag == nullptr || ownTag < endTag ? ownTag : endTag;
}

/// The row of an element's class, or NULL.
const Service* FindService(const char* className) {
    for (const Service& service : kServices) {
        if (std::strcmp(service.Name(), className) == 0) return &service;
    }
    return nullptr;
}

/// A text that grows to a size known before; without memory for one, a count of what would be written.
struct Target {
    char* text = nullptr;
    std::size_t size = 0;
    std::size_t length = 0;
    bool truncated = false;

    void Append(const char* piece) {
        const std::size_t pieceLength = std::strlen(piece);
        if (text != nullptr && length + pieceLength < size) std::memcpy(text + length, piece, pieceLength + 1);
        length += pieceLength;
    }
};

/// Has every service written by its own schema.
void WriteEach(const IxSingleElementList& services, Target& target) {
    for (auto* const element : XmlEntries<XMLElement>(&services)) {
        const char* const className = element != nullptr ? element->ClassName() : nullptr;
        if (className == nullptr) {
            ixLog(kSourceFile, element == nullptr ? kNoEntry : kNoClassName);
            continue;
        }
        const Service* const service = FindService(className);
        if (service == nullptr) continue;
        XMLContext* const context = XMLFactory::newInstance(service->schema);
        XMLMarshaller* const marshaller = context != nullptr ? context->createMarshaller() : nullptr;
        const char* const text = marshaller != nullptr ? marshaller->Marshall(element) : nullptr;
        ixLog(kSourceFile, text != nullptr ? service->written : service->notWritten);
        if (text != nullptr) {
            target.Append(text);
            target.truncated = target.truncated || marshaller->IsTruncated() != 0;
        }
        XMLFactory::deleteContext(context);
    }
}

}  // namespace

/// The services cut out of a text, by kind.
struct SimservsUnMarshaller::Pieces {
    Pieces() {
        for (char**& array : arrays) array = nullptr;
    }
    ~Pieces() {
        for (char** const array : arrays) {
            for (int i = 0; array != nullptr && i < kSlots; ++i) __free(array[i]);
            __free(array);
        }
    }
    Pieces(const Pieces&) = delete;
    Pieces& operator=(const Pieces&) = delete;

    bool Allocate() {
        for (int i = 0; i < kPieceArrays; ++i) {
            arrays[i] = static_cast<char**>(__malloc(kSlots * sizeof(char*)));
            if (arrays[i] == nullptr) {
                ixLog(kSourceFile, kNoPieces, kPieceArrayNames[i]);
                return false;
            }
            for (int slot = 0; slot < kSlots; ++slot) arrays[i][slot] = nullptr;
        }
        return true;
    }

    char** FreeSlot(PieceArray array) const {
        for (int slot = 0; slot < kSlots; ++slot) {
            if (arrays[array][slot] == nullptr) return &arrays[array][slot];
        }
        return nullptr;
    }

    char** arrays[kPieceArrays];
};

/// Finds the first of the names, in the order of the table, that occurs in a text from which one piece after the other
/// is cut. What was searched once is not searched again, but for the place of the cut, where a name may have come
/// together from two halves, and the end of the text.
class SimservsUnMarshaller::Search {
  public:
    explicit Search(char* text) : m_text(text) {}

    /// The service found, with `Place` at its name; NULL: there are no more.
    const Service* Next() {
        for (std::size_t i = 0; i < kServiceCount; ++i) {
            if (m_skipped[i]) continue;
            m_place = std::strstr(m_text + m_from[i], kServices[i].Name());
            if (m_place != nullptr) {
                m_from[i] = static_cast<std::size_t>(m_place - m_text);
                return &kServices[i];
            }
            m_from[i] = FirstUnknown(i, std::strlen(m_text + m_from[i]) + m_from[i]);
        }
        return nullptr;
    }

    char* Place() const { return m_place; }

    /// `removed` characters were cut at `at`; `length` are left.
    void Cut(std::size_t at, std::size_t removed, std::size_t length) {
        for (std::size_t i = 0; i < kServiceCount; ++i) {
            const char* const name = kServices[i].Name();
            const std::size_t nameLength = std::strlen(name);
            const std::size_t joint = at >= nameLength ? at - nameLength + 1 : 0;
            if (m_from[i] <= joint) continue;
            const std::size_t known = m_from[i] >= at + removed ? m_from[i] - removed : at;
            m_from[i] = joint;
            for (const char* text = m_text + joint; m_from[i] < at; ++m_from[i], ++text) {
                if (*text == *name && std::strncmp(text, name, nameLength) == 0) break;
            }
            if (m_from[i] < at) continue;
            const std::size_t last = FirstUnknown(i, length);
            m_from[i] = known < last ? known : last;
        }
    }

    /// The service is not looked for any more.
    void Skip(const Service& service) { m_skipped[&service - kServices] = true; }

  private:
    /// Where a name may begin that a text of this length, with one character more, could have.
    static std::size_t FirstUnknown(std::size_t service, std::size_t length) {
        const std::size_t nameLength = std::strlen(kServices[service].Name());
        return length >= nameLength ? length - nameLength + 1 : 0;
    }

    char* m_text;
    char* m_place = nullptr;
    std::size_t m_from[kServiceCount] = {};  ///< No name begins before here.
    bool m_skipped[kServiceCount] = {};
};

ix_Simservs::~ix_Simservs() { XmlFields::Release(this, kSimservsTable); }

const XmlFieldTable* ix_Simservs::FieldTable() const { return &kSimservsTable; }

int ix_Simservs::ProcessUnMarshall(char* /*name*/, char* /*text*/, XMLElement* /*child*/) { return 1; }

int ix_Simservs::addService(XMLElement* service) { return ixAppend(mServiceList, service, kSourceFile, __LINE__); }

int ix_Simservs::setServiceValue(IxSingleElementList* list) { return ixSetElementList(mServiceList, list); }

XMLElement* SimservsDataBinder::CreateRootElement() { return IX_NEW(ix_Simservs); }

XMLElement* SimservsUnMarshaller::UnMarshall(XMLFile* file) {
    return UnMarshall(file != nullptr ? file->Read() : nullptr);
}

XMLElement* SimservsUnMarshaller::UnMarshall(const char* text) {
    Pieces pieces;
    if (text == nullptr || !pieces.Allocate()) return nullptr;
    char* const copy = __strdup(text);
    if (copy == nullptr) {
        ixLog(kSourceFile, kUnMarshallerInfo.noCopy);
        return nullptr;
    }
    // The text is decoded twice: whole, to know that it may be cut up, and again without its services.
    bool complete = false;
    XMLElement* root = Decode(copy, __LINE__, __LINE__, nullptr, complete);
    IX_DELETE(root);
    root = nullptr;
    if (complete) {
        const char* const rest = CutServices(copy, pieces);
        if (rest == nullptr) {
            ixLog(kSourceFile, kNoText);
        } else {
            root = Decode(rest, __LINE__, __LINE__, NamespaceBinder(), complete);
        }
        if (root != nullptr) AddServices(*static_cast<ix_Simservs*>(root), pieces);
    }
    __free(copy);
    return root;
}

/// @return the text without its services; NULL without memory.
char* SimservsUnMarshaller::CutServices(char* text, Pieces& pieces) {
    Search search(text);
    for (const Service* service = search.Next(); service != nullptr; service = search.Next()) {
        char* start = search.Place();
        char* const end = EndOfService(start + std::strlen(service->Name()), service->Name());
        if (end == nullptr) {
            // Required: the same name is looked for again in the same text, without end. IMSXML_WALKS_END makes the
            // search go on behind it.
            ixLog(kSourceFile, service->notCut);
#ifdef IMSXML_WALKS_END
            search.Skip(*service);
#endif
            continue;
        }
        char** const slot = pieces.FreeSlot(service->pieces);
        if (slot == nullptr) {
            ixLog(kSourceFile, kTooMany, service->Name());
            search.Skip(*service);
            continue;
        }
        while (start > text && *start != '<') --start;
        ixLog(kSourceFile, service->cut);
        const int at = static_cast<int>(start - text);
        const int length = static_cast<int>(end - start);
        replaceSubStringWithNull(text, slot, at, length);
        if (*slot == nullptr) return nullptr;
        search.Cut(static_cast<std::size_t>(at), static_cast<std::size_t>(length) + 1, std::strlen(text));
    }
    return text;
}

char* SimservsUnMarshaller::replaceSubStringWithNull(char* text, char** out, int at, int length) {
    if (text == nullptr || out == nullptr || at < 0 || length < 0) return text;
    const std::size_t begin = static_cast<std::size_t>(at);
    const std::size_t count = static_cast<std::size_t>(length) + 1;
    if (__strlen(text) < begin + count) return text;
    char* const piece = static_cast<char*>(__malloc(count + 1));
    if (piece == nullptr) {
        ixLog(kSourceFile, kNoPiece);
        return text;
    }
    std::memcpy(piece, text + begin, count);
    piece[count] = '\0';
    *out = piece;
    const std::size_t rest = std::strlen(text + begin + count);
    std::memmove(text + begin, text + begin + count, rest);
    // The character at the end of the shorter text stays where it is; only a cut at the very end leaves none.
    text[begin + rest + (rest != 0 ? 1 : 0)] = '\0';
    return text;
}

void SimservsUnMarshaller::AddServices(ix_Simservs& root, Pieces& pieces) {
    for (int array = 0; array < kPieceArrays; ++array) {
        for (int slot = 0; slot < kSlots; ++slot) {
            const char* const piece = pieces.arrays[array][slot];
            if (piece == nullptr) continue;
            // Both kinds of barring share an array, so the piece says which one it is.
            const Service* service = kServices;
            while (service->pieces != array || std::strstr(piece, service->Name()) == nullptr) ++service;
            XMLContext* const context = XMLFactory::newInstance(service->schema);
            // Required: without a context, the other services of the array go without a line as well.
            if (context == nullptr) break;
            XMLUnMarshaller* const unMarshaller = context->createUnMarshaller();
            XMLElement* element = unMarshaller != nullptr ? unMarshaller->UnMarshall(piece) : nullptr;
            if (element != nullptr && root.addService(element) == 0) {
                IX_DELETE(element);
                element = nullptr;
            }
            ixLog(kSourceFile, element != nullptr ? service->decoded : service->notDecoded);
            XMLFactory::deleteContext(context);
        }
    }
}

SimservsMarshaller::SimservsMarshaller() : XmlOldFamilyMarshaller(kMarshallerInfo) {}

char* SimservsMarshaller::Marshall(XMLElement* root) {
    m_bServiceTruncated = false;
    if (XmlOldFamilyMarshaller::Marshall(root) == nullptr) return nullptr;
    char* text = TakeText();
    const IxSingleElementList* const services = static_cast<ix_Simservs*>(root)->mServiceList;
    if (services != nullptr) {
        char* const piece = WriteServices(*services);
        char* const whole = piece != nullptr ? InsertString(text, piece) : nullptr;
        __free(piece);
        // A root without its services would be another document.
        if (whole == nullptr || whole == text) {
            __free(text);
            return nullptr;
        }
        text = whole;
    }
    KeepText(text);
    ixLog(kSourceFile, kWritten, text);
    return text;
}

/// The texts of all services, to be freed; NULL without memory.
char* SimservsMarshaller::WriteServices(const IxSingleElementList& services) {
    Target count;
    WriteEach(services, count);
    Target target;
    target.size = count.length + 1;
    target.text = static_cast<char*>(__calloc(target.size, 1));
    if (target.text == nullptr) {
        ixLog(kSourceFile, kNoBuffer);
        return nullptr;
    }
    WriteEach(services, target);
    m_bServiceTruncated = target.truncated;
    // A service that was written only once of both times was short of memory the other time.
    if (target.length == count.length) return target.text;
    __free(target.text);
    return nullptr;
}

int SimservsMarshaller::IsTruncated() const { return m_bServiceTruncated ? 1 : XmlOldFamilyMarshaller::IsTruncated(); }

int SimservsMarshaller::AddSimservsElementToXml(ix_Simservs* /*element*/) {
    StartElementOpen(IX_STR_SIMSERVS);
    for (const XmlNamespaceRow& row : {kSimservsNamespaces[0], kSimservsNamespaces[1], kSimservsNamespaces[2]}) {
        const char* const uri = ix_xml_common_array_definition::getStringName(row.uri);
        if (row.canonicalPrefix == IX_STR_SS) AddAttribute(IX_STR_XMLNS, uri, Attribute::Open);
        const Attribute end = row.canonicalPrefix == IX_STR_OCP ? Attribute::Closing : Attribute::Open;
        AddPrefixedAttribute(IX_STR_XMLNS, row.canonicalPrefix, uri, end);
    }
    EndElement(IX_STR_SIMSERVS);
    return 1;
}

char* SimservsMarshaller::InsertString(char* document, const char* piece) {
    if (document == nullptr || piece == nullptr) {
        ixLog(kSourceFile, kNothingToInsert);
        return nullptr;
    }
    char* const endTag = std::strstr(document, "</");
    if (endTag == nullptr) return nullptr;
    const std::size_t before = static_cast<std::size_t>(endTag - document);
    const std::size_t after = std::strlen(endTag);
    const std::size_t pieceLength = std::strlen(piece);
    char* const text = static_cast<char*>(__malloc(before + pieceLength + after + 1));
    if (text == nullptr) {
        ixLog(kSourceFile, kNoMemoryToInsert);
        return document;
    }
    char* const rest = std::copy_n(piece, pieceLength, std::copy(document, endTag, text));
    std::copy_n(endTag, after + 1, rest);
    __free(document);
    return text;
}

int SimservsContext::SetNamespaceBinder(XMLObject* binder) {
    ixLog(kSourceFile, kSetBinder);
    return XmlOldBinderContext::SetNamespaceBinder(binder);
}

IX_OLD_FAMILY(SimservsContext, SimservsMarshaller, SimservsUnMarshaller, SimservsDataBinder);
