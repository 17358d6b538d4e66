#include "imsxml.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <string>

#include "Codec.h"
#include "Diagnosis.h"
#include "Json.h"
#include "JsonTree.h"
#include "JsonValue.h"
#include "Schema.h"
#include "Text.h"
#include "ixDplHost.h"

namespace {

/// The last problem of a thread. It takes no memory to set it.
thread_local imsxml_problem lastProblem;

void SetProblem(const char* text, TextPlace place = {}) {
    lastProblem.line = place.line;
    lastProblem.column = place.column;
    std::size_t length = std::min(std::strlen(text), sizeof lastProblem.text - 1);
    // No character is cut.
    if (text[length] != '\0') {
        while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U) --length;
    }
    std::memcpy(lastProblem.text, text, length);
    lastProblem.text[length] = '\0';
}

int Fail(int status, const char* text) {
    SetProblem(text);
    return status;
}

/// What a call works on. It throws `DocumentError`.
struct Call {
    Document document{};
    std::string result{};
    std::string flaw{};  ///< Of a result that there is all the same.
    int notRead = IMSXML_NOT_READ;

    int StatusOf(const DocumentError& error) const {
        if (error.status == kWrongUsage) return IMSXML_UNKNOWN_SCHEMA;
        return error.status == kNotMarshalled ? IMSXML_NOT_WRITTEN : notRead;
    }
};

/// Runs the operation of a call: nothing that is thrown comes out, and no failed allocation goes unnoticed.
/// @param result gets what the operation has made; NULL: it makes nothing.
template <class Operation>
int Run(Call& call, char** result, const Operation& operation) {
    const unsigned long failed = ixDplHostFailedAllocations();
    SetProblem("");
    int status = IMSXML_OK;
    try {
        const XmlTidy tidy;
        operation();
        SetProblem(call.flaw.c_str());
    } catch (const DocumentError& error) {
        status = call.StatusOf(error);
        const bool hasOffset = error.offset != kNoOffset;
        SetProblem(error.message.c_str(), hasOffset ? call.document.PlaceAt(error.offset) : error.place);
    } catch (const std::exception&) {
        status = IMSXML_NO_MEMORY;
    }
    if (status == IMSXML_OK && result != nullptr) {
        *result = static_cast<char*>(__malloc(call.result.size() + 1));
        if (*result != nullptr) std::memcpy(*result, call.result.c_str(), call.result.size() + 1);
    }
    if (status != IMSXML_NO_MEMORY && ixDplHostFailedAllocations() == failed) return status;
    if (result != nullptr) {
        __free(*result);
        *result = nullptr;
    }
    return Fail(IMSXML_NO_MEMORY, "no memory");
}

/// A schema by its name or by a content type; NULL: none is wanted.
const XmlSchemaInfo* SchemaFor(const char* name) {
    if (name == nullptr) return nullptr;
    return std::strchr(name, '/') != nullptr ? &SchemaByContentType(name) : &SchemaByName(name);
}

bool IsProfile(int profile) { return profile == IMSXML_PROFILE_DEVICE || profile == IMSXML_PROFILE_STANDARD; }

void SetText(Call& call, const char* text, std::size_t length) {
    call.document.text.assign(text, length);
    RequireText(call.document.text);
}

void Decode(Call& call, const char* name, eXMLProfile profile) {
    const XmlSchemaInfo* const named = SchemaFor(name);
    const XmlSchemaInfo& schema = named != nullptr ? *named : SchemaOfDocument(call.document, profile);
    const XmlOwnedContext context = NewContext(schema, profile);
    const bool isDevice = profile == IX_XML_PROFILE_DEVICE;
    const XmlOwned<> root = isDevice ? ReadDevice(*context, call.document) : ReadStandard(*context, call.document);
    if (root == nullptr) throw Diagnose(call.document, schema, [] { return false; });
    JsonText json(-1);
    WriteDocument(json, schema.name, nullptr, *root);
    call.result = json.Text();
    if (json.HasReplaced()) call.flaw = "bytes that are not UTF-8 were replaced";
}

