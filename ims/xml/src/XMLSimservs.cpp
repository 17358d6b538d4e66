#include "XMLSimservs.h"

#include <initializer_list>

#include <cstring>

#include "Simservs.h"
#include "XMLCommunicationBarring.h"
#include "XMLCommunicationDiversion.h"
#include "XMLCommunicationWaiting.h"
#include "XMLFile.h"
#include "XMLOriginatingIdentityPresentation.h"
#include "XMLSimservsXcap.h"
#include "XMLTerminatingIdentityPresentation.h"

namespace {

using namespace XmlRow;

constexpr XmlNamedClass kServiceClasses[] = {
    {IX_STR_ORIGINATING_IDENTITY_PRESENTATION, &ix_originating_identity_presentation::kClass},
    {IX_STR_TERMINATING_IDENTITY_PRESENTATION, &ix_terminating_identity_presentation::kClass},
    {IX_STR_COMMUNICATION_DIVERSION, &ix_communication_diversion::kClass},
    {IX_STR_INCOMING_COMMUNICATION_BARRING, &ix_incoming_communication_barring::kClass},
    {IX_STR_OUTGOING_COMMUNICATION_BARRING, &ix_outgoing_communication_barring::kClass},
    {IX_STR_COMMUNICATION_WAITING, &ix_communication_waiting::kClass},
};

constexpr XmlField kSimservsFields[] = {
    Others<&ix_Simservs::mServiceList>(kServiceClasses).Key("service"),
};

constexpr XmlUnMarshallerInfo UnMarshallerInfo() {
    XmlUnMarshallerInfo info = ixUnMarshallerInfo<XMLSimservsDecoder>(
        kSource, {4, "<XML Module>: StrDup failed in SimservsUnMarshaller::UnMarshall"});
    info.decoded = {2, "<XML Module>: XML Decode Success"};
    info.notDecoded = {2, "<XML Module>: XML Decode Failed"};
    return info;
}
constexpr XmlUnMarshallerInfo kUnMarshallerInfo = UnMarshallerInfo();

constexpr XmlWriterRow kWriters[] = {
    ixWriter<&SimservsMarshaller::AddSimservsElementToXml>(),
};

constexpr XmlMarshallerInfo MarshallerInfo() {
    XmlMarshallerInfo info =
        ixMarshallerInfo(kSource, kWriters, IX_MARSHALL_TEXTS("SimservsMarshaller", "SimservsXml"));
    info.namespaces = kSimservsNamespaces;
    info.namespaceCount = kSimservsNamespaceCount;
    info.noFirstNamespace = {2, "SimservsMarshaller :: SimservsMarshaller: Malloc cannot allocate memory"};
    info.noNamespace = info.noFirstNamespace;
    // The text is complete, and logged, only with its services.
    info.texts.written = {};
    return info;
}
constexpr XmlMarshallerInfo kMarshallerInfo = MarshallerInfo();

/// The arrays that pieces are collected in, in the order in which they are decoded.
enum PieceArray { kBarring, kDiversion, kWaiting, kOip, kTip, kPieceArrays };

/// What is logged without memory for one of them.
constexpr XmlLogText kNoPieces[kPieceArrays] = {
    {2, "<XML Module>: Malloc failed in SimservsUnMarshaller::UnMarshall pCommunicationBarring"},
    {2, "<XML Module>: Malloc failed in SimservsUnMarshaller::UnMarshall pCommunicationDiversion"},
    {2, "<XML Module>: Malloc failed in SimservsUnMarshaller::UnMarshall pCommunicationWaiting"},
    {2, "<XML Module>: Malloc failed in SimservsUnMarshaller::UnMarshall pOIP"},
    {2, "<XML Module>: Malloc failed in SimservsUnMarshaller::UnMarshall pTIP"},
};

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

    const char* Name() const { return ixString(name); }
};

/// The log lines of a service, which name it in three ways.
#define IX_SERVICE_TEXTS(cutWord, decodedWord, writtenWord)                                  \
    {2, "<XML Module>: XML SimservsUnmarshall Success replace Substring " cutWord " "},      \
        {2, "<XML Module>: XML SimservsUnmarshall Error replace Substring " cutWord " "},    \
        {2, "<XML Module>: XML Decode Success in " decodedWord},                             \
        {2, "<XML Module>: XML Decode Failure in " decodedWord},                             \
        {2, "<XML Module>: SimservsMarshaller XML - " writtenWord " Marshalling Success"}, { \
        2, "<XML Module>: SimservsMarshaller XML - " writtenWord " Marshalling error"        \
    }

