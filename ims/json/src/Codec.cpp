#include "Codec.h"

#include "Diagnosis.h"
#include "Scanner.h"
#include "Schema.h"

const XmlSchemaInfo& SchemaOfDocument(const Document& document, eXMLProfile profile) {
    if (profile == IX_XML_PROFILE_STANDARD) return StandardSchemaOf(document.text);
    Scanner scanner(document.text);
    if (!scanner.FindRoot()) throw Diagnose(document);
    return SchemaOf(scanner);
}

XmlOwnedContext NewContext(const XmlSchemaInfo& schema, eXMLProfile profile) {
    XmlOwnedContext context(XMLFactory::newInstance(schema.id, profile));
    if (context == nullptr && profile == IX_XML_PROFILE_STANDARD) {
        throw DocumentError{kNotDecoded, std::string("schema ") + schema.name + " has no standard profile"};
    }
    if (context == nullptr) throw DocumentError{kNotDecoded, "no memory for the context"};
    return context;
}

XmlOwned<> ReadDevice(XMLContext& context, const Document& document) {
    XMLUnMarshaller* const unMarshaller = context.createUnMarshaller();
    return XmlOwned<>(unMarshaller != nullptr ? unMarshaller->UnMarshall(document.text.c_str()) : nullptr);
}

XmlOwned<> ReadStandard(XMLContext& context, const Document& document) {
    XMLUnMarshaller* const unMarshaller = context.createUnMarshaller();
    if (unMarshaller == nullptr) throw DocumentError{kNotDecoded, "no memory"};
    XmlOwned<> root(unMarshaller->UnMarshall(document.text.data(), document.text.size()));
    if (root != nullptr) return root;
    const XmlProblem problem = *unMarshaller->Problem();
    const int line = problem.line != 0 ? document.line - 1 + problem.line : 0;
    throw DocumentError{kNotDecoded, problem.text, kNoOffset, {line, problem.column}};
}

XMLMarshaller& MarshallerOf(XMLContext& context, const XmlSchemaInfo& schema) {
    XMLMarshaller* const marshaller = context.createMarshaller();
    if (marshaller == nullptr) {
        throw DocumentError{kNotMarshalled, std::string("documents of schema ") + schema.name + " are only read"};
    }
    return *marshaller;
}

DocumentError NotMarshalled(const XMLMarshaller& marshaller, const XmlSchemaInfo& schema, std::string reason) {
    if (marshaller.Problem() != nullptr) reason = marshaller.Problem()->text;
    if (reason.empty()) reason = "the library does not say why";
    return {kNotMarshalled, std::string("schema ") + schema.name + " cannot write the document: " + reason};
}

std::string FlawOf(const XMLMarshaller& marshaller, const std::string& written, eXMLProfile profile) {
    if (marshaller.IsTruncated() != 0) return "the text was cut at 32767 characters";
    // Elements stay open where something mandatory is missing in them.
    const bool isWhole = profile == IX_XML_PROFILE_STANDARD || Scanner(written).FindEnd();
    return isWhole ? "" : "the written text is not well-formed";
}