/// The only document of a text.
JsonValue OnlyDocument(const Document& document) {
    JsonValue value;
    JsonValue other;
    std::size_t at = 0;
    if (!ReadJson(document.text, at, value)) throw DocumentError{kNotDecoded, "there is no JSON"};
    if (ReadJson(document.text, at, other)) {
        throw DocumentError{kNotDecoded, "there is more than one document", other.offset};
    }
    return value;
}

void Encode(Call& call, const char* name, eXMLProfile profile) {
    const JsonDocument tree = ToTree(OnlyDocument(call.document), nullptr, SchemaFor(name), profile);
    call.notRead = IMSXML_NOT_WRITTEN;
    const XmlOwnedContext context = NewContext(*tree.schema, profile);
    XMLMarshaller& marshaller = MarshallerOf(*context, *tree.schema);
    const char* const text = marshaller.Marshall(tree.root.get());
    if (text == nullptr) throw NotMarshalled(marshaller, *tree.schema, "");
    call.result = text;
    call.flaw = FlawOf(marshaller, call.result, profile);
}

/// Whom `Validate` tells.
struct Listener {
    imsxml_report report;
    void* context;
};

void Validate(Call& call, const char* name, Listener listener, int& count) {
    const XmlSchemaInfo* const named = SchemaFor(name);
    const XmlSchemaInfo& schema = named != nullptr ? *named : StandardSchemaOf(call.document.text);
    const auto tell = [](const XmlProblem& problem, void* context) {
        const Listener& to = *static_cast<const Listener*>(context);
        SetProblem(problem.text, {problem.line, problem.column});
        if (to.report != nullptr) to.report(problem.line, problem.column, problem.text, to.context);
    };
    count = XMLFactory::Validate(schema.id, call.document.text.data(), call.document.text.size(), tell, &listener);
    const imsxml_problem& last = lastProblem;
    if (count < 0) throw DocumentError{kNotDecoded, last.text, kNoOffset, {last.line, last.column}};
}

}  // namespace

int imsxml_decode(const char* text, size_t length, const char* schema_or_content_type, int profile, char** json) {
    if (json != nullptr) *json = nullptr;
    if (text == nullptr || json == nullptr) return Fail(IMSXML_WRONG_USE, "a pointer is NULL");
    if (!IsProfile(profile)) return Fail(IMSXML_WRONG_USE, "there is no such profile");
    Call call;
    return Run(call, json, [&] {
        SetText(call, text, length);
        Decode(call, schema_or_content_type, static_cast<eXMLProfile>(profile));
    });
}

int imsxml_encode(const char* json, size_t length, const char* schema, int profile, char** text) {
    if (text != nullptr) *text = nullptr;
    if (json == nullptr || text == nullptr) return Fail(IMSXML_WRONG_USE, "a pointer is NULL");
    if (!IsProfile(profile)) return Fail(IMSXML_WRONG_USE, "there is no such profile");
    Call call;
    call.notRead = IMSXML_WRONG_JSON;
    return Run(call, text, [&] {
        call.document.text.assign(json, length);
        Encode(call, schema, static_cast<eXMLProfile>(profile));
    });
}

int imsxml_validate(const char* text, size_t length, const char* schema, imsxml_report report, void* context,
                    int* count) {
    int found = -1;
    if (count != nullptr) *count = found;
    if (text == nullptr) return Fail(IMSXML_WRONG_USE, "a pointer is NULL");
    Call call;
    const int status = Run(call, nullptr, [&] {
        SetText(call, text, length);
        Validate(call, schema, {report, context}, found);
    });
    if (count != nullptr && status == IMSXML_OK) *count = found;
    return status;
}

const char* imsxml_schema_of_content_type(const char* type) {
    const int id = XMLFactory::SchemaForContentType(type);
    return id >= 0 ? XMLFactory::SchemaInfo(id)->name : nullptr;
}

const char* imsxml_version(void) { return IMSXML_VERSION; }

void imsxml_free(char* result) { __free(result); }

void imsxml_last_problem(struct imsxml_problem* problem) {
    if (problem != nullptr) *problem = lastProblem;
}