/// In the order in which they are looked for.
constexpr Service kServices[] = {
    {IX_STR_INCOMING_COMMUNICATION_BARRING, IX_XML_SCHEMA_COMMUNICATION_BARRING, kBarring,
     IX_SERVICE_TEXTS("Incoming Communication Barring", "Communication Barring (Incoming)", "Communication Barring")},
    {IX_STR_OUTGOING_COMMUNICATION_BARRING, IX_XML_SCHEMA_COMMUNICATION_BARRING, kBarring,
     IX_SERVICE_TEXTS("Outgoing Communication Barring", "Communication Barring (Outgoing)", "Communication Barring")},
    {IX_STR_COMMUNICATION_DIVERSION, IX_XML_SCHEMA_COMMUNICATION_DIVERSION, kDiversion,
     IX_SERVICE_TEXTS("Communication Diversion", "Communication Diversion", "Communication Diversion")},
    {IX_STR_COMMUNICATION_WAITING, IX_XML_SCHEMA_COMMUNICATION_WAITING, kWaiting,
     IX_SERVICE_TEXTS("Communication Waiting", "Communication Waiting", "Communication Waiting")},
    {IX_STR_ORIGINATING_IDENTITY_PRESENTATION, IX_XML_SCHEMA_OIP, kOip, IX_SERVICE_TEXTS("OIP", "poip", "OIP")},
    {IX_STR_TERMINATING_IDENTITY_PRESENTATION, IX_XML_SCHEMA_TIP, kTip, IX_SERVICE_TEXTS("TIP", "ptip", "TIP")},
};
constexpr std::size_t kServiceCount = sizeof kServices / sizeof *kServices;

/// The service of an element's class; NULL: it is none.
const Service* ServiceOf(const char* className) {
    for (const Service& service : kServices) {
        if (std::strcmp(service.Name(), className) == 0) return &service;
    }
    return nullptr;
}

/// The services cut out of a text, by kind.
struct Pieces {
    static constexpr int kSlots = 10;

    Pieces() = default;
    ~Pieces() {
        for (char** const array : arrays) {
            for (int slot = 0; array != nullptr && slot < kSlots; ++slot) __free(array[slot]);
            __free(array);
        }
    }
    Pieces(const Pieces&) = delete;
    Pieces& operator=(const Pieces&) = delete;

    bool Allocate() {
        for (int i = 0; i < kPieceArrays; ++i) {
            arrays[i] = static_cast<char**>(__calloc(kSlots, sizeof(char*)));
            if (arrays[i] != nullptr) continue;
            ixLog(kSource, kNoPieces[i]);
            return false;
        }
        return true;
    }

    /// NULL: the array is full.
    char** FreeSlot(PieceArray array) const {
        for (int slot = 0; slot < kSlots; ++slot) {
            if (arrays[array][slot] == nullptr) return &arrays[array][slot];
        }
        return nullptr;
    }

    char** arrays[kPieceArrays] = {};
};

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

/// Cuts the services out of a text, the first one in the order of the table each time. @return false without memory.
bool CutServices(SimservsUnMarshaller& unMarshaller, char* text, const Pieces& pieces) {
    bool skipped[kServiceCount] = {};
    for (std::size_t i = 0; i < kServiceCount;) {
        const Service& service = kServices[i];
        char* start = skipped[i] ? nullptr : std::strstr(text, service.Name());
        if (start == nullptr) {
            ++i;
            continue;
        }
        char* const end = EndOfService(start + std::strlen(service.Name()), service.Name());
        if (end == nullptr) {
            // Required: the same name is looked for again in the same text, without end. IMSXML_WALKS_END makes the
            // search go on behind it.
            ixLog(kSource, service.notCut);
#ifdef IMSXML_WALKS_END
            skipped[i] = true;
#endif
            continue;
        }
        char** const slot = pieces.FreeSlot(service.pieces);
        if (slot == nullptr) {
            ixLog(kSource, {3, "<XML Module>: XML SimservsUnmarshall more than ten services of a kind: %s is left out"},
                  service.Name());
            skipped[i] = true;
            continue;
        }
        while (start > text && *start != '<') --start;
        ixLog(kSource, service.cut);
        unMarshaller.replaceSubStringWithNull(text, slot, static_cast<int>(start - text),
                                              static_cast<int>(end - start));
        if (*slot == nullptr) return false;
        // At the place of a cut, an earlier name may have come together from two halves.
        i = 0;
    }
    return true;
}

/// The service that a piece of an array is of. Both kinds of barring share an array, so the piece says it.
const Service* ServiceOf(PieceArray array, const char* piece) {
    for (const Service& service : kServices) {
        if (service.pieces == array && std::strstr(piece, service.Name()) != nullptr) return &service;
    }
    return nullptr;
}

/// Has a piece decoded by its own schema. @return false when there is none to do it.
bool AddService(ix_Simservs& root, const Service& service, const char* piece) {
    XMLContext* const context = XMLFactory::newInstance(service.schema);
    if (context == nullptr) return false;
    XMLUnMarshaller* const unMarshaller = context->createUnMarshaller();
    XMLElement* element = unMarshaller != nullptr ? unMarshaller->UnMarshall(piece) : nullptr;
    if (element != nullptr && root.addService(element) == 0) {
        ixDelete(element);
        element = nullptr;
    }
    ixLog(kSource, element != nullptr ? service.decoded : service.notDecoded);
    XMLFactory::deleteContext(context);
    return true;
}

void AddServices(ix_Simservs& root, const Pieces& pieces) {
    for (const PieceArray array : {kBarring, kDiversion, kWaiting, kOip, kTip}) {
        for (int slot = 0; slot < Pieces::kSlots && pieces.arrays[array][slot] != nullptr; ++slot) {
            const char* const piece = pieces.arrays[array][slot];
            const Service* const service = ServiceOf(array, piece);
            // Required: without a context, the other services of the array go without a line as well.
            if (service != nullptr && !AddService(root, *service, piece)) break;
        }
    }
}

}  // namespace

constexpr XmlClass ix_Simservs::kClass =
    ixClass<ix_Simservs>("ix_Simservs", "Simservs", kSource, kSimservsFields)
        .Also(
            "extensions originating-identity-presentation-restriction terminating-identity-presentation-restriction "
            "communication-diversion-serv-cap communication-barring-serv-cap flexible-alerting-default "
            "flexible-alerting-specific");

// Required: an object that is offered is left to the caller; services are filed by the unmarshaller alone.
int ix_Simservs::ProcessUnMarshall(char* /*name*/, char* /*text*/, XMLElement* /*child*/) { return 1; }

XMLElement* SimservsDataBinder::CreateRootElement() { return ixNew<ix_Simservs>(kSource); }

SimservsUnMarshaller::SimservsUnMarshaller() : XmlFamilyUnMarshaller(kUnMarshallerInfo) {}

SimservsMarshaller::SimservsMarshaller() : XmlFamilyMarshaller(kMarshallerInfo) {}

SimservsContext::SimservsContext()
    : XmlBinderContext(ixFamily<SimservsMarshaller, SimservsUnMarshaller, SimservsDataBinder>(kSource)) {}

int SimservsContext::SetNamespaceBinder(XMLObject* binder) {
    ixLog(kSource, {3, "<XML Module>: SimservsContext :: SetNamespaceBinder"});
    return XmlBinderContext::SetNamespaceBinder(binder);
}

XMLElement* SimservsUnMarshaller::UnMarshall(XMLFile* file) {
    return UnMarshall(file != nullptr ? file->Read() : nullptr);
}

XMLElement* SimservsUnMarshaller::UnMarshall(const char* text) {
    Pieces pieces;
    if (text == nullptr || !pieces.Allocate()) return nullptr;
    char* const copy = __strdup(text);
    if (copy == nullptr) {
        ixLog(kSource, kUnMarshallerInfo.noCopy);
        return nullptr;
    }
    // The text is decoded twice: whole, to know that it may be cut up, and again without its services.
    bool complete = false;
    XMLElement* root = Decode(copy, __LINE__, __LINE__, nullptr, complete);
    ixDelete(root);
    root = nullptr;
    if (complete && CutServices(*this, copy, pieces)) {
        root = Decode(copy, __LINE__, __LINE__, NamespaceBinder(), complete);
        if (root != nullptr) AddServices(static_cast<ix_Simservs&>(*root), pieces);
    } else if (complete) {
        ixLog(kSource, {2, "<XML Module>: XML Decode Failed pstring NULL"});
    }
    __free(copy);
    return root;
}

char* SimservsUnMarshaller::replaceSubStringWithNull(char* text, char** out, int at, int length) {
    if (text == nullptr || out == nullptr || at < 0 || length < 0) return text;
    const std::size_t begin = static_cast<std::size_t>(at);
    const std::size_t count = static_cast<std::size_t>(length) + 1;
    const std::size_t whole = std::strlen(text);
    if (whole < begin + count) return text;
    char* const piece = static_cast<char*>(__malloc(count + 1));
    if (piece == nullptr) {
        ixLog(kSource,
              {2, "<XML Module>: SimservsUnMarshaller :: replaceSubStringWithNull malloc failed returning pString"});
        return text;
    }
    std::memcpy(piece, text + begin, count);
    piece[count] = '\0';
    *out = piece;
    const std::size_t rest = whole - begin - count;
    std::memmove(text + begin, text + begin + count, rest);
    // The character at the end of the shorter text stays where it is; only a cut at the very end leaves none.
    text[begin + rest + (rest != 0 ? 1 : 0)] = '\0';
    return text;
}

char* SimservsMarshaller::Marshall(XMLElement* root) {
    m_bServiceTruncated = false;
    if (XmlFamilyMarshaller::Marshall(root) == nullptr) return nullptr;
    char* text = TakeText();
    const IxSingleElementList* const services = static_cast<const ix_Simservs*>(root)->mServiceList;
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
    Log({2, "<XML Module>: SimservsMarshaller XML %s"}, text);
    return text;
}

int SimservsMarshaller::IsTruncated() const { return m_bServiceTruncated ? 1 : XmlFamilyMarshaller::IsTruncated(); }

int SimservsMarshaller::AddSimservsElementToXml(ix_Simservs* element) {
    if (!Enter(element, {2, "<XML Module>: AddSimservsElementToXml"})) return 0;
    XmlStartTag tag(*this, IX_STR_SIMSERVS);
    tag.Add(IX_STR_XMLNS, IX_STR_HTTP_URI_ETSI_ORG_NGN_PARAMS_XML_SIMSERVS_XCAP);
    tag.AddPrefixed(IX_STR_XMLNS, IX_STR_SS, IX_STR_HTTP_URI_ETSI_ORG_NGN_PARAMS_XML_SIMSERVS_XCAP);
    tag.AddPrefixed(IX_STR_XMLNS, IX_STR_CP, IX_STR_URN_IETF_PARAMS_XML_NS_COMMON_POLICY);
    tag.AddPrefixed(IX_STR_XMLNS, IX_STR_OCP, IX_STR_URN_OMA_XML_XDM_COMMON_POLICY);
    tag.Close();
    EndElement(IX_STR_SIMSERVS);
    return 1;
}

/// The texts of all services, to be freed; NULL without memory.
char* SimservsMarshaller::WriteServices(const IxSingleElementList& services) {
    const std::size_t length = WriteEach(services, nullptr, 0);
    char* const text = static_cast<char*>(__calloc(length + 1, 1));
    if (text == nullptr) {
        Log({2, "<XML Module>: pString calloc failed"});
        return nullptr;
    }
    // A service that was written only once of both times was short of memory the other time.
    if (WriteEach(services, text, length + 1) == length) return text;
    __free(text);
    return nullptr;
}

/// Has every service written by its own schema, into `text` as far as its `size` bytes go. @return the length of the
/// texts.
std::size_t SimservsMarshaller::WriteEach(const IxSingleElementList& services, char* text, std::size_t size) {
    std::size_t length = 0;
    for (auto* const element : XmlEntries<XMLElement>(&services)) {
        const char* const className = element != nullptr ? element->ClassName() : nullptr;
        if (element == nullptr) Log({2, "<XML Module>: SimservsMarshaller GetKeyAtIndex failed"});
        if (element != nullptr && className == nullptr)
            Log({2, "<XML Module>: SimservsMarshaller get ClassName failed"});
        const Service* const service = className != nullptr ? ServiceOf(className) : nullptr;
        if (service == nullptr) continue;
        XMLContext* const context = XMLFactory::newInstance(service->schema);
        XMLMarshaller* const marshaller = context != nullptr ? context->createMarshaller() : nullptr;
        const char* const piece = marshaller != nullptr ? marshaller->Marshall(element) : nullptr;
        Log(piece != nullptr ? service->written : service->notWritten);
        if (piece != nullptr) {
            const std::size_t pieceLength = std::strlen(piece);
            if (length + pieceLength < size) std::memcpy(text + length, piece, pieceLength + 1);
            length += pieceLength;
            m_bServiceTruncated = m_bServiceTruncated || marshaller->IsTruncated() != 0;
        }
        XMLFactory::deleteContext(context);
    }
    return length;
}

char* SimservsMarshaller::InsertString(char* document, const char* piece) {
    if (document == nullptr || piece == nullptr) {
        Log({2, "SimservsMarshaller :: InsertString mSimservsXml or pString NULL "});
        return nullptr;
    }
    const char* const endTag = std::strstr(document, "</");
    if (endTag == nullptr) return nullptr;
    const std::size_t before = static_cast<std::size_t>(endTag - document);
    const std::size_t after = std::strlen(endTag);
    const std::size_t pieceLength = std::strlen(piece);
    char* const text = static_cast<char*>(__malloc(before + pieceLength + after + 1));
    if (text == nullptr) {
        Log({2, "SimservsMarshaller :: InsertString malloc failed for pTempStr returning mSimservsXml "});
        return document;
    }
    std::memcpy(text, document, before);
    std::memcpy(text + before, piece, pieceLength + 1);
    std::memcpy(text + before + pieceLength, endTag, after + 1);
    __free(document);
    return text;
}
